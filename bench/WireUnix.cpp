// The wire as a Unix socket.

#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <thread>
#include <vector>

#include "bench/ServedTalk.h"
#include "bench/SocketPlace.h"
#include "bench/Wire.h"

namespace glidetrak::bench {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::microseconds waitStep{10'000};
constexpr std::chrono::microseconds fullPause{2'000};  ///< between tries at a server with a queue

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

/// Waits until the file is ready for those events; false when no time is left. A signal that is
/// handled on the way makes it no longer and no shorter.
bool WaitFor(int iFile, short iEvents, std::chrono::microseconds& left) {
  while (true) {
    const auto step = std::clamp(left, std::chrono::microseconds(0), waitStep);
    const auto start = Clock::now();
    pollfd wait{iFile, iEvents, 0};
    const int iWait = static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(step).count());
    const int iReady = poll(&wait, 1, iWait);
    const bool bInterrupted = iReady < 0 && errno == EINTR;
    const auto passed = std::chrono::ceil<std::chrono::microseconds>(Clock::now() - start);
    left -= std::min(step, passed);
    if (iReady > 0) return true;
    if (iReady < 0 && !bInterrupted) return false;
    if (step == step.zero() && !bInterrupted) return false;
  }
}

bool IsForLater(ssize_t iResult) {
  return iResult < 0 && (errno == EAGAIN || errno == EINTR);
}

/// Of this user or of root.
bool IsTrusted(const FileDescriptor& file) {
  ucred peer{};
  socklen_t iSize = sizeof peer;
  if (getsockopt(file.Number(), SOL_SOCKET, SO_PEERCRED, &peer, &iSize) != 0) return false;
  return peer.uid == getuid() || peer.uid == 0;
}

}  // namespace

std::string WireName() {
  std::string sGiven = Variable("GLIDETRAK_BENCH_SOCKET");
  if (!sGiven.empty()) return sGiven;
  const std::string sRunTime = Variable("XDG_RUNTIME_DIR");
  return (sRunTime.empty() ? OwnFolder() : sRunTime) + "/glidetrak-bench.socket";
}

bool WireConnection::Connect(const std::string& sName) {
  Close();
  const sockaddr_un address = SocketAddress(sName);
  FileDescriptor file(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  if (file.Number() < 0) return false;
  // A server whose queue is full is tried again; there is nothing to wait for meanwhile.
  while (connect(file.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    if (!IsForLater(-1) || m_left < fullPause) return false;
    std::this_thread::sleep_for(fullPause);
    m_left -= fullPause;
  }
  m_file = file.Release();
  return true;
}

bool WireConnection::Send(std::string_view bytes) {
  const int iFile = static_cast<int>(m_file);
  while (!bytes.empty()) {
    const ssize_t iCount = send(iFile, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (iCount > 0) bytes.remove_prefix(static_cast<size_t>(iCount));
    if (iCount > 0) continue;
    if (!IsForLater(iCount) || !WaitFor(iFile, POLLOUT, m_left)) return false;
  }
  return true;
}

size_t WireConnection::Receive(char* pBytes, size_t iMost) {
  const int iFile = static_cast<int>(m_file);
  while (true) {
    const ssize_t iCount = recv(iFile, pBytes, iMost, 0);
    if (iCount >= 0) return static_cast<size_t>(iCount);
    if (!IsForLater(iCount) || !WaitFor(iFile, POLLIN, m_left)) return 0;
  }
}

void WireConnection::Close() {
  if (m_file != iNone) close(static_cast<int>(std::exchange(m_file, iNone)));
}

namespace {

class Client {
 public:
  Client(FileDescriptor file, std::unique_ptr<Conversation> conversation)
      : m_file(std::move(file)), m_talk(std::move(conversation)) {}

  /// While an answer waits to be fetched nothing more is read.
  pollfd Wait() const {
    return {m_file.Number(), static_cast<short>(m_talk.sToSend.empty() ? POLLIN : POLLOUT), 0};
  }

  /// Receives, answers and sends as far as it goes without waiting.
  void Work() {
    if (m_talk.sToSend.empty()) Receive();
    Send();
    while (m_talk.TakeMessage()) Send();
  }

  bool Done() const { return m_talk.Done(); }
  auto Worth() const { return m_talk.Worth(); }

 private:
  void Receive() {
    char aBytes[iMostUnread];
    const ssize_t iCount = recv(m_file.Number(), aBytes, m_talk.Room(), 0);
    if (iCount > 0) m_talk.Hear({aBytes, static_cast<size_t>(iCount)});
    if (iCount == 0 || (iCount < 0 && !IsForLater(iCount))) m_talk.HearEnd();
  }

  void Send() {
    std::string& sToSend = m_talk.sToSend;
    if (sToSend.empty()) return;
    const ssize_t iCount = send(m_file.Number(), sToSend.data(), sToSend.size(), MSG_NOSIGNAL);
    if (iCount > 0) sToSend.erase(0, static_cast<size_t>(iCount));
    // Nobody reads any more; what was sent to us may still have to be carried out.
    if (iCount < 0 && !IsForLater(iCount)) sToSend.clear();
  }

  FileDescriptor m_file;
  ServedTalk m_talk;
};

}  // namespace

struct WireServer::System {
  explicit System(const std::string& sName)
      : place(sName), listener(place.Listen()), end(eventfd(0, EFD_CLOEXEC)) {}
  ~System() { place.Clear(); }

  void Accept(std::unique_ptr<Conversation> conversation) {
    FileDescriptor file(accept4(listener.Number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (file.Number() < 0 || !IsTrusted(file)) return;
    if (aClients.size() == iMostClients) {
      aClients.erase(
          std::min_element(aClients.begin(), aClients.end(),
                           [](const auto& a, const auto& b) { return a.Worth() < b.Worth(); }));
    }
    aClients.emplace_back(std::move(file), std::move(conversation));
  }

  /// The clients' files, then the listener and the end.
  std::vector<pollfd> Waits() const {
    std::vector<pollfd> aWaits;
    for (const Client& client : aClients) aWaits.push_back(client.Wait());
    aWaits.push_back({listener.Number(), POLLIN, 0});
    aWaits.push_back({end.Number(), POLLIN, 0});
    return aWaits;
  }

  SocketPlace place;
  FileDescriptor listener;
  FileDescriptor end;  ///< becomes readable when Serve is to end
  std::vector<Client> aClients;
};

WireServer::WireServer(const std::string& sName) : m_system(std::make_unique<System>(sName)) {}

WireServer::~WireServer() = default;

void WireServer::Serve(const std::function<std::unique_ptr<Conversation>()>& newConversation) {
  std::vector<Client>& aClients = m_system->aClients;
  while (true) {
    std::vector<pollfd> aWaits = m_system->Waits();
    if (poll(aWaits.data(), aWaits.size(), -1) < 0) continue;
    if (aWaits.back().revents != 0) return;
    for (size_t i = 0; i < aClients.size(); ++i) {
      if (aWaits[i].revents != 0) aClients[i].Work();
    }
    if (aWaits[aClients.size()].revents != 0) m_system->Accept(newConversation());
    std::erase_if(aClients, [](const Client& client) { return client.Done(); });
  }
}

void WireServer::End() noexcept {
  eventfd_write(m_system->end.Number(), 1);
}

}  // namespace glidetrak::bench
