// Hits as lines on a stream.
#pragma once

#include "hits/hit_lines.h"
#include "search/hit_sink.h"

#include <QLocale>

#include <cstdint>
#include <cstdio>
#include <string>

namespace quorvin {

/// Writes each hit as soon as it comes and keeps none. Wants no more of them once a write has failed.
class HitWriter : public HitSink {
 public:
  /// `output` must outlive the writer.
  HitWriter(std::FILE* output, HitFormat format, const QLocale& locale);

  /// Whether all output so far has been taken; false once a write failed.
  bool good() const { return good_; }
  /// Hands what is still buffered to the output.
  void flush();

  void startListing(SourceKind kind, const QString& path) override;
  bool addHits(const std::shared_ptr<const Segment>& segment, std::span<const FoundEntry> hits) override;
  void endSegment(const std::shared_ptr<const Segment>& segment,
                  const std::shared_ptr<const Segment>& kept) override;

 private:
  void addLines(const Segment& segment, std::span<const FoundEntry> hits);

  std::FILE* output_;
  HitFormat format_;
  QLocale locale_;
  SourceKind kind_ = SourceKind::Online;
  /// Size and date last read in the current listing.
  EntryValues values_;
  std::string buffer_;
  bool good_ = true;
};

}  // namespace quorvin
