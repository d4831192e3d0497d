// SPDX-License-Identifier: GPL-2.0-or-later

// The formats of lists that can be imported, and telling which of them a list has.
#pragma once

#include "catalogue/import/list_entry.h"
#include "catalogue/import/list_readers.h"

#include <memory>
#include <string_view>
#include <vector>

namespace quorvin {

struct ListFormat {
  /// What the user calls it: "ls".
  std::string_view name;
  /// False where only the user can say that a list is of this format.
  bool isRecognised;
  std::unique_ptr<ListReader> (*makeReader)(const ListReadOptions& options);
};

/// All formats. Where two of them read a list equally well, it is of the first one.
const std::vector<ListFormat>& listFormats();

/// Whether lists of the format are read by a pattern or by columns that the user says.
bool takesColumns(const ListFormat& format);

/// Null where there is none of this name.
const ListFormat* listFormatNamed(std::string_view name);

/// The format of the list that starts with `lines`: the one whose reader understands most of them. Null where
/// no reader is sure of at least half of the lines that it does not pass over.
const ListFormat* recognisedFormat(const std::vector<std::string_view>& lines,
                                   const ListReadOptions& options);

}  // namespace quorvin
