// SPDX-License-Identifier: GPL-2.0-or-later

// What volumes are called in text for people.
#pragma once

#include "console/row_cells.h"

#include <QString>

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quorvin {

/// A volume's name, and behind it that of its listing where others have the same: "CD 7", "CD 7 (cd7.txt)".
class VolumeLabels {
 public:
  /// `cells` says what becomes of names; it must outlive the object.
  explicit VolumeLabels(const CellForm& cells) : cells_(cells) {}

  /// To be called for all volumes, which are numbered from 0, before the first label is asked for. `name` is
  /// UTF-8 and must outlive the object.
  void add(std::string_view name, const QString& listing);

  const std::string& of(std::uint32_t volume);

 private:
  struct Volume {
    std::string_view name;
    QString listing;
    std::string label = {};
  };

  const CellForm& cells_;
  std::vector<Volume> volumes_;
  /// How many volumes have each name.
  std::unordered_map<std::string_view, int> names_;
};

}  // namespace quorvin
