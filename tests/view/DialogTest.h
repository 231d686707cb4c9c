#pragma once

// The file dialogs over a folder of their own, with a hand that types names into them.

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

#include "view/ViewTest.h"

namespace glidetrak {

class Dialogs : public ViewTest {
 protected:
  Dialogs() {
    for (FileDialog* pDialog : {&cmLoad, &cmSave}) {
      pDialog->InitDir = m_machine.StationPath(m_folder.path());
      pDialog->Filter = "Program (*.GTP)|*.GTP|Old program (*.TXT)|*.TXT";
      pDialog->DialogTitle = "title";
      pDialog->Flags = dlgFileMustExist | dlgHideReadOnly;
    }
    cmLoad.DefaultExt = "TXT";
    cmLoad.CancelError = true;
    cmSave.DefaultExt = "GTP";
  }

  QString AddFile(const QString& sName) {
    QFile file(m_folder.filePath(sName));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    return StationName(sName);
  }
  QString StationName(const QString& sName) {
    return m_machine.StationPath(m_folder.filePath(sName));
  }

  /// Does something on the dialog that is opened next.
  static void OnDialog(const std::function<void(QFileDialog*)>& act) {
    QTimer::singleShot(0, MainWindow(), [act] {
      auto* pBox = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(pBox, nullptr);
      act(pBox);
    });
  }
  static void TypeName(QFileDialog* pBox, const QString& sName) {
    auto* pName = pBox->findChild<QLineEdit*>("fileNameEdit");
    ASSERT_TRUE(QTest::qWaitForWindowActive(pBox));
    pName->setFocus();  // else the dialog puts the file that it selects meanwhile into its place
    pName->setText(sName);
    QTest::keyClick(pName, Qt::Key_Return);
  }
  static QString OfferedName(const QFileDialog* pBox) {
    return pBox->findChild<QLineEdit*>("fileNameEdit")->text();
  }

  QTemporaryDir m_folder;
};

}  // namespace glidetrak
