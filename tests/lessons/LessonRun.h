#pragma once

// A lesson of the catalogue on the model track, in either language: the station starts with its
// lessons beside it, the user chooses one in the list and runs it, and an onlooker notes what is
// seen. lessons.txt says what that must be. Times are milliseconds from the click of Run.

#include <gtest/gtest.h>

#include <ostream>

#include "bench/TrackModel.h"
#include "form/frmGlidetrak.h"
#include "station/Station.h"

namespace glidetrak {

struct Language {
  const char* sName;
  const char* sSwitch;  ///< of the command line
  QString sFolder;      ///< of its lessons, native, below the data
};

inline void PrintTo(const Language& language, std::ostream* pStream) {
  *pStream << language.sName;
}

struct SeenMessage {
  qint64 lTime;
  QString sText;
  qint64 lGone = -1;  ///< when the panel went or showed another; -1 while it is there
};

struct SeenDrive {
  qint64 lTime;
  int iPower;
  bool bForward;
};

struct SeenByte {
  qint64 lTime;
  int iByte;
};

/// A message and how long it stays; 0 for a time that does not matter.
struct ExpectedMessage {
  QString sText;
  qint64 lLength;
};

class LessonTest : public ::testing::TestWithParam<Language> {
 protected:
  /// Starts the station on the parallel link and chooses the lesson.
  void Begin(int iLesson);

  /// Something that happens at that time of the run.
  void At(qint64 lTime, std::function<void()> action);
  void PressAt(qint64 lTime, bench::Button button);
  void KeyAt(qint64 lTime, char cKey);

  /// Runs to the end and on until the vehicle rests. lEnd is when the program ended; one that goes
  /// on longer than that is stopped and fails the test.
  void Run(qint64 lLongest);

  /// The same for a lesson that never ends: the user stops it at that time.
  void RunUntilStopped(qint64 lStop);

  /// The text in the language of the test; line breaks as one character.
  QString Say(const char* sEnglish, const char* sSpanish) const;

  void ExpectMessages(const std::vector<ExpectedMessage>& aExpected) const;

  /// The messages and nothing but power 0 meanwhile.
  void ExpectNoDrive() const;

  /// The first drive order at that time or later.
  SeenDrive DriveFrom(qint64 lTime) const;

  /// Power 0 comes within 150 ms of that time.
  void ExpectHaltSoonAfter(qint64 lTime, qint64 lLongest = 150) const;
  void ExpectDrive(const SeenDrive& drive, int iPower, bool bForward) const;

  /// The time at which the message came up first; fails and is -1 without it.
  qint64 TimeOf(const QString& sMessage) const;

  /// How long it stayed up then.
  qint64 LengthOf(const QString& sMessage) const;

  /// The first drive order with power at that time or later.
  SeenDrive StartFrom(qint64 lTime) const;

  /// Place at which the vehicle lies at rest.
  void ExpectRestBetween(double fFrom, double fTo) const;

  Station station;
  bench::TrackModel model;

  std::vector<SeenMessage> aMessages;
  std::vector<SeenDrive> aDrives;  ///< each change of power or direction
  std::vector<SeenByte> aBytes;
  std::vector<qint64> aGateA, aGateB;  ///< moments at which a beam breaks
  std::vector<qint64> aBeeps;
  qint64 lEnd = 0;
  int iMostImpact = 0;

 private:
  struct Planned {
    qint64 lTime;
    std::function<void()> action;
  };

  const SeenMessage* Find(const QString& sMessage) const;
  void AddLessons(const QString& sFolder, const QString& sStationFolder);
  void Pass();
  void NoteMessage();
  bool MessageStands() const { return !aMessages.empty() && aMessages.back().lGone < 0; }
  void NoteGates();
  void NoteByte(int iByte);
  void Click();
  void ExpectCleanEnd();
  qint64 Now() const { return station.platform.lNow - m_lStart; }

  std::vector<Planned> m_aPlan;
  qint64 m_lStart = 0;
  qint64 m_lModel = 0;  ///< time up to which the model has moved
  int m_iSensors = 0;
  int m_iByte = 0;
  bool m_bWatching = false;
};

}  // namespace glidetrak
