// SPDX-License-Identifier: GPL-2.0-or-later

// "cache": what searches have kept.
#include "console/commands.h"
#include "console/error_lines.h"
#include "console/json_text.h"
#include "files/file_aside.h"
#include "files/file_lookup.h"
#include "platform/standard_folders.h"
#include "search/segment/segment_store.h"
#include "texts/texts.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <vector>

namespace quorvin {

namespace {

/// A file of the search cache.
struct CacheFile {
  QString path;
  /// Empty where no search can use the file.
  QString listing;
  /// "gone", "damaged" and so on; empty where the file is of use.
  QString remark;
};

CacheFile segmentFileAt(const QString& path) {
  const QString listing = listingOfSegmentFile(path);
  if (listing.isEmpty()) return {path, {}, QStringLiteral("damaged")};
  return {path, listing, fileExists(listing) ? QString() : QStringLiteral("gone")};
}

std::vector<CacheFile> cacheFiles(const CacheRequest& request) {
  const QString folder = userCacheFolder();
  std::vector<CacheFile> files;
  for (const QString& path : segmentFiles(folder)) {
    CacheFile file = segmentFileAt(path);
    if (!request.onlyUnused || !file.remark.isEmpty()) files.push_back(std::move(file));
  }
  for (const QString& path : filesAside(folder)) {
    // Another program may be at work on it.
    const bool isUnused = !request.onlyUnused || isOfDeadProcess(path);
    if (isUnused) files.push_back({path, {}, QStringLiteral("unfinished")});
  }
  for (const QString& path : earlierSegmentFiles(folder)) {
    files.push_back({path, {}, QStringLiteral("of an earlier version")});
  }
  return files;
}

std::string jsonRowOf(const CacheFile& file) {
  JsonLine line;
  line.add("size", std::int64_t{QFileInfo(file.path).size()}).add("file", file.path);
  if (!file.listing.isEmpty()) line.add("listing", file.listing);
  if (!file.remark.isEmpty()) line.add("remark", file.remark);
  return line.text();
}

std::string rowOf(const CacheFile& file) {
  QString row = QString::number(QFileInfo(file.path).size()) + u'\t' + file.listing;
  if (!file.listing.isEmpty() && !file.remark.isEmpty()) row += u'\t';
  if (!file.remark.isEmpty()) row += u'(' + file.remark + u')';
  return row.toStdString() + '\n';
}

}  // namespace

int listCache(const CacheRequest& request) {
  for (const CacheFile& file : cacheFiles(request)) {
    const std::string row = request.isJson ? jsonRowOf(file) : rowOf(file);
    std::fwrite(row.data(), 1, row.size(), stdout);
  }
  if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return 0;
  printError(Texts::tr("the list could not be written to standard output"));
  return 2;
}

int clearCache(const CacheRequest& request) {
  int status = 0;
  for (const CacheFile& file : cacheFiles(request)) {
    if (QFile::remove(file.path)) continue;
    printError(Texts::tr("%1 could not be removed").arg(file.path));
    status = 2;
  }
  return status;
}

}  // namespace quorvin
