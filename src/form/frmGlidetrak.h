#pragma once

// The main window and every control on it, by name. Where each stands is told once, in the table
// of form/ControlTable.h; what it does is told by the rooms above.

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
inline ImageList imgPanels;      ///< panel backgrounds of imgControls
inline ImageList imgListBar;     ///< the 16 pictures of imgBarGraph
inline ImageList
    imgListSwitches;       ///< toggle and emergency button pictures, and picture 6, the hand cursor
inline FileDialog cmSave;  ///< save dialog
inline FileDialog cmLoad;  ///< open dialog
inline PictureBox picHardware;  ///< top band: picture of the rig

// In picHardware.
inline Label lblHWState;   ///< link state text
inline Image imgHardware;  ///< picture of the rig

// In the form.
inline PictureBox picSensors;  ///< left panel: timing and impact

// In picSensors.
inline Image imgSensors;         ///< panel background
inline Label lblTimerTitle;      ///< legend
inline Label lblTimer;           ///< journey time
inline PictureBox picTogTimer;   ///< timing toggle
inline Image btnTmrReset;        ///< journey timer reset
inline Label lblOn1;             ///< legend
inline Label lblOff;             ///< legend
inline Label lblImpactTitle;     ///< legend
inline Label lblImpact;          ///< impact value
inline Image imgBarGraph;        ///< impact bar
inline PictureBox picTogImpact;  ///< impact toggle
inline Label lblOn2;             ///< legend
inline Label lblOff2;            ///< legend
inline Label lblImpact2;         ///< legend

// In the form.
inline PictureBox picControls;  ///< middle panel: control panel

// In picControls.
inline Image imgControls;        ///< panel background
inline Label lblControlTitle;    ///< legend
inline Label lblPowerTitle;      ///< legend
inline Image imgLever;           ///< power lever
inline ImageButton cmdManual;    ///< Manual
inline ImageButton cmdProgram;   ///< Program
inline ImageButton cmdForward;   ///< Forward
inline ImageButton cmdBackward;  ///< Backward
inline Label lblEmergStop1;      ///< legend
inline Label lblEmergStop2;      ///< legend
inline PictureBox btnEmergency;  ///< emergency stop
inline PictureBox btnRstStop;    ///< reset of the emergency stop

// In the form.
inline PictureBox pnlProgramBox;  ///< right panel: program editor

// In pnlProgramBox.
inline Image imgProgBoxBack;         ///< panel background
inline TextBox txtProgram;           ///< program text, multi-line, vertical scroll bar
inline Label lblExamples;            ///< title of the list
inline ImageButton cmdShowExamples;  ///< shows or hides the example list
inline ComboBox cmbExamples;         ///< example list
inline ImageButton cmdProgCommands;  ///< opens the picker
inline ImageButton cmdSingleStep;    ///< Trace
inline ImageButton cmdRunProgram;    ///< Run
inline ImageButton btnStopProg;      ///< Stop
inline TextBox txtFocusGrab;         ///< takes the keyboard focus away from the editor

// In the form.
inline PictureBox pnlMessage;  ///< message panel of PRINT; hidden at start

// In pnlMessage.
inline Label lblMsgTitle;  ///< title bar text "Message"
inline Label lblMessage;   ///< the message text

// In the form.
inline PictureBox pnlCommandSel;  ///< command picker panel; hidden at start

// In pnlCommandSel.
inline Label CommandSelTitle;         ///< title bar text
inline Image imgAddCmdClose;          ///< small close cross
inline Label lblCommandSelListTitle;  ///< list title
inline ListBox lstProgCommands;       ///< command list
inline ImageButton btnSelectComSel;   ///< Select
inline ImageButton btnCloseComSel;    ///< Close
inline Label fraHelp;                 ///< frame behind the panes
inline Label lblHELPFormatTitle;      ///< pane title
inline Label lblHELPFormat;           ///< format pane
inline Label lblHELPDescTitle;        ///< pane title
inline Label lblCompDesc;             ///< description pane
inline Label lblHELPExampleTitle;     ///< pane title
inline TextBox txtHELPExample;        ///< example pane

// In the form.
inline PictureBox pnlDebug;  ///< debug panel, hidden at start

// In pnlDebug.
inline Image imgCloseDebug;           ///< close cross
inline TextBox txtDebug;              ///< debug text
inline Label lblInputTitle;           ///< legend
inline Label lblInput[8];             ///< legends PA0 to PA7
inline Shape ledInput[8];             ///< eight input lamps
inline Label lblOutputTitle;          ///< legend
inline Label lblOutput[8];            ///< legends PB0 to PB7
inline Shape ledOutput[24];           ///< eight output lamps
inline OptionButton optDirection[2];  ///< direction pair, forward then backward
inline CheckBox chkTiming;            ///< timing check box
inline CheckBox chkAnalog;            ///< impact check box
inline Label pnlClock;                ///< journey time
inline Label lblAnalogVal;            ///< impact value
inline PictureBox cmdTimerReset;      ///< timer reset
inline Label lblPowerLevel;           ///< power value
inline Label lblDebugAppVer;          ///< version

// In the form.
inline Image imgDefBtn;        ///< button picture store
inline Image imgDefBtnWF;      ///< button picture store
inline Image imgDefBtnGo;      ///< button picture store
inline Image imgDefBtnGoWF;    ///< button picture store, not used
inline Image imgDefBtnStop;    ///< button picture store
inline Image imgDefBtnStopWF;  ///< button picture store
inline Image imgDiagBtn;       ///< button picture store
inline Image imgDiagBtnWF;     ///< button picture store

// The menu, in its order.
inline MenuItem MNUMAIN;  ///< head: the program's file
inline MenuItem MNUNEWPROG;
inline MenuItem MNULOADPROG;
inline MenuItem MNUSAVEPROG;
inline MenuItem MNUSAVEPROGAS;
inline MenuItem MNUEXIT;
inline MenuItem MNUPROGRAMOPT;  ///< head: the Control Program
inline MenuItem MNUCommands;
inline MenuItem MNURUN;
inline MenuItem MNUSTOP;
inline MenuItem MNUSTEPFORWARD;
inline MenuItem MNUHELP;  ///< head: help
inline MenuItem MNUShowDebug;
inline MenuItem MNUAbout;

}  // namespace glidetrak
