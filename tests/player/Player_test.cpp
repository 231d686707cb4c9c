// Ten thousand short sequences, each in a process of its own, since the station's state lives as
// long as its process.
//
//   GLIDETRAK_PLAYER_SEED=n    plays sequence n alone and tells its story
//   GLIDETRAK_PLAYER_FIRST=n   begins with sequence n
//   GLIDETRAK_PLAYER_COUNT=n   plays that many

#include <gtest/gtest.h>

#include <cstdio>

#include "player/Player.h"
#include "player/SequenceProcess.h"

namespace glidetrak {
namespace {

constexpr quint64 lFirst = 1;
constexpr quint64 lCount = 10'000;
constexpr int iMostFailures = 5;  ///< told in full before the player gives up

quint64 FromEnvironment(const char* sName, quint64 lOtherwise) {
  const QByteArray value = qgetenv(sName);
  return value.isEmpty() ? lOtherwise : value.toULongLong();
}

/// False when something did not hold, which is told then.
bool PlaySequence(quint64 lSeed) {
  Player player(lSeed);
  const QString sViolation = player.Play();
  const bool bTellAll = qEnvironmentVariableIsSet("GLIDETRAK_PLAYER_SEED");
  if (bTellAll || !sViolation.isEmpty()) {
    std::fprintf(stderr, "%s\n", qPrintable(player.Story().join('\n')));
  }
  if (!sViolation.isEmpty()) std::fprintf(stderr, "does not hold: %s\n", qPrintable(sViolation));
  std::fflush(stderr);
  return sViolation.isEmpty();
}

TEST(Player, FindsNothingThatDoesNotHold) {
  const bool bOne = qEnvironmentVariableIsSet("GLIDETRAK_PLAYER_SEED");
  const quint64 lSeed =
      FromEnvironment("GLIDETRAK_PLAYER_SEED", FromEnvironment("GLIDETRAK_PLAYER_FIRST", lFirst));
  const quint64 lSequences = bOne ? 1 : FromEnvironment("GLIDETRAK_PLAYER_COUNT", lCount);
  std::printf("sequences %llu to %llu\n", static_cast<unsigned long long>(lSeed),
              static_cast<unsigned long long>(lSeed + lSequences - 1));
  std::fflush(stdout);
  int iFailures = 0;
  for (quint64 i = 0; i < lSequences && iFailures < iMostFailures; ++i) {
    const std::string sWrong = InProcessOfItsOwn(lSeed + i, PlaySequence);
    if (!sWrong.empty()) ++iFailures;
    EXPECT_EQ(sWrong, "") << "GLIDETRAK_PLAYER_SEED=" << lSeed + i;
  }
}

}  // namespace
}  // namespace glidetrak
