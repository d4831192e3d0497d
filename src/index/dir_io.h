// SPDX-License-Identifier: GPL-2.0-or-later

// DirIO: the folder indexer, which walks a tree of folders and writes a listing of it, and the base name of a
// path. The layout of a listing: docs/formats/listing.md.
#pragma once

#include "faults/runtime_fault.h"
#include "files/file_writer.h"
#include "files/folder_reader.h"
#include "files/path_style.h"
#include "index/entry_line.h"
#include "index/index_progress.h"
#include "index/listed_name.h"
#include "index/walk_faults.h"
#include "platform/message_box.h"
#include "state/program_state.h"
#include "work/work.h"

#include <QLocale>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {

/// The name between the last separator and the last "." of `path` ("music" for "D:\lists\music.txt"); the
/// path unchanged when that leaves nothing: no ".", the last "." before the last separator, or a name that
/// begins with its only ".".
QString BaseNameOf(const QString& path, PathStyle style);

// The option flags of a walk, to be joined by "or".
/// No entry lines for files.
inline constexpr int kFoldersOnly = 2;
/// Lines go to output 1, to output 2, or to both. The first that is set counts, in this order; with none of
/// them nothing is written.
inline constexpr int kToOutput1 = 8;
inline constexpr int kToOutput2 = 16;
inline constexpr int kToBothOutputs = 32;

/// Two open files that lines can be sent to; a file that the flags never choose may be null.
struct LineOutputs {
  FileWriter* output1 = nullptr;
  FileWriter* output2 = nullptr;
};

/// Writes `line` and CR LF to the output or outputs that `flags` choose. Throws fault 52 where that one is
/// null, and RuntimeFault as FileWriter::write does.
void writeLine(std::string_view line, const LineOutputs& outputs, int flags);

/// Names in the order in which they came, each with a small note. The capacity is fixed; memory that was used
/// once is kept for the next folder.
class NameTable {
 public:
  explicit NameTable(std::size_t capacity) : capacity_(capacity) {}

  /// False, with nothing added, when the table is full.
  bool add(std::string_view name, std::uint8_t note) {
    if (rows_.size() == capacity_) return false;
    rows_.push_back({bytes_.size(), static_cast<std::uint32_t>(name.size()), note});
    bytes_ += name;
    bytes_ += '\0';
    return true;
  }

  void clear() {
    rows_.clear();
    bytes_.clear();
  }

  std::size_t size() const { return rows_.size(); }
  /// A NUL follows it. Valid until the table changes.
  std::string_view name(std::size_t row) const {
    return {bytes_.data() + rows_[row].offset, rows_[row].length};
  }
  std::uint8_t note(std::size_t row) const { return rows_[row].note; }

 private:
  struct Row {
    std::size_t offset;
    std::uint32_t length;
    std::uint8_t note;
  };

  std::size_t capacity_;
  std::vector<Row> rows_;
  std::string bytes_;
};

/// The most sub-folders and the most files of one folder.
inline constexpr std::size_t kMostSubFolders = 10'001;
inline constexpr std::size_t kMostFiles = 31'001;

/// The note of a sub-folder that is a link and is not walked into.
inline constexpr std::uint8_t kLinkToFolder = 1;

/// What a walk does with the names that it reads. Other threads have copies.
class NameChoice {
 public:
  /// Files whose name fits `filePattern` are listed, unless `withFiles` is false.
  explicit NameChoice(const QString& filePattern = QStringLiteral("*.*"), bool withFiles = true);

  /// Whether a file of this name, or a link to one, has an entry line.
  bool lists(std::string_view file) const;
  /// What is asked of the system, besides the name itself. `traits` are those of the name.
  NameUse useOf(const FolderName& name, NameTraits traits) const;

 private:
  QString filePattern_;
  bool everyFile_;
  bool withFiles_;
};

/// Reads a folder once for both of its passes. Names that hold "?" are logged, as are sub-folders whose name
/// a reader of the listing will misread. A table that overflows is fault 9, which the user is asked about
/// when the folder has been read; when the user ignores it, the rest of that kind is left out and the number
/// is logged.
class FolderNames {
 public:
  /// Both must outlive the object.
  FolderNames(FolderReader& folders, WalkFaults& faults) : folders_(folders), faults_(faults) {}

  /// Reads the reader's current folder. Its sub-folders come into `subFolders`, whose notes are 0 or
  /// kLinkToFolder; files that `choice` lists are kept for files(). Gives false when the folder is to be left
  /// at once.
  bool read(NameTable& subFolders, const NameChoice& choice);

  /// Tells when there were more files than the table holds; to be called before they are used. Gives false
  /// when the folder is to be left at once.
  bool checkFileCount();

  /// The files; notes are the NameTraits of their names.
  const NameTable& files() const { return files_; }

