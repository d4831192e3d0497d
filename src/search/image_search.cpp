#include "search/image_search.h"

#include <algorithm>
#include <bit>

namespace quorvin {

namespace {

void setBits(std::vector<std::uint64_t>& bits, std::uint32_t from, std::uint32_t to) {
  for (; from < to && from % 64 != 0; ++from) bits[from / 64] |= std::uint64_t{1} << (from % 64);
  for (; from + 64 <= to; from += 64) bits[from / 64] = ~std::uint64_t{0};
  for (; from < to; ++from) bits[from / 64] |= std::uint64_t{1} << (from % 64);
}

}  // namespace

ImageSearch::ImageSearch(const SearchQuery& query)
    : query_(query),
      fewWords_(query.words().size() <= 8),
      wordDecides_(query.words().size() == 1 && query.emptyWords() < query.fewestForHit()),
      words_(query),
      inEntries_(wordDecides_),
      inFolders_(wordDecides_) {
  if (!fewWords_) return;
  for (std::size_t set = 0; set < counts_.size(); ++set) {
    WordSet seen;
    for (std::size_t word = 0; word < query.words().size(); ++word) {
      if ((set >> word & 1U) != 0) seen.add(word);
    }
    counts_[set] = countOfMany(seen);
  }
}

void ImageSearch::search(const SearchImage& image, std::uint32_t first, std::uint32_t last,
                         std::vector<FoundEntry>& hits) {
  if (first == last || query_.fewestForHit() > query_.wordCount()) return;
  words_.find(image.arrays().entries, first, last, inEntries_);
  searchFolders(image, first, last);
  candidates_ = inEntries_.touched();
  addCandidatesOfFolders(image.arrays(), first, last);
  if (wordDecides_) {
    takeAllCandidates(first, hits);
  } else {
    score(image.arrays(), first, hits);
  }
}

void ImageSearch::searchFolders(const SearchImage& image, std::uint32_t first, std::uint32_t last) {
  const auto& starts = image.arrays().blockStarts;
  firstBlock_ = image.blockOf(first);
  const auto end = std::lower_bound(starts.begin() + firstBlock_ + 1, starts.end(), last);
  lastBlock_ = static_cast<std::uint32_t>(end - starts.begin());
  words_.find(image.arrays().folders, firstBlock_, lastBlock_, inFolders_);
}

void ImageSearch::addCandidatesOfFolders(const ImageArrays& arrays, std::uint32_t first, std::uint32_t last) {
  if (query_.emptyWords() >= query_.fewestForHit()) {
    setBits(candidates_, 0, last - first);
    return;
  }
  for (std::size_t i = 0; i < inFolders_.touched().size(); ++i) {
    for (std::uint64_t left = inFolders_.touched()[i]; left != 0; left &= left - 1) {
      const std::uint32_t block = firstBlock_ + static_cast<std::uint32_t>(i * 64) +
                                  static_cast<std::uint32_t>(std::countr_zero(left));
      if (!wordDecides_ && countOf(inFolders_.in(block)) < query_.fewestForHit()) continue;
      const std::uint32_t end = block + 1 < lastBlock_ ? arrays.blockStarts[block + 1] : last;
      setBits(candidates_, std::max(arrays.blockStarts[block], first) - first, end - first);
    }
  }
}

void ImageSearch::score(const ImageArrays& arrays, std::uint32_t first, std::vector<FoundEntry>& hits) const {
  const bool foldersMatter = !inFolders_.none();
  std::uint32_t block = firstBlock_;
  for (std::size_t i = 0; i < candidates_.size(); ++i) {
    for (std::uint64_t left = candidates_[i]; left != 0; left &= left - 1) {
      const std::uint32_t entry =
          first + static_cast<std::uint32_t>(i * 64) + static_cast<std::uint32_t>(std::countr_zero(left));
      WordSet seen = inEntries_.in(entry);
      if (foldersMatter) {
        while (block + 1 < lastBlock_ && arrays.blockStarts[block + 1] <= entry) ++block;
        seen = seen | inFolders_.in(block);
      }
      const int found = countOf(seen);
      if (found >= query_.fewestForHit()) hits.push_back({entry, query_.match(found)});
    }
  }
}

void ImageSearch::takeAllCandidates(std::uint32_t first, std::vector<FoundEntry>& hits) const {
  const std::int16_t match = query_.match(query_.wordCount());
  for (std::size_t i = 0; i < candidates_.size(); ++i) {
    const auto base = first + static_cast<std::uint32_t>(i * 64);
    for (std::uint64_t left = candidates_[i]; left != 0; left &= left - 1) {
      hits.push_back({base + static_cast<std::uint32_t>(std::countr_zero(left)), match});
    }
  }
}

int ImageSearch::countOfMany(const WordSet& seen) const {
  int count = query_.emptyWords();
  for (std::size_t word = 0; word < query_.words().size(); ++word) {
    if (seen.has(word)) count += query_.words()[word].times;
  }
  return count;
}

}  // namespace quorvin
