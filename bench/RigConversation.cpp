#include "bench/RigConversation.h"

#include <optional>

#include "bench/RigCommands.h"
#include "bench/WireProtocol.h"

namespace glidetrak::bench {

namespace {

bool IsAct(char cFirst) {
  return cFirst >= static_cast<char>(RigAct::AskAdapter) &&
         cFirst <= static_cast<char>(RigAct::WriteByte);
}

/// What is answered; nothing for what is no act.
int CarryOutAct(Rig& rig, RigAct act, int iByte) {
  switch (act) {
    case RigAct::AskAdapter:
      return rig.Attached() ? 1 : 0;
    case RigAct::ReadInputs:
      return rig.Inputs();
    case RigAct::ReadAnalog:
      return rig.Analog();
    case RigAct::WriteByte:
      rig.Write(iByte);
      return 0;
  }
  return 0;
}

}  // namespace

Turn RigConversation::Take(std::string& sReceived, std::string& sAnswer) {
  if (sReceived.empty()) return Turn::Wait;
  if (m_bGreeted && IsAct(sReceived[0])) return TakeExchange(sReceived, sAnswer);
  return TakeLine(sReceived, sAnswer);
}

Turn RigConversation::TakeExchange(std::string& sReceived, std::string& sAnswer) {
  if (sReceived.size() < iExchangeBytes) return Turn::Wait;
  const auto act = static_cast<RigAct>(sReceived[0]);
  const int iByte = static_cast<unsigned char>(sReceived[1]);
  const int iValue = m_rig.With([=](Rig& rig) { return CarryOutAct(rig, act, iByte); });
  sAnswer += {sReceived[0], static_cast<char>(iValue)};
  sReceived.erase(0, iExchangeBytes);
  return Turn::Answer;
}

Turn RigConversation::TakeLine(std::string& sReceived, std::string& sAnswer) {
  const size_t iEnd = sReceived.find('\n');
  if (iEnd == std::string::npos && sReceived.size() < iLongestLine) return Turn::Wait;
  if (iEnd >= iLongestLine) {
    sAnswer += "error: a line has at most 255 characters\n";
    return Turn::HangUp;
  }
  const std::string sLine = sReceived.substr(0, iEnd + 1);
  sReceived.erase(0, iEnd + 1);
  return m_bGreeted ? CarryOut(sLine, sAnswer) : Greet(sLine, sAnswer);
}

Turn RigConversation::Greet(const std::string& sLine, std::string& sAnswer) {
  sAnswer += Greeting();
  m_bGreeted = sLine == Greeting();
  return m_bGreeted ? Turn::Answer : Turn::HangUp;
}

Turn RigConversation::CarryOut(const std::string& sLine, std::string& sAnswer) {
  const RigCommand command = ParseRigCommand(sLine);
  if (!command) {
    sAnswer += "error: no such command\n";
    return Turn::Answer;
  }
  const std::string sText = m_rig.With(command);
  if (m_afterCommand) m_afterCommand();
  sAnswer += "ok " + std::to_string(sText.size()) + "\n" + sText;
  return Turn::Answer;
}

void ServeRig(LiveRig& rig, WireServer& server, const std::function<void()>& afterCommand) {
  server.Serve([&] { return std::make_unique<RigConversation>(rig, afterCommand); });
}

}  // namespace glidetrak::bench
