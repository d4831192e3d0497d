#include "console/cache_command.h"

#include "files/file_aside.h"
#include "platform/standard_folders.h"
#include "search/segment/segment_store.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace quorvin {

namespace {

void print(const QString& path, const char* listing) {
  std::printf("%lld\t%s\n", static_cast<long long>(QFileInfo(path).size()), listing);
}

}  // namespace

int listCache() {
  const QString folder = userCacheFolder();
  for (const QString& path : segmentFiles(folder)) {
    const QByteArray listing = listingOfSegmentFile(path).toLocal8Bit();
    print(path, listing.isEmpty() ? "(damaged)" : listing.constData());
  }
  for (const QString& path : filesAside(folder)) print(path, "(unfinished)");
  return 0;
}

int clearCache() {
  int status = 0;
  const QString folder = userCacheFolder();
  for (const QString& path : segmentFiles(folder) + earlierSegmentFiles(folder) + filesAside(folder)) {
    if (QFile::remove(path)) continue;
    std::fprintf(stderr, "quorvin-cli: %s could not be removed\n", path.toLocal8Bit().constData());
    status = 2;
  }
  return status;
}

}  // namespace quorvin
