// The power lever: the drag, and what reaches the motor.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "station/NamedRow.h"
#include "station/RigStation.h"
#include "track/ModeAndDirection.h"
#include "track/OutputImage.h"

namespace glidetrak {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr float fGrip = 360;  ///< where inside the lever's picture it is held

class Lever : public testing::Test {
 protected:
  RigStation station;
  WatchedPlatform& platform = station.platform;

  /// A move of the mouse that asks for that place.
  void DragTo(float fTop, int iButton = mouseLeft) {
    imgLever.MouseMove(iButton, 900, fTop - imgLever.Top + fGrip);
  }
};

struct PlaceRow {
  float fWanted;
  float fTop;
  int iLevel;
};

// A step is 168 2/3 twips. Tops of 253 times an odd number beyond 2230 lie exactly half way between
// two levels and go to the even multiple of the step.
const PlaceRow aPlaces[] = {
    {2230, 2230, 15}, {2229, 2230, 15}, {0, 2230, 15},          {-30000, 2230, 15},
    {2231, 2231, 15}, {2314, 2314, 15}, {2315, 2315, 14},       {2398, 2398, 14},
    {2399, 2399, 14}, {2482, 2482, 14}, {2483, 2483, 13},       {2484, 2484, 13},
    {2988, 2988, 11}, {2989, 2989, 11}, {2990, 2990, 10},       {3494, 3494, 8},
    {3495, 3495, 7},  {3496, 3496, 7},  {4000, 4000, 5},        {4001, 4001, 5},
    {4002, 4002, 4},  {4506, 4506, 2},  {4507, 4507, 1},        {4508, 4508, 1},
    {4675, 4675, 1},  {4676, 4676, 0},  {4759, 4759, 0},        {4760, 4760, 0},
    {4761, 4760, 0},  {30000, 4760, 0}, {2314.5F, 2314.5F, 14}, {3495.5F, 3495.5F, 7},
};

TEST_F(Lever, FollowsTheMouseBetweenTheLevelsAndKeepsToItsSlot) {
  station.Start();
  for (const PlaceRow& row : aPlaces) {
    DragTo(row.fWanted);
    EXPECT_EQ(imgLever.Top.value(), row.fTop) << row.fWanted;
    EXPECT_EQ(iLeverLevel, row.iLevel) << row.fWanted;
  }
}

TEST_F(Lever, IsHeldThreeHundredAndSixtyTwipsInside) {
  station.Start();
  imgLever.MouseMove(mouseLeft, 0, 360);
  EXPECT_EQ(imgLever.Top.value(), 4760);
  imgLever.MouseMove(mouseLeft, 0, 359);
  EXPECT_EQ(imgLever.Top.value(), 4759);
  imgLever.MouseMove(mouseLeft, 0, 0);
  EXPECT_EQ(imgLever.Top.value(), 4399);
  imgLever.MouseMove(mouseLeft, 0, 735);
  EXPECT_EQ(imgLever.Top.value(), 4760);
}

TEST_F(Lever, MovesWithTheLeftButtonAlone) {
  station.Start();
  for (const int iButton : {0, int{mouseRight}, int{mouseMiddle}}) {
    DragTo(3000, iButton);
    EXPECT_EQ(imgLever.Top.value(), 4760) << iButton;
  }
}

TEST_F(Lever, IsNotSnappedWhenItIsLetGo) {
  station.Start();
  imgLever.MouseDown(mouseLeft, 0, fGrip);
  DragTo(2300);
  imgLever.MouseUp(mouseLeft, 0, fGrip);
  platform.RunFor(100);
  EXPECT_EQ(imgLever.Top.value(), 2300);
  EXPECT_EQ(iPower, 15);
}

TEST_F(Lever, ReachesTheMotorWithTheNextTick) {
  station.Start();
  DragTo(2230);
  EXPECT_THAT(station.WrittenBytes(), IsEmpty());
  EXPECT_EQ(iPower, 0);
  platform.RunFor(25);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x1F));
  EXPECT_EQ(iPower, 15);
  platform.RunFor(500);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x1F));
}

