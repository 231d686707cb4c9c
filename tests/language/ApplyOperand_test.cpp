// One operation on the accumulator.

#include "language/LanguageTest.h"

namespace glidetrak {
namespace {

constexpr qint32 lSmallest = std::numeric_limits<qint32>::min();
constexpr qint32 lLargest = std::numeric_limits<qint32>::max();

class Operands : public LanguageTest {};

struct OperandRow {
  qint32 lBefore;
  qint16 iValue;
  const char* sOperator;
  qint32 lAfter;
};

const OperandRow OperandRows[] = {
    {6, 4, "*", 24},
    {6, 4, "/", 1},
    {6, 4, "", 10},
    {6, 4, "+", 10},
    {6, 4, "-", 10},
    {6, 4, "?", 10},
    {6, -4, "", 2},
    {-7, 2, "/", -3},
    {lLargest, 0, "*", 0},
    {lLargest, -1, "", lLargest - 1},
    {lSmallest, 1, "/", lSmallest},
    {lSmallest, 1, "*", lSmallest},
    {lLargest, -1, "*", -lLargest},
    {0, -32768, "", -32768},
};

TEST_F(Operands, ApplyEachOperator) {
  for (const OperandRow& row : OperandRows) {
    lExprResult = row.lBefore;
    EXPECT_TRUE(ApplyOperand(row.iValue, row.sOperator)) << row.sOperator << row.iValue;
    EXPECT_EQ(lExprResult, row.lAfter) << row.sOperator << row.iValue;
  }
  EXPECT_TRUE(station.BoxTexts().empty());
}

struct OperandErrorRow {
  qint32 lBefore;
  qint16 iValue;
  const char* sOperator;
  int iMessage;
};

const OperandErrorRow OperandErrorRows[] = {
    {5, 0, "/", 514},        {0, 0, "/", 514},          {lSmallest, 0, "/", 514},
    {lLargest, 1, "", 515},  {lLargest, 1, "+", 515},   {lSmallest, -1, "", 515},
    {lLargest, 2, "*", 515}, {lSmallest, -1, "*", 515}, {lSmallest, -1, "/", 515},
};

TEST_F(Operands, KeepTheirValueWhenAnOperationFails) {
  for (const OperandErrorRow& row : OperandErrorRows) {
    SCOPED_TRACE(row.lBefore);
    station.Forget();
    lExprResult = row.lBefore;
    EXPECT_FALSE(ApplyOperand(row.iValue, row.sOperator));
    EXPECT_EQ(lExprResult, row.lBefore);
    EXPECT_EQ(station.BoxTexts(), QStringList(English(row.iMessage)));
    ExpectProgramErrorBoxes();
  }
}

struct FaultRow {
  Fault fault;
  int iMessage;
};

const FaultRow FaultRows[] = {
    {Fault::DivisionByZero, 514}, {Fault::Overflow, 515},     {Fault::BadBound, 516},
    {Fault::BadText, 516},        {Fault::FileNotFound, 516}, {Fault::PlatformCall, 516},
};

TEST_F(Operands, TellEachKindOfErrorByItsMessage) {
  for (const FaultRow& row : FaultRows) {
    EXPECT_EQ(OperandErrorMessage(RuntimeError(row.fault)), row.iMessage);
  }
}

}  // namespace
}  // namespace glidetrak
