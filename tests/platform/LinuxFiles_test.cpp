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

  mode_t ModeOf(const QString& sName) const {
    struct stat info {};
    EXPECT_EQ(stat(qPrintable(folder.Path(sName)), &info), 0) << sName.toStdString();
    return info.st_mode & 07777;
  }

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

TEST_F(LinuxFiles, RewrittenFileLeavesItsNeighbourOfAnotherCaseAlone) {
  folder.AddFile("plan.gtp", "MINE");
  folder.AddFile("Plan.gtp", "NEIGHBOUR");
  ASSERT_EQ(machine.ReadFile(At("plan.gtp")), "MINE");
  machine.DeleteFile(At("plan.gtp"));
  machine.WriteFile(At("plan.gtp"), "CHANGED");
  EXPECT_EQ(folder.Bytes("plan.gtp"), "CHANGED");
  EXPECT_EQ(folder.Bytes("Plan.gtp"), "NEIGHBOUR");
}

TEST_F(LinuxFiles, RewrittenFileKeepsItsMode) {
  for (const mode_t iMode : {0600, 0640, 0666, 0664, 0755}) {
    folder.AddFile("A.GTP", "OLD");
    ASSERT_EQ(chmod(qPrintable(folder.Path("A.GTP")), iMode), 0);
    machine.DeleteFile(At("A.GTP"));
    machine.WriteFile(At("A.GTP"), "NEW");
    EXPECT_EQ(ModeOf("A.GTP"), iMode);
    EXPECT_EQ(folder.Bytes("A.GTP"), "NEW");
  }
}

TEST_F(LinuxFiles, NewFileHasTheModeOfNewFiles) {
  folder.AddFile("A.GTP", "OLD");
  ASSERT_EQ(chmod(qPrintable(folder.Path("A.GTP")), 0755), 0);
  machine.DeleteFile(At("A.GTP"));
  machine.WriteFile(At("B.GTP"), "NEW");
  machine.WriteFile(At("A.GTP"), "NEW");
  machine.WriteFile(At("A.GTP"), "NEWER");
  folder.AddFile("C.GTP");
  EXPECT_EQ(ModeOf("B.GTP"), ModeOf("C.GTP"));
  EXPECT_EQ(ModeOf("A.GTP"), 0755U);
}

TEST_F(LinuxFiles, LinkStaysALinkAndItsTargetIsRewritten) {
  folder.AddFile("Store/Target.gtp", "OLD AND LONGER");
  ASSERT_EQ(chmod(qPrintable(folder.Path("Store/Target.gtp")), 0640), 0);
  ASSERT_EQ(symlink("Store/Target.gtp", qPrintable(folder.Path("Second.gtp"))), 0);
  ASSERT_EQ(symlink("Second.gtp", qPrintable(folder.Path("First.gtp"))), 0);
  machine.DeleteFile(At("FIRST.GTP"));
  EXPECT_FALSE(QFileInfo::exists(folder.Path("Store/Target.gtp")));
  machine.WriteFile(At("FIRST.GTP"), "NEW");
  EXPECT_EQ(QFile::symLinkTarget(folder.Path("First.gtp")), folder.Path("Second.gtp"));
  EXPECT_EQ(QFile::symLinkTarget(folder.Path("Second.gtp")), folder.Path("Store/Target.gtp"));
  EXPECT_EQ(folder.Bytes("Store/Target.gtp"), "NEW");
  EXPECT_EQ(ModeOf("Store/Target.gtp"), 0640U);
}

TEST_F(LinuxFiles, NameWithAQuoteOrABackslashIsNoFileOfTheStation) {
  for (const char* sName : {"a\"b.gtp", "a\\b.gtp"}) {
    folder.AddFile(sName, "ODD");
    folder.AddFile("ab.gtp", "OTHER");
    folder.AddFile("a/b.gtp", "OTHER");
    const QString sPath = machine.StationPath(folder.Path(sName));
    EXPECT_EQ(FaultOf([&] { machine.FileAttributes(sPath); }), Fault::FileNotFound);
    EXPECT_EQ(FaultOf([&] { machine.ReadFile(sPath); }), Fault::FileNotFound);
    EXPECT_EQ(FaultOf([&] { machine.DeleteFile(sPath); }), Fault::FileNotFound);
    EXPECT_EQ(FaultOf([&] { machine.WriteFile(sPath, "X"); }), Fault::FileAccess);
    EXPECT_EQ(machine.NativePath(sPath), folder.Path(sName)) << "as dialogs offer it again";
    EXPECT_EQ(folder.Bytes(sName), "ODD");
    EXPECT_EQ(folder.Bytes("ab.gtp") + folder.Bytes("a/b.gtp"), "OTHEROTHER");
  }
}

TEST_F(LinuxFiles, FolderWithAQuoteAndABackslashHoldsFilesLikeAnyOther) {
  folder.AddFile("My \"own\" a\\b/Plan.gtp", "HALT");
  const QString sPath = machine.StationPath(folder.Path("My \"own\" a\\b/plan.GTP"));
  EXPECT_EQ(machine.ReadFile(sPath), "HALT");
  machine.DeleteFile(sPath);
  machine.WriteFile(sPath, "BEEP");
  EXPECT_EQ(folder.Bytes("My \"own\" a\\b/Plan.gtp"), "BEEP");
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

TEST_F(LinuxFiles, NameThatIsTooLongIsRefused) {
  const QString sLongest = QString(251, u'x') + ".GTP";
  machine.WriteFile(At(sLongest), "HALT");
  EXPECT_EQ(folder.Bytes(sLongest), "HALT");
  EXPECT_EQ(FaultOf([&] { machine.WriteFile(At('x' + sLongest), "X"); }), Fault::FileAccess);
}

TEST_F(LinuxFiles, FullDiskBreaksTheWriteOff) {
  EXPECT_EQ(FaultOf([&] { machine.WriteFile("\\dev\\full", "HALT"); }), Fault::WriteBroken);
}

TEST_F(LinuxFiles, FileThatGrowsBeyondTheLimitBreaksTheWriteOff) {
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  rlimit limited = before;
  limited.rlim_cur = 1000;
  setrlimit(RLIMIT_FSIZE, &limited);
  const Fault fault = FaultOf([&] { machine.WriteFile(At("A.GTP"), QByteArray(5000, 'x')); });
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_EQ(fault, Fault::WriteBroken);
}

TEST_F(LinuxFiles, CurrentFolderIsFoundWithoutRegardToCase) {
  QDir(folder.Path()).mkdir("Place");
  machine.SetCurrentFolder(At("PLACE") + '\\');
  EXPECT_EQ(QDir::currentPath(), QFileInfo(folder.Path("Place")).canonicalFilePath());
  EXPECT_EQ(FaultOf([&] { machine.SetCurrentFolder(At("Nothing")); }), Fault::FileAccess);
}

}  // namespace

}  // namespace glidetrak
