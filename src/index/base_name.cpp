#include "index/base_name.h"

namespace quorvin {

QString BaseNameOf(const QString& path, PathStyle style) {
  const qsizetype start = path.lastIndexOf(style.separator) + 1;
  const qsizetype length = path.lastIndexOf(u'.') - start;
  return length > 0 ? path.mid(start, length) : path;
}

}  // namespace quorvin
