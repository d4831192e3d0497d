// The hits of the last run, as rows of six columns. Rows are made into text only when they are asked for.
#pragma once

#include "platform/general_date.h"
#include "search/hit_receiver.h"

#include <QLocale>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

namespace quorvin {

/// The columns of the hit list, in order.
enum class HitColumn { Match, Volume, Folder, Name, Size, Date };
inline constexpr int kHitColumnCount = 6;

/// What one row holds.
struct HitRow {
  std::int16_t match = 0;
  SourceKind kind = SourceKind::Online;
  QString volume;
  /// As listed: with backslashes, without the drive.
  QString folder;
  /// The entry text as listed.
  QString name;
  /// Bytes; of the row itself or of the hit before it in the same listing, 0 if there was none.
  std::int64_t size = 0;
  DateValue date = 0;
};

/// The text of one column of `row`, as the hit list and the console show it.
QString hitText(const HitRow& row, HitColumn column, const QLocale& locale);

/// Keeps hits as references into images, 16 bytes each.
class HitTable : public HitReceiver {
 public:
  /// The number of rows so far.
  std::int64_t rowCount() const { return rowCount_; }

  /// The content of `row`, 0 <= row < rowCount().
  HitRow row(std::int64_t row) const;
  SourceKind kind(std::int64_t row) const;

  /// Removes all rows and lets go of the images.
  void clear();

  void beginListing(SourceKind kind) override;
  void addHits(const std::shared_ptr<const SearchImage>& image, std::span<const FoundEntry> hits) override;
  void endImage(const std::shared_ptr<const SearchImage>& image,
                const std::shared_ptr<const SearchImage>& kept) override;

 private:
  struct Hit {
    std::uint32_t image;
    std::uint32_t entry;
    /// The row whose entry gives size and date; kNoRow where no hit of the listing had any.
    std::uint32_t valueRow;
    std::int16_t match;
    SourceKind kind;
  };
  static constexpr std::uint32_t kNoRow = UINT32_MAX;
  /// Hits stand in pages, so that growing never copies them.
  static constexpr std::int64_t kPageSize = 1 << 16;

  const Hit& hit(std::int64_t row) const;
  Hit& hit(std::int64_t row);
  void append(const Hit& hit);

  std::vector<std::unique_ptr<Hit[]>> pages_;
  std::int64_t rowCount_ = 0;
  std::vector<std::shared_ptr<const SearchImage>> images_;
  /// The first row whose hit is in images_.back().
  std::int64_t imageFirstRow_ = 0;
  SourceKind kind_ = SourceKind::Online;
  std::uint32_t valueRow_ = kNoRow;
};

}  // namespace quorvin
