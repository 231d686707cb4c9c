#include "view/FileDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>

#include "platform/Platform.h"
#include "view/FileColumns.h"
#include "view/ToolkitTexts.h"
#include "view/TypedName.h"

namespace glidetrak {

namespace {

/// The toolkit takes some names for other files than the one that was typed. Such a text is taken
/// here as the one name that it is.
class NameDialog : public QFileDialog {
 public:
  using QFileDialog::QFileDialog;

  QFileInfo Chosen() const {
    return m_sTyped.isEmpty() ? QFileInfo(selectedFiles().constFirst())
                              : QFileInfo(directory().filePath(m_sTyped));
  }

 protected:
  void accept() override {
    auto* pName = findChild<QLineEdit*>("fileNameEdit");
    const QString sText = BareName(pName->text());
    if (!IsMisreadByToolkit(sText)) {
      if (sText != pName->text()) pName->setText(sText);
      QFileDialog::accept();
      return;
    }
    m_sTyped = QFileInfo(sText).suffix().isEmpty() ? sText + u'.' + defaultSuffix() : sText;
    done(Accepted);
  }

 private:
  QString m_sTyped;  ///< with the default extension where it had none; "" for all other names
};

/// The texts of the filter; each ends in its own pattern, which is where the toolkit reads it.
QStringList NameFilters(const QString& sFilter) {
  const QStringList aParts = sFilter.split(u'|');
  QStringList aFilters;
  for (qsizetype i = 0; i < aParts.size(); i += 2) aFilters.append(aParts[i]);
  return aFilters;
}

/// A pattern in place of a name asks for the files of that pattern, which the filter shows anyway.
void OfferName(QFileDialog& box, const QString& sName) {
  if (sName.isEmpty() || sName.contains(u'*')) return;
  const QFileInfo offered(pMachine->NativePath(sName));
  if (sName.contains(u'\\') && offered.dir().exists()) box.setDirectory(offered.dir());
  box.selectFile(offered.fileName());
}

/// The toolkit's own dialog: the desktop's native one speaks the desktop's language in place of the
/// station's, and some ask before they overwrite.
void Prepare(QFileDialog& box, const FileDialog& dialog) {
  box.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
  LocaliseColumns(box);
  box.setWindowTitle(dialog.DialogTitle);
  box.setNameFilters(NameFilters(dialog.Filter));
  const QStringList aFilters = box.nameFilters();
  if (dialog.FilterIndex >= 1 && dialog.FilterIndex <= aFilters.size()) {
    box.selectNameFilter(aFilters[dialog.FilterIndex - 1]);
  }
  box.setDefaultSuffix(dialog.DefaultExt);
  box.setDirectory(pMachine->NativePath(dialog.InitDir));
  OfferName(box, dialog.FileName);
}

void TakeName(FileDialog& dialog, const QFileInfo& chosen) {
  dialog.FileName = pMachine->StationPath(chosen.filePath());
  dialog.FileTitle = chosen.fileName();
  dialog.Flags &= ~dlgExtensionDifferent;
  if (chosen.suffix().compare(dialog.DefaultExt, Qt::CaseInsensitive) != 0) {
    dialog.Flags |= dlgExtensionDifferent;
  }
}

void Run(NameDialog& box, FileDialog& dialog) {
  Prepare(box, dialog);
  if (box.exec() == QDialog::Accepted) {
    TakeName(dialog, box.Chosen());
    return;
  }
  dialog.FileName.clear();
  dialog.FileTitle.clear();
  if (dialog.CancelError) throw RuntimeError(Fault::Cancelled);
}

void ShowOpen(FileDialog& dialog, QWidget* pWindow) {
  InstallToolkitTexts();
  NameDialog box(pWindow);
  box.setAcceptMode(QFileDialog::AcceptOpen);
  box.setFileMode((dialog.Flags & dlgFileMustExist) != 0 ? QFileDialog::ExistingFile
                                                         : QFileDialog::AnyFile);
  Run(box, dialog);
}

/// New names are welcome whatever the flags say.
void ShowSave(FileDialog& dialog, QWidget* pWindow) {
  InstallToolkitTexts();
  NameDialog box(pWindow);
  box.setAcceptMode(QFileDialog::AcceptSave);
  box.setFileMode(QFileDialog::AnyFile);
  Run(box, dialog);
}

}  // namespace

void WireFileDialog(FileDialog& dialog, QWidget* pWindow) {
  dialog.ShowOpen = [&dialog, pWindow] { ShowOpen(dialog, pWindow); };
  dialog.ShowSave = [&dialog, pWindow] { ShowSave(dialog, pWindow); };
}

}  // namespace glidetrak
