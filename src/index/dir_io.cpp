// SPDX-License-Identifier: GPL-2.0-or-later
#include "index/dir_io.h"

#include "files/file_lookup.h"
#include "platform/text_encoding.h"
#include "search/format/listing_line.h"
#include "texts/texts.h"

#include <QScopeGuard>

#include <algorithm>
#include <chrono>
#include <utility>

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

/// When events took longer, what was read ahead of the walk is old.
constexpr std::chrono::seconds kLongRest{1};

constexpr std::string_view kNeverListed = "pagefile.sys";

bool fitsEveryName(const QString& pattern) {
  return pattern == QStringLiteral("*.*") || pattern == QStringLiteral("*");
}

QString tooManyText(FullTable kind, std::size_t leftOut) {
  const int plural = Texts::plural(static_cast<std::int64_t>(leftOut));
  if (kind == FullTable::Files) {
    return (leftOut == 1 ? Texts::tr("holds too many files; %1 name was left out")
                         : Texts::tr("holds too many files; %1 names were left out", nullptr, plural))
        .arg(leftOut);
  }
  return (leftOut == 1 ? Texts::tr("holds too many sub-folders; %1 name was left out")
                       : Texts::tr("holds too many sub-folders; %1 names were left out", nullptr, plural))
      .arg(leftOut);
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
      faults_(state, progress.job(), messages, folders, path_),
      names_(folders, faults_),
      entryLines_(locale) {}

WalkResult DirIO::walk(QString& folderPath, const QString& filePattern, const LineOutputs& outputs,
                       const QString& volumeText, int flags) {
  // Where there are no drives, a separator alone is a folder; no path at all must not become that one.
  const bool isEmpty = folderPath.isEmpty();
  folderPath = withTrailingSeparator(folderPath, style_);
  result_ = {};
  if (isEmpty || folderPath.size() <= style_.drivePrefixLength) return result_;

  const NameChoice choice(filePattern, (flags & kFoldersOnly) == 0);
  job_ = {folderPath, choice, outputs, {}, flags};
  appendVolumeLine(job_.volumeLine, lineText(bytesOf(volumeText)));
  const auto unwinding = qScopeGuard([this] { leaveAll(); });
  listTop();
  while (depth_ > 0) walkOn();
  return result_;
}

void DirIO::listTop() {
  path_.clear();
  listedPath_.clear();
  Level& top = addLevel();
  path_ = bytesOf(job_.topPath);
  const std::string listed = bytesOf(listedFolder(job_.topPath, style_));
  noteHostileTop(listed);
  listedPath_ = lineText(listed);
  folders_.planWalk(plan());
  listFolder(top, {});
  result_.opened = top.entered;
}

// After a stop request the walk goes down the first sub-folders alone: what it will come to is little then,
// and nothing else is to be read.
WalkPlan DirIO::plan() const {
  if (progress_.job().isAbortRequested()) return {};
  WalkPlan plan;
  plan.use = [choice = job_.choice](const FolderName& name) {
    return choice.useOf(name, traitsOfName(name.bytes));
  };
  plan.mostSubFolders = kMostSubFolders;
  plan.mostFiles = kMostFiles;
  plan.longestWay = kLongestListedFolder - std::min(listedPath_.size(), kLongestListedFolder);
  return plan;
}

// The path above all names is the user's own, and no pass over names has looked at it.
void DirIO::noteHostileTop(const std::string& listed) {
  if (lineText(listed) != listed) {
    faults_.note({}, u' ' + Texts::tr("Contains unsuported characters represented by the ?"));
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
    faults_.note(name, u' ' + Texts::tr("was left out: its path is too long for a listing"));
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
  letEventsRun();
  Level& above = *levels_[depth_ - 1];
  if (!progress_.job().isAbortRequested()) return;
  while (above.nextSubFolder < above.subFolders.size()) {
    if (above.subFolders.note(above.nextSubFolder++) != kLinkToFolder) result_.isWhole = false;
  }
}

// A user may have opened a window of the program meanwhile that everything else waits for.
void DirIO::letEventsRun() {
  const auto start = std::chrono::steady_clock::now();
  progress_.letEventsRun(counts_);
  if (progress_.job().isAbortRequested()) {
    folders_.planWalk({});
  } else if (std::chrono::steady_clock::now() - start > kLongRest) {
    folders_.forgetAhead();
  }
}

void DirIO::leaveAll() {
  folders_.planWalk({});
  while (depth_ > 0) {
    if (levels_[--depth_]->entered) folders_.leave();
  }
}

void DirIO::listFolder(Level& level, std::string_view name) {
  ++counts_.folders;
  progress_.enterFolder(listedPath_);
  letEventsRun();
  writeHead();
  // A folder that was left at once has no sub-folders to walk.
  if (!listContents(level, name)) {
    level.subFolders.clear();
    result_.isWhole = false;
  }
  result_.leftOut += static_cast<std::int64_t>(names_.leftOut());
}

// False when the folder is to be left at once.
bool DirIO::listContents(Level& level, std::string_view name) {
  if (!readNames(level, name)) return false;
  writeSubFolders(level.subFolders);
  return (job_.flags & kFoldersOnly) != 0 || writeFiles();
}

bool DirIO::readNames(Level& level, std::string_view name) {
  names_.clear();
  const Step entering = faults_.attempt({}, [&] { return faults_.faultOfReading(enter(name)); });
  level.entered = entering == Step::Done;
  if (!level.entered) return entering == Step::Skipped;
  return names_.read(level.subFolders, job_.choice);
}

// The top folder has no name of its own here.
int DirIO::enter(std::string_view name) {
  return name.empty() ? folders_.enterTop(job_.topPath) : folders_.enter(name.data());
}

void DirIO::writeHead() {
  write({});
  write(job_.volumeLine);
  line_.clear();
  appendDirectoryLine(line_, listedPath_);
  write(line_);
  write({});
}

void DirIO::writeSubFolders(const NameTable& subFolders) {
  for (std::size_t row = 0; row < subFolders.size(); ++row) {
    line_.clear();
    appendSubFolderLine(line_, subFolders.name(row));
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
    ++result_.files;
    if (row % kFilesBetweenEvents == 0) letEventsRun();
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
        faults_.attempt(name, [&] { return faults_.faultOfReading(folders_.lookUp(name.data(), status)); });
    if (step == Step::LeaveFolder) return false;
    if (step == Step::Done) file = {name, status.size, status.modified};
  }
  if ((traits & kMayHoldMark) != 0) {
    faults_.noteMark(name, markInEntry(cutToColumns(file.name, kNameColumns)));
  }
  if (file.size > kLargestListedSize) {
    faults_.note(
        name,
        u' ' + Texts::tr("is too large for a listing; its size was written as %1").arg(kLargestListedSize));
  }
  line_.clear();
  entryLines_.append(line_, file);
  write(line_);
  return true;
}

NameChoice::NameChoice(const QString& filePattern, bool withFiles)
    : filePattern_(filePattern), everyFile_(fitsEveryName(filePattern)), withFiles_(withFiles) {}

bool NameChoice::lists(std::string_view file) const {
  return withFiles_ && (everyFile_ || fitsWildcards(textOfUtf8(listedText(file)), filePattern_));
}

NameUse NameChoice::useOf(const FolderName& name, NameTraits traits) const {
  if (name.bytes == kNeverListed) return {};
  const bool isLink = name.kind == NameKind::Link;
  // A name that a listing cannot hold is one of a file at most, and has no size and date.
  if ((traits & kHoldsQuestion) != 0) return {.lookUpAtOnce = isLink};
  if (name.kind == NameKind::Folder) return {.enter = true};
  if (name.kind == NameKind::Other) return {};
  return {.lookUpAtOnce = isLink, .lookUpLater = lists(name.bytes)};
}

void FolderNames::clear() {
  files_.clear();
  subFoldersLeftOut_ = {};
  filesLeftOut_ = {};
}

bool FolderNames::read(NameTable& subFolders, const NameChoice& choice) {
  clear();
  choice_ = choice;
  for (;;) {
    FolderName found;
    const Step step = faults_.attempt({}, [&] { return faults_.faultOfReading(folders_.next(found)); });
    if (step == Step::LeaveFolder) return false;
    if (step == Step::Skipped || found.bytes.empty()) break;
    if (!take(subFolders, found)) return false;
  }
  return report(subFoldersLeftOut_, FullTable::SubFolders, subFolders.size());
}

bool FolderNames::take(NameTable& subFolders, const FolderName& found) {
  const std::string_view name = found.bytes;
  if (name == kNeverListed) return true;
  const NameTraits traits = traitsOfName(name);
  const NameUse use = choice_.useOf(found, traits);
  if ((traits & kHoldsQuestion) != 0) {
    takeQuestioned(found, use);
    return true;
  }
  if (found.kind == NameKind::File && use.lookUpLater) takeFile(name, traits);
  if (use.enter) takeFolder(subFolders, name, 0);
  return !use.lookUpAtOnce || takeLink(subFolders, name, use);
}

bool FolderNames::takeLink(NameTable& subFolders, std::string_view name, NameUse use) {
  NameStatus target;
  const Step step =
      faults_.attempt(name, [&] { return faults_.faultOfReading(folders_.lookUp(name.data(), target)); });
  if (step != Step::Done) return step == Step::Skipped;
  if (target.kind == NameKind::File && use.lookUpLater) takeFile(name, traitsOfName(name));
  if (target.kind == NameKind::Folder) takeFolder(subFolders, name, kLinkToFolder);
  return true;
}

// Only what is a file goes on into the listing.
void FolderNames::takeQuestioned(const FolderName& found, NameUse use) {
  faults_.note(found.bytes, u' ' + Texts::tr("Contains unsuported characters represented by the ?"));
  NameStatus target{found.kind, 0, 0};
  if (use.lookUpAtOnce && folders_.lookUp(found.bytes.data(), target) != 0) return;
  if (target.kind == NameKind::File && choice_.lists(found.bytes)) {
    takeFile(found.bytes, traitsOfName(found.bytes));
  }
}

void FolderNames::takeFolder(NameTable& subFolders, std::string_view name, std::uint8_t note) {
  if (subFolders.add(name, note)) {
    faults_.noteMark(name, markInFolder(name));
  } else {
    subFoldersLeftOut_.add(name);
  }
}

void FolderNames::takeFile(std::string_view name, NameTraits traits) {
  if (!files_.add(name, traits)) filesLeftOut_.add(name);
}

bool FolderNames::checkFileCount() {
  return report(filesLeftOut_, FullTable::Files, files_.size());
}

// False when the folder is to be left at once.
bool FolderNames::report(const LeftOut& leftOut, FullTable kind, std::size_t room) {
  const std::size_t count = leftOut.count;
  if (count == 0) return true;
  if (faults_.reportFull(leftOut.first, kind, count, room + count) == Step::LeaveFolder) return false;
  faults_.note({}, u' ' + tooManyText(kind, count));
  return true;
}

}  // namespace quorvin
