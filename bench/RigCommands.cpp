#include "bench/RigCommands.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <sstream>
#include <string_view>
#include <vector>

namespace glidetrak::bench {

namespace {

using Words = std::vector<std::string>;

constexpr int iLongestTime = 60000;  ///< ms; a minute, so that no slip of the hand lasts for hours

/// By bit of the input byte.
constexpr std::array<std::string_view, 7> SensorNames{"START_BUTTON", "CITY_CALL",   "AIRPORT_CALL",
                                                      "LIGHT_SENSOR", "TIME_GATE_A", "TIME_GATE_B",
                                                      "SOUND_SENSOR"};
constexpr size_t iButtons = 3;  ///< the first ones

Words SplitWords(const std::string& sLine) {
  std::istringstream stream(sLine);
  Words words;
  for (std::string sWord; stream >> sWord;) words.push_back(sWord);
  return words;
}

std::optional<int> ParseNumber(const std::string& sWord, int iLeast, int iMost) {
  int iValue = 0;
  const char* pEnd = sWord.data() + sWord.size();
  const auto [pStop, error] = std::from_chars(sWord.data(), pEnd, iValue);
  if (error != std::errc() || pStop != pEnd || iValue < iLeast || iValue > iMost) return {};
  return iValue;
}

std::optional<bool> ParseOnOff(const std::string& sWord) {
  if (sWord == "on") return true;
  if (sWord == "off") return false;
  return {};
}

std::optional<Button> ParseButton(const std::string& sWord) {
  for (size_t i = 0; i < iButtons; ++i) {
    if (sWord == SensorNames[i]) return static_cast<Button>(i);
  }
  return {};
}

std::string NamesOf(int iSensors) {
  std::string sNames;
  for (size_t i = 0; i < SensorNames.size(); ++i) {
    if ((iSensors & 1 << i) != 0) sNames.append(" ").append(SensorNames[i]);
  }
  return sNames.empty() ? " none" : sNames;
}

std::string State(const Rig& rig) {
  const TrackModel& model = rig.Track();
  std::ostringstream text;
  text << "position " << std::lround(model.Position()) << " mm\n"
       << "speed " << std::lround(model.Speed()) << " mm/s\n"
       << "power " << model.Power() << '\n'
       << "direction " << (model.Forward() ? "forward" : "backward") << '\n'
       << "inputs" << NamesOf(model.Sensors()) << '\n'
       << "analog " << model.Analog() << '\n'
       << "plugged " << (model.Plugged() ? "yes" : "no") << '\n'
       << "attached " << (rig.Attached() ? "yes" : "no") << '\n';
  return text.str();
}

/// A command that does something to the track and answers nothing.
template <typename Act>
RigCommand Silent(Act act) {
  return [act](Rig& rig) {
    act(rig.Track());
    return std::string();
  };
}

RigCommand ParseState(const Words&) {
  return State;
}

RigCommand ParsePress(const Words& arguments) {
  const auto button = ParseButton(arguments[0]);
  const auto time = ParseNumber(arguments[1], 1, iLongestTime);
  if (!button || !time) return {};
  return Silent([=](TrackModel& model) { model.Press(*button, *time); });
}

RigCommand ParseLight(const Words& arguments) {
  const auto on = ParseOnOff(arguments[0]);
  if (!on) return {};
  return Silent([=](TrackModel& model) { model.SetLight(*on); });
}

RigCommand ParseSound(const Words& arguments) {
  if (const auto on = ParseOnOff(arguments[0])) {
    return Silent([=](TrackModel& model) { model.SetSound(*on); });
  }
  const auto time = ParseNumber(arguments[0], 1, iLongestTime);
  if (!time) return {};
  return Silent([=](TrackModel& model) { model.SoundFor(*time); });
}

RigCommand ParseUnplug(const Words&) {
  return Silent([](TrackModel& model) { model.SetPlugged(false); });
}

RigCommand ParsePlug(const Words&) {
  return Silent([](TrackModel& model) { model.SetPlugged(true); });
}

RigCommand AttachOrDetach(bool bAttached) {
  return [=](Rig& rig) {
    rig.SetAttached(bAttached);
    return std::string();
  };
}

RigCommand ParseDetach(const Words&) {
  return AttachOrDetach(false);
}

RigCommand ParseAttach(const Words&) {
  return AttachOrDetach(true);
}

RigCommand ParseLog(const Words&) {
  return [](const Rig& rig) { return rig.Record().Text(); };
}

RigCommand ParsePlace(const Words& arguments) {
  const auto place = ParseNumber(arguments[0], 0, static_cast<int>(fTrackLength));
  if (!place) return {};
  return Silent([=](TrackModel& model) { model.Place(*place); });
}

struct CommandRow {
  std::string_view sName;
  size_t iArguments;
  RigCommand (*pParse)(const Words& arguments);
  std::string_view sHelp;
};

constexpr std::array CommandRows{
    CommandRow{"state", 0, ParseState, "state                 show everything"},
    CommandRow{"press", 2, ParsePress,
               "press BUTTON MS       START_BUTTON, CITY_CALL or AIRPORT_CALL, 1 to 60000 ms"},
    CommandRow{"light", 1, ParseLight, "light on|off          day or night"},
    CommandRow{"sound", 1, ParseSound, "sound on|off|MS       a noise, or one of 1 to 60000 ms"},
    CommandRow{"unplug", 0, ParseUnplug, "unplug                pull the lead of the rig"},
    CommandRow{"plug", 0, ParsePlug, "plug                  put the lead back"},
    CommandRow{"detach", 0, ParseDetach, "detach                take the adapter off its port"},
    CommandRow{"attach", 0, ParseAttach, "attach                put the adapter back"},
    CommandRow{"place", 1, ParsePlace,
               "place MM              put the vehicle down, 0 (city) to 2000 (airport) mm"},
    CommandRow{"log", 0, ParseLog, "log                   show the bytes that were written"},
};

}  // namespace

RigCommand ParseRigCommand(const std::string& sLine) {
  Words words = SplitWords(sLine);
  if (words.empty()) return {};
  const std::string sName = words.front();
  words.erase(words.begin());
  for (const CommandRow& row : CommandRows) {
    if (row.sName == sName && row.iArguments == words.size()) return row.pParse(words);
  }
  return {};
}

std::string RigCommandHelp() {
  std::string sHelp;
  for (const CommandRow& row : CommandRows) sHelp.append("  ").append(row.sHelp).append("\n");
  return sHelp;
}

}  // namespace glidetrak::bench
