// What windows look like that show how far a long piece of work has come.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QList>
#include <QPushButton>

namespace quorvin {

/// Lays `rows` out in `dialog`, one below the other, and in a last row `detail` in a dim colour with
/// `cancel`, which becomes the `CancelButton`. The dialog takes no focus when it is shown, and keeps its
/// size, `characters` wide, whatever its texts become.
void layOutProgress(QDialog& dialog, const QList<QWidget*>& rows, QLabel& detail, QPushButton& cancel,
                    int characters);

}  // namespace quorvin
