#include "index/dir_io.h"

#include "faults/runtime_fault.h"
#include "platform/text_encoding.h"
#include "search/format/listing_columns.h"

#include <QScopeGuard>

#include <optional>

namespace quorvin {
namespace {

std::string bytesOf(QStringView text) {
  return encodeSystemText(text).toStdString();
}

void writeTo(FileWriter* output, std::string_view line) {
  if (output == nullptr) throw RuntimeFault(FaultNumber::BadFileName);
  output->write(line);
  output->write("\r\n");
}

}  // namespace

QString BaseNameOf(const QString& path, PathStyle style) {
  const qsizetype start = path.lastIndexOf(style.separator) + 1;
  const qsizetype length = path.lastIndexOf(u'.') - start;
  return length > 0 ? path.mid(start, length) : path;
}

void writeLine(std::string_view line, const LineOutputs& outputs, int flags) {
  if ((flags & kToOutput1) != 0) {
    writeTo(outputs.output1, line);
  } else if ((flags & kToOutput2) != 0) {
    writeTo(outputs.output2, line);
  } else if ((flags & kToBothOutputs) != 0) {
    writeTo(outputs.output1, line);
    writeTo(outputs.output2, line);
  }
}

DirIO::DirIO(ProgramState& state, FolderReader& folders, IndexProgress& progress, MessageBoxes& messages,
             const QLocale& locale, PathStyle style)
    : folders_(folders),
      progress_(progress),
      style_(style),
      separator_(bytesOf(QStringView(&style.separator, 1))),
      faults_(state, progress.job(), messages, path_),
      names_(folders, faults_),
      entryLines_(locale) {}

bool DirIO::walk(QString& folderPath, const QString& filePattern, const LineOutputs& outputs,
                 const QString& volumeText, int flags) {
  // Where there are no drives, a separator alone is a folder; no path at all must not become that one.
  const bool isEmpty = folderPath.isEmpty();
  folderPath = withTrailingSeparator(folderPath, style_);
  if (isEmpty || folderPath.size() <= style_.drivePrefixLength) return false;

  job_ = {folderPath, filePattern, outputs, "Volume:    " + lineText(bytesOf(volumeText)), flags};
  const auto unwinding = qScopeGuard([this] { leaveAll(); });
  const bool opened = listTop();
  while (depth_ > 0) walkOn();
  return opened;
}

bool DirIO::listTop() {
  path_.clear();
  listedPath_.clear();
  Level& top = addLevel();
  path_ = bytesOf(job_.topPath);
  const std::string listed = bytesOf(listedFolder(job_.topPath, style_));
  noteHostileTop(listed);
  listedPath_ = lineText(listed);
  listFolder(top, {});
  return top.entered;
}

// The path above all names is the user's own, and no pass over names has looked at it.
void DirIO::noteHostileTop(const std::string& listed) {
  if (lineText(listed) != listed) {
    faults_.note({}, QStringLiteral(" Contains unsuported characters represented by the ?"));
  }
  faults_.noteMark({}, markInFolder(listed));
}

// One sub-folder further, or back to the folder above when there are no more.
void DirIO::walkOn() {
  Level& level = *levels_[depth_ - 1];
  if (level.nextSubFolder == level.subFolders.size()) {
    leaveFolder();
    return;
  }
  const std::size_t row = level.nextSubFolder++;
  if (level.subFolders.note(row) != kLinkToFolder) walkSubFolder(level.subFolders.name(row));
}

void DirIO::walkSubFolder(std::string_view name) {
  const std::size_t withSeparator = name.size() + 1;
  if (listedPath_.size() + withSeparator > kLongestListedFolder) {
    faults_.note(name, QStringLiteral(" was left out: its path is too long for a listing"));
    return;
  }
  Level& level = addLevel();
  path_ += name;
  path_ += separator_;
  listedPath_ += name;
  listedPath_ += '\\';
  listFolder(level, name);
}

DirIO::Level& DirIO::addLevel() {
  if (depth_ == levels_.size()) levels_.push_back(std::make_unique<Level>());
  Level& level = *levels_[depth_++];
  level.subFolders.clear();
  level.nextSubFolder = 0;
  level.entered = false;
  level.pathAbove = path_.size();
  level.listedAbove = listedPath_.size();
  return level;
}

void DirIO::leaveFolder() {
  const Level& left = *levels_[--depth_];
  if (left.entered) folders_.leave();
  path_.resize(left.pathAbove);
  listedPath_.resize(left.listedAbove);
  if (depth_ == 0) return;
  progress_.letEventsRun(counts_);
  Level& above = *levels_[depth_ - 1];
  if (progress_.job().isAbortRequested()) above.nextSubFolder = above.subFolders.size();
}

void DirIO::leaveAll() {
  while (depth_ > 0) {
    if (levels_[--depth_]->entered) folders_.leave();
  }
}

void DirIO::listFolder(Level& level, std::string_view name) {
  ++counts_.folders;
  progress_.enterFolder(listedPath_);
  progress_.letEventsRun(counts_);
  writeHead();
  // A folder that was left at once has no sub-folders to walk.
  if (!listContents(level, name)) level.subFolders.clear();
}

// False when the folder is to be left at once.
bool DirIO::listContents(Level& level, std::string_view name) {
  if (!readNames(level, name)) return false;
  writeSubFolders(level.subFolders);
  return (job_.flags & kFoldersOnly) != 0 || writeFiles();
}

bool DirIO::readNames(Level& level, std::string_view name) {
  names_.clear();
  const Step entering = faults_.attempt({}, [&] { return faultOfReading(enter(name)); });
  level.entered = entering == Step::Done;
  if (!level.entered) return entering == Step::Skipped;
  return names_.read(level.subFolders, job_.filePattern, (job_.flags & kFoldersOnly) == 0);
}

// The top folder has no name of its own here.
int DirIO::enter(std::string_view name) {
  return name.empty() ? folders_.enterTop(job_.topPath) : folders_.enter(name.data());
}

void DirIO::writeHead() {
  write({});
  write(job_.volumeLine);
  line_ = "Directory: ";
  line_ += listedPath_;
  write(line_);
  write({});
}

void DirIO::writeSubFolders(const NameTable& subFolders) {
  for (std::size_t row = 0; row < subFolders.size(); ++row) {
    line_ = "<DIR> ";
    line_ += subFolders.name(row);
    write(line_);
  }
  if (subFolders.size() > 0) write({});
}

bool DirIO::writeFiles() {
  if (!names_.checkFileCount()) return false;
  faults_.setFilePass(true);
  const auto passEnds = qScopeGuard([this] { faults_.setFilePass(false); });
  const NameTable& files = names_.files();
  for (std::size_t row = 0; row < files.size(); ++row) {
    if (!writeFile(files.name(row), files.note(row))) return false;
    ++counts_.files;
    if (row % kFilesBetweenEvents == 0) progress_.letEventsRun(counts_);
  }
  return true;
}

bool DirIO::writeFile(std::string_view name, NameTraits traits) {
  ListedFile file{name, -1, std::nullopt};
  std::string withQuestions;
  if ((traits & kHoldsQuestion) != 0) {
    withQuestions = listedText(name);
    file.name = withQuestions;
  } else {
    NameStatus status;
    const Step step =
        faults_.attempt(name, [&] { return faultOfReading(folders_.lookUp(name.data(), status)); });
    if (step == Step::LeaveFolder) return false;
    if (step == Step::Done) file = {name, status.size, status.modified};
  }
  if ((traits & kMayHoldMark) != 0) {
    faults_.noteMark(name, markInEntry(cutToColumns(file.name, kNameColumns)));
  }
  if (file.size > kLargestListedSize) {
    faults_.note(
        name,
        QStringLiteral(" is too large for a listing; its size was written as %1").arg(kLargestListedSize));
  }
  line_.clear();
  entryLines_.append(line_, file);
  write(line_);
  return true;
}

}  // namespace quorvin
