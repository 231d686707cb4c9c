#include "strings/ShowMessage.h"

#include "strings/ResourceText.h"

namespace glidetrak {

void ShowMessage(TextId idText, TextId idTitle, BoxIcon icon, BoxPlace place) {
  ShowMessage(LoadText(idText), LoadText(idTitle), icon, place);
}

void ShowMessage(const QString& sText, const QString& sTitle, BoxIcon icon, BoxPlace place) {
  pDesktop->ShowBox(sText, sTitle, icon, BoxButtons::Ok, place);
}

bool AskYesNo(const QString& sText, const QString& sTitle) {
  return pDesktop->ShowBox(sText, sTitle, BoxIcon::Question, BoxButtons::YesNo) == BoxAnswer::Yes;
}

}  // namespace glidetrak
