#include "transcript/Clicks.h"

#include "form/ControlTable.h"
#include "form/frmGlidetrak.h"

namespace glidetrak {

namespace {

bool IsLive(const Control& control) {
  return control.Visible && control.Enabled;
}

const ControlRow* FindRow(const Control* pControl) {
  for (const ControlRow& row : MainFormTable()) {
    if (AsControl(row.control) == pControl) return &row;
  }
  return nullptr;
}

bool IsLiveOnForm(const Control* pControl) {
  while (pControl != &frmGlidetrak) {
    const ControlRow* pRow = FindRow(pControl);
    if (pRow == nullptr || !IsLive(*pControl)) return false;
    pControl = pRow->pContainer;
  }
  return IsLive(frmGlidetrak);
}

bool IsLiveInMenu(const Control* pControl) {
  for (const MenuRow& row : MenuTable()) {
    if (row.pItem != pControl) continue;
    return IsLive(*row.pItem) && (row.pHead == nullptr || IsLive(*row.pHead));
  }
  return false;
}

bool IsReachable(const Control* pControl) {
  return pControl != nullptr && (IsLiveOnForm(pControl) || IsLiveInMenu(pControl));
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
  return IsReachable(FindControl(sName));
}

void ClickControl(const QString& sName) {
  Control* pControl = FindControl(sName);
  if (!IsReachable(pControl)) return;
  const float fX = pControl->Width / 2;
  const float fY = pControl->Height / 2;
  pControl->MouseDown(mouseLeft, fX, fY);
  Press(sName);
  pControl->MouseUp(mouseLeft, fX, fY);
  pControl->Click();
}

}  // namespace glidetrak
