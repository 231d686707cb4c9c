#pragma once

// The timers of both forms in virtual time.

#include <QProperty>
#include <memory>
#include <vector>

#include "form/Controls.h"

namespace glidetrak {

/// Watches every Timer control. Enabling a disabled timer or changing its interval starts the
/// interval anew; a firing timer is re-armed at its firing time plus its interval, before its
/// handler runs, so that it may fire again inside it.
class VirtualTimers {
 public:
  /// `pNow` is the virtual clock, read whenever a timer starts.
  explicit VirtualTimers(const qint64* pNow);

  /// Fires what was due when the call began, in the order of the due times; equal times in the
  /// order in which the timers were started.
  void FireDue();

 private:
  struct Entry {
    Timer* pTimer;
    qint64 lDue = 0;
    int iStarted = 0;  ///< order of the starts
    QPropertyNotifier enabled;
    QPropertyNotifier interval;
  };

  void Watch(Timer& timer);
  void Start(Entry& entry);
  std::vector<std::pair<Entry*, qint64>> DueNow() const;

  const qint64* m_pNow;
  int m_iStarts = 0;
  std::vector<std::unique_ptr<Entry>> m_aEntries;
};

}  // namespace glidetrak
