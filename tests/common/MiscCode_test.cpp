// Pictures are assigned only when they differ.

#include "common/MiscCode.h"

#include <gtest/gtest.h>

namespace glidetrak {
namespace {

struct PictureRow {
  PictureId before;
  bool bHot;
  PictureId after;
  int iAssignments;
};

const PictureRow PictureRows[] = {
    {PictureId::DefBtn, false, PictureId::DefBtn, 0},
    {PictureId::DefBtn, true, PictureId::DiagBtnWF, 1},
    {PictureId::DiagBtnWF, true, PictureId::DiagBtnWF, 0},
    {PictureId::DiagBtnWF, false, PictureId::DefBtn, 1},
    {PictureId::None, false, PictureId::DefBtn, 1},
};

TEST(SetPictureIfChanged, AssignsTheWantedPictureOnlyWhenItIsNotThere) {
  for (const PictureRow& row : PictureRows) {
    ImageButton button;
    button.Picture = row.before;
    int iAssignments = 0;
    const auto watch = button.Picture.addNotifier([&] { ++iAssignments; });
    SetPictureIfChanged(button, row.bHot, PictureId::DefBtn, PictureId::DiagBtnWF);
    EXPECT_EQ(button.Picture, row.after);
    EXPECT_EQ(iAssignments, row.iAssignments);
  }
}

}  // namespace
}  // namespace glidetrak
