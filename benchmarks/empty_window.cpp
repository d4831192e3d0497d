// SPDX-License-Identifier: GPL-2.0-or-later

// What the start of the program with the window is measured against: the least that a program with a window
// of the same toolkit can do. With the argument "furnished" the window has a menu, fields, buttons, a list
// without rows and a status bar, so that fonts are loaded and texts laid out.
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

void furnish(QMainWindow& window) {
  for (const char* caption : {"&File", "&View", "&Help"})
    window.menuBar()->addMenu(QString::fromLatin1(caption));
  auto* inside = new QWidget;
  auto* layout = new QVBoxLayout(inside);
  for (const char* text : {"words", "50"}) layout->addWidget(new QLineEdit(QString::fromLatin1(text)));
  layout->addWidget(new QPushButton(QStringLiteral("&Find")));
  layout->addWidget(new QTreeView);
  window.setCentralWidget(inside);
  window.statusBar()->showMessage(QStringLiteral("Ready"));
}

}  // namespace

int main(int argumentCount, char** arguments) {
  const QApplication application(argumentCount, arguments);
  QMainWindow window;
  window.resize(800, 600);
  if (QCoreApplication::arguments().contains(QStringLiteral("furnished"))) furnish(window);
  window.show();
  return QApplication::exec();
}