TEST_F(Lever, WritesTheLastPlaceOfAFastDragOnly) {
  station.Start();
  for (const float fTop : {4700.0F, 4000.0F, 3000.0F, 2230.0F, 3495.0F}) DragTo(fTop);
  platform.RunFor(25);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x17));
}

TEST_F(Lever, BackOnTheLastRequestWritesNothing) {
  station.Start();
  DragTo(2230);
  DragTo(4760);
  platform.RunFor(25);
  EXPECT_THAT(station.WrittenBytes(), IsEmpty());
}

TEST_F(Lever, WithinOneLevelWritesNothing) {
  station.Start();
  DragTo(2230);
  platform.RunFor(25);
  station.Forget();
  DragTo(2314);
  platform.RunFor(25);
  EXPECT_THAT(station.WrittenBytes(), IsEmpty());
}

TEST_F(Lever, KeepsTheDirectionBit) {
  station.Start();
  station.Click("cmdBackward");
  DragTo(2230);
  platform.RunFor(25);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0x00, 0x0F));
}

TEST_F(Lever, MovesWithoutALinkAndIsNotSentLater) {
  station.Start(RigLink::None);
  platform.RunFor(25);
  DragTo(2230);
  platform.RunFor(25);
  EXPECT_EQ(iPower, 15);
  station.Attach(RigLink::Parallel);
  platform.RunFor(10'000);
  EXPECT_THAT(station.WrittenBytes(), ElementsAre(0));
}

struct PointerRow : NamedRow {
  bool bProgram, bLatched;
  int iRest, iDown, iUp;  ///< the pointer behind SetControlStates, a press and a release
};

class LeverPointer : public Lever, public testing::WithParamInterface<PointerRow> {};

TEST_P(LeverPointer, TellsWhetherItCanBeDragged) {
  const PointerRow& row = GetParam();
  station.Start();
  if (row.bProgram) station.Click("cmdProgram");
  if (row.bLatched) btnEmergency.MouseDown(mouseLeft, 0, 0);
  EXPECT_EQ(imgLever.MousePointer.value(), row.iRest);
  for (const int iButton : {int{mouseRight}, int{mouseMiddle}}) {
    imgLever.MouseDown(iButton, 0, fGrip);
    EXPECT_EQ(imgLever.MousePointer.value(), row.iRest);
  }
  imgLever.MouseDown(mouseLeft, 0, fGrip);
  EXPECT_EQ(imgLever.MousePointer.value(), row.iDown);
  DragTo(3000);
  const bool bFree = !row.bProgram && !row.bLatched;
  EXPECT_EQ(imgLever.Top.value(), bFree ? 3000 : 4760);
  imgLever.MouseUp(mouseLeft, 0, fGrip);
  EXPECT_EQ(imgLever.MousePointer.value(), row.iUp);
}

// A release does not look at the latch.
INSTANTIATE_TEST_SUITE_P(
    Rows, LeverPointer,
    testing::Values(PointerRow{"Manual", false, false, ptrCustom, ptrNorthSouth, ptrCustom},
                    PointerRow{"ManualLatched", false, true, ptrNoDrop, ptrNoDrop, ptrCustom},
                    PointerRow{"Program", true, false, ptrNoDrop, ptrNoDrop, ptrNoDrop},
                    PointerRow{"ProgramLatched", true, true, ptrNoDrop, ptrNoDrop, ptrNoDrop}),
    RowName());

TEST_F(Lever, KeepsItsDragPointerWhileTheTicksGoOn) {
  station.Start();
  platform.RunFor(100);
  imgLever.MouseDown(mouseLeft, 0, fGrip);
  platform.RunFor(100);
  EXPECT_EQ(imgLever.MousePointer.value(), ptrNorthSouth);
}

}  // namespace
}  // namespace glidetrak
