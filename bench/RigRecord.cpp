#include "bench/RigRecord.h"

#include <cstdio>

#include "bench/TrackModel.h"

namespace glidetrak::bench {

namespace {

std::string Line(std::uint64_t iNumber, std::int64_t lTime, int iByte) {
  char aText[80];
  const int iLength = std::snprintf(aText, sizeof aText, "%llu: %lld ms 0x%02X power %d %s\n",
                                    static_cast<unsigned long long>(iNumber),
                                    static_cast<long long>(lTime), static_cast<unsigned>(iByte),
                                    PowerOf(iByte), IsForward(iByte) ? "forward" : "backward");
  return {aText, static_cast<size_t>(iLength)};
}

}  // namespace

void RigRecord::Add(std::int64_t lTime, int iByte) {
  m_aEntries[m_iWritten % iKeptBytes] = {lTime, static_cast<std::uint8_t>(iByte)};
  ++m_iWritten;
}

std::string RigRecord::Text() const {
  std::string sText;
  for (std::uint64_t i = m_iWritten < iKeptBytes ? 0 : m_iWritten - iKeptBytes; i < m_iWritten;
       ++i) {
    const Entry& entry = m_aEntries[i % iKeptBytes];
    sText += Line(i + 1, entry.lTime, entry.iByte);
  }
  return sText;
}

}  // namespace glidetrak::bench
