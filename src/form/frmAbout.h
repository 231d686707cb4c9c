#pragma once

// The start-up and About box.

#include "form/Controls.h"

namespace glidetrak {

inline Form frmAbout;

inline Image Image1;           ///< picture of the rig
inline PictureBox Picture1;    ///< emblem
inline Label lblProgName;      ///< program name
inline Label lblProgVer;       ///< version text
inline Label lblCopyright;     ///< legal notice, right-aligned
inline Line Line1;             ///< a horizontal rule
inline Label lblplw8Instruct;  ///< hardware status
inline PictureBox picClose;    ///< closes the box
inline Timer tmrUpdate;        ///< 3000 ms, runs from the moment the form loads
inline Timer TmrAbout;         ///< 6000 ms, off at load

}  // namespace glidetrak
