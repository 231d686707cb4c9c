#pragma once

// frmAbout serves twice: as the box that greets at every start and tells after three seconds
// whether the interface was found, and as the About box. It is loaded afresh for each showing.

namespace glidetrak {

/// The last visible step of start-up: an empty title, six seconds, the main form open for use.
void ShowStartupBox();

/// True: the About box, modal, until it is closed by its picture. False: not modal and without a
/// title; nothing calls that.
void ShowPlzW8Box(bool bAbout);

void frmAbout_Load();

/// The two timers live with the load.
void frmAbout_Unload();

/// The link's state of that one moment.
void tmrUpdate_Timer();
void TmrAbout_Timer();
void picClose_Click();

/// Nothing while a program runs.
void MNUAbout_Click();

}  // namespace glidetrak
