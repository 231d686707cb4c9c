// The rules find what is planted, and pass what is right.

#include "architecture/SourceRules.h"

#include <gtest/gtest.h>

#include "station/Print.h"

namespace glidetrak {
namespace {

struct IncludeRow {
  QString sPath;
  QString sLine;
};

const IncludeRow IncludesAllowed[] = {
    {"track/OutputImage.cpp", "#include \"hardware/AdapterLayer.h\""},
    {"track/OutputImage.cpp", "#include \"track/OutputImage.h\""},
    {"platform/linux/LinuxMachine.h", "#include \"platform/Platform.h\""},
    {"strings/ResourceStrings.cpp", "#include \"../data/strings/English.inc\""},
    {"main.cpp", "#include \"view/View.h\""},
    {"main.cpp", "#include \"shell/Events.h\""},
    {"view/View.cpp", "#include \"strings/ResourceText.h\""},
    {"track/OutputImage.cpp", "#include <algorithm>"},
    {"track/OutputImage.cpp", "// language/ stands above"},
};

TEST(CircleRule, FindsAPlantedCircle) {
  EXPECT_EQ(Circles({{"a/One.cpp", "#include \"a/One.h\"\n#include \"a/Two.h\"\n"},
                     {"a/Two.h", "#include \"a/Three.h\"\n"},
                     {"a/Three.cpp", "#include \"a/One.h\"\n"}}),
            QStringList{"a/One -> a/Two -> a/Three -> a/One"});
}

TEST(CircleRule, TakesAHeaderAndItsSourceForOne) {
  EXPECT_EQ(Circles({{"a/One.cpp", "#include \"a/One.h\"\n#include \"a/Two.h\"\n"},
                     {"a/Two.cpp", "#include \"a/Two.h\"\n"},
                     {"b/Two.cpp", "#include \"a/One.h\"\n"}}),
            QStringList());
}

TEST(RoomRule, AllowsARoomBelowAndTheRoomItself) {
  for (const IncludeRow& row : IncludesAllowed) {
    EXPECT_EQ(RoomViolations({row.sPath, row.sLine}), QStringList()) << row.sLine.toStdString();
  }
}

const IncludeRow IncludesRefused[] = {
    {"track/OutputImage.cpp", "#include \"language/RunControl.h\""},
    {"hardware/AdapterLayer.cpp", "#include \"track/OutputImage.h\""},
    {"platform/Platform.h", "#include \"form/Controls.h\""},
    {"form/Controls.h", "  #  include \"common/SharedState.h\""},
    {"authoring/ProgramEditor.cpp", "#include \"programs/ProgramFiles.h\""},
    {"shell/Events.cpp", "#include \"view/View.h\""},
    {"view/View.cpp", "#include \"shell/Events.h\""},
    {"view/View.cpp", "#include \"hardware/AdapterLayer.h\""},
    {"shell/Events.cpp", "#include \"Events.h\""},
    {"attic/Old.cpp", "int i;"},
};

TEST(RoomRule, FindsAPlantedIncludeOfARoomAboveOrOfNoRoom) {
  for (const IncludeRow& row : IncludesRefused) {
    EXPECT_EQ(RoomViolations({row.sPath, row.sLine}).size(), 1) << row.sLine.toStdString();
  }
}

TEST(RoomRule, NamesFileLineAndBothRooms) {
  const SourceFile file{"track/Tick.cpp", "#include <array>\n\n#include \"shell/Events.h\"\n"};
  EXPECT_EQ(RoomViolations(file),
            QStringList{"track/Tick.cpp:3: track includes shell/Events.h, which is not below it"});
}

const WindowHeaders SomeHeaders{"QWidget", "QtWidgets/QWidget", "QApplication", "QPainter"};

TEST(WindowHeaderRule, AllowsTheViewAndTheStartOfTheApplication) {
  EXPECT_EQ(WindowHeaderViolations({"view/View.cpp", "#include <QWidget>"}, SomeHeaders),
            QStringList());
  EXPECT_EQ(WindowHeaderViolations({"main.cpp", "#include <QApplication>"}, SomeHeaders),
            QStringList());
  EXPECT_EQ(WindowHeaderViolations({"form/Controls.h", "#include <QProperty>"}, SomeHeaders),
            QStringList());
}

const IncludeRow WindowHeadersRefused[] = {
    {"form/Controls.h", "#include <QWidget>"},
    {"track/Tick.cpp", "#include <QtWidgets/QWidget>"},
    {"shell/StartUp.cpp", "#include \"QPainter\""},
    {"shell/StartUp.cpp", "#include <QApplication>"},
    {"main.cpp", "#include <QWidget>"},
};

TEST(WindowHeaderRule, FindsAPlantedHeaderBelowTheView) {
  for (const IncludeRow& row : WindowHeadersRefused) {
    const QStringList aFaults = WindowHeaderViolations({row.sPath, "\n" + row.sLine}, SomeHeaders);
    ASSERT_EQ(aFaults.size(), 1) << row.sLine.toStdString();
    EXPECT_TRUE(aFaults[0].startsWith(row.sPath + ":2: "));
  }
}

TEST(TrimmingRule, FindsTheToolkitsOwnTrimming) {
  const QString sText = "auto a = TrimBlanks(s);\nauto b = s.trimmed();\nauto c = s.simplified();";
  EXPECT_EQ(TrimmingViolations({"language/Statements.cpp", sText}),
            (QStringList{"language/Statements.cpp:2: trims more than blanks",
                         "language/Statements.cpp:3: trims more than blanks"}));
}

TEST(TrimmingRule, LeavesPlatformAndViewAlone) {
  EXPECT_EQ(TrimmingViolations({"platform/linux/LinuxMachine.cpp", "s.trimmed()"}), QStringList());
  EXPECT_EQ(TrimmingViolations({"view/View.cpp", "s.trimmed()"}), QStringList());
}

TEST(LengthRule, AllowsTheLongestLineAndTheLongestFile) {
  EXPECT_EQ(LengthViolations({"common/A.cpp", QString(iMostColumns, u'x')}), QStringList());
  EXPECT_EQ(LengthViolations({"common/A.cpp", QString(iMostLines, u'\n')}), QStringList());
}

TEST(LengthRule, FindsALineAndAFileThatAreTooLong) {
  EXPECT_EQ(LengthViolations({"common/A.cpp", "\n" + QString(iMostColumns + 1, u'x')}),
            QStringList{"common/A.cpp:2: 101 columns"});
  EXPECT_EQ(LengthViolations({"common/A.cpp", QString(iMostLines + 1, u'\n')}),
            QStringList{"common/A.cpp:1: 501 lines"});
}

TEST(ControlNameRule, KnowsWhatAHeaderDeclares) {
  const QString sHeader =
      "inline Label lblTimer;  ///< time\ninline Shape ledOutput[24];\n// inline Label lblNot;\n"
      "inline Image\n    imgLever;\n";
  EXPECT_EQ(DeclaredNames(sHeader), (std::set<QString>{"lblTimer", "ledOutput", "imgLever"}));
}

TEST(ControlNameRule, FindsAControlNamedInTheViewInWhateverManner) {
  const std::set<QString> controls{"txtProgram", "ledOutput"};
  for (const char* sLine : {"if (&box == &txtProgram) return;", "Widget(\"txtProgram\")",
                            "/// Behind txtProgram.", "Widget(\"ledOutput_7\")", "ledOutput[7]"}) {
    EXPECT_EQ(ControlNameViolations({"view/View.cpp", sLine}, controls).size(), 1) << sLine;
    EXPECT_EQ(ControlNameViolations({"form/Table.cpp", sLine}, controls), QStringList()) << sLine;
  }
  EXPECT_EQ(ControlNameViolations({"view/View.cpp", "txtProgramme(box);"}, controls),
            QStringList());
}

}  // namespace
}  // namespace glidetrak
