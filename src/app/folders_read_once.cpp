#include "app/folders_read_once.h"

#include "files/file_lookup.h"
#include "files/path_style.h"

#include <QDirIterator>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

qsizetype firstWildcard(const QString& name) {
  const auto isWildcard = [](QChar character) { return character == u'*' || character == u'?'; };
  return std::ranges::find_if(name, isWildcard) - name.begin();
}

}  // namespace

FoldersReadOnce::FoldersReadOnce(ReadNames readNames) : readNames_(std::move(readNames)) {}

QString FoldersReadOnce::find(const QString& pattern) {
  const qsizetype nameStart = pattern.lastIndexOf(nativePathStyle().separator) + 1;
  const QString wanted = pattern.mid(nameStart);
  const QString beginning = wanted.left(firstWildcard(wanted));
  // A single name takes no reading.
  if (beginning == wanted) return findOrdinaryFile(pattern);

  const Names& names = namesIn(pattern.left(nameStart));
  const Name* found = nullptr;
  auto name = std::ranges::lower_bound(names, beginning, {}, &Name::text);
  for (; name != names.end() && name->text.startsWith(beginning); ++name) {
    if (name->text == wanted) return wanted;
    const bool comesFirst = found == nullptr || name->place < found->place;
    if (comesFirst && fitsWildcards(name->text, wanted)) found = &*name;
  }
  return found == nullptr ? QString() : found->text;
}

const FoldersReadOnce::Names& FoldersReadOnce::namesIn(const QString& folder) {
  const auto [known, isNew] = folders_.try_emplace(folder);
  Names& names = known->second;
  if (!isNew) return names;
  for (const QString& text : readNames_(folder)) names.push_back({text, std::ssize(names)});
  std::ranges::sort(names, {}, &Name::text);
  return names;
}

QStringList FoldersReadOnce::ordinaryFiles(const QString& folder) {
  QStringList names;
  // Without hidden and special files.
  QDirIterator files(folder, QDir::Files);
  while (files.hasNext()) {
    files.next();
    names.append(files.fileName());
  }
  return names;
}

}  // namespace quorvin
