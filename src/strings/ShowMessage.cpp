#include "strings/ShowMessage.h"

#include "strings/ResourceText.h"

namespace glidetrak {

void ShowMessage(int iText, int iTitle, BoxIcon icon) {
  ShowMessage(LoadText(iText), LoadText(iTitle), icon);
}

void ShowMessage(const QString& sText, const QString& sTitle, BoxIcon icon) {
  pDesktop->ShowBox(sText, sTitle, icon, BoxButtons::Ok);
}

bool AskYesNo(const QString& sText, const QString& sTitle) {
  return pDesktop->ShowBox(sText, sTitle, BoxIcon::Question, BoxButtons::YesNo) == BoxAnswer::Yes;
}

}  // namespace glidetrak
