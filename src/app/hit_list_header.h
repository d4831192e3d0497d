// The column titles of the hit list.
#pragma once

#include <QHeaderView>

namespace quorvin {

/// Keeps titles a little away from the edges of their columns, so that one that stands at the right side of
/// its column does not touch the next.
class HitListHeader : public QHeaderView {
  Q_OBJECT

 public:
  explicit HitListHeader(QWidget* parent);

 protected:
  void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;
  QSize sectionSizeFromContents(int logicalIndex) const override;
};

}  // namespace quorvin
