#include "transcript/Clicks.h"

#include "form/ControlTable.h"
#include "form/frmGlidetrak.h"

namespace glidetrak {

namespace {

/// A control or an entry of the menu.
template <class Kind>
bool IsLive(const Kind& component) {
  return component.Visible && component.Enabled;
}

const ControlRow* FindRow(const Control* pControl) {
  for (const ControlRow& row : MainFormTable()) {
    if (AsControl(row.control) == pControl) return &row;
  }
  return nullptr;
}

bool IsLiveOnForm(const Control* pControl) {
  if (pControl == nullptr) return false;
  while (pControl != &frmGlidetrak) {
    const ControlRow* pRow = FindRow(pControl);
    if (pRow == nullptr || !IsLive(*pControl)) return false;
    pControl = pRow->pContainer;
  }
  return IsLive(frmGlidetrak);
}

const MenuRow* FindEntry(const QString& sName) {
  for (const MenuRow& row : MenuTable()) {
    if (sName == row.sName) return &row;
  }
  return nullptr;
}

bool IsLiveInMenu(const MenuRow* pRow) {
  if (pRow == nullptr) return false;
  return IsLive(*pRow->pItem) && (pRow->pHead == nullptr || IsLive(*pRow->pHead));
}

/// An image button tells of the press ahead of its click.
void Press(const QString& sName) {
  for (const ControlRow& row : MainFormTable()) {
    ImageButton* const* ppButton = std::get_if<ImageButton*>(&row.control);
    if (ppButton != nullptr && sName == row.sName) (*ppButton)->Press();
  }
}

}  // namespace

bool IsReachable(const QString& sName) {
  return IsLiveOnForm(FindControl(sName)) || IsLiveInMenu(FindEntry(sName));
}

void ClickControl(const QString& sName) {
  if (!IsReachable(sName)) return;
  if (const MenuRow* pEntry = FindEntry(sName)) return pEntry->pItem->Click();
  Control* pControl = FindControl(sName);
  const float fX = pControl->Width / 2;
  const float fY = pControl->Height / 2;
  pControl->MouseDown(mouseLeft, fX, fY);
  Press(sName);
  pControl->MouseUp(mouseLeft, fX, fY);
  pControl->Click();
}

}  // namespace glidetrak
