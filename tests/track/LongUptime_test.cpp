// The displays over the moments at which the uptime counter turns negative, after 24.8 days, and
// comes round to 0, after 49.7.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/SharedState.h"
#include "form/frmGlidetrak.h"
#include "station/NamedRow.h"
#include "station/RigStation.h"
#include "track/InputDecoding.h"

namespace glidetrak {
namespace {

constexpr qint64 lFirstNegative = 0x80000000;
constexpr qint64 lRound = 0x100000000;

struct UptimeRow : NamedRow {
  qint64 lStart;   ///< of the station, milliseconds
  qint64 lMoment;  ///< passed while the displays are watched
};

class LongUptime : public testing::TestWithParam<UptimeRow> {
 protected:
  void SetUp() override {
    platform.lNow = GetParam().lStart;
    station.Start();
    station.Click("picTogTimer");
    station.Click("picTogImpact");
    platform.RunFor(600);  // the first of everything
  }

  /// Notes when the displays are written and read for, over five seconds.
  void Watch() {
    ASSERT_LT(platform.lNow, GetParam().lMoment);
    m_shown = lblTimer.Caption.addNotifier([this] { aShown.push_back(platform.lNow); });
    platform.OnPump = [] { lElapsedMs += 10; };  // a new text each time
    platform.OnCall = [this](const QByteArray& operation) {
      if (operation == "ReadAtoD") aRead.push_back(platform.lNow);
    };
    platform.RunFor(5000);
    ASSERT_GT(platform.lNow, GetParam().lMoment);
  }

  /// The work is done at its period; the moment itself may bring it on early.
  static void ExpectEach(const std::vector<qint64>& aTimes, qint64 lPeriod) {
    ASSERT_GE(static_cast<qint64>(aTimes.size()), 5000 / lPeriod - 1);
    int iEarly = 0;
    for (size_t i = 1; i < aTimes.size(); ++i) {
      const qint64 lGap = aTimes[i] - aTimes[i - 1];
      EXPECT_LE(lGap, lPeriod) << "at " << aTimes[i];
      iEarly += lGap < lPeriod;
    }
    EXPECT_LE(iEarly, 1);
  }

  RigStation station;
  WatchedPlatform& platform = station.platform;
  std::vector<qint64> aShown;
  std::vector<qint64> aRead;
  QPropertyNotifier m_shown;
};

TEST_P(LongUptime, FreezesNeitherTheJourneyTimeNorTheImpact) {
  Watch();
  ExpectEach(aShown, 50);
  ExpectEach(aRead, 500);
}

INSTANTIATE_TEST_SUITE_P(Rows, LongUptime,
                         testing::Values(UptimeRow{"TurnsNegative", lFirstNegative - 3000,
                                                   lFirstNegative},
                                         UptimeRow{"ComesRound", lRound - 3000, lRound}),
                         RowName());

}  // namespace
}  // namespace glidetrak
