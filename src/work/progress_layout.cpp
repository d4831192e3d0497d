#include "work/progress_layout.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace quorvin {

void layOutProgress(QDialog& dialog, const QList<QWidget*>& rows, QLabel& detail, QPushButton& cancel,
                    int characters) {
  dialog.setAttribute(Qt::WA_ShowWithoutActivating);
  // Of a size that never changes: no button to make it larger.
  dialog.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                        Qt::WindowCloseButtonHint);
  detail.setTextFormat(Qt::PlainText);
  detail.setForegroundRole(QPalette::PlaceholderText);
  cancel.setObjectName(QStringLiteral("CancelButton"));

  auto* lastRow = new QHBoxLayout;
  lastRow->addWidget(&detail, 1);
  lastRow->addWidget(&cancel);
  auto* layout = new QVBoxLayout(&dialog);
  for (QWidget* row : rows) layout->addWidget(row);
  layout->addLayout(lastRow);
  // The texts change all the time; the window must not change with them.
  layout->setSizeConstraint(QLayout::SetNoConstraint);
  dialog.setFixedSize(dialog.fontMetrics().averageCharWidth() * characters, layout->sizeHint().height());
}

}  // namespace quorvin
