#include "platform/windows/WindowsFiles.h"

#include "platform/Platform.h"
#include "platform/WindowsFolder.h"
#include "platform/windows/Api.h"

namespace glidetrak {
namespace {

class WindowsFilesTest : public testing::Test {
 protected:
  void SetAttributes(const QString& sName, DWORD lAttributes) {
    ASSERT_TRUE(SetFileAttributesW(m_folder.Path(sName).toStdWString().c_str(), lAttributes));
  }
  DWORD Attributes(const QString& sName) {
    return GetFileAttributesW(m_folder.Path(sName).toStdWString().c_str());
  }

  WindowsFolder m_folder;
  WindowsFiles m_files;
};

QByteArray AllBytes() {
  QByteArray bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  return bytes;
}

TEST_F(WindowsFilesTest, KeepEveryByte) {
  m_files.Write(m_folder.Path("A.GTP"), AllBytes());
  EXPECT_EQ(m_files.Read(m_folder.Path("A.GTP")), AllBytes());
  EXPECT_EQ(m_folder.Bytes("A.GTP"), AllBytes());
}

TEST_F(WindowsFilesTest, ReplaceALongerFile) {
  m_folder.AddFile("A.GTP", "a longer text");
  m_files.Write(m_folder.Path("A.GTP"), "short");
  EXPECT_EQ(m_folder.Bytes("A.GTP"), "short");
  m_files.Write(m_folder.Path("A.GTP"), {});
  EXPECT_EQ(m_files.Read(m_folder.Path("A.GTP")), QByteArray());
}

TEST_F(WindowsFilesTest, BearNamesOutsideTheCodePageAndLongOnes) {
  const QString sOdd = QString::fromUtf8("поезд 列車.GTP");
  m_files.Write(m_folder.Path(sOdd), "odd");
  EXPECT_EQ(m_folder.Bytes(sOdd), "odd");
  QString sFolder = m_folder.Path();
  for (int i = 0; i < 3; ++i) {
    sFolder += u'\\' + QString(100, u'x');
    ASSERT_TRUE(CreateDirectoryW((L"\\\\?\\" + sFolder.toStdWString()).c_str(), nullptr));
  }
  m_files.Write(sFolder + "\\A.GTP", "deep");
  EXPECT_EQ(m_files.Read(sFolder + "\\A.GTP"), "deep");
  EXPECT_EQ(m_files.Attributes(sFolder + "\\A.GTP"), 0);
  m_files.Delete(sFolder + "\\A.GTP");
  EXPECT_EQ(FaultOf([&] { m_files.Read(sFolder + "\\A.GTP"); }), Fault::FileNotFound);
}

TEST_F(WindowsFilesTest, MatchWithoutRegardToCase) {
  m_folder.AddFile("Trip.gtp", "x");
  EXPECT_EQ(m_files.Read(m_folder.Path("TRIP.GTP")), "x");
}

/// The command line hands a path on in upper case.
TEST_F(WindowsFilesTest, KeepTheSpellingOfTheirNameWhenTheyAreDeletedAndRewritten) {
  m_folder.AddFile("Trip.gtp", "x");
  m_files.Delete(m_folder.Path("TRIP.GTP"));
  m_files.Write(m_folder.Path("TRIP.GTP"), "anew");
  EXPECT_EQ(QDir(m_folder.Path()).entryList(QDir::Files), QStringList{"Trip.gtp"});
  EXPECT_EQ(m_folder.Bytes("Trip.gtp"), "anew");
}

TEST_F(WindowsFilesTest, ThatAreNotThereAreNotFound) {
  for (const QString& sPath : {m_folder.Path("NONE.GTP"), m_folder.Path("no\\A.GTP"), QString(),
                               m_folder.Path("what?.GTP"), QString("Q:\\A.GTP")}) {
    EXPECT_EQ(FaultOf([&] { m_files.Read(sPath); }), Fault::FileNotFound) << sPath.toStdString();
    EXPECT_EQ(FaultOf([&] { m_files.Attributes(sPath); }), Fault::FileNotFound);
    EXPECT_EQ(FaultOf([&] { m_files.Delete(sPath); }), Fault::FileNotFound);
  }
}

TEST_F(WindowsFilesTest, ThatAreNoFilesCannotBeReadOrWritten) {
  EXPECT_EQ(FaultOf([&] { m_files.Read(m_folder.Path()); }), Fault::FileAccess);
  EXPECT_EQ(FaultOf([&] { m_files.Write(m_folder.Path(), "x"); }), Fault::FileAccess);
  EXPECT_EQ(FaultOf([&] { m_files.Write(m_folder.Path("no\\A.GTP"), "x"); }), Fault::FileAccess);
  EXPECT_EQ(FaultOf([&] { m_files.Write({}, "x"); }), Fault::FileAccess);
}

TEST_F(WindowsFilesTest, OfADeviceOrAPipeAreNeverWaitedFor) {
  const wchar_t* const sPipe = L"\\\\.\\pipe\\glidetrak-files-test";
  const HANDLE pipe = CreateNamedPipeW(sPipe, PIPE_ACCESS_DUPLEX, 0, 1, 16, 16, 0, nullptr);
  ASSERT_NE(pipe, INVALID_HANDLE_VALUE);
  EXPECT_NE(FaultOf([&] { m_files.Read(QString::fromWCharArray(sPipe)); }), Fault::Cancelled);
  CloseHandle(pipe);
  EXPECT_NE(FaultOf([&] { m_files.Read("\\\\.\\NUL"); }), Fault::Cancelled);
}

TEST_F(WindowsFilesTest, TellWhatTheyAre) {
  m_folder.AddFile("A.GTP", "x");
  EXPECT_EQ(m_files.Attributes(m_folder.Path("A.GTP")), 0);
  EXPECT_EQ(m_files.Attributes(m_folder.Path()), attrFolder);
  SetAttributes("A.GTP", FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(m_files.Attributes(m_folder.Path("A.GTP")), attrReadOnly);
  EXPECT_EQ(FaultOf([&] { m_files.Write(m_folder.Path("A.GTP"), "y"); }), Fault::FileAccess);
  EXPECT_EQ(FaultOf([&] { m_files.Delete(m_folder.Path("A.GTP")); }), Fault::FileAccess);
  EXPECT_EQ(m_folder.Bytes("A.GTP"), "x");
  SetAttributes("A.GTP", FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFilesTest, StayHiddenWhenTheyAreDeletedAndRewritten) {
  m_folder.AddFile("A.GTP", "x");
  SetAttributes("A.GTP", FILE_ATTRIBUTE_HIDDEN);
  m_files.Write(m_folder.Path("A.GTP"), "over it");
  m_files.Delete(m_folder.Path("A.GTP"));
  m_files.Write(m_folder.Path("A.GTP"), "anew");
  EXPECT_EQ(m_folder.Bytes("A.GTP"), "anew");
  EXPECT_NE(Attributes("A.GTP") & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST_F(WindowsFilesTest, ThatAnotherProgramHoldsCanBeReadAndNotWritten) {
  m_folder.AddFile("A.GTP", "theirs");
  const HANDLE held = CreateFileW(m_folder.Path("A.GTP").toStdWString().c_str(), GENERIC_READ,
                                  FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  EXPECT_EQ(m_files.Read(m_folder.Path("A.GTP")), "theirs");
  EXPECT_EQ(m_files.Attributes(m_folder.Path("A.GTP")), 0);
  EXPECT_EQ(FaultOf([&] { m_files.Write(m_folder.Path("A.GTP"), "x"); }), Fault::FileAccess);
  EXPECT_EQ(FaultOf([&] { m_files.Delete(m_folder.Path("A.GTP")); }), Fault::FileAccess);
  CloseHandle(held);
  EXPECT_EQ(m_folder.Bytes("A.GTP"), "theirs");
}

}  // namespace
}  // namespace glidetrak
