// How much of a refresh is done, as far as that is known.
#pragma once

#include "index/index_view.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace quorvin {

/// Estimates from the listings of last time: a source that had a long listing takes long again. For a source
/// without a listing nothing is known.
class RefreshShare {
 public:
  RefreshShare() = default;
  /// `listingSizes` are the bytes of the sources' present listings, in order, 0 where there is none.
  explicit RefreshShare(std::vector<std::int64_t> listingSizes);

  /// The source in `row` (from 1) is being indexed from now on.
  void beginSource(int row);
  /// What has been indexed since the start of the refresh.
  void indexed(const IndexCounts& counts);

  /// 0 to 100, never less than before; nothing where it is not known.
  std::optional<int> percent();

 private:
  double doneInSource() const;
  double sizeOf(std::size_t source) const;

  std::vector<std::int64_t> sizes_;
  /// Stands for the listings that do not exist yet.
  double usualSize_ = 1;
  double total_ = 0;
  double before_ = 0;
  std::int64_t size_ = 0;
  IndexCounts counts_;
  IndexCounts countsBefore_;
  int percent_ = 0;
};

}  // namespace quorvin
