// The wire as a named pipe.

#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

#include "bench/PipeAct.h"
#include "bench/PipePlace.h"
#include "bench/ServedTalk.h"
#include "bench/Wire.h"

namespace glidetrak::bench {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::microseconds waitStep{10'000};
constexpr size_t iListening = 4;         ///< instances that wait for clients at any time
constexpr DWORD iScarcePause = 100;      ///< ms until the system is asked again for an instance
constexpr size_t iLongestSetting = 512;  ///< characters, more than a pipe's name may have

/// What the environment says now, whichever copy of it the language keeps; as UTF-8.
std::string Variable(const wchar_t* sName) {
  std::array<wchar_t, iLongestSetting> aValue{};
  const DWORD iLength = GetEnvironmentVariableW(sName, aValue.data(), aValue.size());
  if (iLength == 0) return {};
  if (iLength >= aValue.size()) throw std::runtime_error("the name of the rig's pipe is too long");
  std::array<char, 3 * iLongestSetting> aText{};
  const int iBytes =
      WideCharToMultiByte(CP_UTF8, 0, aValue.data(), static_cast<int>(iLength), aText.data(),
                          static_cast<int>(aText.size()), nullptr, nullptr);
  return {aText.data(), static_cast<size_t>(iBytes)};
}

/// Calls wait(ms) with a step of the time that is left and counts it.
template <typename Wait>
void CountStep(std::chrono::microseconds& left, Wait wait) {
  const auto step = std::clamp(left, std::chrono::microseconds(0), waitStep);
  const auto start = Clock::now();
  wait(static_cast<DWORD>(std::chrono::ceil<std::chrono::milliseconds>(step).count()));
  left -= std::min(step, std::chrono::ceil<std::chrono::microseconds>(Clock::now() - start));
}

/// The bytes that were carried until the act was over or no time was left.
std::optional<size_t> FinishWithin(PipeAct& act, std::chrono::microseconds& left) {
  while (!act.IsOver() && left.count() > 0) {
    CountStep(left, [&](DWORD iWait) { WaitForSingleObject(act.Event(), iWait); });
  }
  act.CallOff();
  return act.Finish();
}

HANDLE HandleOf(std::intptr_t iFile) {
  return reinterpret_cast<HANDLE>(iFile);
}

}  // namespace

std::string WireName() {
  const std::string sGiven = Variable(L"GLIDETRAK_BENCH_SOCKET");
  return sGiven.empty() ? OwnPipeName() : sGiven;
}

bool WireConnection::Connect(const std::string& sName) {
  Close();
  while (true) {
    SystemHandle pipe = OpenPipe(sName);
    if (pipe.IsOpen()) {
      m_file = reinterpret_cast<std::intptr_t>(pipe.Release());
      return true;
    }
    // Between two clients there may be a moment without an instance.
    if (GetLastError() != ERROR_PIPE_BUSY || m_left.count() <= 0) return false;
    CountStep(m_left, [&](DWORD iWait) { AwaitPipe(sName, iWait); });
  }
}

bool WireConnection::Send(std::string_view bytes) {
  if (bytes.empty()) return true;
  PipeAct act;
  act.Write(HandleOf(m_file), bytes.data(), bytes.size());
  return FinishWithin(act, m_left) == bytes.size();
}

size_t WireConnection::Receive(char* pBytes, size_t iMost) {
  PipeAct act;
  act.Read(HandleOf(m_file), pBytes, iMost);
  return FinishWithin(act, m_left).value_or(0);
}

void WireConnection::Close() {
  if (m_file != iNone) CloseHandle(HandleOf(std::exchange(m_file, iNone)));
}

namespace {

/// An instance of the pipe at which a client may come.
struct Listener {
  explicit Listener(SystemHandle instance) : pipe(std::move(instance)) { act.Listen(pipe.Get()); }

  SystemHandle pipe;
  PipeAct act;  ///< goes first
};

/// It always has one act under way: it hears, or it sends.
class Client {
 public:
  Client(SystemHandle pipe, std::unique_ptr<Conversation> conversation)
      : m_pipe(std::move(pipe)), m_talk(std::move(conversation)) {
    Receive();
  }

  const PipeAct& Act() const { return m_act; }

