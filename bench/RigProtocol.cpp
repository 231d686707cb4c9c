#include "bench/RigProtocol.h"

#include <algorithm>

namespace glidetrak::bench {

namespace {

constexpr std::uint8_t iReadState = 3;
constexpr std::uint8_t iSetOutput = 4;
constexpr size_t iOutputIndex = 16;
constexpr size_t iInputIndex = 2;
constexpr size_t iAnalogIndex = 3;
constexpr int iUsedBytes = 4;

}  // namespace

ReportBytes AnswerReport(Rig& rig, const ReportBytes& data, int iLength) {
  const std::uint8_t iCommand = data.empty() ? 0 : data[0];
  ReportBytes answer(static_cast<size_t>(std::max(iLength, iUsedBytes)));
  answer[0] = iCommand;
  if (iCommand == iReadState) {
    answer[iInputIndex] = static_cast<std::uint8_t>(rig.Sensors());
    answer[iAnalogIndex] = static_cast<std::uint8_t>(rig.Analog() << 4);
    return answer;
  }
  if (iCommand != iSetOutput || data.size() <= iOutputIndex) return {};
  rig.Write(data[iOutputIndex]);
  return answer;
}

}  // namespace glidetrak::bench
