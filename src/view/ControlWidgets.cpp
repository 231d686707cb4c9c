#include "view/ControlWidgets.h"

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QRadioButton>

#include "form/frmGlidetrak.h"
#include "view/ChoiceWidgets.h"
#include "view/EventRelay.h"
#include "view/Fire.h"
#include "view/Fonts.h"
#include "view/ImageButtonWidget.h"
#include "view/Labels.h"
#include "view/Observe.h"
#include "view/PictureWidget.h"
#include "view/Pointers.h"
#include "view/TextWidgets.h"
#include "view/Timers.h"
#include "view/Units.h"

namespace glidetrak {

namespace {

/// Where a widget comes to stand and how it writes.
struct Setting {
  QWidget* pParent;
  QFont font;
};

bool IsFloating(const PictureBox& panel) {
  return &panel == &pnlMessage || &panel == &pnlCommandSel || &panel == &pnlDebug;
}

/// A panel with a picture of its own shows what lies behind where the picture is transparent.
QWidget* MakeWidget(PictureBox& box, const Setting& setting) {
  auto* pWidget = new PictureWidget(setting.pParent);
  const auto show = [pWidget, &box] {
    const bool bPlain = box.Picture.value() == PictureId::None;
    pWidget->ShowBackground(bPlain ? ColourOf(box.BackColor) : QColor());
    pWidget->ShowPicture(box.Picture, Fit::KeepProportions);
  };
  Observe(pWidget, box.Picture, show);
  ObserveChanges(pWidget, box.BackColor, show);
  if (IsFloating(box)) pWidget->ShowBorder(ColourOf(lGrey));
  RelayPassive(pWidget, box);
  return pWidget;
}

QWidget* MakeWidget(Image& image, const Setting& setting) {
  auto* pWidget = new PictureWidget(setting.pParent);
  Observe(pWidget, image.Picture,
          [pWidget, &image] { pWidget->ShowPicture(image.Picture, Fit::Stretch); });
  RelayPassive(pWidget, image);
  return pWidget;
}

QWidget* MakeWidget(Label& label, const Setting& setting) {
  QWidget* pWidget = MakeLabel(label, setting.font, setting.pParent);
  RelayPassive(pWidget, label);
  return pWidget;
}

QWidget* MakeWidget(TextBox& box, const Setting& setting) {
  return MakeTextBox(box, setting.font, setting.pParent);
}

QWidget* MakeWidget(ImageButton& button, const Setting& setting) {
  auto* pWidget = new ImageButtonWidget(setting.pParent);
  pWidget->setFocusPolicy(Qt::StrongFocus);
  Observe(pWidget, button.Picture, [pWidget, &button] { pWidget->ShowPicture(button.Picture); });
  Observe(pWidget, button.Caption, [pWidget, &button] { pWidget->setText(button.Caption); });
  Observe(pWidget, button.ForeColor,
          [pWidget, &button] { pWidget->ShowForeColour(ColourOf(button.ForeColor)); });
  QObject::connect(pWidget, &QAbstractButton::pressed, pWidget, [&button] { Fire(button.Press); });
  QObject::connect(pWidget, &QAbstractButton::clicked, pWidget, [&button] { Fire(button.Click); });
  RelayActive(pWidget, button);
  return pWidget;
}

QWidget* MakeWidget(ComboBox& box, const Setting& setting) {
  return MakeComboBox(box, setting.pParent);
}

QWidget* MakeWidget(ListBox& box, const Setting& setting) {
  return MakeListBox(box, setting.pParent);
}

QWidget* MakeWidget(Shape& shape, const Setting& setting) {
  auto* pWidget = new PictureWidget(setting.pParent);
  pWidget->ShowBorder(Qt::black);
  Observe(pWidget, shape.FillColor,
          [pWidget, &shape] { pWidget->ShowBackground(ColourOf(shape.FillColor)); });
  RelayPassive(pWidget, shape);
  return pWidget;
}

/// A line of no height is drawn one pixel high.
QWidget* MakeWidget(Line& line, const Setting& setting) {
  auto* pWidget = new PictureWidget(setting.pParent);
  pWidget->ShowBackground(ColourOf(lGrey));
  pWidget->setMinimumSize(1, 1);
  RelayPassive(pWidget, line);
  return pWidget;
}

/// A display of the debug panel: it shows its value and takes neither mouse nor keys.
template <class Button, class Box>
QWidget* MakeDisplay(Box& box, QWidget* pParent) {
  auto* pWidget = new Button(pParent);
  pWidget->setFocusPolicy(Qt::NoFocus);
  QPalette palette = pWidget->palette();
  palette.setColor(QPalette::WindowText, Qt::white);
  pWidget->setPalette(palette);
  Observe(pWidget, box.Caption, [pWidget, &box] { pWidget->setText(box.Caption); });
  Observe(pWidget, box.Value, [pWidget, &box] { pWidget->setChecked(box.Value); });
  RelayPassive(pWidget, box);
  return pWidget;
}

/// Not exclusive by itself: the two members of a pair follow their own values.
QWidget* MakeWidget(OptionButton& button, const Setting& setting) {
  auto* pWidget = static_cast<QRadioButton*>(MakeDisplay<QRadioButton>(button, setting.pParent));
  pWidget->setAutoExclusive(false);
  return pWidget;
}

QWidget* MakeWidget(CheckBox& box, const Setting& setting) {
  return MakeDisplay<QCheckBox>(box, setting.pParent);
}

/// Text that looks like markup is told as it stands.
QString PlainTip(const QString& sText) {
  if (!Qt::mightBeRichText(sText)) return sText;
  return QString("<qt>%1</qt>").arg(sText.toHtmlEscaped());
}

/// Where the mouse is over the widget: a box with scroll bars has its text in a window of its own.
QWidget* MouseArea(QWidget* pWidget) {
  auto* pArea = qobject_cast<QAbstractScrollArea*>(pWidget);
  return pArea ? pArea->viewport() : pWidget;
}

class ControlMaker {
 public:
  ControlMaker(QWidget* pClient, FocusKeeper& focus) : m_pClient(pClient), m_focus(focus) {}

