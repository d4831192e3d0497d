#include "index/folder_names.h"

#include "files/file_lookup.h"
#include "index/listed_name.h"
#include "platform/text_encoding.h"

namespace quorvin {
namespace {

constexpr std::string_view kNeverListed = "pagefile.sys";

bool fitsEveryName(const QString& pattern) {
  return pattern == QStringLiteral("*.*") || pattern == QStringLiteral("*");
}

}  // namespace

void FolderNames::clear() {
  files_.clear();
  subFoldersLeftOut_ = 0;
  filesLeftOut_ = 0;
}

bool FolderNames::read(NameTable& subFolders, const QString& filePattern, bool withFiles) {
  clear();
  filePattern_ = filePattern;
  everyFile_ = fitsEveryName(filePattern);
  withFiles_ = withFiles;
  for (;;) {
    FolderName found;
    const Step step = faults_.attempt({}, [&] { return faultOfReading(folders_.next(found)); });
    if (step == Step::LeaveFolder) return false;
    if (step == Step::Skipped || found.bytes.empty()) break;
    if (!take(subFolders, found)) return false;
  }
  noteLeftOut(subFoldersLeftOut_, QStringLiteral("sub-folders"));
  return true;
}

bool FolderNames::take(NameTable& subFolders, const FolderName& found) {
  const std::string_view name = found.bytes;
  if (name == kNeverListed) return true;
  const NameTraits traits = traitsOfName(name);
  if ((traits & kHoldsQuestion) != 0) {
    takeQuestioned(found);
    return true;
  }
  if (found.kind == NameKind::File) takeFile(name, traits);
  if (found.kind == NameKind::Folder) return takeFolder(subFolders, name, 0);
  if (found.kind == NameKind::Link) return takeLink(subFolders, name);
  return true;
}

bool FolderNames::takeLink(NameTable& subFolders, std::string_view name) {
  NameStatus target;
  const Step step =
      faults_.attempt(name, [&] { return faultOfReading(folders_.lookUp(name.data(), target)); });
  if (step != Step::Done) return step == Step::Skipped;
  if (target.kind == NameKind::File) takeFile(name, traitsOfName(name));
  return target.kind != NameKind::Folder || takeFolder(subFolders, name, kLinkToFolder);
}

// Only what is a file goes on into the listing.
void FolderNames::takeQuestioned(const FolderName& found) {
  faults_.note(found.bytes, QStringLiteral(" Contains unsuported characters represented by the ?"));
  NameStatus target{found.kind, 0, 0};
  if (found.kind == NameKind::Link && folders_.lookUp(found.bytes.data(), target) != 0) return;
  if (target.kind == NameKind::File) takeFile(found.bytes, traitsOfName(found.bytes));
}

bool FolderNames::takeFolder(NameTable& subFolders, std::string_view name, std::uint8_t note) {
  const auto add = [&]() -> std::optional<FaultNumber> {
    if (subFolders.add(name, note)) return std::nullopt;
    return FaultNumber::SubscriptOutOfRange;
  };
  if (subFoldersLeftOut_ > 0) {
    ++subFoldersLeftOut_;
    return true;
  }
  const Step step = faults_.attempt(name, add);
  if (step == Step::LeaveFolder) return false;
  if (step == Step::Skipped) {
    ++subFoldersLeftOut_;
    return true;
  }
  faults_.noteMark(name, markInFolder(name));
  return true;
}

void FolderNames::takeFile(std::string_view name, NameTraits traits) {
  if (!withFiles_) return;
  if (!everyFile_ && !fitsWildcards(textOfUtf8(listedText(name)), filePattern_)) return;
  if (files_.add(name, traits)) return;
  if (filesLeftOut_ == 0) firstFileLeftOut_ = name;
  ++filesLeftOut_;
}

bool FolderNames::checkFileCount() {
  if (filesLeftOut_ == 0) return true;
  const auto overflow = [] { return std::optional(FaultNumber::SubscriptOutOfRange); };
  if (faults_.attempt(firstFileLeftOut_, overflow) == Step::LeaveFolder) return false;
  noteLeftOut(filesLeftOut_, QStringLiteral("files"));
  return true;
}

void FolderNames::noteLeftOut(std::size_t count, const QString& kind) {
  if (count == 0) return;
  const QString names =
      count == 1 ? QStringLiteral("1 name was") : QStringLiteral("%1 names were").arg(count);
  faults_.note({}, QStringLiteral(" holds too many %1; %2 left out").arg(kind, names));
}

}  // namespace quorvin
