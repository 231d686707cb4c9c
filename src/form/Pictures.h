#pragma once

// The pictures of the two forms, by identity. Behaviour compares identities ("does the button
// already wear this picture?"); what each looks like is the view's matter, which finds the file
// data/pictures/<file name>.svg for it.

#include <array>

namespace glidetrak {

enum class PictureId {
  None,
  Hardware,
  SensorsPanel,
  ProgramPanel,
  ControlsManual,   ///< imgPanels 1
  ControlsProgram,  ///< imgPanels 2
  DefBtn,
  DefBtnWF,
  DefBtnGo,
  DefBtnGoWF,
  DefBtnStop,
  DefBtnStopWF,
  DiagBtn,
  DiagBtnWF,
  ToggleOn,          ///< imgListSwitches 1
  ToggleOff,         ///< imgListSwitches 2
  EmergencyIdle,     ///< imgListSwitches 3
  EmergencyPressed,  ///< imgListSwitches 4, and one flash phase
  EmergencyFlash,    ///< imgListSwitches 5, the other flash phase
  HandCursor,        ///< imgListSwitches 6
  Lever,
  ResetButton,
  TimerReset,
  CloseCross,
  AboutRig,
  AboutEmblem,
  AboutClose,
  Bar0,  ///< imgListBar 1 to 16: the impact values 0 to 15
  Bar15 = Bar0 + 15,
};

struct PictureFile {
  PictureId picture;
  const char* sFile;  ///< base name in data/pictures; the bars share one, drawn to their value
};

inline constexpr std::array PictureFiles{
    PictureFile{PictureId::Hardware, "hardware"},
    PictureFile{PictureId::SensorsPanel, "sensors-panel"},
    PictureFile{PictureId::ProgramPanel, "program-panel"},
    PictureFile{PictureId::ControlsManual, "controls-manual"},
    PictureFile{PictureId::ControlsProgram, "controls-program"},
    PictureFile{PictureId::DefBtn, "button"},
    PictureFile{PictureId::DefBtnWF, "button-unchosen"},
    PictureFile{PictureId::DefBtnGo, "button-go"},
    PictureFile{PictureId::DefBtnGoWF, "button-go-hot"},
    PictureFile{PictureId::DefBtnStop, "button-stop"},
    PictureFile{PictureId::DefBtnStopWF, "button-stop-hot"},
    PictureFile{PictureId::DiagBtn, "button-dialog"},
    PictureFile{PictureId::DiagBtnWF, "button-hot"},
    PictureFile{PictureId::ToggleOn, "toggle-on"},
    PictureFile{PictureId::ToggleOff, "toggle-off"},
    PictureFile{PictureId::EmergencyIdle, "emergency-idle"},
    PictureFile{PictureId::EmergencyPressed, "emergency-pressed"},
    PictureFile{PictureId::EmergencyFlash, "emergency-flash"},
    PictureFile{PictureId::HandCursor, "hand-cursor"},
    PictureFile{PictureId::Lever, "lever"},
    PictureFile{PictureId::ResetButton, "reset-button"},
    PictureFile{PictureId::TimerReset, "timer-reset"},
    PictureFile{PictureId::CloseCross, "close-cross"},
    PictureFile{PictureId::AboutRig, "about-rig"},
    PictureFile{PictureId::AboutEmblem, "about-emblem"},
    PictureFile{PictureId::AboutClose, "about-close"},
};

}  // namespace glidetrak
