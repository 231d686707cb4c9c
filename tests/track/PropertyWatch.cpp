#include "track/PropertyWatch.h"

#include "form/ControlTable.h"
#include "form/frmGlidetrak.h"

namespace glidetrak {

PropertyWatch::PropertyWatch(std::function<void(const QString&)> tell) : m_tell(std::move(tell)) {
  const auto watch = [this](const ControlRef& control, const QString& sName) {
    if (Control* pControl = AsControl(control)) WatchControl(*pControl, sName);
    std::visit([&](auto* pControl) { WatchKind(*pControl, sName); }, control);
  };
  for (const ControlRow& row : MainFormTable()) {
    if (row.iMembers == 1) watch(row.control, row.sName);
  }
  for (const MemberRow& row : MemberTable()) {
    watch(row.control, QString("%1_%2").arg(row.sArray).arg(row.iIndex));
  }
  for (const MenuRow& row : MenuTable()) {
    const QString sName = row.sName;
    Watch(row.pItem->Caption, sName + ".Caption");
    Watch(row.pItem->Visible, sName + ".Visible");
    Watch(row.pItem->Enabled, sName + ".Enabled");
  }
  Watch(screen.MousePointer, "screen.MousePointer");
}

void PropertyWatch::WatchControl(Control& control, const QString& sName) {
  Watch(control.Left, sName + ".Left");
  Watch(control.Top, sName + ".Top");
  Watch(control.Width, sName + ".Width");
  Watch(control.Height, sName + ".Height");
  Watch(control.Visible, sName + ".Visible");
  Watch(control.Enabled, sName + ".Enabled");
  Watch(control.ToolTipText, sName + ".ToolTipText");
  Watch(control.MousePointer, sName + ".MousePointer");
  Watch(control.BackColor, sName + ".BackColor");
}

void PropertyWatch::WatchKind(Form& form, const QString& sName) {
  Watch(form.Caption, sName + ".Caption");
  Watch(form.WindowState, sName + ".WindowState");
}

void PropertyWatch::WatchKind(PictureBox& box, const QString& sName) {
  Watch(box.Picture, sName + ".Picture");
}

void PropertyWatch::WatchKind(Image& image, const QString& sName) {
  Watch(image.Picture, sName + ".Picture");
}

void PropertyWatch::WatchKind(Label& label, const QString& sName) {
  Watch(label.Caption, sName + ".Caption");
  Watch(label.ForeColor, sName + ".ForeColor");
}

void PropertyWatch::WatchKind(TextBox& box, const QString& sName) {
  const auto before = box.TextSet.Function();
  box.TextSet = [this, before, sName] {
    if (before) before();
    m_tell(sName + ".Text");
  };
}

void PropertyWatch::WatchKind(ImageButton& button, const QString& sName) {
  Watch(button.Caption, sName + ".Caption");
  Watch(button.Picture, sName + ".Picture");
  Watch(button.ForeColor, sName + ".ForeColor");
}

void PropertyWatch::WatchKind(ComboBox& box, const QString& sName) {
  Watch(box.List, sName + ".List");
  Watch(box.ListIndex, sName + ".ListIndex");
}

void PropertyWatch::WatchKind(ListBox& box, const QString& sName) {
  Watch(box.List, sName + ".List");
  Watch(box.ListIndex, sName + ".ListIndex");
}

void PropertyWatch::WatchKind(Shape& shape, const QString& sName) {
  Watch(shape.FillColor, sName + ".FillColor");
}

void PropertyWatch::WatchKind(OptionButton& button, const QString& sName) {
  Watch(button.Value, sName + ".Value");
}

void PropertyWatch::WatchKind(CheckBox& box, const QString& sName) {
  Watch(box.Value, sName + ".Value");
}

void PropertyWatch::WatchKind(Timer& timer, const QString& sName) {
  Watch(timer.Enabled, sName + ".Enabled");
  Watch(timer.Interval, sName + ".Interval");
}

void PropertyWatch::WatchKind(Line& /*line*/, const QString& /*sName*/) {}

void PropertyWatch::WatchKind(FileDialog& /*dialog*/, const QString& /*sName*/) {}

void PropertyWatch::WatchKind(ImageList& /*list*/, const QString& /*sName*/) {}

}  // namespace glidetrak
