// SPDX-License-Identifier: GPL-2.0-or-later

// The dialogs for picking files and folders, answered as a person would.
#include "editors/dialog_driving.h"
#include "editors/file_picker.h"
#include "support/qt_printing.h"
#include "support/temporary_folder.h"

#include <QAbstractItemView>
#include <QFileDialog>

namespace quorvin::test {

namespace {

class FileDialogs : public testing::Test {
 protected:
  FileDialogs() {
    folder_.writeFile(QStringLiteral("cds.txt"), "a listing");
    folder_.writeFile(QStringLiteral("tapes"), "a listing");
    folder_.makeFolder(QStringLiteral("inner"));
  }

  /// Asks for a file and answers in the dialog.
  std::optional<QString> openFile(const FileQuestion& question,
                                  const std::function<void(QFileDialog&)>& answer) {
    std::optional<QString> path;
    EXPECT_TRUE(duringModal<QFileDialog>([&] { path = DialogFilePicker().openFile(question); }, answer));
    return path;
  }
  std::optional<QString> pickFolder(const FileQuestion& question,
                                    const std::function<void(QFileDialog&)>& answer) {
    std::optional<QString> path;
    EXPECT_TRUE(duringModal<QFileDialog>([&] { path = DialogFilePicker().pickFolder(question); }, answer));
    return path;
  }

  static QLineEdit* nameBox(QFileDialog& dialog) { return dialog.findChild<QLineEdit*>(); }
  static void confirm(QFileDialog& dialog, const QString& name) {
    // Typing key by key would bring up the dialog's list of completions.
    nameBox(dialog)->setText(name);
    QTest::keyClick(nameBox(dialog), Qt::Key_Return);
  }
  FileQuestion question() const {
    return {QStringLiteral("All Files"), folder_.path(), QStringLiteral(".txt")};
  }

