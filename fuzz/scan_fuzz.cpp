// SPDX-License-Identifier: GPL-2.0-or-later

// The scan of a listing, held against the plain reference. An input is a byte for the size of the chunks, a
// byte for the desired match and the way to scan, a line with the search text, and the listing.
#include "faults/runtime_fault.h"
#include "fuzz/require.h"
#include "platform/text_encoding.h"
#include "search/quick_scan.h"
#include "support/reference_scan.h"
#include "support/scan_of.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quorvin {
namespace {

struct Input {
  std::size_t chunkSize;
  int desiredMatch;
  /// The program's whole scan; otherwise its parts, which is a hundred times quicker.
  bool wholeScan;
  QString searchText;
  QByteArray listing;
};

std::optional<Input> inputOf(const std::uint8_t* data, std::size_t size) {
  if (size < 3) return std::nullopt;
  const std::uint8_t first = data[0];
  const std::uint8_t second = data[1];
  const QByteArray rest(reinterpret_cast<const char*>(data) + 2, static_cast<qsizetype>(size - 2));
  const qsizetype end = rest.indexOf('\n');
  if (end < 0) return std::nullopt;
  return Input{1U + first, 1 + second % 100, second >= 200,
               simpleLowerCase(decodeSystemText(rest.first(end))), rest.sliced(end + 1)};
}

void require(const test::PlainResult& result, const test::PlainResult& expected, const char* way) {
  if (result == expected) return;
  throw fuzz::BrokenPromise(std::string(way) + ": " + test::differenceOf(result, expected));
}

void compareParts(const Input& input, const test::PlainResult& expected) {
  static test::QuickScan scan(QLocale::c());
  test::RepeatedSearch search(input.searchText.toStdString(), input.desiredMatch);
  const std::size_t segment = input.chunkSize * 3;
  require(scan.scan(input.listing.toStdString(), search, {input.chunkSize, segment, 2000, false}), expected,
          "while segments grow");
  require(scan.scan(input.listing.toStdString(), search, {input.chunkSize, segment, 3, true}), expected,
          "when segments are complete");
}

void compareWholeScan(const Input& input, const test::PlainResult& expected) {
  ScanLimits limits;
  limits.chunkSize = input.chunkSize;
  limits.passingSegment = input.chunkSize * 3;
  const test::ReferenceResult result =
      test::scanOf(input.listing, input.searchText, input.desiredMatch, limits);
  require(test::plainForm(result), expected, "whole scan");
}

bool hasTooManyWords(const QString& searchText) {
  try {
    splitSearchText(searchText);
  } catch (const RuntimeFault&) {
    return true;
  }
  return false;
}

}  // namespace
}  // namespace quorvin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvin;
  const std::optional<Input> input = inputOf(data, size);
  if (!input || hasTooManyWords(input->searchText)) return 0;
  const test::PlainResult expected = test::plainForm(
      test::referenceScan(input->listing, input->searchText, input->desiredMatch, QLocale::c()));
  if (input->wholeScan) {
    compareWholeScan(*input, expected);
  } else {
    compareParts(*input, expected);
  }
  return 0;
}
