// SPDX-License-Identifier: GPL-2.0-or-later

// The readers of other programs' lists, one function for each. What the formats look like, and what they do
// not tell: docs/formats/imports.md.
#pragma once

#include "catalogue/import/list_entry.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace quorvin {

/// What a list does not say of itself.
struct ListReadOptions {
  /// The pattern that find -printf was given.
  std::string pattern = {};
  /// What the columns of a table are: "path=1,size=Length", by number or title; empty to go by the titles.
  std::string columns = {};
  /// The day on which the list was made, in days since the start of 1970: it gives dates without a year
  /// theirs.
  std::optional<std::int64_t> made = {};
  /// Whether the sizes of du are bytes.
  bool areSizesBytes = false;
};

/// How ls writes names: as they are, in double quotes (-Q), or with escapes (-b).
enum class LsNames : std::uint8_t { Plain, Quoted, Escaped };

std::unique_ptr<ListReader> makeLsReader(const ListReadOptions& options, LsNames names);
std::unique_ptr<ListReader> makeFindLsReader(const ListReadOptions& options);
std::unique_ptr<ListReader> makeTarReader(const ListReadOptions& options);
std::unique_ptr<ListReader> makeRsyncReader(const ListReadOptions& options);
/// Throws RuntimeFault 5 for a pattern that names no path or cannot be read back.
std::unique_ptr<ListReader> makePrintfReader(const ListReadOptions& options);
std::unique_ptr<ListReader> makeDuReader(const ListReadOptions& options);
std::unique_ptr<ListReader> makeTreeReader(const ListReadOptions& options);
std::unique_ptr<ListReader> makeUnzipReader(const ListReadOptions& options);
std::unique_ptr<ListReader> makeRcloneReader(const ListReadOptions& options);
std::unique_ptr<ListReader> makeChecksumsReader(const ListReadOptions& options);
std::unique_ptr<ListReader> makeBagItReader(const ListReadOptions& options);
std::unique_ptr<ListReader> makePathsReader(const ListReadOptions& options);
std::unique_ptr<ListReader> makeDirReader(const ListReadOptions& options);
/// Throws RuntimeFault 5 where the columns that `options` name cannot be understood.
std::unique_ptr<ListReader> makeTableReader(const ListReadOptions& options);

}  // namespace quorvin
