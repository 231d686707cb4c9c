#include "lessons/LessonRun.h"

#include <QDir>
#include <QFile>
#include <algorithm>

#include "common/SharedState.h"

namespace glidetrak {

namespace {

constexpr qint64 lSlack = 150;  ///< a message's length includes the lines that follow it
constexpr int iPowerBits = 0x0F;
constexpr int iForwardBit = 0x10;

QByteArray Bytes(const QString& sPath) {
  QFile file(sPath);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << sPath.toStdString();
  return file.readAll();
}

bool Rises(int iBefore, int iNow, int iBit) {
  return ((~iBefore & iNow) >> iBit & 1) != 0;
}

}  // namespace

void LessonTest::AddLessons(const QString& sFolder, const QString& sStationFolder) {
  const QString sData = GLIDETRAK_DATA;
  VirtualPlatform& platform = station.platform;
  platform.AddFile(sStationFolder + "TV_GLIDETRAK.INI",
                   Bytes(sData + sFolder + "/TV_GLIDETRAK.INI"));
  const QString sExamples = sData + sFolder + "/Examples/";
  for (const QString& sName : QDir(sExamples).entryList(QDir::Files)) {
    platform.AddFile(sStationFolder + "Examples\\" + sName, Bytes(sExamples + sName));
  }
}

void LessonTest::Begin(int iLesson) {
  AddLessons("", "\\STATION\\");
  AddLessons("/Language/0C0A", "\\STATION\\Language\\0C0A\\");
  m_lModel = station.platform.lNow;
  station.platform.OnPump = [this] { Pass(); };
  station.platform.rig.OnWrite = [this](qint32 lByte) { NoteByte(lByte); };
  station.platform.OnBeep = [this] { aBeeps.push_back(Now()); };
  station.Start(RigLink::Parallel, GetParam().sSwitch);
  ASSERT_TRUE(bLinkUp);
  station.EnterProgramMode();
  cmbExamples.ListIndex = iLesson - 1;
  cmbExamples.Click();
}

void LessonTest::At(qint64 lTime, std::function<void()> action) {
  m_aPlan.push_back({lTime, std::move(action)});
}

void LessonTest::PressAt(qint64 lTime, bench::Button button) {
  At(lTime, [this, button] { model.Press(button, 200); });
}

void LessonTest::KeyAt(qint64 lTime, char cKey) {
  At(lTime, [this, cKey] {
    station.KeyDown(cKey);
    station.KeyPress(cKey);
  });
}

void LessonTest::Pass() {
  VirtualPlatform& platform = station.platform;
  model.Advance(platform.lNow - m_lModel);
  m_lModel = platform.lNow;
  platform.rig.lInput = model.Sensors();
  platform.rig.lAnalog = model.Analog();
  iMostImpact = std::max(iMostImpact, model.Analog());
  if (m_bWatching) NoteMessage();
  NoteGates();
}

void LessonTest::NoteMessage() {
  QString sText = pnlMessage.Visible ? lblMessage.Caption.value() : QString();
  sText.replace("\r\n", "\n");
  if (MessageStands() && aMessages.back().sText == sText) return;
  if (MessageStands()) aMessages.back().lGone = Now();
  if (!sText.isEmpty()) aMessages.push_back({Now(), sText});
}

void LessonTest::NoteGates() {
  const int iSensors = model.Sensors();
  if (Rises(m_iSensors, iSensors, bench::bitGateA)) aGateA.push_back(Now());
  if (Rises(m_iSensors, iSensors, bench::bitGateB)) aGateB.push_back(Now());
  m_iSensors = iSensors;
}

void LessonTest::NoteByte(int iByte) {
  model.SetOutput(iByte);
  const int iDriveBits = iPowerBits | iForwardBit;
  if (m_bWatching) aBytes.push_back({Now(), iByte});
  if (m_bWatching && (iByte & iDriveBits) != (m_iByte & iDriveBits)) {
    aDrives.push_back({Now(), iByte & iPowerBits, (iByte & iForwardBit) != 0});
  }
  m_iByte = iByte;
}

void LessonTest::Click() {
  m_lStart = station.platform.lNow;
  for (Planned& planned : m_aPlan) {
    station.platform.At(m_lStart + planned.lTime, std::move(planned.action));
  }
  m_bWatching = true;
  station.Click("cmdRunProgram");
  m_bWatching = false;
  lEnd = Now();
  if (MessageStands()) aMessages.back().lGone = lEnd;
  station.platform.RunFor(5000);
}

void LessonTest::Run(qint64 lLongest) {
  bool bTooLong = false;
  At(lLongest, [&bTooLong, this] {
    if (!bProgramRunning) return;
    bTooLong = true;
    station.Click("btnStopProg");
  });
  Click();
  EXPECT_FALSE(bTooLong) << "it did not end by itself within " << lLongest << " ms";
  ExpectCleanEnd();
}

void LessonTest::RunUntilStopped(qint64 lStop) {
  bool bRanOn = false;
  At(lStop, [&bRanOn, this] {
    bRanOn = bProgramRunning;
    station.Click("btnStopProg");
  });
  Click();
  EXPECT_TRUE(bRanOn) << "it ended by itself at " << lEnd << " ms";
  ExpectCleanEnd();
}

void LessonTest::ExpectCleanEnd() {
  EXPECT_GT(lEnd, 0);
  EXPECT_EQ(station.BoxTexts(), QStringList());
  EXPECT_EQ(iMostImpact, 0);
  EXPECT_EQ(model.Power(), 0);
  EXPECT_EQ(model.Speed(), 0);
}

QString LessonTest::Say(const char* sEnglish, const char* sSpanish) const {
  return QString::fromUtf8(GetParam().sFolder.isEmpty() ? sEnglish : sSpanish);
}

void LessonTest::ExpectMessages(const std::vector<ExpectedMessage>& aExpected) const {
  std::vector<QString> aTexts, aSeen;
  for (const ExpectedMessage& expected : aExpected) aTexts.push_back(expected.sText);
  for (const SeenMessage& seen : aMessages) aSeen.push_back(seen.sText);
  ASSERT_EQ(aSeen, aTexts);
  for (size_t i = 0; i < aExpected.size(); ++i) {
    if (aExpected[i].lLength == 0) continue;
    const qint64 lLength = aMessages[i].lGone - aMessages[i].lTime;
    EXPECT_GE(lLength, aExpected[i].lLength) << i;
    EXPECT_LE(lLength, aExpected[i].lLength + lSlack) << i;
  }
}

void LessonTest::ExpectNoDrive() const {
  for (const SeenDrive& drive : aDrives) EXPECT_EQ(drive.iPower, 0) << drive.lTime;
  EXPECT_EQ(model.Position(), bench::fCityStation);
}

SeenDrive LessonTest::DriveFrom(qint64 lTime) const {
  for (const SeenDrive& drive : aDrives) {
    if (drive.lTime >= lTime) return drive;
  }
  ADD_FAILURE() << "no drive order from " << lTime << " ms on";
  return {-1, -1, false};
}

SeenDrive LessonTest::StartFrom(qint64 lTime) const {
  for (const SeenDrive& drive : aDrives) {
    if (drive.lTime >= lTime && drive.iPower > 0) return drive;
  }
  ADD_FAILURE() << "no start from " << lTime << " ms on";
  return {-1, -1, false};
}

void LessonTest::ExpectHaltSoonAfter(qint64 lTime, qint64 lLongest) const {
  const SeenDrive drive = DriveFrom(lTime);
  EXPECT_EQ(drive.iPower, 0);
  EXPECT_LE(drive.lTime - lTime, lLongest);
}

void LessonTest::ExpectDrive(const SeenDrive& drive, int iPower, bool bForward) const {
  EXPECT_EQ(drive.iPower, iPower) << drive.lTime;
  EXPECT_EQ(drive.bForward, bForward) << drive.lTime;
}

const SeenMessage* LessonTest::Find(const QString& sMessage) const {
  for (const SeenMessage& seen : aMessages) {
    if (seen.sText == sMessage) return &seen;
  }
  ADD_FAILURE() << "never shown: " << sMessage.toStdString();
  return nullptr;
}

qint64 LessonTest::TimeOf(const QString& sMessage) const {
  const SeenMessage* pSeen = Find(sMessage);
  return pSeen == nullptr ? -1 : pSeen->lTime;
}

qint64 LessonTest::LengthOf(const QString& sMessage) const {
  const SeenMessage* pSeen = Find(sMessage);
  return pSeen == nullptr ? -1 : pSeen->lGone - pSeen->lTime;
}

void LessonTest::ExpectRestBetween(double fFrom, double fTo) const {
  EXPECT_GE(model.Position(), fFrom);
  EXPECT_LE(model.Position(), fTo);
}

}  // namespace glidetrak
