// The station in Spanish, and how it comes to speak it.

#include <gtest/gtest.h>

#include "RunningStation.h"

namespace glidetrak {

namespace {

const char* const sUserFile = "config/Torvane/Glidetrak.conf";
const char* const sMachineFile = "machine/Torvane/Glidetrak.conf";

}  // namespace

TEST(Spanish, AStoredLanguageGivesItsTexts) {
  RunningStation station;
  station.WriteProgram(sMachineFile, "[Torvane]\nUILanguage=dword:00000409\n");
  station.WriteProgram(sUserFile, "[Torvane]\nUILanguage=dword:00000c0a\n");
  ASSERT_TRUE(station.Start());
  EXPECT_TRUE(station.HasWindow("^Control del sistema Glidetrak$"));
  station.Click(placeProgram);
  station.Picture("spanish-stored");
  station.ChooseFileEntry(entryOpen, "alt+a");
  EXPECT_TRUE(station.HasWindow("^Abrir programa$"));
}

TEST(Spanish, ALanguageStoredAsTextDoesNotCount) {
  RunningStation station;
  station.WriteProgram(sUserFile, "[Torvane]\nUILanguage=3082\n");
  ASSERT_TRUE(station.Start());
  EXPECT_TRUE(station.HasWindow("^Glidetrak Control$"));
  station.ChooseFileEntry(entryOpen);
  EXPECT_TRUE(station.HasWindow("^Open Program$"));
}

TEST(Spanish, TheFileDialogsSpeakItToo) {
  RunningStation station;
  station.WriteProgram("home/Documents/PLAN.GTP", QByteArray(3000, ' '));
  station.WriteProgram("home/Documents/Deberes/A.GTP", "HALT");
  ASSERT_TRUE(station.Start({"/LC=0C0A"}));
  station.ChooseFileEntry(entryOpen, "alt+a");
  ASSERT_TRUE(station.HasWindow("^Abrir programa$"));
  Wait(500);
  station.Picture("spanish-open");
  station.GiveName("nada.GTP");
  EXPECT_TRUE(station.HasWindow("^Abrir programa$")) << "a name that is no file is told";
  station.Picture("spanish-no-such-file");
  station.Key("Return");
  station.Key("Escape");
  ASSERT_TRUE(station.HasNoWindow("^Abrir programa$"));
  station.Click(placeProgram);
  station.TypeAtTop("HALT\n");
  station.ChooseFileEntry(entrySaveAs, "alt+a");
  ASSERT_TRUE(station.HasWindow("^Guardar programa$"));
  Wait(500);
  station.Picture("spanish-save");
}

}  // namespace glidetrak
