// A log-out and a sleep of which the desktop tells ahead.

#include <gtest/gtest.h>

#include "RecordedStation.h"

namespace glidetrak {

namespace {

/// A desktop's session manager, to which the station registers.
class Session {
 public:
  explicit Session(RecordedStation& station) {
    m_manager.setProcessEnvironment(station.Environment());
    m_manager.start(GLIDETRAK_ENDS_FOLDER "/session_manager", QStringList());
    m_manager.waitForReadyRead(iPatience);
    station.SetVariable("SESSION_MANAGER", QString::fromLatin1(m_manager.readLine().trimmed()));
  }
  ~Session() {
    m_manager.closeWriteChannel();
    m_manager.waitForFinished();
  }

  void AskForLogout() {
    m_manager.write("log out\n");
    m_manager.waitForBytesWritten();
  }
  bool Hears(const QByteArray& line) {
    return WaitUntil([&] {
      m_manager.waitForReadyRead(10);
      m_heard += m_manager.readAllStandardOutput();
      return m_heard.contains(line + '\n');
    });
  }

 private:
  QProcess m_manager;
  QByteArray m_heard;
};

}  // namespace

TEST(LogOut, AsksLikeAnyCloseAndYesEndsTheStationInOrder) {
  RecordedStation station;
  Session session(station);
  ASSERT_TRUE(station.Drive());
  ASSERT_TRUE(session.Hears("saved"));
  session.AskForLogout();
  ASSERT_TRUE(session.Hears("asks the user"));
  ASSERT_TRUE(station.HasWindow("^Close Software$"));
  station.Picture("log-out");
  station.AnswerYes();
  EXPECT_TRUE(station.WaitForEnd());
  EXPECT_TRUE(station.EndedByItself());
  EXPECT_EQ(station.LastByte(), 0);
}

TEST(LogOut, IsRefusedByANo) {
  RecordedStation station;
  Session session(station);
  ASSERT_TRUE(station.Drive());
  ASSERT_TRUE(session.Hears("saved"));
  session.AskForLogout();
  ASSERT_TRUE(station.HasWindow("^Close Software$"));
  station.AnswerNo();
  EXPECT_TRUE(session.Hears("refuses"));
  EXPECT_TRUE(station.IsRunning());
  EXPECT_GT(station.LastByte(), 0x10) << "the lever still drives";
}

TEST(Sleep, OfTheMachineStopsTheVehicleFirst) {
  RecordedStation station;
  QProcess bus;
  bus.start("dbus-daemon", {"--session", "--nofork", "--print-address", "--address",
                            "unix:path=" + station.Folder() + "/bus"});
  ASSERT_TRUE(bus.waitForReadyRead(iPatience));
  const QString sAddress = QString::fromLatin1(bus.readLine().trimmed());
  station.SetVariable("DBUS_SYSTEM_BUS_ADDRESS", sAddress);
  ASSERT_TRUE(station.Drive());
  QProcess::execute("dbus-send",
                    {"--bus=" + sAddress, "--type=signal", "/org/freedesktop/login1",
                     "org.freedesktop.login1.Manager.PrepareForSleep", "boolean:true"});
  EXPECT_TRUE(WaitUntil([&] { return station.LastByte() == 0x10; }));
  EXPECT_TRUE(station.IsRunning());
  bus.terminate();
  bus.waitForFinished();
  EXPECT_FALSE(station.WaitForEnd(300)) << "the end of the bus is not the station's";
}

}  // namespace glidetrak
