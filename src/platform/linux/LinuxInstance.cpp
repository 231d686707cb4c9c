#include "platform/linux/LinuxInstance.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QLocalSocket>

namespace glidetrak {

namespace {

constexpr int iLongestWait = 500;  ///< milliseconds

/// The user's run-time folder, or one of our own that only the user may enter; "" when there is
/// neither.
QString RuntimeFolder() {
  QString sGiven = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (!sGiven.isEmpty() && QDir(sGiven).exists()) return sGiven;
  const QByteArray own = "/tmp/glidetrak-" + QByteArray::number(getuid());
  mkdir(own.constData(), 0700);
  struct stat info {};
  const bool bOurs = lstat(own.constData(), &info) == 0 && S_ISDIR(info.st_mode) &&
                     info.st_uid == getuid() && (info.st_mode & 0077) == 0;
  return bOurs ? QString::fromLatin1(own) : QString();
}

QString SocketPath() {
  return RuntimeFolder() + "/glidetrak.socket";
}

}  // namespace

bool LinuxInstance::Take() {
  const QString sFolder = RuntimeFolder();
  if (sFolder.isEmpty()) return true;
  m_lock = std::make_unique<QLockFile>(sFolder + "/glidetrak.lock");
  m_lock->setStaleLockTime(0);  // a lock is stale only when its process is gone
  if (!m_lock->tryLock(0) && m_lock->error() == QLockFile::LockFailedError) return false;
  Listen();
  return true;
}

void LinuxInstance::Listen() {
  m_server = std::make_unique<QLocalServer>();
  m_server->setSocketOptions(QLocalServer::UserAccessOption);
  QLocalServer::removeServer(SocketPath());  // of a copy that ended without closing it
  QObject::connect(m_server.get(), &QLocalServer::newConnection, m_server.get(), [this] {
    delete m_server->nextPendingConnection();
    if (m_activate) m_activate();
  });
  m_server->listen(SocketPath());
}

void LinuxInstance::ActivateOther() {
  QLocalSocket socket;
  socket.connectToServer(SocketPath());
  socket.waitForConnected(iLongestWait);
}

}  // namespace glidetrak
