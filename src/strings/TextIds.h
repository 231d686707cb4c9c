#pragma once

// The texts of the station by name; the list stands beside the tables in data/strings.

namespace glidetrak {

enum TextId : int {
#define TEXT_ID(ID, NAME) NAME = (ID),
#include "../data/strings/TextIds.inc"
#undef TEXT_ID

  // Asked for, and without a text in any language: what asks is emptied.
  idNoText = 0,
  idNoResetTip = 1,
  idNoImpactTip = 2,
  idNoLeverTip = 3,
  idNoStopTip = 5,
  idNoDescription = 263,
};

}  // namespace glidetrak
