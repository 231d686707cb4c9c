// The tables of the two forms: what stands on them, where and in which font.

#include "form/ControlTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include <QSet>

#include "form/MainFormPlaces.h"
#include "form/frmAbout.h"
#include "form/frmGlidetrak.h"
#include "station/Print.h"

namespace glidetrak {
namespace {

const ControlRow* FindRow(std::span<const ControlRow> table, const QString& sName) {
  for (const ControlRow& row : table) {
    if (sName == row.sName) return &row;
  }
  return nullptr;
}

/// What tells one component from another.
const void* Identity(const ControlRef& control) {
  return std::visit([](auto* pComponent) -> const void* { return pComponent; }, control);
}

QString ContainerName(const ControlRow& row) {
  if (row.pContainer == &frmGlidetrak) return "frmGlidetrak";
  for (const ControlRow& other : MainFormTable()) {
    if (AsControl(other.control) == row.pContainer) return other.sName;
  }
  return {};
}

TEST(MainForm, HasItsNinetyTwoControls) {
  EXPECT_EQ(MainFormTable().size(), 92U);
  EXPECT_EQ(MainFormTable().size(), std::size(MainFormPlaces));
}

TEST(MainForm, HasEachControlOnce) {
  std::set<QString> names;
  std::set<const void*> controls;
  for (const ControlRow& row : MainFormTable()) {
    names.insert(row.sName);
    controls.insert(Identity(row.control));
  }
  EXPECT_EQ(names.size(), 92U);
  EXPECT_EQ(controls.size(), 92U);
}

TEST(MainForm, HasEachControlAtItsPlace) {
  for (const PlaceRow& place : MainFormPlaces) {
    SCOPED_TRACE(place.sName);
    const ControlRow* pRow = FindRow(MainFormTable(), place.sName);
    ASSERT_NE(pRow, nullptr);
    EXPECT_TRUE(place.isKind(pRow->control));
    EXPECT_EQ(ContainerName(*pRow), place.sContainer);
    EXPECT_EQ(pRow->fLeft, place.fLeft);
    EXPECT_EQ(pRow->fTop, place.fTop);
    EXPECT_EQ(pRow->fWidth, place.fWidth);
    EXPECT_EQ(pRow->fHeight, place.fHeight);
  }
}

TEST(MainForm, NamesEachContainerAheadOfWhatStandsInIt) {
  std::set<Control*> seen{&frmGlidetrak};
  for (const ControlRow& row : MainFormTable()) {
    EXPECT_TRUE(seen.contains(row.pContainer)) << row.sName;
    seen.insert(AsControl(row.control));
  }
}

struct FontRow {
  const char* sName;
  const char* sFamily;
  float fPoints;
  bool bBold;
};

const FontRow Fonts[] = {
    {"txtProgram", "Courier", 9.75F, false},
    {"txtDebug", "Courier", 9.75F, false},
    {"lblHELPFormat", "Courier New", 9, false},
    {"txtHELPExample", "Courier New", 9, false},
    {"lblTimer", "Verdana", 18, true},
    {"lblImpact", "Verdana", 18, true},
    {"lblMessage", "Verdana", 9.75F, true},
    {"lstProgCommands", "Verdana", 8.25F, true},
    {"lblTimerTitle", "Malgun Gothic", 15.75F, true},
    {"lblImpactTitle", "Malgun Gothic", 15.75F, true},
    {"lblControlTitle", "Malgun Gothic", 12, true},
    {"lblPowerTitle", "Malgun Gothic", 12, true},
    {"lblEmergStop1", "Malgun Gothic", 12, true},
    {"lblEmergStop2", "Malgun Gothic", 12, true},
    {"lblImpact2", "Malgun Gothic", 12, true},
    {"lblOn1", "Malgun Gothic", 11.25F, true},
    {"lblOn2", "Malgun Gothic", 11.25F, true},
    {"lblOff", "Malgun Gothic", 11.25F, true},
    {"lblOff2", "Malgun Gothic", 11.25F, true},
    {"lblMsgTitle", "MS Sans Serif", 8.25F, true},
    {"lblHWState", "MS Sans Serif", 8.25F, true},
    {"lblExamples", "MS Sans Serif", 8.25F, true},
};

TEST(MainForm, GivesEachControlItsFont) {
  for (const FontRow& font : Fonts) {
    SCOPED_TRACE(font.sName);
    const ControlRow* pRow = FindRow(MainFormTable(), font.sName);
    ASSERT_NE(pRow, nullptr);
    EXPECT_STREQ(pRow->font.sFamily, font.sFamily);
    EXPECT_EQ(pRow->font.fPoints, font.fPoints);
    EXPECT_EQ(pRow->font.bBold, font.bBold);
  }
}

TEST(MainForm, PutsPanelPicturesLowestAndTheFocusKeeperNextToThem) {
  const std::map<QString, Layer> lower{{"imgHardware", Layer::Background},
                                       {"imgSensors", Layer::Background},
                                       {"imgControls", Layer::Background},
                                       {"imgProgBoxBack", Layer::Background},
                                       {"txtFocusGrab", Layer::Behind}};
  for (const ControlRow& row : MainFormTable()) {
    const auto expected = lower.find(row.sName);
    EXPECT_EQ(row.layer, expected == lower.end() ? Layer::Front : expected->second) << row.sName;
  }
}

TEST(MainForm, GivesEachRoleToOneControl) {
  std::map<Role, QStringList> names;
  for (const ControlRow& row : MainFormTable()) names[row.role].append(row.sName);
  ASSERT_EQ(names[Role::FocusKeeper], QStringList{"txtFocusGrab"});
  ASSERT_EQ(names[Role::EmergencyStop], QStringList{"btnEmergency"});
  ASSERT_EQ(names[Role::TopBand], QStringList{"picHardware"});
  for (const auto& [role, aNames] : names) {
    if (role == Role::None) continue;
    EXPECT_EQ(RowInRole(role).sName, aNames.first());
  }
}

TEST(MainForm, LeadsTabFromTheEditorToTheFocusKeeperAlone) {
  for (const ControlRow& row : MainFormTable()) {
    const bool bKeeper = row.role == Role::FocusKeeper;
    EXPECT_EQ(row.pTabFrom, bKeeper ? &txtProgram : nullptr) << row.sName;
  }
}

struct StyleRow {
  QSet<QString> names;
  bool (*hasIt)(const Style&);
};

/// Which rows of both forms stand out, look by look; whatever is not named here does not.
const StyleRow Styles[] = {
    {{"lblTimerTitle", "lblTimer", "lblImpactTitle", "lblImpact", "lblImpact2", "lblOn1", "lblOn2",
      "lblOff", "lblOff2", "lblControlTitle", "lblPowerTitle", "lblEmergStop1", "lblEmergStop2"},
     [](const Style& style) { return style.look == Look::Legend; }},
    {{"lblProgName", "lblProgVer", "lblInput", "lblOutput"},
     [](const Style& style) { return style.look == Look::Name; }},
    {{"lblHWState", "lblCopyright"},
     [](const Style& style) { return style.look == Look::RightText; }},
    {{"lblMsgTitle", "CommandSelTitle"},
     [](const Style& style) { return style.look == Look::TitleBar; }},
    {{"pnlMessage", "pnlCommandSel", "pnlDebug", "fraHelp"},
     [](const Style& style) { return style.bBorder; }},
    {{"txtFocusGrab"}, [](const Style& style) { return style.bOneLine; }},
    {{"txtProgram"}, [](const Style& style) { return style.bScrollBar; }},
};

TEST(BothForms, StyleTheirControls) {
  for (const StyleRow& style : Styles) {
    QSet<QString> names;
    for (const auto table : {MainFormTable(), AboutFormTable()}) {
      for (const ControlRow& row : table) {
        if (style.hasIt(row.style)) names.insert(row.sName);
      }
    }
    EXPECT_EQ(names, style.names) << "style " << &style - Styles;
  }
}

TEST(MainForm, WritesImageButtonsInPlainVerdana) {
  int iButtons = 0;
  for (const ControlRow& row : MainFormTable()) {
    if (!Is<ImageButton>(row.control)) continue;
    ++iButtons;
    EXPECT_STREQ(row.font.sFamily, "Verdana") << row.sName;
    EXPECT_FALSE(row.font.bBold) << row.sName;
  }
  EXPECT_EQ(iButtons, 11);
}

struct AboutRow {
  const char* sName;
  float fLeft, fTop, fWidth, fHeight;
};

const AboutRow AboutPlaces[] = {
    {"Image1", 0, 0, 3855, 2295},
    {"Picture1", 3960, 0, 1215, 1335},
    {"lblProgName", 240, 480, 900, 345},
    {"lblProgVer", 240, 960, 870, 240},
    {"lblCopyright", 1800, 1920, 3255, 255},
    {"Line1", 0, 2280, 5085, 0},
    {"lblplw8Instruct", 120, 2400, 4965, 345},
    {"picClose", 3990, 2760, 1140, 390},
    {"tmrUpdate", 0, 0, 0, 0},
    {"TmrAbout", 0, 0, 0, 0},
};

TEST(AboutForm, HasItsTenControlsAtTheirPlaces) {
  EXPECT_EQ(AboutFormTable().size(), std::size(AboutPlaces));
  for (const AboutRow& place : AboutPlaces) {
    SCOPED_TRACE(place.sName);
    const ControlRow* pRow = FindRow(AboutFormTable(), place.sName);
    ASSERT_NE(pRow, nullptr);
    EXPECT_EQ(pRow->pContainer, &frmAbout);
    EXPECT_EQ(pRow->fLeft, place.fLeft);
    EXPECT_EQ(pRow->fTop, place.fTop);
    EXPECT_EQ(pRow->fWidth, place.fWidth);
    EXPECT_EQ(pRow->fHeight, place.fHeight);
  }
}

TEST(AboutForm, WritesNameAndVersionInTheirFonts) {
  const Font& name = FindRow(AboutFormTable(), "lblProgName")->font;
  EXPECT_STREQ(name.sFamily, "Arial Narrow");
  EXPECT_EQ(name.fPoints, 14.25F);
  EXPECT_TRUE(name.bBold);
  const Font& version = FindRow(AboutFormTable(), "lblProgVer")->font;
  EXPECT_STREQ(version.sFamily, "MS Sans Serif");
  EXPECT_EQ(version.fPoints, 9.75F);
  EXPECT_TRUE(version.bBold);
}

struct MenuPlace {
  const char* sName;
  const char* sHead;  ///< "" for a head
};

const MenuPlace Menu[] = {
    {"MNUMAIN", ""},
    {"MNUNEWPROG", "MNUMAIN"},
    {"MNULOADPROG", "MNUMAIN"},
    {"MNUSAVEPROG", "MNUMAIN"},
    {"MNUSAVEPROGAS", "MNUMAIN"},
    {"MNUEXIT", "MNUMAIN"},
    {"MNUPROGRAMOPT", ""},
    {"MNUCommands", "MNUPROGRAMOPT"},
    {"MNURUN", "MNUPROGRAMOPT"},
    {"MNUSTOP", "MNUPROGRAMOPT"},
    {"MNUSTEPFORWARD", "MNUPROGRAMOPT"},
    {"MNUHELP", ""},
    {"MNUShowDebug", "MNUHELP"},
    {"MNUAbout", "MNUHELP"},
};

TEST(Menu, HasItsFourteenEntriesInOrder) {
  ASSERT_EQ(MenuTable().size(), std::size(Menu));
  for (size_t i = 0; i < std::size(Menu); ++i) {
    const MenuRow& row = MenuTable()[i];
    EXPECT_STREQ(row.sName, Menu[i].sName);
    const auto pHead = std::ranges::find(MenuTable(), row.pHead, &MenuRow::pItem);
    EXPECT_STREQ(row.pHead == nullptr ? "" : pHead->sName, Menu[i].sHead) << row.sName;
  }
}

TEST(FindControl, FindsControlsAndArrayMembers) {
  EXPECT_EQ(FindControl("txtProgram"), &txtProgram);
  EXPECT_EQ(FindControl("ledOutput_23"), &ledOutput[23]);
  EXPECT_EQ(FindControl("optDirection_1"), &optDirection[1]);
}

TEST(FindControl, FindsNothingUnderAnotherNameOrWithoutAPlace) {
  for (const char* sName : {"", "txtprogram", "lblInput_8", "lblInput_", "frmNone", "MNURUN",
                            "tmrSystem", "cmLoad", "imgPanels"}) {
    EXPECT_EQ(FindControl(sName), nullptr) << sName;
  }
}

}  // namespace
}  // namespace glidetrak
