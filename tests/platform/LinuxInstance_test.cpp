// One copy a user, in a run-time folder of the test's own.

#include "platform/linux/LinuxInstance.h"

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <array>
#include <csignal>
#include <vector>

#include "platform/NativeFolder.h"

namespace glidetrak {

namespace {

constexpr uid_t iNobody = 65534;

class LinuxInstanceTest : public ::testing::Test {
 protected:
  void SetUp() override { qputenv("XDG_RUNTIME_DIR", folder.Path().toUtf8()); }

  /// Tries a condition as a user whom permissions bind, in a process of its own and in a folder
  /// that is this user's.
  template <class Condition>
  void ExpectAsPlainUser(Condition condition) {
    if (geteuid() == 0) {
      ASSERT_EQ(chown(qPrintable(folder.Path()), iNobody, iNobody), 0);
    }
    EXPECT_EXIT(
        {
          if (geteuid() == 0 && setuid(iNobody) != 0) _exit(2);
          _exit(condition() ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
    if (geteuid() == 0) {
      ASSERT_EQ(chown(qPrintable(folder.Path()), 0, 0), 0);
    }
  }

  NativeFolder folder;
  int iCount = 0;
  QCoreApplication application{iCount, nullptr};
};

TEST_F(LinuxInstanceTest, SecondCopyKnowsItself) {
  LinuxInstance first, second;
  EXPECT_TRUE(first.Take());
  EXPECT_FALSE(second.Take());
}

TEST_F(LinuxInstanceTest, NextCopyIsTheFirstOnceTheFirstIsGone) {
  {
    LinuxInstance first;
    ASSERT_TRUE(first.Take());
  }
  LinuxInstance next;
  EXPECT_TRUE(next.Take());
}

TEST_F(LinuxInstanceTest, SecondCopyAsksTheFirstToComeForward) {
  int iActivated = 0;
  LinuxInstance first, second;
  first.SetActivation([&] { ++iActivated; });
  ASSERT_TRUE(first.Take());
  ASSERT_FALSE(second.Take());
  second.ActivateOther();
  for (int i = 0; i < 100 && iActivated == 0; ++i) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
  }
  EXPECT_EQ(iActivated, 1);
}

/// Processes that try to be the first copy, all at the same moment, and stay until the end.
class ManyCopies {
 public:
  explicit ManyCopies(int iCopies) {
    EXPECT_EQ(pipe(m_aStart.data()), 0);
    EXPECT_EQ(pipe(m_aResult.data()), 0);
    for (int i = 0; i < iCopies; ++i) {
      const pid_t iProcess = fork();
      if (iProcess == 0) Try();
      m_aProcesses.push_back(iProcess);
    }
  }
  ~ManyCopies() {
    for (const pid_t iProcess : m_aProcesses) {
      kill(iProcess, SIGKILL);
      waitpid(iProcess, nullptr, 0);
    }
    for (const int iEnd : {m_aStart[0], m_aResult[0], m_aResult[1]}) close(iEnd);
  }

  /// Lets them go; how many found themselves the first.
  int FirstOnes() {
    close(m_aStart[1]);
    int iFirst = 0;
    for (size_t i = 0; i < m_aProcesses.size(); ++i) {
      char cFirst = '?';
      EXPECT_EQ(read(m_aResult[0], &cFirst, 1), 1);
      if (cFirst == 'y') ++iFirst;
    }
    return iFirst;
  }

 private:
  [[noreturn]] void Try() {
    close(m_aStart[1]);
    char cNothing = 0;
    if (read(m_aStart[0], &cNothing, 1) != 0) _exit(1);  // until the other end is closed
    LinuxInstance copy;
    const char cFirst = copy.Take() ? 'y' : 'n';
    if (write(m_aResult[1], &cFirst, 1) == 1) pause();
    _exit(1);
  }

  std::array<int, 2> m_aStart{}, m_aResult{};
  std::vector<pid_t> m_aProcesses;
};

/// Each round meets what the round before has left when it was killed.
TEST_F(LinuxInstanceTest, OneOfTwentyCopiesStartedAtOnceIsTheFirst) {
  for (int iRound = 0; iRound < 10; ++iRound) {
    EXPECT_EQ(ManyCopies(20).FirstOnes(), 1) << "in round " << iRound;
  }
}

TEST_F(LinuxInstanceTest, LockWithoutAnOwnerThatCanBeReadIsStale) {
  for (const char* sText : {"", "junk", "1\nsystemd\n\n"}) {
    folder.AddFile("glidetrak.lock", sText);
    EXPECT_TRUE(LinuxInstance().Take()) << sText;
  }
  QFile::remove(folder.Path("glidetrak.lock"));
  ASSERT_EQ(symlink("/no/such/place", qPrintable(folder.Path("glidetrak.lock"))), 0);
  LinuxInstance first;
  EXPECT_TRUE(first.Take());
  EXPECT_FALSE(LinuxInstance().Take());
}

TEST_F(LinuxInstanceTest, LockThatMayNotBeOpenedIsStale) {
  folder.AddFile("glidetrak.lock", "");
  ASSERT_EQ(chmod(qPrintable(folder.Path("glidetrak.lock")), 0000), 0);
  ExpectAsPlainUser([] {
    LinuxInstance first;
    return first.Take() && !LinuxInstance().Take();
  });
}

TEST_F(LinuxInstanceTest, WithoutTheVariableTheSystemsFolderIsTriedAheadOfOurOwn) {
  LinuxInstance with;
  ASSERT_TRUE(with.Take());
  qunsetenv("XDG_RUNTIME_DIR");
  const InstanceFolders folders{folder.Path(), folder.Path("own")};
  EXPECT_FALSE(LinuxInstance(folders).Take());
  EXPECT_FALSE(QFileInfo::exists(folder.Path("own")));
}

TEST_F(LinuxInstanceTest, WithoutVariableAndSystemsFolderOurOwnIsMadeForTheUserAlone) {
  qunsetenv("XDG_RUNTIME_DIR");
  const InstanceFolders folders{folder.Path("nothing"), folder.Path("own")};
  LinuxInstance first(folders);
  EXPECT_TRUE(first.Take());
  struct stat info {};
  ASSERT_EQ(stat(qPrintable(folder.Path("own")), &info), 0);
  EXPECT_EQ(info.st_mode & 0777, 0700U);
  EXPECT_TRUE(QFileInfo::exists(folder.Path("own/glidetrak.lock")));
  EXPECT_FALSE(LinuxInstance(folders).Take());
}

TEST_F(LinuxInstanceTest, FolderOfOurOwnThatOthersMayEnterIsNotUsed) {
  qunsetenv("XDG_RUNTIME_DIR");
  QDir(folder.Path()).mkdir("own");
  ASSERT_EQ(chmod(qPrintable(folder.Path("own")), 0755), 0);
  EXPECT_EQ(LinuxInstance({folder.Path("nothing"), folder.Path("own")}).Folder(), "");
}

TEST_F(LinuxInstanceTest, FolderThatCannotBeWrittenGivesWayToOurOwn) {
  ASSERT_EQ(chmod(qPrintable(folder.Path()), 0777), 0);
  const InstanceFolders folders{folder.Path("nothing"), folder.Path("own")};
  const auto refused = [&] {
    LinuxInstance first(folders);
    return first.Take() && first.Folder() == folders.sOwn && !LinuxInstance(folders).Take();
  };
  ExpectAsPlainUser([&] {
    QDir(folder.Path()).mkdir("given");
    qputenv("XDG_RUNTIME_DIR", folder.Path("given").toUtf8());
    return chmod(qPrintable(folder.Path("given")), 0500) == 0 && refused();
  });
  qputenv("XDG_RUNTIME_DIR", folder.Path("no such folder").toUtf8());
  ASSERT_TRUE(QDir(folders.sOwn).removeRecursively());
  EXPECT_TRUE(refused());
}

/// As behind a change of user that keeps the variable.
TEST_F(LinuxInstanceTest, FolderOfAnotherUserIsNoneOfThisOne) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can give a folder away";
  QDir(folder.Path()).mkdir("others");
  ASSERT_EQ(chown(qPrintable(folder.Path("others")), iNobody, iNobody), 0);
  qputenv("XDG_RUNTIME_DIR", folder.Path("others").toUtf8());
  EXPECT_EQ(LinuxInstance({folder.Path(), folder.Path("own")}).Folder(), folder.Path());
}

TEST_F(LinuxInstanceTest, AskingNobodyComesBack) {
  LinuxInstance alone;
  alone.ActivateOther();
  EXPECT_TRUE(alone.Take());
}

TEST_F(LinuxInstanceTest, SocketOfACopyThatCrashedIsNoHindrance) {
  folder.AddFile("glidetrak.socket", "left behind");
  int iActivated = 0;
  LinuxInstance first, second;
  first.SetActivation([&] { ++iActivated; });
  EXPECT_TRUE(first.Take());
  second.ActivateOther();
  for (int i = 0; i < 100 && iActivated == 0; ++i) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
  }
  EXPECT_EQ(iActivated, 1);
}

}  // namespace

}  // namespace glidetrak
