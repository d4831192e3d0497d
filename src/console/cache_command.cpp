#include "console/cache_command.h"

#include "platform/standard_folders.h"
#include "search/image_store.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace quorvin {

int listCache() {
  for (const QString& path : imageFiles(userCacheFolder())) {
    const QByteArray listing = listingOfImageFile(path).toLocal8Bit();
    std::printf("%lld\t%s\n", static_cast<long long>(QFileInfo(path).size()),
                listing.isEmpty() ? "(damaged)" : listing.constData());
  }
  return 0;
}

int clearCache() {
  int status = 0;
  const QString folder = userCacheFolder();
  for (const QString& path : imageFiles(folder) + unfinishedImageFiles(folder)) {
    if (QFile::remove(path)) continue;
    std::fprintf(stderr, "quorvin-cli: %s could not be removed\n", path.toLocal8Bit().constData());
    status = 2;
  }
  return status;
}

}  // namespace quorvin
