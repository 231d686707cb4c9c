#include "hid_windows/PipeAdapter.h"

#include <utility>

namespace glidetrak {

namespace {

using bench::PipeAct;
using bench::ReportBytes;
using bench::SystemHandle;

constexpr size_t iReady = 24;       ///< instances that wait for somebody to open the device
constexpr DWORD iQueuePlaces = 64;  ///< of an open handle's input queue

/// To one handle; a queue without room misses it.
void SendTo(HANDLE pipe, const ReportBytes& report) {
  PipeAct act;
  act.Write(pipe, reinterpret_cast<const char*>(report.data()), report.size());
}

}  // namespace

std::wstring PipeAdapter::NewPath(const std::wstring& sWord) {
  static int iNext = 0;
  return LR"(\\.\pipe\glidetrak-hid-)" + std::to_wstring(GetCurrentProcessId()) + L"-" +
         std::to_wstring(++iNext) + L"-" + sWord;
}

PipeAdapter::PipeAdapter(bench::LiveRig& rig, std::wstring sGiven, HidTold given)
    : sPath(std::move(sGiven)),
      told(given),
      m_rig(rig),
      m_wake(CreateEventW(nullptr, FALSE, FALSE, nullptr)) {}

void PipeAdapter::Plug() {
  Unplug();
  const std::lock_guard lock(m_mutex);
  m_bPlugged = true;
  Refill();
  m_thread = std::thread([this] { Serve(); });
}

void PipeAdapter::Unplug() {
  {
    const std::lock_guard lock(m_mutex);
    m_bPlugged = false;
  }
  SetEvent(m_wake.Get());
  if (m_thread.joinable()) m_thread.join();
}

void PipeAdapter::SetFault(AdapterFault fault, int iDelay) {
  const std::lock_guard lock(m_mutex);
  m_fault = fault;
  m_iDelay = static_cast<DWORD>(iDelay);
  // What is being read is left, or taken up again.
  for (const auto& client : m_aClients) {
    if (client->bOpen) client->act.CallOff();
  }
  SetEvent(m_wake.Get());
}

void PipeAdapter::Send(const ReportBytes& report) {
  const std::lock_guard lock(m_mutex);
  for (const auto& client : m_aClients) SendTo(client->pipe.Get(), report);
}

std::vector<ReportBytes> PipeAdapter::Reports() const {
  const std::lock_guard lock(m_mutex);
  return m_aReports;
}

size_t PipeAdapter::OpenHandles() const {
  const std::lock_guard lock(m_mutex);
  size_t iOpen = 0;
  for (const auto& client : m_aClients) iOpen += client->bOpen ? 1 : 0;
  return iOpen;
}

bool PipeAdapter::IsPlugged() const {
  const std::lock_guard lock(m_mutex);
  return m_bPlugged;
}

/// A write to the adapter goes on until it is read: its side of the pipe has no room of its own.
void PipeAdapter::Refill() {
  size_t iFree = iReady;
  for (const auto& client : m_aClients) iFree -= client->bOpen ? 0 : 1;
  for (; iFree > 0; --iFree) {
    SystemHandle pipe(CreateNamedPipeW(
        sPath.c_str(), m_iAccess | FILE_FLAG_OVERLAPPED, PIPE_TYPE_MESSAGE | PIPE_READMODE_MESSAGE,
        PIPE_UNLIMITED_INSTANCES, iQueuePlaces * told.iInput, 0, 0, nullptr));
    if (!pipe.IsOpen()) bench::ThrowSystemError("cannot serve the adapter");
    m_aClients.push_back(std::make_unique<Client>());
    m_aClients.back()->pipe = std::move(pipe);
    m_aClients.back()->act.Listen(m_aClients.back()->pipe.Get());
  }
}

/// The thread of the adapter. All that it has begun ends with it.
void PipeAdapter::Serve() {
  while (true) {
    std::vector<HANDLE> aEvents{m_wake.Get()};
    {
      const std::lock_guard lock(m_mutex);
      std::erase_if(m_aClients, [this](const auto& client) { return !ServeClient(*client); });
      if (!m_bPlugged) return m_aClients.clear();
      Refill();
      for (const auto& client : m_aClients) {
        // An act may be over as soon as it is begun; a deaf adapter begins none.
        if (m_fault != AdapterFault::Deaf || !client->act.IsOver()) {
          aEvents.push_back(client->act.Event());
        }
      }
    }
    WaitForMultipleObjects(static_cast<DWORD>(aEvents.size()), aEvents.data(), FALSE, INFINITE);
  }
}

/// False when its handle has been closed.
bool PipeAdapter::ServeClient(Client& client) {
  if (!client.act.IsOver()) return true;
  const bool bWasOpen = std::exchange(client.bOpen, true);
  const std::optional<size_t> iCount = client.act.Finish();
  if (bWasOpen && iCount) Take(ReportBytes(client.aBytes.data(), client.aBytes.data() + *iCount));
  DWORD iWaiting = 0;
  if (PeekNamedPipe(client.pipe.Get(), nullptr, 0, nullptr, &iWaiting, nullptr) == 0) return false;
  if (m_fault != AdapterFault::Deaf) {
    client.act.Read(client.pipe.Get(), client.aBytes.data(), client.aBytes.size());
  }
  return true;
}

void PipeAdapter::Take(const ReportBytes& report) {
  m_aReports.push_back(report);
  const ReportBytes data(report.begin() + 1, report.end());
  ReportBytes answer =
      m_rig.With([&](bench::Rig& rig) { return bench::AnswerReport(rig, data, told.iInput - 1); });
  if (m_fault == AdapterFault::Vanish) m_bPlugged = false;
  if (answer.empty() || m_fault == AdapterFault::Vanish || m_fault == AdapterFault::Silent) return;
  if (m_fault == AdapterFault::Late) Sleep(m_iDelay);
  answer.insert(answer.begin(), told.iReport);
  Send(answer);
}

}  // namespace glidetrak
