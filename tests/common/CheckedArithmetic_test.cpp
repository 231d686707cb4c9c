// Arithmetic that raises an error where a width does not hold the result.

#include "common/CheckedArithmetic.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <optional>

#include "common/SkipOnError.h"

namespace glidetrak {
namespace {

/// The fault that the step raised, nothing if it raised none.
std::optional<Fault> FaultOf(const std::function<void()>& step) {
  try {
    step();
  } catch (const RuntimeError& error) {
    return error.fault();
  }
  return {};
}

TEST(CheckedInt16, PassesWhatFits) {
  for (const qint64 lValue : {qint64{-32768}, qint64{-1}, qint64{0}, qint64{32767}}) {
    EXPECT_EQ(CheckedInt16(lValue), lValue);
  }
}

TEST(CheckedInt16, RefusesTheNextValueOnEitherSide) {
  for (const qint64 lValue : {qint64{-32769}, qint64{32768}, qint64{65536}, -(qint64{1} << 40)}) {
    EXPECT_EQ(FaultOf([=] { CheckedInt16(lValue); }), Fault::Overflow) << lValue;
  }
}

TEST(CheckedInt32, PassesWhatFits) {
  for (const qint64 lValue : {qint64{-2147483648}, qint64{0}, qint64{2147483647}}) {
    EXPECT_EQ(CheckedInt32(lValue), lValue);
  }
}

TEST(CheckedInt32, RefusesTheNextValueOnEitherSide) {
  for (const qint64 lValue : {qint64{-2147483649}, qint64{2147483648}, qint64{1} << 32}) {
    EXPECT_EQ(FaultOf([=] { CheckedInt32(lValue); }), Fault::Overflow) << lValue;
  }
}

struct RoundRow {
  double fValue;
  int iExpected;
};

const RoundRow RoundRows[] = {
    {0, 0},           {0.4, 0},           {0.5, 0},         {0.51, 1},      {1.5, 2},
    {2.5, 2},         {3.5, 4},           {-0.5, 0},        {-1.5, -2},     {-2.5, -2},
    {-2.51, -3},      {7.49, 7},          {32766.5, 32766}, {32767, 32767}, {32767.49, 32767},
    {-32768, -32768}, {-32768.5, -32768},
};

TEST(RoundToInt16, TakesHalvesToTheEvenNeighbour) {
  for (const RoundRow& row : RoundRows) {
    EXPECT_EQ(RoundToInt16(row.fValue), row.iExpected) << row.fValue;
    EXPECT_EQ(RoundToInt32(row.fValue), row.iExpected) << row.fValue;
  }
}

TEST(RoundToInt16, RefusesWhatRoundsBeyondItsWidth) {
  for (const double fValue : {32767.5, 32768.0, -32768.51, -32769.0, 1e300, -1e300}) {
    EXPECT_EQ(FaultOf([=] { RoundToInt16(fValue); }), Fault::Overflow) << fValue;
  }
}

TEST(RoundToInt32, GoesToTheEndsOfItsWidth) {
  EXPECT_EQ(RoundToInt32(2147483647.0), 2147483647);
  EXPECT_EQ(RoundToInt32(2147483647.25), 2147483647);
  EXPECT_EQ(RoundToInt32(-2147483648.5), std::numeric_limits<qint32>::min());
}

TEST(RoundToInt32, RefusesWhatRoundsBeyondItsWidth) {
  for (const double fValue : {2147483647.5, 2147483648.0, -2147483649.0, 1e300}) {
    EXPECT_EQ(FaultOf([=] { RoundToInt32(fValue); }), Fault::Overflow) << fValue;
  }
}

TEST(Round, RefusesWhatIsNoNumber) {
  for (const double fValue : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
    EXPECT_EQ(FaultOf([=] { RoundToInt16(fValue); }), Fault::Overflow) << fValue;
    EXPECT_EQ(FaultOf([=] { RoundToInt32(fValue); }), Fault::Overflow) << fValue;
  }
}

struct DivideRow {
  qint32 lDividend, lDivisor, lExpected;
};

const DivideRow DivideRows[] = {
    {7, 2, 3}, {-7, 2, -3}, {7, -2, -3}, {-7, -2, 3}, {0, 5, 0}, {1, 2, 0}, {-1, 2, 0}, {6, 3, 2},
};

TEST(CheckedDivide32, CutsTowardsZero) {
  for (const DivideRow& row : DivideRows) {
    EXPECT_EQ(CheckedDivide32(row.lDividend, row.lDivisor), row.lExpected)
        << row.lDividend << '/' << row.lDivisor;
  }
}

TEST(CheckedDivide32, RefusesADivisorOfZero) {
  EXPECT_EQ(FaultOf([] { CheckedDivide32(1, 0); }), Fault::DivisionByZero);
  EXPECT_EQ(FaultOf([] { CheckedDivide32(0, 0); }), Fault::DivisionByZero);
}

TEST(CheckedDivide32, RefusesTheOneQuotientThatDoesNotFit) {
  const qint32 lSmallest = std::numeric_limits<qint32>::min();
  EXPECT_EQ(FaultOf([=] { CheckedDivide32(lSmallest, -1); }), Fault::Overflow);
  EXPECT_EQ(CheckedDivide32(lSmallest, 1), lSmallest);
}

TEST(SkipOnError, PassesOverAStepThatFails) {
  bool bBehind = false;
  EXPECT_NO_THROW(SkipOnError([&] {
    CheckedInt16(40000);
    bBehind = true;
  }));
  EXPECT_FALSE(bBehind);
}

TEST(SkipOnError, CarriesOutAStepThatDoesNotFail) {
  int iResult = 0;
  SkipOnError([&] { iResult = CheckedInt16(400); });
  EXPECT_EQ(iResult, 400);
}

TEST(SkipOnError, LetsEverythingElseThrough) {
  EXPECT_THROW(SkipOnError([] { throw 1; }), int);
}

}  // namespace
}  // namespace glidetrak
