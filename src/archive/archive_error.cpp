#include "archive/archive_error.h"

namespace quorvin {

QString shownEntryName(const QString& name) {
  constexpr qsizetype kMostShown = 120;
  constexpr qsizetype kEndShown = 40;
  QString shown = name;
  for (QChar& character : shown) {
    if (!character.isPrint() && !character.isSurrogate()) character = u'?';
  }
  if (shown.size() <= kMostShown) return shown;
  return shown.left(kMostShown - kEndShown) + QStringLiteral("...") + shown.right(kEndShown);
}

}  // namespace quorvin
