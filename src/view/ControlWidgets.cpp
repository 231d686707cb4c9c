#include "view/ControlWidgets.h"

#include <QAbstractScrollArea>

#include "view/ChoiceWidgets.h"
#include "view/Displays.h"
#include "view/EventRelay.h"
#include "view/FileDialogs.h"
#include "view/Fire.h"
#include "view/Fonts.h"
#include "view/ImageButtonWidget.h"
#include "view/Labels.h"
#include "view/Observe.h"
#include "view/PanelWidgets.h"
#include "view/Pointers.h"
#include "view/TextWidgets.h"
#include "view/Timers.h"
#include "view/Units.h"

namespace glidetrak {

namespace {

/// Where a widget comes to stand and what it looks like.
struct Setting {
  QWidget* pParent;
  QFont font;
  Style style;
};

QWidget* MakeWidget(PictureBox& box, const Setting& setting) {
  return MakePictureBox(box, setting.style.bBorder, setting.pParent);
}

QWidget* MakeWidget(Image& image, const Setting& setting) {
  return MakeImage(image, setting.pParent);
}

QWidget* MakeWidget(Label& label, const Setting& setting) {
  QWidget* pWidget = MakeLabel(label, setting.font, setting.style, setting.pParent);
  RelayPassive(pWidget, label);
  return pWidget;
}

QWidget* MakeWidget(TextBox& box, const Setting& setting) {
  return MakeTextBox(box, setting.font, setting.style, setting.pParent);
}

QWidget* MakeWidget(ImageButton& button, const Setting& setting) {
  auto* pWidget = new ImageButtonWidget(setting.pParent);
  pWidget->setFocusPolicy(Qt::StrongFocus);
  Observe(pWidget, button.Picture, [pWidget, &button] { pWidget->ShowPicture(button.Picture); });
  Observe(pWidget, button.Caption, [pWidget, &button] { pWidget->setText(button.Caption); });
  Observe(pWidget, button.ForeColor,
          [pWidget, &button] { pWidget->ShowForeColour(ColourOf(button.ForeColor)); });
  // Both with the click: a box that Press opens while the button is down would swallow the release.
  QObject::connect(pWidget, &QAbstractButton::clicked, pWidget, [&button] {
    Fire(button.Press);
    Fire(button.Click);
  });
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
  return MakeShape(shape, setting.pParent);
}

QWidget* MakeWidget(Line& line, const Setting& setting) {
  return MakeLine(line, setting.pParent);
}

QWidget* MakeWidget(OptionButton& button, const Setting& setting) {
  return MakeOptionButton(button, setting.font, setting.pParent);
}

QWidget* MakeWidget(CheckBox& box, const Setting& setting) {
  return MakeCheckBox(box, setting.font, setting.pParent);
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
    QWidget* pParent = m_aWidgets.value(row.pContainer, m_pClient);
    const Setting setting{pParent, MakeFont(row.font), row.style};
    if (row.iMembers == 1) {
      Make(row.sName, row.control, setting);
      return;
    }
    for (const MemberRow& member : MemberTable()) {
      if (QString(member.sArray) != row.sName) continue;
      Make(QString("%1_%2").arg(member.sArray).arg(member.iIndex), member.control, setting);
    }
  }

  /// The later rows of a lower layer end lowest.
  void Lower(Layer layer, std::span<const ControlRow> rows) {
    for (const MemberRow& row : MemberTable()) {
      if (row.layer == layer) LowerOne(row.control);
    }
    for (const ControlRow& row : rows) {
      if (row.layer == layer) LowerOne(row.control);
    }
  }

  void OrderTab(const ControlRow& row) {
    if (row.pTabFrom == nullptr) return;
    QWidget::setTabOrder(m_aWidgets.value(row.pTabFrom), WidgetOf(row.control));
  }

  void GiveRole(const ControlRow& row) {
    if (row.role == Role::FocusKeeper) m_focus.SetGrab(WidgetOf(row.control));
  }

 private:
  QWidget* WidgetOf(const ControlRef& control) const {
    return m_aWidgets.value(AsControl(control));
  }

  /// The members belong to one of the forms alone.
  void LowerOne(const ControlRef& control) {
    if (QWidget* pWidget = WidgetOf(control)) pWidget->lower();
  }

  void Make(const QString& sName, const ControlRef& control, const Setting& setting) {
    std::visit([&](auto* pControl) { MakeOne(sName, *pControl, setting); }, control);
  }

  template <class Kind>
  void MakeOne(const QString& sName, Kind& control, const Setting& setting) {
    QWidget* pWidget = MakeWidget(control, setting);
    pWidget->setObjectName(sName);
    if (!pWidget->testAttribute(Qt::WA_SetFont)) pWidget->setFont(setting.font);
    ObservePlace(pWidget, control, [pWidget, &control] { pWidget->setGeometry(PlaceOf(control)); });
    WireControl(pWidget, control, m_focus);
    m_aWidgets.insert(&control, pWidget);
  }

  /// A label sees to its own place and font.
  void MakeOne(const QString& sName, Label& label, const Setting& setting) {
    QWidget* pWidget = MakeWidget(label, setting);
    pWidget->setObjectName(sName);
    WireControl(pWidget, label, m_focus);
    m_aWidgets.insert(&label, pWidget);
  }

  void MakeOne(const QString& sName, Timer& timer, const Setting&) {
    DriveTimer(m_pClient, sName, timer);
  }

  void MakeOne(const QString&, FileDialog& dialog, const Setting&) {
    WireFileDialog(dialog, m_pClient->window());
  }

  void MakeOne(const QString&, Form&, const Setting&) {}
  void MakeOne(const QString&, ImageList&, const Setting&) {}

  QWidget* m_pClient;
  FocusKeeper& m_focus;
  QHash<const Control*, QWidget*> m_aWidgets;
};

}  // namespace

void MakeControls(std::span<const ControlRow> rows, QWidget* pClient, FocusKeeper& focus) {
  ControlMaker maker(pClient, focus);
  for (const ControlRow& row : rows) maker.MakeRow(row);
  for (const Layer layer : {Layer::Behind, Layer::Background}) maker.Lower(layer, rows);
  for (const ControlRow& row : rows) {
    maker.OrderTab(row);
    maker.GiveRole(row);
  }
}

void WireControl(QWidget* pWidget, Control& control, FocusKeeper& focus) {
  Observe(pWidget, control.Visible, [pWidget, &control, &focus] {
    if (!control.Visible) focus.TakeFrom(pWidget);
    pWidget->setVisible(control.Visible);
  });
  Observe(pWidget, control.Enabled, [pWidget, &control, &focus] {
    if (!control.Enabled) focus.TakeFrom(pWidget);
    pWidget->setEnabled(control.Enabled);
  });
  Observe(pWidget, control.ToolTipText,
          [pWidget, &control] { pWidget->setToolTip(PlainTip(control.ToolTipText)); });
  ObservePointer(MouseArea(pWidget), control);
  focus.Watch(pWidget, control);
  control.Refresh = [pWidget] { pWidget->repaint(); };
}

}  // namespace glidetrak
