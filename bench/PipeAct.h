#pragma once

// One act on a pipe that may take its time: it is begun, waited for by its event and finished. It
// may go before it is over; then it is called off first, since the system writes to the act's
// memory and to the caller's until it is over.

#include <optional>

#include "bench/SystemHandle.h"

namespace glidetrak::bench {

class PipeAct {
 public:
  PipeAct() : m_event(CreateEventW(nullptr, TRUE, TRUE, nullptr)) {}
  ~PipeAct() {
    CallOff();
    Finish();
  }
  PipeAct(const PipeAct&) = delete;
  PipeAct& operator=(const PipeAct&) = delete;

  /// Waits for a client at a new instance of the pipe.
  void Listen(HANDLE pipe) {
    Begin(pipe);
    const bool bBegun = ConnectNamedPipe(pipe, &m_overlapped) != 0;
    // A client may have come before it was waited for, and even have gone: what it has sent is
    // still to be read.
    const DWORD iError = GetLastError();
    m_bThere = !bBegun && (iError == ERROR_PIPE_CONNECTED || iError == ERROR_NO_DATA);
    NoteStart(bBegun || iError == ERROR_IO_PENDING);
  }

  void Read(HANDLE pipe, char* pBytes, size_t iMost) {
    Begin(pipe);
    NoteStart(ReadFile(pipe, pBytes, static_cast<DWORD>(iMost), nullptr, &m_overlapped) != 0 ||
              GetLastError() == ERROR_IO_PENDING);
  }

  void Write(HANDLE pipe, const char* pBytes, size_t iCount) {
    Begin(pipe);
    NoteStart(WriteFile(pipe, pBytes, static_cast<DWORD>(iCount), nullptr, &m_overlapped) != 0 ||
              GetLastError() == ERROR_IO_PENDING);
  }

  /// Set as soon as the act is over, in whatever way, and until another is begun.
  HANDLE Event() const { return m_event.Get(); }

  bool IsOver() const { return !m_bUnderWay || HasOverlappedIoCompleted(&m_overlapped); }

  /// Has it over at once; what it has done until then counts.
  void CallOff() {
    if (!IsOver()) CancelIoEx(m_pipe, &m_overlapped);
  }

  /// Waits until it is over. The bytes that were carried; nothing when it failed or none was begun.
  std::optional<size_t> Finish() {
    if (std::exchange(m_bThere, false)) return 0;
    DWORD iBytes = 0;
    if (!std::exchange(m_bUnderWay, false) ||
        GetOverlappedResult(m_pipe, &m_overlapped, &iBytes, TRUE) == 0) {
      return {};
    }
    return iBytes;
  }

 private:
  void Begin(HANDLE pipe) {
    m_pipe = pipe;
    m_overlapped = {};
    m_overlapped.hEvent = Event();
  }

  /// The system sets the event of an act that was begun, and of no other.
  void NoteStart(bool bUnderWay) {
    m_bUnderWay = bUnderWay;
    if (!bUnderWay) SetEvent(Event());
  }

  SystemHandle m_event;
  HANDLE m_pipe = nullptr;
  OVERLAPPED m_overlapped{};
  bool m_bUnderWay = false;  ///< begun, and not finished
  bool m_bThere = false;     ///< the client that was to be waited for is there already
};

}  // namespace glidetrak::bench