  /// How many names had no room.
  std::size_t leftOut() const { return subFoldersLeftOut_.count + filesLeftOut_.count; }

  /// Forgets what was read.
  void clear();

 private:
  struct LeftOut {
    std::size_t count = 0;
    std::string first;

    void add(std::string_view name) {
      if (count++ == 0) first = name;
    }
  };

  bool take(NameTable& subFolders, const FolderName& found);
  void takeFolder(NameTable& subFolders, std::string_view name, std::uint8_t note);
  bool takeLink(NameTable& subFolders, std::string_view name, NameUse use);
  void takeQuestioned(const FolderName& found, NameUse use);
  void takeFile(std::string_view name, std::uint8_t traits);
  bool report(const LeftOut& leftOut, FullTable kind, std::size_t room);

  FolderReader& folders_;
  WalkFaults& faults_;
  NameTable files_{kMostFiles};
  NameChoice choice_;
  LeftOut subFoldersLeftOut_;
  LeftOut filesLeftOut_;
};

/// Events are processed at every so many files of a folder.
inline constexpr std::size_t kFilesBetweenEvents = 50;

/// What came of a walk.
struct WalkResult {
  /// The folder itself could be opened.
  bool opened = false;
  /// Every folder was listed to its end, as far as it could be read: nobody has ended the walk, or a folder.
  bool isWhole = true;
  /// Entry lines that were written.
  std::int64_t files = 0;
  /// Names that were left out, since their folder holds more than a table takes.
  std::int64_t leftOut = 0;
};

/// The walk, depth first, each folder's block before those of its sub-folders, nothing sorted. One object
/// serves one walk after another and keeps what can be used again; `counts()` goes on from walk to walk.
class DirIO {
 public:
  /// All parameters but the last two must outlive the object. `folders` must have no current folder between
  /// walks.
  DirIO(ProgramState& state, FolderReader& folders, IndexProgress& progress, MessageBoxes& messages,
        const QLocale& locale, PathStyle style = nativePathStyle());

  /// Lists `folderPath`, to which a separator is appended in place when it has none at its end, and all below
  /// it to the outputs that `flags` choose; `volumeText` is in every block. Files are listed whose name
  /// fits `filePattern`. A path that is too short to name a folder writes nothing.
  ///
  /// Names that cannot be listed or read, and those that a reader of the listing will misread, are noted in
  /// `errorLog`; other faults are asked about as WalkFaults does. Events are processed for each folder, for
  /// every 50th file of it and after each sub-folder. `AbortRequested` is looked at after each sub-folder:
  /// when it is set the remaining ones are not walked. It is never cleared.
  ///
  /// Throws RuntimeFault when an output cannot be written, and as throwIfExhausted() does: such a fault
  /// belongs to no name, and a listing with holes must not pass for a whole one.
  WalkResult walk(QString& folderPath, const QString& filePattern, const LineOutputs& outputs,
                  const QString& volumeText, int flags);

  /// All that was listed since the object was made.
  const IndexCounts& counts() const { return counts_; }

 private:
  // What one walk was asked for.
  struct Job {
    QString topPath;
    NameChoice choice;
    LineOutputs outputs;
    std::string volumeLine;
    int flags = 0;
  };
  // A folder on the way from the top to the current one.
  struct Level {
    NameTable subFolders{kMostSubFolders};
    std::size_t nextSubFolder = 0;
    bool entered = false;
    // The lengths of both paths without this folder.
    std::size_t pathAbove = 0;
    std::size_t listedAbove = 0;
  };

  void listTop();
  WalkPlan plan() const;
  void walkOn();
  void walkSubFolder(std::string_view name);
  Level& addLevel();
  void leaveFolder();
  void leaveAll();

  void listFolder(Level& level, std::string_view name);
  bool listContents(Level& level, std::string_view name);
  bool readNames(Level& level, std::string_view name);
  int enter(std::string_view name);
  void writeHead();
  void writeSubFolders(const NameTable& subFolders);
  bool writeFiles();
  bool writeFile(std::string_view name, NameTraits traits);
  void write(std::string_view line) { writeLine(line, job_.outputs, job_.flags); }
  void noteHostileTop(const std::string& listed);
  void letEventsRun();

  FolderReader& folders_;
  IndexProgress& progress_;
  PathStyle style_;
  std::string separator_;
  // The current folder as the system writes it and as the listing does, each with a separator at its end.
  std::string path_;
  std::string listedPath_;
  WalkFaults faults_;
  FolderNames names_;
  EntryLines entryLines_;
  IndexCounts counts_;

  Job job_;
  WalkResult result_;
  // Levels are kept when folders are left, so that their memory serves the next ones.
  std::vector<std::unique_ptr<Level>> levels_;
  std::size_t depth_ = 0;
  std::string line_;
};

}  // namespace quorvin
