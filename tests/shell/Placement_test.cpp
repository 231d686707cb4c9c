// The window's place from close to start.

#include "shell/Placement.h"

#include "shell/Monitor_Functions.h"
#include "shell/StartUpTest.h"

namespace glidetrak {

namespace {

struct Place {
  float fLeft, fTop, fWidth, fHeight;
  bool operator==(const Place&) const = default;
};

void PrintTo(const Place& place, std::ostream* pStream) {
  *pStream << place.fLeft << ' ' << place.fTop << ' ' << place.fWidth << ' ' << place.fHeight;
}

class Placement : public StartUpTest {
 protected:
  void StorePlace(const char* sLeft, const char* sTop, const char* sWidth, const char* sHeight) {
    Store(Scope::User, "Left", sLeft);
    Store(Scope::User, "Top", sTop);
    Store(Scope::User, "Width", sWidth);
    Store(Scope::User, "Height", sHeight);
  }

  Place PlaceNow() const {
    return {frmGlidetrak.Left, frmGlidetrak.Top, frmGlidetrak.Width, frmGlidetrak.Height};
  }
};

TEST_F(Placement, FirstStartIsTheSmallestWindowInTheCorner) {
  Start();
  EXPECT_EQ(PlaceNow(), (Place{0, 0, 14400, 9700}));
  EXPECT_EQ(frmGlidetrak.WindowState, stateNormal);
}

TEST_F(Placement, StoredPlaceComesBack) {
  StorePlace("300", "450", "15000", "12000");
  Start();
  EXPECT_EQ(PlaceNow(), (Place{300, 450, 15000, 12000}));
}

TEST_F(Placement, StoredSizeUnderTheSmallestGrows) {
  StorePlace("300", "450", "12000", "8850");
  Start();
  EXPECT_EQ(PlaceNow(), (Place{300, 450, 14400, 9700}));
}

TEST_F(Placement, TextWhereANumberBelongsCountsAsZero) {
  StorePlace("x", "", "wide", "-");
  Start();
  EXPECT_EQ(PlaceNow(), (Place{0, 0, 14400, 9700}));
}

TEST_F(Placement, NumberAtTheHeadOfATextCounts) {
  StorePlace(" 300 ", "450px", "15000.0", "12000 twips");
  Start();
  EXPECT_EQ(PlaceNow(), (Place{300, 450, 15000, 12000}));
}

TEST_F(Placement, PlaceLeftOfThePrimaryMonitorIsTextLikeAnyOther) {
  platform.monitor = PixelRect{-1920, -200, 0, 880};
  StorePlace("-15000", "-1500", "15000", "12000");
  Start();
  EXPECT_EQ(PlaceNow(), (Place{-15000, -1500, 15000, 12000}));
  SavePlacement();
  EXPECT_EQ(platform.aWritten.at(0), "M Left=-15000");
  EXPECT_EQ(platform.aWritten.at(1), "M Top=-1500");
}

TEST_F(Placement, PlaceOnAMonitorThatIsGoneIsCentredAtItsSize) {
  StorePlace("45000", "30000", "15000", "12000");
  Start();
  EXPECT_EQ(PlaceNow(), (Place{460 * 15, 140 * 15, 15000, 12000}));
}

TEST_F(Placement, HugeNumbersStayWithinWhatAWindowCanBeGiven) {
  StorePlace("99999999999", "-99999999999", "15000", "12000");
  Start();
  EXPECT_EQ(PlaceNow(), (Place{460 * 15, 140 * 15, 15000, 12000}));
}

TEST_F(Placement, UsersValueBeatsTheMachines) {
  StorePlace("300", "450", "15000", "12000");
  Store(Scope::Machine, "Left", "900");
  Start();
  EXPECT_EQ(frmGlidetrak.Left, 300);
}

TEST_F(Placement, StateOpensNormalOrMaximised) {
  const struct {
    const char* sState;
    int iState;
  } rows[] = {{"0", stateNormal}, {"1", stateNormal}, {"2", stateMaximised},
              {"", stateNormal},  {"x", stateNormal}, {" 2 ", stateMaximised}};
  for (const auto& row : rows) {
    Store(Scope::User, "State", row.sState);
    RestorePlacement();
    EXPECT_EQ(frmGlidetrak.WindowState, row.iState) << row.sState;
  }
}

TEST_F(Placement, StateComesBehindTheMoveToTheMonitor) {
  StorePlace("45000", "30000", "15000", "12000");
  Store(Scope::User, "State", "2");
  int iStateAtMove = -1;
  const auto moved =
      frmGlidetrak.Left.addNotifier([&] { iStateAtMove = frmGlidetrak.WindowState; });
  Start();
  EXPECT_EQ(iStateAtMove, stateNormal);
  EXPECT_EQ(frmGlidetrak.WindowState, stateMaximised);
}

TEST_F(Placement, IsWrittenInItsOrder) {
  StorePlace("300", "450", "15000", "12000");
  Start();
  frmGlidetrak.WindowState = stateMaximised;
  SavePlacement();
  EXPECT_EQ(platform.aWritten, (std::vector<QString>{"M Left=300", "M Top=450", "M Width=15000",
                                                     "M Height=12000", "M State=2"}));
}

TEST_F(Placement, MinimisedWindowIsWrittenAsSuch) {
  Start();
  frmGlidetrak.WindowState = stateMinimised;
  SavePlacement();
  EXPECT_EQ(platform.aWritten.back(), "M State=1");
}

TEST_F(Placement, ComesFromTheWindowWhenItsNormalPlaceIsUnknown) {
  Start();
  platform.bNormalRectKnown = false;
  SavePlacement();
  EXPECT_EQ(platform.aWritten.size(), 5U);
}

TEST_F(Placement, IsNotWrittenWhenNoPlaceIsKnown) {
  Start();
  platform.bNormalRectKnown = platform.bWindowRectKnown = false;
  SavePlacement();
  EXPECT_TRUE(platform.aWritten.empty());
  TwipsRect rect{1, 2, 3, 4};
  EXPECT_FALSE(GetWindowRectTwips(rect));
  EXPECT_EQ(rect.lHeight, 4);
}

}  // namespace

}  // namespace glidetrak
