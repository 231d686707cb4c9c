#pragma once

// Every control of the two forms as data: kind, container, place, size and font. The view draws
// the forms from these tables, and ResetForms puts the controls into their design state.

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

/// Which control a row speaks of, with its kind.
using ControlRef =
    std::variant<Form*, PictureBox*, Image*, Label*, TextBox*, ImageButton*, ComboBox*, ListBox*,
                 Shape*, Line*, OptionButton*, CheckBox*, Timer*, FileDialog*, ImageList*>;

/// One control, or one array of controls. Lengths are twips relative to the container; a control
/// without a place on the form (timer, dialog, image list, an array that AllMembers lists one by
/// one) has zeros.
struct ControlRow {
  const char* sName;
  ControlRef control;   ///< of an array: member 0
  int iMembers;         ///< 1 for a control that is no array
  Control* pContainer;  ///< the form or a picture box
  float fLeft, fTop, fWidth, fHeight;
  Font font;
};

/// The controls of the main window, those of the form first, in the order of drawing within a
/// container.
std::span<const ControlRow> MainFormTable();

/// The controls of the About box.
std::span<const ControlRow> AboutFormTable();

/// One member of a control array.
struct MemberRow {
  const char* sArray;
  int iIndex;
  ControlRef control;
  float fLeft, fTop, fWidth, fHeight;
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

/// The control behind a reference.
Control* AsControl(const ControlRef& control);

/// The control of that name on the main form or its menu, null if there is none. Array members
/// are named name_index.
Control* FindControl(const QString& sName);

/// Puts every control of both forms into its design state: place, size, captions, what is hidden,
/// timers and pictures.
void ResetForms();

}  // namespace glidetrak
