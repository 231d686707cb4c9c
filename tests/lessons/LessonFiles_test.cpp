// The catalogues of the lessons and their files.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "common/UnicodeFunctions.h"
#include "platform/ConfigurationText.h"
#include "station/Print.h"

namespace glidetrak {

namespace {

constexpr int iLessons = 16;
constexpr qsizetype iMostLines = 40;

struct FolderRow {
  const char* sName;
  const char* sFolder;
  const char* sTitle;  ///< how a title comment begins
};

void PrintTo(const FolderRow& row, std::ostream* pStream) {
  *pStream << row.sName;
}

class LessonFiles : public ::testing::TestWithParam<FolderRow> {
 protected:
  static QByteArray Read(const QString& sName) {
    QFile file(Folder() + sName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << sName.toStdString();
    return file.readAll();
  }

  static QString Folder() { return QString(GLIDETRAK_DATA) + GetParam().sFolder; }

  QByteArray Value(const QString& sSection, const QString& sKey) const {
    return ConfigurationText(configuration).Value(sSection, sKey).value_or(QByteArray());
  }

  QByteArray Lesson(int n) const {
    return Read("Examples/" + Value("HW_PRESET" + QString::number(n), "FILENAME"));
  }

  const QByteArray configuration = Read("TV_GLIDETRAK.INI");
};

INSTANTIATE_TEST_SUITE_P(Lessons, LessonFiles,
                         ::testing::Values(FolderRow{"English", "/", "; Lesson "},
                                           FolderRow{"Spanish", "/Language/0C0A/",
                                                     "; Lecci\xF3n "}),
                         [](const auto& row) { return std::string(row.param.sName); });

TEST_P(LessonFiles, CatalogueListsSixteen) {
  EXPECT_EQ(Value("MiscSettings", "HW_EXAMPLES"), "16");
  EXPECT_EQ(QDir(Folder() + "Examples").entryList(QDir::Files).size(), iLessons);
}

TEST_P(LessonFiles, CatalogueNamesAFileATitleAndAHelpForEach) {
  QSet<QByteArray> aFiles, aTitles;
  for (int n = 1; n <= iLessons; ++n) {
    const QString sSection = "HW_PRESET" + QString::number(n);
    EXPECT_FALSE(Value(sSection, "HELP").isEmpty()) << n;
    EXPECT_TRUE(Value(sSection, "TITLE").startsWith(QByteArray::number(n) + ' ')) << n;
    aTitles.insert(Value(sSection, "TITLE"));
    const QByteArray file = Value(sSection, "FILENAME");
    EXPECT_TRUE(QFile::exists(Folder() + "Examples/" + file)) << n;
    aFiles.insert(file);
  }
  EXPECT_EQ(aFiles.size(), iLessons);
  EXPECT_EQ(aTitles.size(), iLessons);
}

TEST_P(LessonFiles, LinesEndInCarriageReturnAndLineFeed) {
  for (int n = 1; n <= iLessons; ++n) {
    QByteArray text = Lesson(n);
    EXPECT_TRUE(text.contains("\r\n")) << n;
    text.replace("\r\n", "");
    EXPECT_FALSE(text.contains('\r') || text.contains('\n')) << n;
  }
}

TEST_P(LessonFiles, HaveFortyLinesAtMost) {
  for (int n = 1; n <= iLessons; ++n) EXPECT_LE(Lesson(n).trimmed().split('\n').size(), iMostLines);
}

TEST_P(LessonFiles, BeginWithATitleComment) {
  for (int n = 1; n <= iLessons; ++n) {
    const QByteArray title = QByteArray(GetParam().sTitle) + QByteArray::number(n) + ':';
    EXPECT_TRUE(Lesson(n).startsWith(title)) << Lesson(n).left(30).toStdString();
  }
}

TEST_P(LessonFiles, HoldNoCharacterThatTheCodePageLeavesToControl) {
  for (int n = 1; n <= iLessons; ++n) {
    for (const QChar character : FromCodePage(Lesson(n))) {
      const bool bLineEnd = character == u'\r' || character == u'\n';
      EXPECT_TRUE(bLineEnd || character.isPrint()) << n;
    }
  }
}

}  // namespace

}  // namespace glidetrak
