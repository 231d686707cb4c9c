#include "view/MenuBar.h"

#include <QAction>
#include <QMenu>

#include "form/ControlTable.h"
#include "view/Fire.h"
#include "view/Observe.h"

namespace glidetrak {

namespace {

void WireItem(QAction* pAction, const char* sName, MenuItem& item) {
  pAction->setObjectName(sName);
  Observe(pAction, item.Caption, [pAction, &item] { pAction->setText(item.Caption); });
  Observe(pAction, item.Visible, [pAction, &item] { pAction->setVisible(item.Visible); });
  Observe(pAction, item.Enabled, [pAction, &item] { pAction->setEnabled(item.Enabled); });
  QObject::connect(pAction, &QAction::triggered, pAction, [&item] { Fire(item.Click); });
}

int HeightOf(QMenuBar* pBar) {
  QAction* pSample = pBar->addAction("Sample");
  const int iHeight = pBar->sizeHint().height();
  delete pSample;
  return iHeight;
}

}  // namespace

void FillMenuBar(QMenuBar* pBar) {
  pBar->setFixedHeight(HeightOf(pBar));
  QHash<const MenuItem*, QMenu*> aHeads;
  for (const MenuRow& row : MenuTable()) {
    if (row.pHead) {
      WireItem(aHeads.value(row.pHead)->addAction(QString()), row.sName, *row.pItem);
    } else {
      QMenu* pMenu = pBar->addMenu(QString());
      aHeads.insert(row.pItem, pMenu);
      WireItem(pMenu->menuAction(), row.sName, *row.pItem);
    }
  }
}

}  // namespace glidetrak
