// The rule of the shared variables finds what is planted, and passes what only reads.

#include "architecture/WriterRules.h"

#include <gtest/gtest.h>

#include "station/Print.h"

namespace glidetrak {
namespace {

const ReferenceTakers Takers{{0, {"SetPowerLever"}}, {1, {"ReadInputPort"}}};

// iPower belongs to track/OutputImage.cpp.
const char* const PowerWritten[] = {
    "iPower = 3;",
    "iPower += 3;",
    "iPower <<= 1;",
    "glidetrak::iPower = 0;",
    "++iPower;",
    "iPower--;",
    "std::exchange(iPower, 0);",
    "const QScopedValueRollback power(iPower, 0);",
    "qint16* pPower = &iPower;",
    "for (qint16* p : {&iLevel, &iPower}) *p = 0;",
    "qint16& iLevel = iPower;",
    "SetPowerLever(iPower);",
    "ReadInputPort(bFail, iPower);",
    "iPower.setValue(3);",
    "iPower[2] = 3;",
    "iPower.at(static_cast<size_t>(i.size())) = 3;",
};

TEST(WriterRule, FindsAPlantedWriteByAnotherFile) {
  for (const QString sLine : PowerWritten) {
    EXPECT_EQ(WriterViolations({{"language/RigStatements.cpp", "\n  " + sLine}}, Takers),
              QStringList{"src/language/RigStatements.cpp:2: is no writer of iPower"})
        << sLine.toStdString();
  }
}

TEST(WriterRule, LeavesTheWritersAlone) {
  for (const QString sLine : PowerWritten) {
    EXPECT_EQ(WriterViolations({{"track/OutputImage.cpp", sLine}}, Takers), QStringList());
  }
}

const char* const PowerRead[] = {
    "if (iPower == 3) return;",
    "if (iPower <= 3) return;",
    "return iLevel & iPower;",
    "const qint16& iLevel = iPower;",
    "SetPower(iPower);",
    "SetPowerLever(iLevel); Show(iPower);",
    "ReadInputPort(iPower, lValue);",
    "qint16 iPower = 0;",
    "rig.iPower = 3;",
    "pRig->iPower = 3;",
    "iPowerLevel = 3;",
    "// iPower = 3;",
    "Show(\"iPower = 3\");",
    "inline qint16 iPower = 0;",
};

TEST(WriterRule, PassesWhatOnlyReads) {
  for (const QString sLine : PowerRead) {
    EXPECT_EQ(WriterViolations({{"language/RigStatements.cpp", sLine}}, Takers), QStringList())
        << sLine.toStdString();
  }
}

TEST(WriterRule, KnowsWhoTakesByReference) {
  ReferenceTakers takers;
  CollectTakers(
      "void Clamp(qint16& iLevel);\n"
      "bool Read(int iPort, std::vector<int>& aBytes) {\n"
      "void Show(const QString& sText);\n"
      "void Run(std::function<void()> act);\n",
      takers);
  EXPECT_EQ(takers, (ReferenceTakers{{0, {"Clamp"}}, {1, {"Read"}}}));
}

TEST(WriterRule, MissesNoSharedVariableOfAHeader) {
  const QString sText =
      "inline qint16 iNew = 0;\n"
      "inline QString sNew;\n"
      "inline QProperty<bool> bNew{false};\n"
      "inline std::array<int, 3> aNew{};\n"
      "inline int aOld[3] = {};\n"
      "inline constexpr int iFixed = 3;\n"
      "inline const QString sFixed;\n"
      "inline qint32 Sum(int i) {\n"
      "inline qint16 iPower = 0;\n";
  EXPECT_EQ(UnlistedVariables({"track/New.h", sText}).size(), 5);
  EXPECT_EQ(UnlistedVariables({"track/New.cpp", sText}), QStringList());
}

TEST(WriterRule, FindsAWriterThatDoesNotWrite) {
  const SourceFile writer{"track/OutputImage.cpp", "iPower = 3;"};
  const SourceFile reader{"track/OutputImage.cpp", "Show(iPower);"};
  const QString sFault = "track/OutputImage.cpp writes no iPower";
  EXPECT_FALSE(IdleWriters({writer}, {}).contains(sFault));
  EXPECT_TRUE(IdleWriters({reader}, {}).contains(sFault));
}

}  // namespace
}  // namespace glidetrak
