#include "bench/ControlSocket.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>

#include <cstdlib>
#include <cstring>
#include <stdexcept>

#include "bench/RigCommands.h"
#include "bench/WorkerThread.h"

namespace glidetrak::bench {

namespace {

constexpr size_t iLongestLine = 256;   ///< bytes, the line feed counted
constexpr int iMostSilence = 2;        ///< s for the other side to speak, before it is given up
constexpr int iWaiting = 8;            ///< connections that may queue
const std::string sAccepted = "ok\n";  ///< the first line of a good answer
const std::string sRefused = "error: ";

std::string Variable(const char* sName) {
  const char* sValue = std::getenv(sName);
  return sValue == nullptr ? "" : sValue;
}

/// A folder under /tmp that nobody else can have prepared for us.
std::string OwnFolder() {
  std::string sFolder = "/tmp/glidetrak-bench-" + std::to_string(getuid());
  mkdir(sFolder.c_str(), S_IRWXU);
  struct stat status {};
  if (lstat(sFolder.c_str(), &status) != 0) ThrowSystemError("cannot make " + sFolder);
  const bool bOwn = S_ISDIR(status.st_mode) && status.st_uid == getuid() &&
                    (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
  if (!bOwn) throw std::runtime_error(sFolder + " is not a private folder of this user");
  return sFolder;
}

sockaddr_un Address(const std::string& sPath) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (sPath.size() >= sizeof address.sun_path) {
    throw std::runtime_error("the path of the control socket is too long: " + sPath);
  }
  std::memcpy(address.sun_path, sPath.c_str(), sPath.size());
  return address;
}

FileDescriptor NewSocket() {
  FileDescriptor socketFile(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  if (socketFile.Number() < 0) ThrowSystemError("cannot make a socket");
  return socketFile;
}

void LimitWaits(const FileDescriptor& file) {
  const timeval limit{iMostSilence, 0};
  setsockopt(file.Number(), SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
  setsockopt(file.Number(), SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
}

/// False when nobody listens there.
bool Connect(const FileDescriptor& file, const std::string& sPath) {
  const sockaddr_un address = Address(sPath);
  return connect(file.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

bool Bind(const FileDescriptor& file, const std::string& sPath) {
  const sockaddr_un address = Address(sPath);
  return bind(file.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

/// Gives up silently when the other side has gone.
void SendAll(const FileDescriptor& file, const std::string& sText) {
  size_t iSent = 0;
  while (iSent < sText.size()) {
    const ssize_t iCount =
        send(file.Number(), sText.data() + iSent, sText.size() - iSent, MSG_NOSIGNAL);
    if (iCount <= 0) return;
    iSent += static_cast<size_t>(iCount);
  }
}

/// A whole line without its line feed; empty when the other side sends none, or one too long.
std::string ReceiveLine(const FileDescriptor& file) {
  std::string sLine;
  char cByte = 0;
  while (sLine.size() < iLongestLine && recv(file.Number(), &cByte, 1, 0) == 1) {
    if (cByte == '\n') return sLine;
    sLine += cByte;
  }
  return {};
}

std::string ReceiveAll(const FileDescriptor& file) {
  std::string sText;
  char aPiece[512];
  ssize_t iCount = 0;
  while ((iCount = recv(file.Number(), aPiece, sizeof aPiece, 0)) > 0) {
    sText.append(aPiece, static_cast<size_t>(iCount));
  }
  return sText;
}

FileDescriptor Listen(const std::string& sPath) {
  FileDescriptor listener = NewSocket();
  if (!Bind(listener, sPath)) {
    if (errno != EADDRINUSE) ThrowSystemError("cannot serve " + sPath);
    if (Connect(NewSocket(), sPath)) throw std::runtime_error("another rig serves " + sPath);
    unlink(sPath.c_str());
    if (!Bind(listener, sPath)) ThrowSystemError("cannot serve " + sPath);
  }
  chmod(sPath.c_str(), S_IRUSR | S_IWUSR);
  if (listen(listener.Number(), iWaiting) != 0) ThrowSystemError("cannot serve " + sPath);
  return listener;
}

}  // namespace

std::string ControlSocketPath() {
  std::string sGiven = Variable("GLIDETRAK_BENCH_SOCKET");
  if (!sGiven.empty()) return sGiven;
  const std::string sRunTime = Variable("XDG_RUNTIME_DIR");
  return (sRunTime.empty() ? OwnFolder() : sRunTime) + "/glidetrak-bench.socket";
}

ControlSocket::ControlSocket(LiveRig& rig, std::string sPath)
    : m_rig(rig),
      m_sPath(std::move(sPath)),
      m_listener(Listen(m_sPath)),
      m_stop(eventfd(0, EFD_CLOEXEC)),
      m_thread(StartWorker([this] { Serve(); })) {}

ControlSocket::~ControlSocket() {
  eventfd_write(m_stop.Number(), 1);
  m_thread.join();
  unlink(m_sPath.c_str());
}

void ControlSocket::Serve() {
  pollfd aWaits[] = {{m_listener.Number(), POLLIN, 0}, {m_stop.Number(), POLLIN, 0}};
  while (true) {
    poll(aWaits, 2, -1);
    if (aWaits[1].revents != 0) return;
    if (aWaits[0].revents != 0) AnswerOne();
  }
}

void ControlSocket::AnswerOne() {
  const FileDescriptor client(accept4(m_listener.Number(), nullptr, nullptr, SOCK_CLOEXEC));
  if (client.Number() < 0) return;
  LimitWaits(client);
  const RigCommand command = ParseRigCommand(ReceiveLine(client));
  SendAll(client, command ? sAccepted + m_rig.With(command) : sRefused + "no such command\n");
}

std::string AskRig(const std::string& sPath, const std::string& sLine) {
  const FileDescriptor server = NewSocket();
  if (!Connect(server, sPath)) throw std::runtime_error("no rig answers at " + sPath);
  LimitWaits(server);
  SendAll(server, sLine + "\n");
  const std::string sAnswer = ReceiveAll(server);
  if (sAnswer.rfind(sAccepted, 0) == 0) return sAnswer.substr(sAccepted.size());
  if (sAnswer.rfind(sRefused, 0) != 0) throw std::runtime_error("no answer from " + sPath);
  const std::string sReason = sAnswer.substr(sRefused.size());
  throw std::runtime_error("the rig refused: " + sReason.substr(0, sReason.find('\n')));
}

}  // namespace glidetrak::bench
