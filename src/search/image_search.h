// Searching an image.
#pragma once

#include "search/hit_receiver.h"
#include "search/word_search.h"

#include <cstdint>
#include <vector>

namespace quorvin {

/// Searches images for one query. A word holds no blank, so it stands in the folder or in the entry, never
/// across: both are searched on their own, and an entry is looked at only where a word was seen in it or
/// where its folder alone decides.
class ImageSearch {
 public:
  /// `query` must outlive the search.
  explicit ImageSearch(const SearchQuery& query);

  /// Appends the hits among entries `first` to `last` - 1 of `image` to `hits`, in order.
  void search(const SearchImage& image, std::uint32_t first, std::uint32_t last,
              std::vector<FoundEntry>& hits);

 private:
  void searchFolders(const SearchImage& image, std::uint32_t first, std::uint32_t last);
  void addCandidatesOfFolders(const ImageArrays& arrays, std::uint32_t first, std::uint32_t last);
  void score(const ImageArrays& arrays, std::uint32_t first, std::vector<FoundEntry>& hits) const;
  int countOf(const WordSet& found) const;

  const SearchQuery& query_;
  /// No word stands in the query twice.
  bool singleWords_;
  WordSearch words_;
  SeenWords inEntries_;
  SeenWords inFolders_;
  std::uint32_t firstBlock_ = 0;
  std::uint32_t lastBlock_ = 0;
  /// A bit for each entry that has to be looked at.
  std::vector<std::uint64_t> candidates_;
};

}  // namespace quorvin
