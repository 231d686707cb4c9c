#include "platform/linux/LinuxInstance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QLocalSocket>
#include <cerrno>

namespace glidetrak {

namespace {

constexpr int iLongestWait = 500;  ///< milliseconds
constexpr int iMostAttempts = 10;  ///< at a lock file that others replace meanwhile

/// A folder that is this user's and can be written.
bool IsUsable(const QString& sFolder) {
  const QByteArray path = QFile::encodeName(sFolder);
  struct stat info {};
  return stat(path.constData(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == geteuid() &&
         faccessat(AT_FDCWD, path.constData(), W_OK | X_OK, AT_EACCESS) == 0;
}

/// Made where it is missing. Only a folder that nobody else may enter will do: the place where it
/// stands is everybody's.
bool MakeOwn(const QString& sFolder) {
  const QByteArray path = QFile::encodeName(sFolder);
  mkdir(path.constData(), 0700);
  struct stat info {};
  return lstat(path.constData(), &info) == 0 && S_ISDIR(info.st_mode) && (info.st_mode & 0077) == 0;
}

int OpenLock(const QByteArray& path) {
  return open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
}

/// One that may not be opened in the user's own folder is no copy's of this user: it gives way.
int OpenOrReplaceLock(const QByteArray& path) {
  const int iFile = OpenLock(path);
  const bool bForeign = iFile < 0 && (errno == EACCES || errno == ELOOP);
  return bForeign && unlink(path.constData()) == 0 ? OpenLock(path) : iFile;
}

/// The open file is still the one of that name, and not one that another copy has replaced.
bool IsThere(int iFile, const QByteArray& path) {
  struct stat opened {};
  struct stat named {};
  return fstat(iFile, &opened) == 0 && stat(path.constData(), &named) == 0 &&
         opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

enum class LockResult { Locked, Taken, Impossible };

LockResult Lock(const QByteArray& path, int& iFile) {
  for (int i = 0; i < iMostAttempts; ++i) {
    iFile = OpenOrReplaceLock(path);
    if (iFile < 0) return LockResult::Impossible;
    const bool bLocked = flock(iFile, LOCK_EX | LOCK_NB) == 0;
    const bool bTaken = !bLocked && errno == EWOULDBLOCK;
    const bool bThere = IsThere(iFile, path);
    if (bLocked && bThere) return LockResult::Locked;
    close(iFile);
    if (bTaken && bThere) return LockResult::Taken;
  }
  return LockResult::Impossible;
}

}  // namespace

InstanceFolders UsersFolders() {
  const QString sUser = QString::number(geteuid());
  return {"/run/user/" + sUser, "/tmp/glidetrak-" + sUser};
}

LinuxInstance::~LinuxInstance() {
  if (m_iLock >= 0) close(m_iLock);
}

QString LinuxInstance::Folder() const {
  for (const QString& sFolder : {qEnvironmentVariable("XDG_RUNTIME_DIR"), m_folders.sSystems}) {
    if (IsUsable(sFolder)) return sFolder;
  }
  return MakeOwn(m_folders.sOwn) && IsUsable(m_folders.sOwn) ? m_folders.sOwn : QString();
}

bool LinuxInstance::Take() {
  const QString sFolder = Folder();
  if (sFolder.isEmpty()) return true;
  int iFile = -1;
  const LockResult result = Lock(QFile::encodeName(sFolder + "/glidetrak.lock"), iFile);
  if (result == LockResult::Taken) return false;
  if (result == LockResult::Locked) m_iLock = iFile;
  Listen();
  return true;
}

void LinuxInstance::Listen() {
  const QString sSocket = Folder() + "/glidetrak.socket";
  m_server = std::make_unique<QLocalServer>();
  m_server->setSocketOptions(QLocalServer::UserAccessOption);
  QLocalServer::removeServer(sSocket);  // of a copy that ended without closing it
  QObject::connect(m_server.get(), &QLocalServer::newConnection, m_server.get(), [this] {
    delete m_server->nextPendingConnection();
    if (m_activate) m_activate();
  });
  m_server->listen(sSocket);
}

void LinuxInstance::ActivateOther() {
  QLocalSocket socket;
  socket.connectToServer(Folder() + "/glidetrak.socket");
  socket.waitForConnected(iLongestWait);
}

}  // namespace glidetrak