  /// Finishes the act, which is over, answers as far as it goes without waiting and begins another.
  void Work() {
    m_talk.sToSend.empty() ? FinishReceive() : FinishSend();
    while (m_talk.TakeMessage()) Send();
    if (m_talk.sToSend.empty() && !Done()) Receive();
  }

  bool Done() const { return m_talk.Done(); }
  auto Worth() const { return m_talk.Worth(); }

 private:
  void Receive() { m_act.Read(m_pipe.Get(), m_aBytes.data(), m_talk.Room()); }

  void FinishReceive() {
    const size_t iCount = m_act.Finish().value_or(0);
    if (iCount > 0) m_talk.Hear({m_aBytes.data(), iCount});
    if (iCount == 0) m_talk.HearEnd();
  }

  void Send() {
    if (m_talk.sToSend.empty()) return;
    m_act.Write(m_pipe.Get(), m_talk.sToSend.data(), m_talk.sToSend.size());
    if (m_act.IsOver()) FinishSend();
  }

  /// Sent, or nobody reads any more; what was sent to us may still have to be carried out.
  void FinishSend() {
    m_act.Finish();
    m_talk.sToSend.clear();
  }

  SystemHandle m_pipe;
  ServedTalk m_talk;
  std::array<char, iMostUnread> m_aBytes{};
  PipeAct m_act;  ///< goes first
};

}  // namespace

struct WireServer::System {
  explicit System(const std::string& sName)
      : place(sName), end(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
    aListeners.push_back(std::make_unique<Listener>(place.TakeFirst()));
    Refill();
  }

  /// Clients find the oldest listener first, and so come in their order.
  void Refill() {
    while (aListeners.size() < iListening) {
      SystemHandle pipe = place.TakeNext();
      if (!pipe.IsOpen()) return;
      aListeners.push_back(std::make_unique<Listener>(std::move(pipe)));
    }
  }

  /// Takes the listener's instance.
  void Accept(Listener& listener, std::unique_ptr<Conversation> conversation) {
    SystemHandle pipe = std::move(listener.pipe);
    if (!listener.act.Finish()) return;
    if (aClients.size() == iMostClients) {
      aClients.erase(
          std::min_element(aClients.begin(), aClients.end(),
                           [](const auto& a, const auto& b) { return a->Worth() < b->Worth(); }));
    }
    aClients.push_back(std::make_unique<Client>(std::move(pipe), std::move(conversation)));
  }

  /// Until an act is over or Serve is to end.
  void Wait() const {
    std::vector<HANDLE> aEvents{end.Get()};
    for (const auto& client : aClients) aEvents.push_back(client->Act().Event());
    for (const auto& listener : aListeners) aEvents.push_back(listener->act.Event());
    static_assert(1 + iMostClients + iListening <= MAXIMUM_WAIT_OBJECTS);
    const DWORD iWait = aListeners.size() < iListening ? iScarcePause : INFINITE;
    WaitForMultipleObjects(static_cast<DWORD>(aEvents.size()), aEvents.data(), FALSE, iWait);
  }

  PipePlace place;
  SystemHandle end;  ///< set when Serve is to end
  std::vector<std::unique_ptr<Client>> aClients;
  std::vector<std::unique_ptr<Listener>> aListeners;  ///< the oldest first
};

WireServer::WireServer(const std::string& sName) : m_system(std::make_unique<System>(sName)) {}

WireServer::~WireServer() = default;

void WireServer::Serve(const std::function<std::unique_ptr<Conversation>()>& newConversation) {
  auto& aClients = m_system->aClients;
  auto& aListeners = m_system->aListeners;
  while (true) {
    m_system->Wait();
    if (WaitForSingleObject(m_system->end.Get(), 0) == WAIT_OBJECT_0) return;
    for (const auto& client : aClients) {
      if (client->Act().IsOver()) client->Work();
    }
    std::erase_if(aClients, [](const auto& client) { return client->Done(); });
    for (const auto& listener : aListeners) {
      if (listener->act.IsOver()) m_system->Accept(*listener, newConversation());
    }
    std::erase_if(aListeners, [](const auto& listener) { return !listener->pipe.IsOpen(); });
    m_system->Refill();
  }
}

void WireServer::End() noexcept {
  SetEvent(m_system->end.Get());
}

}  // namespace glidetrak::bench
