#include "virtual/VirtualTimers.h"

#include <algorithm>
#include <tuple>

#include "form/ControlTable.h"

namespace glidetrak {

VirtualTimers::VirtualTimers(const qint64* pNow) : m_pNow(pNow) {
  for (const auto table : {MainFormTable(), AboutFormTable()}) {
    for (const ControlRow& row : table) {
      if (Timer* const* ppTimer = std::get_if<Timer*>(&row.control)) Watch(**ppTimer);
    }
  }
}

void VirtualTimers::Watch(Timer& timer) {
  auto owned = std::make_unique<Entry>();
  Entry* pEntry = owned.get();
  pEntry->pTimer = &timer;
  const auto restart = [this, pEntry] { Start(*pEntry); };
  pEntry->enabled = timer.Enabled.addNotifier(restart);
  pEntry->interval = timer.Interval.addNotifier(restart);
  Start(*pEntry);
  m_aEntries.push_back(std::move(owned));
}

void VirtualTimers::Start(Entry& entry) {
  entry.lDue = *m_pNow + entry.pTimer->Interval;
  entry.iStarted = ++m_iStarts;
}

std::vector<std::pair<VirtualTimers::Entry*, qint64>> VirtualTimers::DueNow() const {
  std::vector<std::pair<Entry*, qint64>> aDue;
  for (const auto& owned : m_aEntries) {
    const Entry& entry = *owned;
    if (entry.pTimer->Enabled && entry.lDue <= *m_pNow) aDue.emplace_back(owned.get(), entry.lDue);
  }
  std::sort(aDue.begin(), aDue.end(), [](const auto& a, const auto& b) {
    return std::tie(a.second, a.first->iStarted) < std::tie(b.second, b.first->iStarted);
  });
  return aDue;
}

void VirtualTimers::FireDue() {
  for (const auto& [pEntry, lDue] : DueNow()) {
    // A handler before it may have stopped or restarted it, or a nested pump may have fired it.
    if (!pEntry->pTimer->Enabled || pEntry->lDue != lDue) continue;
    pEntry->lDue = *m_pNow + pEntry->pTimer->Interval;
    pEntry->pTimer->Fired();
  }
}

}  // namespace glidetrak
