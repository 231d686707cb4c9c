#include "platform/linux/ReportDescriptor.h"

#include <algorithm>
#include <map>
#include <vector>

namespace glidetrak {

namespace {

/// Item prefixes without their size bits.
enum ItemTag {
  itemInput = 0x80,
  itemOutput = 0x90,
  itemReportSize = 0x74,
  itemReportId = 0x84,
  itemReportCount = 0x94,
  itemPush = 0xA4,
  itemPop = 0xB4,
};

constexpr int iLongItem = 0xFE;
constexpr quint32 lMostBits = 0xFFFF * 8;  ///< longer reports do not fit a 16-bit length

/// The global items that field lengths depend on.
struct Globals {
  quint32 lReportSize = 0;  ///< bits of one field
  quint32 lReportCount = 0;
  quint32 lReportId = 0;
};

struct Walk {
  Globals now;
  std::vector<Globals> aPushed;
  std::map<quint32, quint32> aInputBits;  ///< by report id
  std::map<quint32, quint32> aOutputBits;
  bool bNumbered = false;
};

void AddField(std::map<quint32, quint32>& aBits, const Globals& globals) {
  const quint64 lSum =
      aBits[globals.lReportId] + quint64{globals.lReportSize} * globals.lReportCount;
  aBits[globals.lReportId] = static_cast<quint32>(std::min<quint64>(lSum, lMostBits));
}

void Pop(Walk& walk) {
  if (walk.aPushed.empty()) return;
  walk.now = walk.aPushed.back();
  walk.aPushed.pop_back();
}

void TakeItem(Walk& walk, int iTag, quint32 lData) {
  switch (iTag) {
    case itemInput:
      return AddField(walk.aInputBits, walk.now);
    case itemOutput:
      return AddField(walk.aOutputBits, walk.now);
    case itemReportSize:
      walk.now.lReportSize = lData;
      return;
    case itemReportCount:
      walk.now.lReportCount = lData;
      return;
    case itemReportId:
      walk.now.lReportId = lData;
      walk.bNumbered = true;
      return;
    case itemPush:
      walk.aPushed.push_back(walk.now);
      return;
    case itemPop:
      return Pop(walk);
    default:
      return;
  }
}

/// Bytes of data behind a short item's prefix.
int DataSize(int iPrefix) {
  const int iSize = iPrefix & 3;
  return iSize == 3 ? 4 : iSize;
}

quint32 LittleEndian(QByteArrayView data) {
  quint32 lValue = 0;
  for (qsizetype i = 0; i < data.size(); ++i) {
    lValue |= static_cast<quint32>(static_cast<quint8>(data[i])) << (8 * i);
  }
  return lValue;
}

quint16 LongestReport(const std::map<quint32, quint32>& aBits) {
  quint32 lBits = 0;
  for (const auto& [lId, lReportBits] : aBits) lBits = std::max(lBits, lReportBits);
  if (lBits == 0) return 0;
  return static_cast<quint16>(std::min<quint32>((lBits + 7) / 8 + 1, 0xFFFF));
}

}  // namespace

ReportLayout ParseReportDescriptor(const QByteArray& descriptor) {
  Walk walk;
  qsizetype i = 0;
  while (i < descriptor.size()) {
    const int iPrefix = static_cast<quint8>(descriptor[i]);
    const bool bLong = iPrefix == iLongItem;
    if (bLong && i + 1 >= descriptor.size()) break;
    const qsizetype iHead = bLong ? 3 : 1;
    const qsizetype iSize = bLong ? static_cast<quint8>(descriptor[i + 1]) : DataSize(iPrefix);
    if (i + iHead + iSize > descriptor.size()) break;
    const QByteArrayView data = QByteArrayView(descriptor).sliced(i + iHead, iSize);
    if (!bLong) TakeItem(walk, iPrefix & 0xFC, LittleEndian(data));
    i += iHead + iSize;
  }
  return {{LongestReport(walk.aInputBits), LongestReport(walk.aOutputBits)}, walk.bNumbered};
}

}  // namespace glidetrak