  TemporaryFolder folder_;
};

TEST_F(FileDialogs, AFileIsAskedForWithThePrefilledNameInTheFolder) {
  openFile(question(), [this](QFileDialog& dialog) {
    EXPECT_EQ(nameBox(dialog)->text(), QStringLiteral("All Files"));
    EXPECT_EQ(dialog.directory(), QDir(folder_.path()));
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
  });
}

TEST_F(FileDialogs, AnExistingFileIsGivenAsItIsNamed) {
  EXPECT_EQ(openFile(question(), [](QFileDialog& dialog) { confirm(dialog, QStringLiteral("cds.txt")); }),
            folder_.pathOf(QStringLiteral("cds.txt")));
  EXPECT_EQ(openFile(question(), [](QFileDialog& dialog) { confirm(dialog, QStringLiteral("tapes")); }),
            folder_.pathOf(QStringLiteral("tapes")));
}

TEST_F(FileDialogs, AMissingFileGetsTheDefaultExtension) {
  EXPECT_EQ(openFile(question(), [](QFileDialog& dialog) { confirm(dialog, QStringLiteral("disks")); }),
            folder_.pathOf(QStringLiteral("disks.txt")));
}

TEST_F(FileDialogs, CancelGivesNothing) {
  EXPECT_EQ(openFile(question(), [](QFileDialog& dialog) { dialog.reject(); }), std::nullopt);
  EXPECT_EQ(pickFolder(question(), [](QFileDialog& dialog) { dialog.reject(); }), std::nullopt);
}

TEST_F(FileDialogs, AFolderIsPicked) {
  EXPECT_EQ(pickFolder(question(),
                       [](QFileDialog& dialog) {
                         EXPECT_EQ(dialog.fileMode(), QFileDialog::Directory);
                         confirm(dialog, QStringLiteral("inner"));
                       }),
            folder_.pathOf(QStringLiteral("inner")));
}

TEST_F(FileDialogs, SeveralFoldersArePickedAtOnce) {
  folder_.makeFolder(QStringLiteral("other"));
  const auto pickTwo = [](QFileDialog& dialog) {
    EXPECT_EQ(dialog.fileMode(), QFileDialog::Directory);
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Choose Folders to Catalogue"));
    confirm(dialog, QStringLiteral("\"inner\" \"other\""));
  };
  QStringList paths;
  EXPECT_TRUE(duringModal<QFileDialog>([&] { paths = DialogFilePicker().pickFolders(question()); }, pickTwo));
  EXPECT_EQ(paths,
            (QStringList{folder_.pathOf(QStringLiteral("inner")), folder_.pathOf(QStringLiteral("other"))}));
}

TEST_F(FileDialogs, TheViewsOfFoldersLetSeveralBeSelected) {
  EXPECT_TRUE(duringModal<QFileDialog>(
      [this] { DialogFilePicker().pickFolders(question()); },
      [](QFileDialog& dialog) {
        for (const char* name : {"listView", "treeView"}) {
          const auto* view = dialog.findChild<QAbstractItemView*>(QString::fromLatin1(name));
          ASSERT_NE(view, nullptr);
          EXPECT_EQ(view->selectionMode(), QAbstractItemView::ExtendedSelection);
        }
      }));
}

TEST_F(FileDialogs, OnlyAQuestionForSeveralFoldersIsAskedWithoutTheDesktopsDialog) {
  for (const bool isForSeveral : {false, true}) {
    FileQuestion folders = question();
    folders.isForSeveral = isForSeveral;
    EXPECT_TRUE(duringModal<QFileDialog>([&] { DialogFilePicker().pickFolders(folders); },
                                         [&](QFileDialog& dialog) {
                                           EXPECT_EQ(dialog.testOption(QFileDialog::DontUseNativeDialog),
                                                     isForSeveral);
                                           EXPECT_TRUE(dialog.testOption(QFileDialog::ShowDirsOnly));
                                         }));
  }
}

TEST_F(FileDialogs, WhatIsSavedGetsTheEndingOfItsForm) {
  const SaveQuestion question{QStringLiteral("Export Hits"),
                              QStringLiteral("hits"),
                              folder_.path(),
                              {QStringLiteral("Table (*.csv)"), QStringLiteral("Page (*.html)")}};
  const auto save = [&](const std::function<void(QFileDialog&)>& answer) {
    std::optional<QString> path;
    EXPECT_TRUE(duringModal<QFileDialog>([&] { path = DialogFilePicker().saveFile(question); }, answer));
    return path;
  };
  EXPECT_EQ(save([](QFileDialog& dialog) {
              EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Export Hits"));
              EXPECT_EQ(nameBox(dialog)->text(), QStringLiteral("hits.csv"));
              confirm(dialog, QStringLiteral("found"));
            }),
            folder_.pathOf(QStringLiteral("found.csv")));
  EXPECT_EQ(save([](QFileDialog& dialog) {
              dialog.selectNameFilter(QStringLiteral("Page (*.html)"));
              Q_EMIT dialog.filterSelected(QStringLiteral("Page (*.html)"));
              confirm(dialog, QStringLiteral("found"));
            }),
            folder_.pathOf(QStringLiteral("found.html")));
  EXPECT_EQ(save([](QFileDialog& dialog) { confirm(dialog, QStringLiteral("found.txt")); }),
            folder_.pathOf(QStringLiteral("found.txt")));
  EXPECT_EQ(save([](QFileDialog& dialog) { dialog.reject(); }), std::nullopt);
}

TEST_F(FileDialogs, ThePathOfAFileStartsInItsFolder) {
  FileQuestion inFile = question();
  inFile.initialFolder = folder_.pathOf(QStringLiteral("cds.txt"));
  openFile(inFile, [this](QFileDialog& dialog) { EXPECT_EQ(dialog.directory(), QDir(folder_.path())); });
}

TEST_F(FileDialogs, AnyTextCanBeTheFolderToStartIn) {
  for (const QString& text : {QString(), QStringLiteral("/no/such/folder/"), QStringLiteral("\"?*\n")}) {
    FileQuestion anywhere = question();
    anywhere.initialFolder = text;
    openFile(anywhere, [](QFileDialog& dialog) { EXPECT_TRUE(dialog.directory().exists()); });
  }
}

}  // namespace

}  // namespace quorvin::test
