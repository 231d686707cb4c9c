#include "bench/RigClient.h"

#include <charconv>
#include <exception>
#include <stdexcept>

namespace glidetrak::bench {

namespace {

constexpr size_t iLongestAnswer = 1 << 20;  ///< bytes; the record's text is a small part of it
const std::string sAccepted = "ok ";        ///< the beginnings of the first line of an answer
const std::string sRefused = "error: ";

/// Without its line feed; nothing when none comes or it is too long.
std::optional<std::string> ReceiveLine(WireConnection& connection) {
  std::string sLine;
  char cByte = 0;
  while (sLine.size() < iLongestLine && connection.Receive(&cByte, 1) == 1) {
    if (cByte == '\n') return sLine;
    sLine += cByte;
  }
  return {};
}

/// True when all of it came.
bool ReceiveWhole(WireConnection& connection, char* pBytes, size_t iCount) {
  size_t iHave = 0;
  while (iHave < iCount) {
    const size_t iMore = connection.Receive(pBytes + iHave, iCount - iHave);
    if (iMore == 0) return false;
    iHave += iMore;
  }
  return true;
}

/// The length that the line "ok N" announces.
std::optional<size_t> AnnouncedLength(const std::string& sLine) {
  size_t iLength = 0;
  const char* pEnd = sLine.data() + sLine.size();
  const auto [pStop, error] = std::from_chars(sLine.data() + sAccepted.size(), pEnd, iLength);
  if (error != std::errc() || pStop != pEnd || iLength > iLongestAnswer) return {};
  return iLength;
}

/// The same greeting comes back from a rig of this version.
void CheckGreeting(const std::string& sName, const std::optional<std::string>& sLine) {
  if (!sLine) throw std::runtime_error("the rig at " + sName + " does not answer");
  const std::string sGreeting = Greeting();
  if (*sLine + "\n" == sGreeting) return;
  const size_t iNumber = sGreeting.find(' ') + 1;
  if (sLine->compare(0, iNumber, sGreeting, 0, iNumber) != 0) {
    throw std::runtime_error("what answers at " + sName + " is no bench rig");
  }
  throw std::runtime_error("the rig at " + sName + " speaks version " + sLine->substr(iNumber) +
                           " of the wire, and this program version " +
                           std::to_string(iWireVersion));
}

}  // namespace

std::optional<int> RigClient::Exchange(RigAct act, int iByte) {
  if (m_state == State::Lost) return {};
  m_connection.Allow(exchangeTime);
  if (m_state == State::Unused && !Open()) return {};
  return Ask(act, iByte);
}

std::optional<int> RigClient::StartAgain(RigAct act) {
  m_connection.Allow(exchangeTime);
  if (!Open()) return {};
  return Ask(act, 0);
}

/// The greeting is sent and its answer awaited before anything is asked: a rig of another version
/// is never written to.
bool RigClient::Open() {
  m_state = State::Lost;
  try {
    if (m_connection.Connect(WireName()) && m_connection.Send(Greeting())) {
      CheckGreeting({}, ReceiveLine(m_connection));
      m_state = State::Open;
    }
  } catch (const std::exception&) {
    // The library has no way to tell why there is no rig.
  }
  if (m_state == State::Lost) m_connection.Close();
  return m_state == State::Open;
}

std::optional<int> RigClient::Ask(RigAct act, int iByte) {
  const char aQuestion[] = {static_cast<char>(act), static_cast<char>(iByte)};
  char aAnswer[iExchangeBytes] = {};
  if (m_connection.Send({aQuestion, sizeof aQuestion}) &&
      ReceiveWhole(m_connection, aAnswer, sizeof aAnswer) && aAnswer[0] == aQuestion[0]) {
    return static_cast<unsigned char>(aAnswer[1]);
  }
  m_connection.Close();
  m_state = State::Lost;
  return {};
}

std::string AskRig(const std::string& sName, const std::string& sLine) {
  WireConnection connection;
  connection.Allow(commandTime);
  if (!connection.Connect(sName)) throw std::runtime_error("no rig answers at " + sName);
  connection.Send(Greeting() + sLine + "\n");
  CheckGreeting(sName, ReceiveLine(connection));
  const std::string sFirst = ReceiveLine(connection).value_or("");
  if (sFirst.rfind(sRefused, 0) == 0) {
    throw std::runtime_error("the rig refused: " + sFirst.substr(sRefused.size()));
  }
  const std::optional<size_t> iLength =
      sFirst.rfind(sAccepted, 0) == 0 ? AnnouncedLength(sFirst) : std::nullopt;
  std::string sText(iLength.value_or(0), '\0');
  if (!iLength || !ReceiveWhole(connection, sText.data(), sText.size())) {
    throw std::runtime_error("the rig at " + sName + " does not answer");
  }
  return sText;
}

}  // namespace glidetrak::bench
