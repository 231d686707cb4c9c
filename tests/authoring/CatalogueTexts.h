#pragma once

// The command catalogue as the user is to see it, in list order.

namespace glidetrak {

struct CatalogueText {
  const char* sName;
  bool bTakesArgument;  ///< the list shows a blank behind the name
  bool bIsSensor;
  const char* sFormat;
  const char* sDescription;
  const char* sExample;
};

constexpr CatalogueText aCatalogue[] = {
    {"AIRPORT_CALL", false, true, "AIRPORT_CALL",
     "Defines the status of the Airport Call button. Can have a value of either ON or OFF.",
     "IF AIRPORT_CALL=ON\r\n   PRINT \"Airport Call Made\" \r\nENDIF"},
    {"BACKWARD", false, false, "BACKWARD", "Sets the motor direction to move the vehicle Backward.",
     "BACKWARD"},
    {"BEEP", false, false, "BEEP", "Sends a Beep to the computer's speaker.", "BEEP"},
    {"BREAK", false, false, "BREAK", "Stops the program.", "BREAK"},
    {"CITY_CALL", false, true, "CITY_CALL",
     "Defines the status of the City Call button. Can have a value of either ON or OFF.",
     "IF CITY_CALL=ON\r\n   PRINT \"City Call Made\" \r\nENDIF"},
    {"ENDIF", false, false, "ENDIF",
     "Ends a list of commands performed when an IF command is used and the value of its expression "
     "is true.",
     "IF LIGHT_SENSOR=OFF \r\n   PRINT \"Night time\" \r\nENDIF"},
    {"FORWARD", false, false, "FORWARD", "Sets the motor direction to move the vehicle Forward.",
     "FORWARD"},
    {"GET", true, false, "GET [Variable]",
     "Collects a key pressed by the user, in the range of A-Z and 0-9 and stores it in the "
     "specified variable.",
     "GET C"},
    {"GOTO", true, false, "GOTO [label name]",
     "Jumps to a point in the program identified by the label name.", "GOTO Restart"},
    {"HALT", false, false, "HALT", "Stops the Glidetrak motor.", "HALT"},
    {"IF", true, false, "IF [expression] ....... ENDIF",
     "Used to check values and act upon the results. Can also be used to test the status of "
     "sensors.",
     "IF LIGHT_SENSOR=OFF \r\n   PRINT \"Night time\" \r\nENDIF"},
    {"LABEL", true, false, "LABEL [label name]",
     "Marks a specified location within a program. Can be used in conjunction with the GOTO "
     "command to jump between sections of the program.",
     "LABEL Restart"},
    {"LET", true, false, "LET [expression]", "Used to assign values to variables.",
     "LET C = C + 1"},
    {"LIGHT_SENSOR", false, true, "LIGHT_SENSOR",
     "Defines the status of the Light Sensor. Daytime = ON, Night time = OFF.",
     "IF LIGHT_SENSOR=ON\r\n   PRINT \"Night time\" \r\nENDIF"},
    {"POWER", true, false, "POWER [value]",
     "Sets the Power level setting of the Glidetrak track to the specified value.", "POWER 10"},
    {"PRINT", true, false, "PRINT \"[message]\"",
     "Displays a message to the user. The message must be enclosed within double speech marks. The "
     "message is cleared by calling PRINT with no message.",
     "PRINT \"Hello World\"\r\nWAIT 3000\r\nPRINT"},
    {"SOUND_SENSOR", false, true, "SOUND_SENSOR",
     "Defines the status of the Sound Sensor. Sound detected = ON, No sound = OFF.",
     "IF SOUND_SENSOR=ON\r\n   PRINT \"Sound detected\" \r\nENDIF"},
    {"START_BUTTON", false, true, "START_BUTTON",
     "Defines the status of the Start Button. Button pressed = ON, not pressed = OFF.",
     "IF START_BUTTON=ON\r\n   PRINT \"Start Button Pressed\" \r\nENDIF"},
    {"TIME_GATE_A", false, true, "TIME_GATE_A",
     "Defines the status of the left timing gate (A). Timing gate beam broken = ON, not broken = "
     "OFF.",
     "IF TIME_GATE_A=ON\r\n   PRINT \"Timing gate A beam broken\" \r\nENDIF"},
    {"TIME_GATE_B", false, true, "TIME_GATE_B",
     "Defines the status of the right timing gate (B). Timing gate beam broken = ON, not broken = "
     "OFF.",
     "IF TIME_GATE_B=ON\r\n   PRINT \"Timing gate B beam broken\" \r\nENDIF"},
    {"TIME_RESET", false, false, "TIME_RESET",
     "Resets the Journey Timer (if timing in progress) and resets the MAX acceleration display "
     "bar.",
     "TIME_RESET"},
    {"WAIT", true, false, "WAIT [milliseconds]",
     "Creates a time delay in your program determined by the specified value in milliseconds. For "
     "example WAIT 1000 creates a delay of 1 second.",
     "WAIT 1000"},
};

}  // namespace glidetrak
