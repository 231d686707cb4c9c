#pragma once

// Tells of every change of every control of the main form, as "lblTimer.Caption".

#include <QProperty>
#include <QString>
#include <functional>
#include <vector>

#include "form/Controls.h"
#include "form/TextBox.h"

namespace glidetrak {

class PropertyWatch {
 public:
  explicit PropertyWatch(std::function<void(const QString&)> tell);

 private:
  template <class Value>
  void Watch(QProperty<Value>& property, const QString& sName) {
    m_aNotifiers.push_back(property.addNotifier([this, sName] { m_tell(sName); }));
  }

  void WatchControl(Control& control, const QString& sName);
  void WatchKind(Form& form, const QString& sName);
  void WatchKind(PictureBox& box, const QString& sName);
  void WatchKind(Image& image, const QString& sName);
  void WatchKind(Label& label, const QString& sName);
  void WatchKind(TextBox& box, const QString& sName);
  void WatchKind(ImageButton& button, const QString& sName);
  void WatchKind(ComboBox& box, const QString& sName);
  void WatchKind(ListBox& box, const QString& sName);
  void WatchKind(Shape& shape, const QString& sName);
  void WatchKind(OptionButton& button, const QString& sName);
  void WatchKind(CheckBox& box, const QString& sName);
  void WatchKind(Timer& timer, const QString& sName);
  void WatchKind(Line& line, const QString& sName);
  void WatchKind(FileDialog& dialog, const QString& sName);
  void WatchKind(ImageList& list, const QString& sName);

  std::function<void(const QString&)> m_tell;
  std::vector<QPropertyNotifier> m_aNotifiers;
};

}  // namespace glidetrak
