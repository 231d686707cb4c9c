#include "RunningStation.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <utility>

namespace glidetrak {

namespace {

constexpr Place placeStartupClose{304,
                                  197};  ///< in the start-up box, which else stays for six seconds
const char* const sStartupTitle = "^ $";
const char* const sMainTitle = "Glidetrak Control|Control del sistema Glidetrak";

QByteArray ReadWhole(const QString& sPath) {
  QFile file(sPath);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no such file)");
}

}  // namespace

void Wait(int iMilliseconds) {
  QThread::msleep(static_cast<unsigned long>(iMilliseconds));
}

RunningStation::RunningStation(QString sStation)
    : m_sStation(std::move(sStation)), m_environment(QProcessEnvironment::systemEnvironment()) {
  QDir(Folder()).mkpath("run");
  QDir(Folder()).mkpath("home/Documents");
  QFile::setPermissions(Folder() + "/run", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  m_environment.insert("HOME", Folder() + "/home");
  m_environment.insert("XDG_RUNTIME_DIR", Folder() + "/run");
  m_environment.insert("XDG_CONFIG_HOME", Folder() + "/config");
  m_environment.insert("XDG_CONFIG_DIRS", Folder() + "/machine");
  m_environment.insert("GLIDETRAK_BENCH_SOCKET", Folder() + "/rig.socket");
  m_environment.insert("LC_ALL", "C.UTF-8");
  m_environment.remove("QT_QPA_PLATFORM");
  WaitForDisplay();
}

RunningStation::~RunningStation() {
  Kill();
  KillRig();
  m_windowManager.kill();
  m_windowManager.waitForFinished();
  m_display.terminate();
  m_display.waitForFinished();
}

bool RunningStation::WaitForDisplay() {
  m_display.start(
      "Xvfb", {"-displayfd", "1", "-screen", "0", "1280x900x24", "-nolisten", "tcp", "-noreset"});
  if (!m_display.waitForReadyRead(iPatience)) return false;
  m_environment.insert("DISPLAY", ":" + QString::fromLatin1(m_display.readLine().trimmed()));
  return true;
}

bool RunningStation::Launch(const QStringList& aArguments) {
  if (m_rig.state() == QProcess::NotRunning && !ServeRig()) return false;
  m_station.setProcessEnvironment(m_environment);
  m_station.setWorkingDirectory(Folder());
  m_station.start(m_sStation, aArguments);
  return m_station.waitForStarted() && HasWindow(sMainTitle);
}

bool RunningStation::Start(const QStringList& aArguments) {
  return Launch(aArguments) && CloseStartupBox() && IsRunning();
}

bool RunningStation::CloseStartupBox() {
  if (!HasWindow(sStartupTitle)) return false;
  const QStringList aGeometry = Geometry(sStartupTitle).split(u' ');
  Wait(100);
  Click({aGeometry.value(0).toInt() + placeStartupClose.iX,
         aGeometry.value(1).toInt() + placeStartupClose.iY});
  return HasNoWindow(sStartupTitle);
}

void RunningStation::Kill() {
  m_station.kill();
  m_station.waitForFinished();
}

bool RunningStation::StartWithChanges() {
  if (!Start({WriteProgram("first.gtp", firstText)})) return false;
  Click(placeProgram);
  TypeAtTop("BEEP\n");
  return true;
}

bool RunningStation::StartSecondCopy(QProcess& process) {
  process.setProcessEnvironment(m_environment);
  process.start(m_sStation, QStringList());
  return process.waitForStarted();
}

QString RunningStation::Output(const QString& sProgram, const QStringList& aArguments) {
  QProcess process;
  process.setProcessEnvironment(m_environment);
  process.start(sProgram, aArguments);
  process.waitForFinished();
  return QString::fromUtf8(process.readAllStandardOutput());
}

void RunningStation::MoveTo(Place place) {
  Output("xdotool", {"mousemove", QString::number(place.iX), QString::number(place.iY)});
  Wait(100);
}

void RunningStation::Click(Place place) {
  MoveTo(place);
  Output("xdotool", {"click", "1"});
  Wait(150);
}

void RunningStation::ClickInWindow(Place place) {
  Output("xdotool", {"mousemove", "--window", MainWindow(), QString::number(place.iX),
                     QString::number(place.iY)});
  Wait(100);
  Output("xdotool", {"click", "1"});
  Wait(150);
}

void RunningStation::Drag(Place from, Place to) {
  MoveTo(from);
  Output("xdotool", {"mousedown", "1"});
  const int iSteps = 10;
  for (int i = 1; i <= iSteps; ++i) {
    MoveTo({from.iX + (to.iX - from.iX) * i / iSteps, from.iY + (to.iY - from.iY) * i / iSteps});
  }
  Output("xdotool", {"mouseup", "1"});
  Wait(100);
}

void RunningStation::Key(const QString& sKeys) {
  Output("xdotool", {"key", sKeys});
  Wait(150);
}

/// Line ends are keys of their own: typed within a text they get lost now and then.
void RunningStation::Type(const QString& sText) {
  const QStringList aLines = sText.split(u'\n');
  for (qsizetype i = 0; i < aLines.size(); ++i) {
    if (i > 0) Key("Return");
    Output("xdotool", {"type", "--delay", "15", aLines[i]});
    Wait(150);
  }
}

void RunningStation::ChooseFileEntry(FileEntry entry, const QString& sMenuKeys) {
  Click(placeRigPicture);
  Key(sMenuKeys);
  for (int i = 0; i < entry; ++i) Key("Down");
  Key("Return");
}

void RunningStation::AskToLeave() {
  Click(placeRigPicture);
  Key("alt+f");
  Key("x");
}

void RunningStation::AnswerYes() {
  Key("Return");
}

void RunningStation::AnswerNo() {
  Key("Right");
  Key("Return");
}

void RunningStation::GiveName(const QString& sName) {
  Key("ctrl+a");
  Type(sName);
  Key("Return");
}

QByteArray RunningStation::SaveText(FileEntry entry, const QString& sName) {
  ChooseFileEntry(entry);
  if (!HasWindow("^Save Program$")) return "(no dialog)";
  GiveName(Folder() + '/' + sName);
  if (!HasNoWindow("^Save Program$")) return "(the dialog stays)";
  return Read(sName);
}

void RunningStation::TypeAtTop(const QString& sText) {
  Click(placeEditor);
  Key("ctrl+Home");
  Type(sText);
}

QString RunningStation::MainWindow() {
  return Output("xdotool", {"search", "--onlyvisible", "--name", sMainTitle}).section(u'\n', 0, 0);
}

bool RunningStation::StartWindowManager() {
  m_windowManager.setProcessEnvironment(m_environment);
  m_windowManager.start("openbox", QStringList());
  return m_windowManager.waitForStarted() &&
         WaitUntil([&] { return Output("wmctrl", {"-m"}).contains("Openbox"); });
}

void RunningStation::PressCloseBox() {
  Output("wmctrl", {"-c", "Glidetrak"});
}

void RunningStation::KillWindow() {
  Output("xdotool", {"windowkill", MainWindow()});
}

void RunningStation::Maximise() {
  Output("wmctrl", {"-r", "Glidetrak", "-b", "add,maximized_vert,maximized_horz"});
  Wait(500);
}

void RunningStation::Minimise() {
  Output("xdotool", {"windowminimize", MainWindow()});
  Wait(500);
}

void RunningStation::MoveWindow(Place corner) {
  Output("xdotool",
         {"windowmove", MainWindow(), QString::number(corner.iX), QString::number(corner.iY)});
  Wait(300);
}

void RunningStation::SizeWindow(int iWidth, int iHeight) {
  Output("xdotool",
         {"windowsize", MainWindow(), QString::number(iWidth), QString::number(iHeight)});
  Wait(300);
}

bool RunningStation::HasWindow(const QString& sTitle) {
  return WaitUntil([&] {
    return !Output("xdotool", {"search", "--onlyvisible", "--name", sTitle}).isEmpty();
  });
}

bool RunningStation::HasNoWindow(const QString& sTitle) {
  return WaitUntil([&] {
    return Output("xdotool", {"search", "--onlyvisible", "--name", sTitle}).isEmpty();
  });
}

QString RunningStation::Geometry(const QString& sTitle) {
  return Geometries(sTitle).value(0);
}

QStringList RunningStation::Geometries(const QString& sTitle) {
  QStringList aGeometries;
  const QString sWindows = Output("xdotool", {"search", "--onlyvisible", "--name", sTitle});
  for (const QString& sWindow : sWindows.split(u'\n', Qt::SkipEmptyParts)) {
    aGeometries.append(WindowGeometry(sWindow));
  }
  return aGeometries;
}

QString RunningStation::WindowGeometry(const QString& sWindow) {
  const QString sShell = Output("xdotool", {"getwindowgeometry", "--shell", sWindow});
  QStringList aValues;
  for (const QString& sLine : sShell.split(u'\n')) {
    const QString sName = sLine.section(u'=', 0, 0);
    if (QStringList{"X", "Y", "WIDTH", "HEIGHT"}.contains(sName)) {
      aValues.append(sLine.section(u'=', 1));
    }
  }
  return aValues.join(u' ');
}

QString RunningStation::ColourAt(Place place) {
  const QString sPoint = QString("1x1+%1+%2").arg(place.iX).arg(place.iY);
  const QString sPixel =
      Output("import", {"-window", "root", "-crop", sPoint, "-depth", "8", "txt:-"});
  return sPixel.mid(sPixel.lastIndexOf(u'#'), 7);
}

bool RunningStation::ShowsColour(Place place, const QString& sColour) {
  return WaitUntil([&] { return ColourAt(place) == sColour; });
}

QString RunningStation::Rig(const QStringList& aArguments) {
  return Output(GLIDETRAK_BENCH_RIG, aArguments);
}

bool RunningStation::RigShows(const QString& sLine) {
  const bool bShown = WaitUntil([&] { return Rig({"state"}).split(u'\n').contains(sLine); });
  if (!bShown) Picture("rig-does-not-show-" + QString(sLine).replace(u' ', u'-'));
  return bShown;
}

bool RunningStation::ServeRig() {
  m_rig.setProcessEnvironment(m_environment);
  m_rig.start(GLIDETRAK_BENCH_RIG, {"serve"});
  return m_rig.waitForReadyRead(iPatience) && m_rig.readAll().startsWith("serving");
}

void RunningStation::KillRig() {
  m_rig.kill();
  m_rig.waitForFinished();
}

/// A line of the record reads "3: 2417 ms 0x18 power 8 forward".
QList<int> RunningStation::BytesWritten() {
  QList<int> aBytes;
  for (const QString& sLine : Rig({"log"}).split(u'\n', Qt::SkipEmptyParts)) {
    aBytes.append(sLine.section(u' ', 3, 3).toInt(nullptr, 16));
  }
  return aBytes;
}

int RunningStation::LastByteWritten() {
  const QList<int> aBytes = BytesWritten();
  return aBytes.isEmpty() ? -1 : aBytes.last();
}

void RunningStation::Picture(const QString& sName) {
  QDir().mkpath(GLIDETRAK_PICTURES);
  Output("import", {"-window", "root", QString(GLIDETRAK_PICTURES) + '/' + sName + ".png"});
}

QString RunningStation::WriteProgram(const QString& sName, const QByteArray& text) {
  const QString sPath = Folder() + '/' + sName;
  QFile file(sPath);
  QDir().mkpath(QFileInfo(sPath).path());
  if (file.open(QIODevice::WriteOnly)) file.write(text);
  return sPath;
}

QByteArray RunningStation::Read(const QString& sName) const {
  return ReadWhole(Folder() + '/' + sName);
}

QByteArray RunningStation::ReadDelivered(const QString& sName) {
  return ReadWhole(QFileInfo(GLIDETRAK_STATION).path() + '/' + sName);
}

}  // namespace glidetrak
