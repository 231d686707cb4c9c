// Pictures are assigned only when they differ.

#include "common/MiscCode.h"

#include <gtest/gtest.h>

namespace glidetrak {
namespace {

/// A picture that counts what is assigned to it: a property would drop an equal value itself.
class CountedPicture {
 public:
  explicit CountedPicture(PictureId picture) : m_picture(picture) {}

  PictureId value() const { return m_picture; }
  CountedPicture& operator=(PictureId picture) {
    m_picture = picture;
    ++iAssignments;
    return *this;
  }

  int iAssignments = 0;

 private:
  PictureId m_picture;
};

struct Target {
  CountedPicture Picture;
};

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
    Target target{CountedPicture(row.before)};
    SetPictureIfChanged(target, row.bHot, PictureId::DefBtn, PictureId::DiagBtnWF);
    EXPECT_EQ(target.Picture.value(), row.after);
    EXPECT_EQ(target.Picture.iAssignments, row.iAssignments);
  }
}

}  // namespace
}  // namespace glidetrak
