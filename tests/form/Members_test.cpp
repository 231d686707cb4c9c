// The five control arrays of the debug panel, member by member.

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "form/ControlTable.h"
#include "form/frmGlidetrak.h"
#include "station/Print.h"

namespace glidetrak {
namespace {

const MemberRow* FindMember(const QString& sArray, int iIndex) {
  for (const MemberRow& row : MemberTable()) {
    if (sArray == row.sArray && row.iIndex == iIndex) return &row;
  }
  return nullptr;
}

struct ArrayRow {
  const char* sName;
  int iMembers;
};

const ArrayRow Arrays[] = {
    {"lblInput", 8}, {"ledInput", 8}, {"lblOutput", 8}, {"ledOutput", 24}, {"optDirection", 2},
};

TEST(Members, AreCompleteForEachArray) {
  std::map<QString, std::set<int>> indexes;
  for (const MemberRow& row : MemberTable()) indexes[row.sArray].insert(row.iIndex);
  EXPECT_EQ(indexes.size(), std::size(Arrays));
  for (const ArrayRow& array : Arrays) {
    const std::set<int>& found = indexes[array.sName];
    EXPECT_EQ(static_cast<int>(found.size()), array.iMembers) << array.sName;
    EXPECT_EQ(*found.begin(), 0) << array.sName;
    EXPECT_EQ(*found.rbegin(), array.iMembers - 1) << array.sName;
  }
  EXPECT_EQ(MemberTable().size(), 50U);
}

TEST(Members, AreCountedInTheMainFormsTable) {
  for (const ArrayRow& array : Arrays) {
    for (const ControlRow& row : MainFormTable()) {
      if (QString(array.sName) != row.sName) continue;
      EXPECT_EQ(row.iMembers, array.iMembers) << row.sName;
    }
  }
}

constexpr float aLampTops[8] = {660, 945, 1245, 1530, 1815, 2115, 2400, 2685};

TEST(Members, PlaceTheInputLamps) {
  for (int i = 0; i < 8; ++i) {
    const MemberRow* pLamp = FindMember("ledInput", i);
    ASSERT_NE(pLamp, nullptr);
    EXPECT_EQ(pLamp->fLeft, 150) << i;
    EXPECT_EQ(pLamp->fTop, aLampTops[i]) << i;
    EXPECT_EQ(pLamp->fWidth, 270) << i;
    EXPECT_EQ(pLamp->fHeight, i < 2 ? 180 : 175) << i;
  }
}

TEST(Members, PlaceTheOutputLamps) {
  for (int i = 0; i < 8; ++i) {
    const MemberRow* pLamp = FindMember("ledOutput", i);
    ASSERT_NE(pLamp, nullptr);
    EXPECT_EQ(pLamp->fLeft, 4410) << i;
    EXPECT_EQ(pLamp->fTop, aLampTops[i]) << i;
    EXPECT_EQ(pLamp->fWidth, 270) << i;
    EXPECT_EQ(pLamp->fHeight, i == 0 ? 180 : 175) << i;
  }
}

bool Encloses(const MemberRow& outer, const MemberRow& inner) {
  return outer.fLeft <= inner.fLeft && outer.fTop <= inner.fTop &&
         outer.fLeft + outer.fWidth >= inner.fLeft + inner.fWidth &&
         outer.fTop + outer.fHeight >= inner.fTop + inner.fHeight;
}

TEST(Members, PutAFrameAroundEachLamp) {
  for (int i = 0; i < 8; ++i) {
    const MemberRow& outputFrame = *FindMember("ledOutput", 8 + i);
    const MemberRow& inputFrame = *FindMember("ledOutput", 16 + i);
    EXPECT_EQ(outputFrame.fLeft, 4380) << i;
    EXPECT_EQ(inputFrame.fLeft, 120) << i;
    for (const MemberRow* pFrame : {&outputFrame, &inputFrame}) {
      EXPECT_EQ(pFrame->fWidth, 315) << i;
      EXPECT_EQ(pFrame->fHeight, 220) << i;
    }
    EXPECT_TRUE(Encloses(outputFrame, *FindMember("ledOutput", i))) << i;
    EXPECT_TRUE(Encloses(inputFrame, *FindMember("ledInput", i))) << i;
  }
}

TEST(Members, PutTheFramesAloneBehindTheLamps) {
  for (const MemberRow& row : MemberTable()) {
    const bool bFrame = QString("ledOutput") == row.sArray && row.iIndex >= 8;
    EXPECT_EQ(row.layer, bFrame ? Layer::Behind : Layer::Front) << row.sArray << row.iIndex;
  }
}

TEST(Members, PutALegendBesideEachLamp) {
  for (int i = 0; i < 8; ++i) {
    const MemberRow& input = *FindMember("lblInput", i);
    EXPECT_EQ(input.fLeft, 495) << i;
    EXPECT_EQ(input.fTop, aLampTops[i] - 15) << i;
    EXPECT_EQ(input.fWidth, 300) << i;
    EXPECT_EQ(input.fHeight, 210) << i;
    const MemberRow& output = *FindMember("lblOutput", i);
    EXPECT_EQ(output.fLeft, 4770) << i;
    EXPECT_EQ(output.fTop, aLampTops[i] - 15) << i;
    EXPECT_EQ(output.fWidth, 375) << i;
    EXPECT_EQ(output.fHeight, 175) << i;
  }
}

TEST(Members, PutForwardAheadOfBackward) {
  const MemberRow& forward = *FindMember("optDirection", 1);
  const MemberRow& backward = *FindMember("optDirection", 0);
  EXPECT_EQ(forward.fLeft, 1020);
  EXPECT_EQ(forward.fTop, 1960);
  EXPECT_EQ(backward.fTop, 1960);
  EXPECT_GE(backward.fLeft, forward.fLeft + forward.fWidth);
  EXPECT_EQ(forward.fWidth, 1055);
  EXPECT_EQ(backward.fWidth, 1055);
}

}  // namespace
}  // namespace glidetrak
