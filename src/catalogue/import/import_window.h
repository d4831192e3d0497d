// SPDX-License-Identifier: GPL-2.0-or-later

// The window that turns lists of other programs into listings.
#pragma once

#include "catalogue/import/import_job.h"
#include "catalogue/import/list_recognition.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGridLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QThreadPool>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace quorvin {

/// What the window works with. All of it must outlive the window.
struct ImportWindowParts {
  /// Where lists are read. A thread that waits for a drive is left to itself when the window closes.
  QThreadPool& threads;
  /// The folder for the listings at first: the data folder of the program (see ImportChoices).
  QString dataFolder;
  /// See ImportChoices; asked in another thread.
  std::function<bool(const QString& path)> isOwnFile;
  /// Asks the user for lists; none when the user cancels.
  std::function<QStringList()> pickLists;
  /// Asks the user for a folder, with the one that is chosen now; nothing when the user cancels.
  std::function<std::optional<QString>(const QString& folder)> pickFolder;
  /// Adds listings to those that are searched. What there is to say of that; empty when all were added or
  /// there already.
  std::function<QString(const QStringList& listings)> addListings;
};

/// The window `ImportWindow`: lists, what is known of them, and where their listings go. Import reads them in
/// another thread, and is Stop meanwhile. Behind each list stands as what it is going to be read; beneath, as
/// what it was read, and what its listing lacks. Lists can be dropped on the window; Delete takes one out
/// again.
class ImportWindow : public QDialog {
  Q_OBJECT

 public:
  ImportWindow(ImportWindowParts parts, QWidget* owner);
  ~ImportWindow() override;

  /// Ends what goes on, and closes the window.
  void done(int result) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void nameControls();
  void describeControls();
  void layOut();
  QGridLayout* makeFields();
  void connectControls();
  void addLists(const QStringList& lists);
  void removeSelected();
  void browse();
  void enableFields();
  const ListFormat* chosenFormat() const;
  ImportRequest request() const;
  void Import_Click();
  void start();
  void letGo();
  void look();
  void showResult();
  QStringList listNames() const;
  void recognise();
  void lookAtRecognition();

  ImportWindowParts parts_;
  QListWidget* lists_;
  QPushButton* add_;
  QPushButton* remove_;
  QComboBox* format_;
  QLineEdit* columns_;
  QComboBox* encoding_;
  QComboBox* dates_;
  QLineEdit* made_;
  QLineEdit* folder_;
  QLineEdit* volume_;
  QLineEdit* output_;
  QPushButton* browse_;
  QCheckBox* bytes_;
  QCheckBox* replace_;
  QCheckBox* search_;
  QPlainTextEdit* report_;
  QPushButton* import_;
  QPushButton* close_;
  /// While it is there, the button is Stop.
  std::shared_ptr<ImportJob> job_;
  QTimer watch_;
  std::shared_ptr<ListRecognition> recognition_;
  QTimer watchRecognition_;
};

}  // namespace quorvin
