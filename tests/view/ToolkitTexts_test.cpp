// What a Spanish user reads in the toolkit's own dialogs.

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QRegularExpression>
#include <QStyledItemDelegate>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>

#include "strings/LanguageFunctions.h"
#include "strings/ResourceStrings.h"
#include "view/ViewTest.h"

namespace glidetrak {
namespace {

/// A delegate's own answer to what stands in a cell.
class Cell : public QStyledItemDelegate {
 public:
  static QString Text(const QTreeView* pList, const QModelIndex& index) {
    const auto Ask = &Cell::initStyleOption;
    const auto* pDelegate = qobject_cast<QStyledItemDelegate*>(pList->itemDelegateForIndex(index));
    QStyleOptionViewItem option;
    if (pDelegate != nullptr) (pDelegate->*Ask)(&option, index);
    return option.text;
  }
};

/// All that the dialog says: labels, buttons with their tips, entries of menus, heads of columns.
QStringList TextsOf(const QFileDialog* pBox) {
  QStringList aTexts;
  for (const QLabel* pLabel : pBox->findChildren<QLabel*>()) aTexts.append(pLabel->text());
  for (const QAction* pAction : pBox->findChildren<QAction*>()) aTexts.append(pAction->text());
  for (const QWidget* pWidget : pBox->findChildren<QWidget*>()) {
    aTexts.append(
        {pWidget->toolTip(), pWidget->accessibleName(), pWidget->accessibleDescription()});
  }
  for (const QAbstractButton* pButton : pBox->findChildren<QAbstractButton*>()) {
    aTexts.append(pButton->text());
  }
  const auto* pList = pBox->findChild<QTreeView*>("treeView");
  for (int i = 0; i < pList->model()->columnCount(); ++i) {
    aTexts.append(pList->model()->headerData(i, Qt::Horizontal).toString());
  }
  aTexts.removeAll("");
  return aTexts;
}

class SpanishDialogs : public ViewTest {
 protected:
  SpanishDialogs() {
    SetUILanguage(iSpanish);
    QDir(m_folder.path()).mkdir("carpeta");
    QFile file(m_folder.filePath("PLAN.GTP"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(3000, ' '));
    file.flush();
    file.setFileTime(QDateTime(QDate(2026, 3, 9), QTime(17, 5)), QFileDevice::FileModificationTime);
    for (FileDialog* pDialog : {&cmLoad, &cmSave}) {
      pDialog->InitDir = m_machine.StationPath(m_folder.path());
      pDialog->Filter = "Programa de control (*.GTP)|*.GTP";
    }
  }

  /// Shows the dialog, looks at it once its list is filled, and closes it.
  static void Look(const std::function<void()>& show,
                   const std::function<void(QFileDialog*)>& look) {
    bool bLooked = false;
    QTimer::singleShot(0, MainWindow(), [&] {
      auto* pBox = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(pBox, nullptr);
      const auto* pList = pBox->findChild<QTreeView*>("treeView");
      EXPECT_TRUE(
          QTest::qWaitFor([&] { return pList->model()->rowCount(pList->rootIndex()) == 2; }));
      look(pBox);
      bLooked = true;
      pBox->reject();
    });
    show();
    EXPECT_TRUE(bLooked);
  }

  static QString CellText(const QFileDialog* pBox, const QString& sName, int iColumn) {
    const auto* pList = pBox->findChild<QTreeView*>("treeView");
    for (int i = 0; i < 2; ++i) {
      const QModelIndex name = pList->model()->index(i, 0, pList->rootIndex());
      if (name.data().toString() == sName) {
        return Cell::Text(pList, name.siblingAtColumn(iColumn));
      }
    }
    return "(no such file)";
  }

  QTemporaryDir m_folder;
};

/// The words of the whole: "archivo" and "carpeta", with no English among them.
const QRegularExpression OtherWords(
    "[Ff]ic&?heros?|[Dd]irectori[oa]|\\b(File|Folder|Files|Look|Name|Size|Type|Date|Open|Save|"
    "Cancel|Back|Forward|Show|View|Parent|Create|New|Rename|Delete)\\b");

TEST_F(SpanishDialogs, SpeakOfArchivoAndCarpetaAndHaveNoEnglishWord) {
  for (const auto& show : {cmLoad.ShowOpen, cmSave.ShowSave}) {
    Look(show, [](const QFileDialog* pBox) {
      const QStringList aTexts = TextsOf(pBox);
      EXPECT_EQ(aTexts.filter(OtherWords), QStringList());
      for (const char* sText :
           {"Carpeta:", "&Nombre de archivo:", "Archivos de tipo:", "Mostrar los archivos &ocultos",
            "Carpeta superior", "Cancelar", "Nombre", "Tamaño", "Tipo", "Modificado"}) {
        EXPECT_TRUE(aTexts.contains(sText)) << sText;
      }
    });
  }
}

TEST_F(SpanishDialogs, NameFoldersAndWriteSizesAndDatesTheSpanishWay) {
  Look(cmLoad.ShowOpen, [](const QFileDialog* pBox) {
    EXPECT_EQ(CellText(pBox, "carpeta", 1), "");
    EXPECT_EQ(CellText(pBox, "carpeta", 2), "Carpeta");
    EXPECT_EQ(CellText(pBox, "PLAN.GTP", 1), "2,93 KiB");
    EXPECT_EQ(CellText(pBox, "PLAN.GTP", 3), "9/3/26 17:05");
  });
}

}  // namespace
}  // namespace glidetrak
