#pragma once

// The few kinds of control that the two forms are made of, as plain values. A property is a
// QProperty: writing it changes the value, and only a real change reaches whoever observes it (the
// view, or a test). Nothing here knows a toolkit.
//
// Lengths are twips, 1/1440 inch, and relative to the container; 15 twips are one logical pixel.
// An event is filled by the shell and fired by the view; a method is filled by the view and called
// by the station, and does nothing while no view has filled it.

#include <QProperty>
#include <QString>
#include <QStringList>
#include <functional>
#include <utility>
#include <vector>

#include "form/Colours.h"
#include "form/Pictures.h"

namespace glidetrak {

/// A slot for one function; calling it while it is empty does nothing.
template <class... Arguments>
class Slot {
 public:
  template <class Function>
  Slot& operator=(Function function) {
    m_function = std::move(function);
    return *this;
  }
  void operator()(Arguments... arguments) const {
    if (m_function) m_function(arguments...);
  }
  /// What stands in the slot now, so that a watcher can call it on.
  std::function<void(Arguments...)> Function() const { return m_function; }

 private:
  std::function<void(Arguments...)> m_function;
};

template <class... Arguments>
using Event = Slot<Arguments...>;
template <class... Arguments>
using Method = Slot<Arguments...>;

/// Mouse events: the button held or pressed (0 none, else MouseButton), then the place inside the
/// control in twips.
using MouseEvent = Event<int, float, float>;
enum MouseButton { mouseLeft = 1, mouseRight = 2, mouseMiddle = 4 };

/// Key events: a virtual key code (key down and up) or a character code (key press). A handler that
/// sets it to 0 swallows the key.
using KeyEvent = Event<int&>;

/// Values of MousePointer.
enum Pointer {
  ptrDefault = 0,
  ptrNorthSouth = 7,
  ptrHourglass = 11,
  ptrNoDrop = 12,
  ptrCustom = 99,  ///< the control's MouseIcon
};

/// The lean base: whatever can be switched off. It has neither a place nor a mouse.
struct Component {
  QProperty<bool> Enabled{true};
};

/// A component that stands on a form: it has a place, a look, a mouse, keys and the focus.
struct Control : Component {
  QProperty<float> Left{0}, Top{0}, Width{0}, Height{0};
  QProperty<bool> Visible{true};
  QProperty<QString> ToolTipText;
  QProperty<int> MousePointer{ptrDefault};
  QProperty<PictureId> MouseIcon{PictureId::None};
  QProperty<int> BackColor{lPanelBackground};

  MouseEvent MouseDown, MouseMove, MouseUp;
  Event<> Click, DblClick, GotFocus, LostFocus;
  KeyEvent KeyDown, KeyPress, KeyUp;

  Method<> SetFocus;  ///< no effect while the control is hidden or disabled
  Method<> Refresh;   ///< repaints at once
};

enum WindowState { stateNormal = 0, stateMinimised = 1, stateMaximised = 2 };

/// A top-level window. Left to Height are its outer rectangle, the frame counted as nothing;
/// ScaleWidth and ScaleHeight its client area, which the view writes. Hidden until shown.
struct Form : Control {
  Form() { Visible = false; }
  QProperty<QString> Caption;
  QProperty<float> ScaleWidth{0}, ScaleHeight{0};
  QProperty<int> WindowState{stateNormal};

  Event<> Resize;
  Event<bool&> QueryUnload;  ///< set the argument to refuse the close
  Event<> FormUnload;        ///< the close was not refused

  Method<> Show, Unload;
  Method<> ShowModal;  ///< returns when the form was unloaded
};

/// A panel that other controls stand in.
struct PictureBox : Control {
  QProperty<PictureId> Picture{PictureId::None};
};

/// A picture stretched to its rectangle.
struct Image : Control {
  QProperty<PictureId> Picture{PictureId::None};
};

struct Label : Control {
  QProperty<QString> Caption;
  QProperty<int> ForeColor{lWhite};
};

/// A picture with a caption on top of it. Press comes ahead of every Click, by mouse or by key.
struct ImageButton : Control {
  QProperty<QString> Caption;
  QProperty<PictureId> Picture{PictureId::DefBtn};
  QProperty<int> ForeColor{lButtonText};
  Event<> Press;
};

struct ComboBox : Control {
  QProperty<QStringList> List;
  std::vector<int> ItemData;     ///< one number an entry; stored, read by nobody
  QProperty<int> ListIndex{-1};  ///< 0-based, -1 for none
  Method<bool> OpenDropDown;     ///< true opens the list, false closes it
};

struct ListBox : Control {
  QProperty<QStringList> List;
  QProperty<int> ListIndex{-1};  ///< 0-based, -1 for none
};

struct Shape : Control {
  QProperty<int> FillColor{lBlack};
};

struct Line : Control {};

struct OptionButton : Control {
  QProperty<QString> Caption;
  QProperty<bool> Value{false};
};

struct CheckBox : Control {
  QProperty<QString> Caption;
  QProperty<bool> Value{false};
};

/// An "&" in the caption marks the access key.
struct MenuItem : Component {
  QProperty<QString> Caption;
  QProperty<bool> Visible{true};
  Event<> Click;
};

/// Fires each Interval ms while enabled. Enabling a disabled timer or changing its interval starts
/// the interval anew; writing the value that it already has does nothing.
struct Timer : Component {
  Timer() { Enabled = false; }
  QProperty<int> Interval{0};  ///< milliseconds, above 0 when enabled
  Event<> Fired;
};

/// A file dialog of the desktop's own. The fields are set before a showing; FileName, FileTitle and
/// Flags are read after it.
struct FileDialog {
  QString InitDir;      ///< station path
  QString FileName;     ///< before: the name offered; after: the full path, "" when cancelled
  QString FileTitle;    ///< after: the name without folders
  QString Filter;       ///< text and pattern in turn, joined by bars
  int FilterIndex = 0;  ///< from 1; 0 is not set
  QString DialogTitle;
  int Flags = 0;             ///< DialogFlag
  QString DefaultExt;        ///< given to a name without an extension
  bool CancelError = false;  ///< a cancel raises RuntimeError(Cancelled)

  Method<> ShowOpen, ShowSave;
};

enum DialogFlag {
  dlgHideReadOnly = 4,
  dlgExtensionDifferent = 0x400,  ///< after the call: the extension is not the default one
  dlgFileMustExist = 0x1000,
};

/// Pictures by number, from 1.
struct ImageList {
  std::vector<PictureId> Pictures;
  PictureId ListImage(int iNumber) const { return Pictures.at(static_cast<size_t>(iNumber - 1)); }
};

struct Screen {
  QProperty<int> MousePointer{ptrDefault};  ///< overrides every control's pointer unless default
  QProperty<float> Width{0}, Height{0};     ///< of the primary monitor; the view writes them
};

struct Application {
  QString Title;
};

/// On every monitor.
constexpr int iTwipsPerPixel = 15;

}  // namespace glidetrak
