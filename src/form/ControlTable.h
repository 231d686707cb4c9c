#pragma once

// Every control of the two forms as data: kind, container, place, size, font, style, layer and what
// it is for the window. The view draws the forms from these tables and knows no control beside
// them; form/DesignState.h puts the controls into their design state.

#include <array>
#include <span>
#include <variant>

#include "form/Controls.h"
#include "form/TextBox.h"

namespace glidetrak {

struct Font {
  const char* sFamily;
  float fPoints;
  bool bBold;
};

/// How a label's text stands in its place.
enum class Look {
  Text,       ///< along the left edge, in as many lines as it needs
  RightText,  ///< along the right edge, in as many lines as it needs
  Legend,     ///< one line, centred; too long for its place it is drawn smaller, and if that is
              ///< not enough it grows on both sides
  Name,       ///< one line, growing to the right
  TitleBar,   ///< the head of a floating panel
};

/// What a control looks like beyond its kind. Each field speaks of the kinds that it names and
/// means nothing to the others.
struct Style {
  Look look = Look::Text;   ///< label
  bool bBorder = false;     ///< label, picture box: a thin line round it
  bool bOneLine = false;    ///< text box: one line without a frame, else several
  bool bScrollBar = false;  ///< text box of several lines: the vertical scroll bar always shows,
                            ///< else where the text needs it
};

/// What lies over what within a container, the lowest first. Of the topmost layer a later row lies
/// over an earlier one; the members of a lower layer do not overlap.
enum class Layer {
  Background,  ///< a panel's picture
  Behind,      ///< over the background and behind everything else
  Front,
};

/// What one control of the main form is for the window beyond its kind.
enum class Role {
  None,
  FocusKeeper,    ///< gets the focus of a control that holds it and goes away
  EmergencyStop,  ///< its MouseDown is what F12, Pause and a press through a pop-up fire
  TopBand,        ///< a message box with that place (BoxPlace::TopBand) stands over it
};

/// Which component a row speaks of, with its kind.
using ControlRef =
    std::variant<Form*, PictureBox*, Image*, Label*, TextBox*, ImageButton*, ComboBox*, ListBox*,
                 Shape*, Line*, OptionButton*, CheckBox*, Timer*, FileDialog*, ImageList*>;

/// One component, or one array of controls. Lengths are twips relative to the container; a row
/// without a place (timer, dialog, image list, an array of lamps) has zeros. Font and style hold
/// for every member of an array, place and layer for none: those are told by MemberTable.
struct ControlRow {
  const char* sName;
  ControlRef control;   ///< of an array: member 0
  int iMembers;         ///< 1 for a control that is no array
  Control* pContainer;  ///< the form or a picture box
  float fLeft, fTop, fWidth, fHeight;
  Font font;
  Style style = {};
  Layer layer = Layer::Front;
  Role role = Role::None;
  Control* pTabFrom = nullptr;  ///< Tab leads here from that control; null: from the row before
};

/// The components of the main window, each container ahead of what stands in it.
std::span<const ControlRow> MainFormTable();

/// The controls of the About box.
std::span<const ControlRow> AboutFormTable();

/// One member of a control array.
struct MemberRow {
  const char* sArray;
  int iIndex;
  ControlRef control;
  float fLeft, fTop, fWidth, fHeight;
  Layer layer = Layer::Front;
};

/// The members of the five control arrays of the debug panel.
std::span<const MemberRow> MemberTable();

struct MenuRow {
  const char* sName;
  MenuItem* pItem;
  MenuItem* pHead;  ///< null for one of the three heads
};

/// The menu bar, in its order.
std::span<const MenuRow> MenuTable();

/// The row of the main form's control with that role, which is not Role::None.
const ControlRow& RowInRole(Role role);

/// The control behind a reference, null for a kind without a place.
Control* AsControl(const ControlRef& control);

/// The control of that name on the main form, null if there is none or if it has no place. Array
/// members are named name_index.
Control* FindControl(const QString& sName);

}  // namespace glidetrak
