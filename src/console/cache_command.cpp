#include "console/cache_command.h"

#include "platform/standard_folders.h"
#include "search/segment/segment_store.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace quorvin {

int listCache() {
  for (const QString& path : segmentFiles(userCacheFolder())) {
    const QByteArray listing = listingOfSegmentFile(path).toLocal8Bit();
    std::printf("%lld\t%s\n", static_cast<long long>(QFileInfo(path).size()),
                listing.isEmpty() ? "(damaged)" : listing.constData());
  }
  return 0;
}

int clearCache() {
  int status = 0;
  const QString folder = userCacheFolder();
  for (const QString& path : segmentFiles(folder) + unfinishedSegmentFiles(folder)) {
    if (QFile::remove(path)) continue;
    std::fprintf(stderr, "quorvin-cli: %s could not be removed\n", path.toLocal8Bit().constData());
    status = 2;
  }
  return status;
}

}  // namespace quorvin
