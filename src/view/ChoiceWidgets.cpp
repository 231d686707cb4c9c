#include "view/ChoiceWidgets.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QListWidget>
#include <QScrollBar>

#include "view/EventRelay.h"
#include "view/Fire.h"
#include "view/Observe.h"
#include "view/TextColours.h"
#include "view/Units.h"

namespace glidetrak {

namespace {

/// Tells the mouse after its own answer, so that a press finds the entry under it chosen.
class ListBoxWidget : public QListWidget {
 public:
  ListBoxWidget(ListBox& box, QWidget* pParent) : QListWidget(pParent), m_box(box) {
    viewport()->setMouseTracking(true);
  }

 protected:
  bool viewportEvent(QEvent* pEvent) override {
    const bool bAnswered = QListWidget::viewportEvent(pEvent);
    if (IsMouseEvent(*pEvent)) RelayMouse(m_box, *this, static_cast<QMouseEvent&>(*pEvent));
    return bAnswered;
  }

 private:
  ListBox& m_box;
};

/// The drop-down is as wide as its longest entry, whatever the width of the box.
void FillComboBox(QComboBox* pWidget, const ComboBox& box) {
  const QSignalBlocker blocker(pWidget);
  pWidget->clear();
  pWidget->addItems(box.List);
  pWidget->setCurrentIndex(box.ListIndex);
  QAbstractItemView* pView = pWidget->view();
  pView->setMinimumWidth(pView->sizeHintForColumn(0) +
                         pView->verticalScrollBar()->sizeHint().width());
}

/// Closing waits for no one: a list that is not open stays as it is.
void OpenDropDown(QComboBox* pWidget, bool bOpen) {
  if (!bOpen) {
    pWidget->hidePopup();
  } else if (pWidget->isVisible() && pWidget->isEnabled()) {
    pWidget->showPopup();
  }
}

void FillListBox(QListWidget* pWidget, const ListBox& box) {
  const QSignalBlocker blocker(pWidget);
  pWidget->clear();
  pWidget->addItems(box.List);
  pWidget->setCurrentRow(box.ListIndex);
}

}  // namespace

QWidget* MakeComboBox(ComboBox& box, QWidget* pParent) {
  auto* pWidget = new QComboBox(pParent);
  Observe(pWidget, box.List, [pWidget, &box] { FillComboBox(pWidget, box); });
  Observe(pWidget, box.ListIndex, [pWidget, &box] { pWidget->setCurrentIndex(box.ListIndex); });
  box.OpenDropDown = [pWidget](bool bOpen) { OpenDropDown(pWidget, bOpen); };
  QObject::connect(pWidget, &QComboBox::activated, pWidget, [&box](int iIndex) {
    box.ListIndex = iIndex;
    Fire(box.Click);
  });
  RelayActive(pWidget, box);
  return pWidget;
}

QWidget* MakeListBox(ListBox& box, QWidget* pParent) {
  auto* pWidget = new ListBoxWidget(box, pParent);
  Observe(pWidget, box.List, [pWidget, &box] { FillListBox(pWidget, box); });
  Observe(pWidget, box.ListIndex, [pWidget, &box] {
    const QSignalBlocker blocker(pWidget);
    pWidget->setCurrentRow(box.ListIndex);
  });
  Observe(pWidget, box.BackColor,
          [pWidget, &box] { ShowTextColours(pWidget, ColourOf(box.BackColor)); });
  QObject::connect(pWidget, &QListWidget::currentRowChanged, pWidget, [&box](int iRow) {
    box.ListIndex = iRow;
    Fire(box.Click);
  });
  RelayKeys(pWidget, box);
  return pWidget;
}

}  // namespace glidetrak
