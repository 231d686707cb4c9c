// Files of the machine, and what goes wrong with them.

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "platform/NativeFolder.h"
#include "platform/linux/LinuxMachine.h"

namespace glidetrak {

namespace {

constexpr uid_t iNobody = 65534;

class LinuxFiles : public ::testing::Test {
 protected:
  void SetUp() override { chmod(qPrintable(folder.Path()), 0755); }

  QString At(const QString& sName) const { return folder.StationPath(sName); }

  /// Runs a step as a user whom permissions bind, in a process of its own.
  template <class Step>
  void ExpectFaultAsPlainUser(Fault fault, Step step) {
    EXPECT_EXIT(
        {
          if (geteuid() == 0 && setuid(iNobody) != 0) _exit(2);
          _exit(FaultOf(step) == fault ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
  }

  NativeFolder folder;
  LinuxMachine machine;
};

TEST_F(LinuxFiles, EveryByteIsWrittenAndRead) {
  QByteArray bytes(256, '\0');
  for (int i = 0; i < 256; ++i) bytes[i] = static_cast<char>(i);
  machine.WriteFile(At("A.GTP"), bytes);
  EXPECT_EQ(folder.Bytes("A.GTP"), bytes);
  EXPECT_EQ(machine.ReadFile(At("a.gtp")), bytes);
}

TEST_F(LinuxFiles, ShorterTextLeavesNoTailAndAnEmptyOneNothing) {
  for (const char* sText : {"LONG PROGRAM", "S", ""}) {
    machine.WriteFile(At("A.GTP"), sText);
    EXPECT_EQ(folder.Bytes("A.GTP"), sText);
  }
}

TEST_F(LinuxFiles, RewrittenFileKeepsItsNativeSpelling) {
  folder.AddFile("Trip.gtp", "OLD");
  machine.DeleteFile(At("TRIP.GTP"));
  machine.WriteFile(At("TRIP.GTP"), "NEW");
  EXPECT_EQ(QDir(folder.Path()).entryList(QDir::Files), QStringList("Trip.gtp"));
  EXPECT_EQ(folder.Bytes("Trip.gtp"), "NEW");
}

TEST_F(LinuxFiles, MissingFileIsNotFound) {
  EXPECT_EQ(FaultOf([&] { machine.ReadFile(At("A.GTP")); }), Fault::FileNotFound);
  EXPECT_EQ(FaultOf([&] { machine.FileAttributes(At("A.GTP")); }), Fault::FileNotFound);
  EXPECT_EQ(FaultOf([&] { machine.DeleteFile(At("A.GTP")); }), Fault::FileNotFound);
  EXPECT_EQ(FaultOf([&] { machine.ReadFile(""); }), Fault::FileNotFound);
}

TEST_F(LinuxFiles, FolderIsNeitherReadNorWrittenNorDeleted) {
  QDir(folder.Path()).mkdir("F.GTP");
  EXPECT_EQ(machine.FileAttributes(At("F.GTP")), attrFolder);
  EXPECT_EQ(FaultOf([&] { machine.ReadFile(At("F.GTP")); }), Fault::FileAccess);
  EXPECT_EQ(FaultOf([&] { machine.WriteFile(At("F.GTP"), "X"); }), Fault::FileAccess);
  EXPECT_EQ(FaultOf([&] { machine.DeleteFile(At("F.GTP")); }), Fault::FileAccess);
}

TEST_F(LinuxFiles, PipeIsNotReadAndBlocksNobody) {
  ASSERT_EQ(mkfifo(qPrintable(folder.Path("P.GTP")), 0666), 0);
  EXPECT_EQ(machine.FileAttributes(At("P.GTP")) & attrFolder, 0);
  EXPECT_EQ(FaultOf([&] { machine.ReadFile(At("P.GTP")); }), Fault::FileAccess);
}

TEST_F(LinuxFiles, DeviceIsNotRead) {
  EXPECT_EQ(FaultOf([&] { machine.ReadFile("\\dev\\zero"); }), Fault::FileAccess);
}

TEST_F(LinuxFiles, LinkToNothingIsNotFound) {
  ASSERT_EQ(symlink("/no/such/place", qPrintable(folder.Path("L.GTP"))), 0);
  EXPECT_EQ(FaultOf([&] { machine.ReadFile(At("L.GTP")); }), Fault::FileNotFound);
}

TEST_F(LinuxFiles, FileWithoutAnyWriteBitIsReadOnly) {
  folder.AddFile("A.GTP");
  const struct {
    mode_t iMode;
    int iAttributes;
  } rows[] = {{0644, 0}, {0444, attrReadOnly}, {0555, attrReadOnly}, {0600, 0}};
  for (const auto& row : rows) {
    ASSERT_EQ(chmod(qPrintable(folder.Path("A.GTP")), row.iMode), 0);
    EXPECT_EQ(machine.FileAttributes(At("A.GTP")), row.iAttributes) << row.iMode;
  }
}

TEST_F(LinuxFiles, FileThatTheUserMayNotReadIsRefused) {
  folder.AddFile("A.GTP", "HALT");
  chmod(qPrintable(folder.Path("A.GTP")), 0000);
  ExpectFaultAsPlainUser(Fault::FileAccess, [&] { machine.ReadFile(At("A.GTP")); });
}

TEST_F(LinuxFiles, FolderThatTheUserMayNotWriteIsRefused) {
  chmod(qPrintable(folder.Path()), 0555);
  ExpectFaultAsPlainUser(Fault::FileAccess, [&] { machine.WriteFile(At("A.GTP"), "HALT"); });
  chmod(qPrintable(folder.Path()), 0755);
}

TEST_F(LinuxFiles, FileInAFolderThatTheUserMayNotWriteIsNotDeleted) {
  folder.AddFile("A.GTP", "HALT");
  chmod(qPrintable(folder.Path()), 0555);
  ExpectFaultAsPlainUser(Fault::FileAccess, [&] { machine.DeleteFile(At("A.GTP")); });
  chmod(qPrintable(folder.Path()), 0755);
  EXPECT_EQ(folder.Bytes("A.GTP"), "HALT");
}

TEST_F(LinuxFiles, WriteIntoAFolderThatIsNotThereIsRefused) {
  EXPECT_EQ(FaultOf([&] { machine.WriteFile(At("Nothing\\A.GTP"), "X"); }), Fault::FileAccess);
}

TEST_F(LinuxFiles, FullDiskIsToldOnWriting) {
  EXPECT_EQ(FaultOf([&] { machine.WriteFile("\\dev\\full", "HALT"); }), Fault::FileAccess);
}

TEST_F(LinuxFiles, FileThatGrowsBeyondTheLimitIsToldOnWriting) {
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  rlimit limited = before;
  limited.rlim_cur = 1000;
  setrlimit(RLIMIT_FSIZE, &limited);
  const Fault fault = FaultOf([&] { machine.WriteFile(At("A.GTP"), QByteArray(5000, 'x')); });
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_EQ(fault, Fault::FileAccess);
}

TEST_F(LinuxFiles, CurrentFolderIsFoundWithoutRegardToCase) {
  QDir(folder.Path()).mkdir("Place");
  machine.SetCurrentFolder(At("PLACE") + '\\');
  EXPECT_EQ(QDir::currentPath(), QFileInfo(folder.Path("Place")).canonicalFilePath());
  EXPECT_EQ(FaultOf([&] { machine.SetCurrentFolder(At("Nothing")); }), Fault::FileAccess);
}

}  // namespace

}  // namespace glidetrak
