#pragma once

// The main window and every control on it, by name. Where each stands and what it looks like is
// told once, in the table of form/ControlTable.h; what it does is told by the rooms above. Texts
// are quoted in English.

#include "form/Controls.h"
#include "form/TextBox.h"

namespace glidetrak {

inline Form frmGlidetrak;
inline Screen screen;
inline Application application;

// In the form.
inline Timer tmrEmergencyFlash;  ///< 500 ms, off at start; flashes the emergency button
inline Timer tmrReconnect;       ///< 5000 ms, off at start; retries the link
inline Timer tmrSystem;          ///< design interval 5 ms, off; started at 25 ms by start-up
inline ImageList imgPanels;      ///< pictures of imgControls: 1 mode Manual, 2 mode Program
inline ImageList imgListBar;     ///< pictures of imgBarGraph: 1 to 16 for the impact values 0 to 15
inline ImageList imgListSwitches;  ///< toggle: 1 on, 2 off; emergency stop: 3 to 5; 6 the hand
inline FileDialog cmSave;          ///< save dialog
inline FileDialog cmLoad;          ///< open dialog
inline PictureBox picHardware;     ///< top band; a message box may stand over it

// In picHardware.
inline Label lblHWState;   ///< whether the interface is detected, along the right edge
inline Image imgHardware;  ///< picture of the rig, behind the text

// In the form.
inline PictureBox picSensors;  ///< left panel: timing and impact

// In picSensors.
inline Image imgSensors;         ///< panel background
inline Label lblTimerTitle;      ///< "TIMING": head of the upper half
inline Label lblTimer;           ///< journey time, as "12.34" s; "--.--" while timing is off
inline PictureBox picTogTimer;   ///< timing toggle; a click switches iTimingEnabled
inline Image btnTmrReset;        ///< zeroes the journey timer; shown while timing is on
inline Label lblOn1;             ///< "ON" above the timing toggle
inline Label lblOff;             ///< "OFF" below the timing toggle
inline Label lblImpactTitle;     ///< "IMPACT": head of the lower half
inline Label lblImpact;          ///< impact value, "00" to "15"
inline Image imgBarGraph;        ///< impact value as a bar
inline PictureBox picTogImpact;  ///< impact toggle; once on, iAnalogEnabled stays 1
inline Label lblOn2;             ///< "ON" above the impact toggle
inline Label lblOff2;            ///< "OFF" below the impact toggle
inline Label lblImpact2;         ///< "IMPACT" beside the value

// In the form.
inline PictureBox picControls;  ///< middle panel: control panel

// In picControls.
inline Image imgControls;        ///< panel background, one for each mode
inline Label lblControlTitle;    ///< "CONTROL PANEL" in the middle of the panel
inline Label lblPowerTitle;      ///< "POWER" above the lever
inline Image imgLever;           ///< power lever; its top tells the power
inline ImageButton cmdManual;    ///< Manual
inline ImageButton cmdProgram;   ///< Program
inline ImageButton cmdForward;   ///< Forward
inline ImageButton cmdBackward;  ///< Backward
inline Label lblEmergStop1;      ///< "EMERGENCY", head of the button
inline Label lblEmergStop2;      ///< "STOP", between that and the button
inline PictureBox btnEmergency;  ///< emergency stop, at the press of any mouse button
inline PictureBox btnRstStop;    ///< ends the emergency stop; lies over a corner of btnEmergency

// In the form.
inline PictureBox pnlProgramBox;  ///< right panel: program editor

// In pnlProgramBox.
inline Image imgProgBoxBack;         ///< panel background
inline TextBox txtProgram;           ///< the Control Program; keeps every character of it
inline Label lblExamples;            ///< "Pre-set Programs:", head of the example list
inline ImageButton cmdShowExamples;  ///< shows or hides the example list
inline ComboBox cmbExamples;         ///< example list, hidden until asked for
inline ImageButton cmdProgCommands;  ///< opens the picker
inline ImageButton cmdSingleStep;    ///< Trace
inline ImageButton cmdRunProgram;    ///< Run
inline ImageButton btnStopProg;      ///< Stop
inline TextBox txtFocusGrab;  ///< takes the focus from the editor and from a control that goes away

// In the form.
inline PictureBox pnlMessage;  ///< message panel of PRINT; hidden at start

// In pnlMessage.
inline Label lblMsgTitle;  ///< title bar text "Message"
inline Label lblMessage;   ///< the message text

// In the form.
inline PictureBox pnlCommandSel;  ///< command picker panel; hidden at start

// In pnlCommandSel.
inline Label CommandSelTitle;         ///< title bar text "Command Selection"
inline Image imgAddCmdClose;          ///< close cross
inline Label lblCommandSelListTitle;  ///< "Commands", above the list
inline ListBox lstProgCommands;       ///< the 22 commands
inline ImageButton btnSelectComSel;   ///< Select
inline ImageButton btnCloseComSel;    ///< Close
inline Label fraHelp;                 ///< frame behind the panes, without a text
inline Label lblHELPFormatTitle;      ///< "Format:"
inline Label lblHELPFormat;           ///< how the chosen command is written
inline Label lblHELPDescTitle;        ///< "Description:"
inline Label lblCompDesc;             ///< what the chosen command does
inline Label lblHELPExampleTitle;     ///< "Example:", hidden for a command without one
inline TextBox txtHELPExample;        ///< an example of it, hidden for a command without one

// In the form.
inline PictureBox pnlDebug;  ///< debug panel, hidden at start

// In pnlDebug.
inline Image imgCloseDebug;   ///< close cross
inline TextBox txtDebug;      ///< both port images in decimal, and the time
inline Label lblInputTitle;   ///< "INPUTS" above the input lamps
inline Label lblInput[8];     ///< "PA0" to "PA7" beside the input lamps
inline Shape ledInput[8];     ///< input lamp of each bit of lInputImage; black when off
inline Label lblOutputTitle;  ///< "OUTPUTS" above the output lamps
inline Label lblOutput[8];    ///< "PB0" to "PB7" beside the output lamps
/// 0 to 7: output lamp of each bit of lOutputImage, black when off; 8 to 15: the grey frames behind
/// the output lamps; 16 to 23: those behind the input lamps.
inline Shape ledOutput[24];
inline OptionButton optDirection[2];  ///< 0 Backward, 1 Forward; shows iDirection in debug mode
inline CheckBox chkTiming;            ///< "Timing:" beside pnlClock; nothing ticks it
inline CheckBox chkAnalog;            ///< "Impact:" beside lblAnalogVal; nothing ticks it
inline Label pnlClock;                ///< journey time in debug mode, as lblTimer
inline Label lblAnalogVal;            ///< impact value in debug mode, 0 to 15
inline PictureBox cmdTimerReset;      ///< zeroes the journey timer in debug mode
inline Label lblPowerLevel;           ///< iPower in debug mode, 0 to 15
inline Label lblDebugAppVer;          ///< version, as "v3.0.0"

// In the form, below its visible part and hidden: the pictures that buttons wear.
inline Image imgDefBtn;    ///< at rest: Commands, Trace, example list; mode and direction in force
inline Image imgDefBtnWF;  ///< mode and direction not in force
inline Image imgDefBtnGo;  ///< at rest: Run
inline Image imgDefBtnGoWF;    ///< worn by nothing
inline Image imgDefBtnStop;    ///< at rest: Stop
inline Image imgDefBtnStopWF;  ///< under the mouse: Stop
inline Image imgDiagBtn;       ///< at rest: the buttons of the picker
inline Image imgDiagBtnWF;     ///< under the mouse: every image button but Stop

// The menu, in its order.
inline MenuItem MNUMAIN;         ///< head: the program's file
inline MenuItem MNUNEWPROG;      ///< New
inline MenuItem MNULOADPROG;     ///< Load
inline MenuItem MNUSAVEPROG;     ///< Save
inline MenuItem MNUSAVEPROGAS;   ///< Save As
inline MenuItem MNUEXIT;         ///< Exit
inline MenuItem MNUPROGRAMOPT;   ///< head: the Control Program
inline MenuItem MNUCommands;     ///< opens the picker
inline MenuItem MNURUN;          ///< Run
inline MenuItem MNUSTOP;         ///< Stop
inline MenuItem MNUSTEPFORWARD;  ///< Trace
inline MenuItem MNUHELP;         ///< head: help
inline MenuItem MNUShowDebug;    ///< shows the debug panel; hidden unless bDebugMode
inline MenuItem MNUAbout;        ///< shows the About box

}  // namespace glidetrak
