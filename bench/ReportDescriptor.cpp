#include "bench/ReportDescriptor.h"

namespace glidetrak::bench {

namespace {

constexpr std::uint8_t iInputItem = 0x81;
constexpr std::uint8_t iOutputItem = 0x91;

void Append(ReportBytes& descriptor, std::initializer_list<int> items) {
  for (const int iByte : items) descriptor.push_back(static_cast<std::uint8_t>(iByte));
}

void AppendReport(ReportBytes& descriptor, std::uint8_t iItem, int iLength) {
  if (iLength == 0) return;
  Append(descriptor, {0x96, iLength & 0xFF, iLength >> 8});  // report count
  Append(descriptor, {0x09, 0x01, iItem, 0x02});             // usage 1; data, variable, absolute
}

}  // namespace

ReportBytes ReportDescriptor(int iInputLength, int iOutputLength) {
  ReportBytes descriptor;
  Append(descriptor, {0x06, 0x00, 0xFF, 0x09, 0x01, 0xA1, 0x01});  // vendor's page, application
  Append(descriptor, {0x15, 0x00, 0x26, 0xFF, 0x00, 0x75, 0x08});  // values 0 to 255 of 8 bits
  AppendReport(descriptor, iInputItem, iInputLength);
  AppendReport(descriptor, iOutputItem, iOutputLength);
  Append(descriptor, {0xC0});
  return descriptor;
}

}  // namespace glidetrak::bench
