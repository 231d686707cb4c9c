#include "bench/UhidDevice.h"

#include <fcntl.h>
#include <linux/uhid.h>
#include <poll.h>
#include <sys/eventfd.h>

#include <algorithm>
#include <cstring>

#include "bench/DeviceNode.h"
#include "bench/ReportDescriptor.h"
#include "bench/WorkerThread.h"

namespace glidetrak::bench {

namespace {

constexpr char sDeviceName[] = "Glidetrak bench rig";
constexpr std::chrono::milliseconds nodePatience{2000};  ///< for the kernel to make the node
constexpr int iNodeLook = 10;                            ///< ms between two looks for it

uhid_event NewEvent(std::uint32_t lType) {
  uhid_event event{};
  event.type = lType;
  return event;
}

/// By which the device's node is known among those of other rigs.
std::string UniqueName(const UhidDevice& device) {
  return "bench-" + std::to_string(getpid()) + "-" +
         std::to_string(reinterpret_cast<std::uintptr_t>(&device));
}

}  // namespace

void UhidDevice::Plug() {
  if (m_bIn) return;
  Unplug();  // what a device that vanished by itself has left
  Create();
  m_stop = FileDescriptor(eventfd(0, EFD_CLOEXEC));
  if (m_config.iUser >= 0) m_nodeDue = Clock::now() + nodePatience;
  m_bIn = true;
  m_thread = StartWorker([this] { Serve(); });
}

void UhidDevice::Unplug() {
  if (m_thread.joinable()) {
    eventfd_write(m_stop.Number(), 1);
    m_thread.join();
  }
  m_device = FileDescriptor();
  m_aDeeds.clear();
  m_bIn = false;
}

void UhidDevice::Create() {
  m_device = FileDescriptor(open("/dev/uhid", O_RDWR | O_CLOEXEC));
  if (m_device.Number() < 0)
    ThrowSystemError("cannot open /dev/uhid (of the kernel module uhid, for root)");
  uhid_event event = NewEvent(UHID_CREATE2);
  uhid_create2_req& create = event.u.create2;
  std::memcpy(create.name, sDeviceName, sizeof sDeviceName);
  const std::string sUnique = UniqueName(*this);
  std::memcpy(create.uniq, sUnique.c_str(), sUnique.size());
  create.bus = BUS_USB;
  create.vendor = static_cast<std::uint32_t>(m_config.iVendor);
  create.product = static_cast<std::uint32_t>(m_config.iProduct);
  create.version = static_cast<std::uint32_t>(m_config.iVersion);
  const ReportBytes descriptor = ReportDescriptor(m_config.iInputLength, m_config.iOutputLength);
  create.rd_size = static_cast<std::uint16_t>(descriptor.size());
  std::copy(descriptor.begin(), descriptor.end(), create.rd_data);
  if (write(m_device.Number(), &event, sizeof event) < 0) ThrowSystemError("cannot make a device");
}

void UhidDevice::SetFault(UhidFault fault, int iDelay, int iAfter) {
  const std::lock_guard lock(m_mutex);
  m_fault = fault;
  m_iDelay = iDelay;
  m_iAfter = iAfter;
}

UhidCounts UhidDevice::Counts() const {
  const std::lock_guard lock(m_mutex);
  return m_counts;
}

template <typename Change>
void UhidDevice::Count(Change change) {
  const std::lock_guard lock(m_mutex);
  change(m_counts);
}

void UhidDevice::Serve() {
  pollfd aWaits[] = {{m_device.Number(), POLLIN, 0}, {m_stop.Number(), POLLIN, 0}};
  while (m_bIn) {
    poll(aWaits, 2, WaitTime());
    if (aWaits[1].revents != 0) return;
    if (aWaits[0].revents != 0) TakeEvent();
    DoDueDeeds();
    HandOverNode();
  }
}

/// The kernel says when it begins to make the node and not when it has.
void UhidDevice::HandOverNode() {
  if (m_nodeDue == Clock::time_point()) return;
  if (GiveNode(UniqueName(*this), m_config.iUser) || Clock::now() > m_nodeDue) m_nodeDue = {};
}

/// ms until there is something to be done, -1 when there is nothing.
int UhidDevice::WaitTime() const {
  if (m_nodeDue != Clock::time_point()) return iNodeLook;
  if (m_aDeeds.empty()) return -1;
  const auto wait =
      std::chrono::ceil<std::chrono::milliseconds>(m_aDeeds.front().due - Clock::now());
  return static_cast<int>(std::max<std::int64_t>(0, wait.count()));
}

void UhidDevice::TakeEvent() {
  uhid_event event{};
  if (read(m_device.Number(), &event, sizeof event) <= 0) return;
  switch (event.type) {
    case UHID_OPEN:
      return Count([](UhidCounts& counts) { ++counts.iOpened; });
    case UHID_CLOSE:
      return Count([](UhidCounts& counts) { ++counts.iClosed; });
    case UHID_OUTPUT:
      return TakeReport(event);
    case UHID_GET_REPORT:
    case UHID_SET_REPORT:
      return Refuse(event);
    default:
      return;
  }
}

/// The device has no feature reports; without a word to this the asking program would hang for
/// seconds.
void UhidDevice::Refuse(const uhid_event& event) {
  if (event.type == UHID_GET_REPORT) {
    uhid_event reply = NewEvent(UHID_GET_REPORT_REPLY);
    reply.u.get_report_reply.id = event.u.get_report.id;
    reply.u.get_report_reply.err = EIO;
    return Send(reply);
  }
  uhid_event reply = NewEvent(UHID_SET_REPORT_REPLY);
  reply.u.set_report_reply.id = event.u.set_report.id;
  reply.u.set_report_reply.err = EIO;
  Send(reply);
}

/// The kernel hands a report over as the program wrote it, id byte first, also where the device has
/// no report numbers and a wire would not carry it.
void UhidDevice::TakeReport(const uhid_event& event) {
  const uhid_output_req& output = event.u.output;
  const ReportBytes data(output.data + 1, output.data + std::max<int>(1, output.size));
  Count([&](UhidCounts& counts) {
    if (counts.aReports.size() == iKeptReports) counts.aReports.erase(counts.aReports.begin());
    counts.aReports.push_back(data);
    ++counts.iTaken;
  });
  ReportBytes answer =
      m_rig.With([&](Rig& rig) { return AnswerReport(rig, data, m_config.iInputLength); });
  if (!answer.empty()) React(FaultOfThisReport(), std::move(answer));
}

UhidFault UhidDevice::FaultOfThisReport() {
  const std::lock_guard lock(m_mutex);
  if (m_iAfter == 0) return m_fault;
  --m_iAfter;
  return UhidFault::None;
}

void UhidDevice::React(UhidFault fault, ReportBytes answer) {
  const auto Later = [this](ReportBytes what) {
    const std::lock_guard lock(m_mutex);
    m_aDeeds.push_back({Clock::now() + std::chrono::milliseconds(m_iDelay), std::move(what)});
  };
  switch (fault) {
    case UhidFault::None:
      return SendAnswer(answer);
    case UhidFault::Silent:
      return;
    case UhidFault::Late:
      return Later(std::move(answer));
    case UhidFault::Garbage:
      return SendAnswer(ReportBytes(answer.size(), iGarbage));
    case UhidFault::Short:
      return SendAnswer({answer.begin(), answer.begin() + iShortLength});
    case UhidFault::Vanish:
      return Later({});
  }
}

void UhidDevice::DoDueDeeds() {
  while (m_bIn && !m_aDeeds.empty() && m_aDeeds.front().due <= Clock::now()) {
    const Deed deed = std::move(m_aDeeds.front());
    m_aDeeds.pop_front();
    deed.answer.empty() ? Vanish() : SendAnswer(deed.answer);
  }
}

void UhidDevice::SendAnswer(const ReportBytes& answer) {
  uhid_event event = NewEvent(UHID_INPUT2);
  event.u.input2.size = static_cast<std::uint16_t>(answer.size());
  std::copy(answer.begin(), answer.end(), event.u.input2.data);
  // Counted first: who has the answer in hand finds it counted.
  Count([](UhidCounts& counts) { ++counts.iAnswers; });
  Send(event);
}

/// A kernel that refuses an event has taken the device away itself, which the station must be able
/// to bear as well as any other disappearance.
void UhidDevice::Send(const uhid_event& event) {
  if (write(m_device.Number(), &event, sizeof event) < 0) m_bIn = false;
}

void UhidDevice::Vanish() {
  m_bIn = false;  // first, so that who sees the device gone finds it out
  Send(NewEvent(UHID_DESTROY));
}

}  // namespace glidetrak::bench
