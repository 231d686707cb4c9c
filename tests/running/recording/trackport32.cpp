// A library of the parallel adapter that writes each call down, for tests that look at what the rig
// was told last, whatever became of the station. Port 1 has an adapter and the rig answers.
//
// GLIDETRAK_RECORD names the file of the record: a line for each call, the process's number first.
// GLIDETRAK_MOOD names a file whose one word makes the next read of the rig go wrong: "crash" reads
// where no memory is, "stack" exhausts the stack, "throw" throws, "hang" crashes and never comes
// back from the write that follows.

#include "bench/trackport32.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>

namespace glidetrak {

namespace {

constexpr int iAddress = 888;
constexpr int iHandle = 101;
constexpr int iRigPresent = 0x80;

bool bHangs = false;

/// One write a line, so that lines of two processes never mix. Nothing else is used: it must work
/// where a crash has left the process.
void Record(const char* sCall, int iValue) {
  const char* sPath = std::getenv("GLIDETRAK_RECORD");
  if (sPath == nullptr) return;
  char line[80];
  const int iLength = std::snprintf(line, sizeof line, "%d %s %d\n", getpid(), sCall, iValue);
  const int iFile = open(sPath, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
  [[maybe_unused]] const ssize_t iWritten = write(iFile, line, static_cast<size_t>(iLength));
  close(iFile);
}

std::string Mood() {
  const char* sPath = std::getenv("GLIDETRAK_MOOD");
  const int iFile = sPath == nullptr ? -1 : open(sPath, O_RDONLY | O_CLOEXEC);
  if (iFile < 0) return {};
  char word[16] = {};
  [[maybe_unused]] const ssize_t iRead = read(iFile, word, sizeof word - 1);
  close(iFile);
  return word;
}

void Crash() {
  volatile int* volatile pNowhere = nullptr;
  *pNowhere = 1;
}

/// Would come to an end in a stack without one.
int ExhaustStack(volatile const char* pCaller) {
  if (*pCaller != 0) return 0;
  volatile char block[4096];
  block[0] = *pCaller;
  return ExhaustStack(block) + block[0];
}

void GoWrong(const std::string& sMood) {
  if (sMood == "throw") throw std::runtime_error("the library gives up");
  const volatile char cStart = 0;
  if (sMood == "stack") ExhaustStack(&cStart);
  bHangs = sMood == "hang";
  if (sMood == "crash" || bHangs) Crash();
}

}  // namespace

std::int32_t TRACKPORT_CALL LPTAvailable() {
  return 1;
}

std::int32_t TRACKPORT_CALL LPTAddress(std::int32_t) {
  return iAddress;
}

std::int32_t TRACKPORT_CALL IsAdapterConnected(std::int32_t) {
  return 1;
}

std::int32_t TRACKPORT_CALL OpenLPT(std::int32_t lPort) {
  Record("OpenLPT", lPort);
  return iHandle;
}

std::int32_t TRACKPORT_CALL CloseLPT(std::int32_t lHandle) {
  Record("CloseLPT", lHandle);
  return 0;
}

std::int32_t TRACKPORT_CALL ReadAdapter(std::int32_t) {
  GoWrong(Mood());
  return iRigPresent;
}

std::int32_t TRACKPORT_CALL WriteAdapter(std::int32_t, std::int32_t lByte) {
  while (bHangs) pause();
  Record("WriteAdapter", lByte);
  return 0;
}

std::int32_t TRACKPORT_CALL SetStrobe(std::int32_t lAddress) {
  Record("SetStrobe", lAddress);
  return 0;
}

std::int32_t TRACKPORT_CALL ReadAtoD(std::int32_t, std::int32_t) {
  return 0;
}

}  // namespace glidetrak
