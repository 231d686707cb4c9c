#include "view/FileColumns.h"

#include <QDateTime>
#include <QFileSystemModel>
#include <QLocale>
#include <QStyledItemDelegate>
#include <QTreeView>

namespace glidetrak {

namespace {

constexpr int iSizeColumn = 1;
constexpr int iDateColumn = 3;

QString ColumnText(const QFileSystemModel& files, const QModelIndex& index) {
  if (index.column() == iDateColumn) {
    return QLocale().toString(files.lastModified(index), QLocale::ShortFormat);
  }
  return files.isDir(index) ? QString() : QLocale().formattedDataSize(files.size(index));
}

class LocalisedColumn : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* pOption, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(pOption, index);
    const auto* pFiles = qobject_cast<const QFileSystemModel*>(index.model());
    if (pFiles != nullptr) pOption->text = ColumnText(*pFiles, index);
  }
};

}  // namespace

void LocaliseColumns(QFileDialog& box) {
  auto* pList = box.findChild<QTreeView*>("treeView");
  if (pList == nullptr) return;
  for (const int iColumn : {iSizeColumn, iDateColumn}) {
    pList->setItemDelegateForColumn(iColumn, new LocalisedColumn(pList));
  }
}

}  // namespace glidetrak