  void MakeRow(const ControlRow& row) {
    QWidget* pParent = m_aPanels.value(row.pContainer, m_pClient);
    const Setting setting{pParent, MakeFont(row.font)};
    if (row.iMembers == 1) {
      Make(row.sName, row.control, setting);
      return;
    }
    for (const MemberRow& member : MemberTable()) {
      if (QString(member.sArray) != row.sName) continue;
      Make(QString("%1_%2").arg(member.sArray).arg(member.iIndex), member.control, setting);
    }
  }

 private:
  void Make(const QString& sName, const ControlRef& control, const Setting& setting) {
    std::visit([&](auto* pControl) { MakeOne(sName, *pControl, setting); }, control);
  }

  template <class Kind>
  void MakeOne(const QString& sName, Kind& control, const Setting& setting) {
    QWidget* pWidget = MakeWidget(control, setting);
    pWidget->setObjectName(sName);
    pWidget->setFont(setting.font);
    ObservePlace(pWidget, control, [pWidget, &control] { pWidget->setGeometry(PlaceOf(control)); });
    WireControl(pWidget, control, m_focus);
    m_aPanels.insert(&control, pWidget);
  }

  /// A label sees to its own place and font.
  void MakeOne(const QString& sName, Label& label, const Setting& setting) {
    QWidget* pWidget = MakeWidget(label, setting);
    pWidget->setObjectName(sName);
    WireControl(pWidget, label, m_focus);
  }

  void MakeOne(const QString& sName, Timer& timer, const Setting&) {
    DriveTimer(m_pClient, sName, timer);
  }

  void MakeOne(const QString&, Form&, const Setting&) {}
  void MakeOne(const QString&, FileDialog&, const Setting&) {}
  void MakeOne(const QString&, ImageList&, const Setting&) {}

  QWidget* m_pClient;
  FocusKeeper& m_focus;
  QHash<const Control*, QWidget*> m_aPanels;
};

}  // namespace

void MakeControls(std::span<const ControlRow> rows, QWidget* pClient, FocusKeeper& focus) {
  ControlMaker maker(pClient, focus);
  for (const ControlRow& row : rows) maker.MakeRow(row);
}

void WireControl(QWidget* pWidget, Control& control, FocusKeeper& focus) {
  Observe(pWidget, control.Visible, [pWidget, &control] { pWidget->setVisible(control.Visible); });
  Observe(pWidget, control.Enabled, [pWidget, &control] { pWidget->setEnabled(control.Enabled); });
  Observe(pWidget, control.ToolTipText,
          [pWidget, &control] { pWidget->setToolTip(PlainTip(control.ToolTipText)); });
  ObservePointer(MouseArea(pWidget), control);
  focus.Watch(pWidget, control);
  control.Refresh = [pWidget] { pWidget->repaint(); };
}

}  // namespace glidetrak
