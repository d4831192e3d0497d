// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/volume_labels.h"

#include <QFileInfo>

namespace quorvin {

void VolumeLabels::add(std::string_view name, const QString& listing) {
  volumes_.push_back({name, listing});
  ++names_[name];
}

const std::string& VolumeLabels::of(std::uint32_t number) {
  Volume& volume = volumes_[number];
  std::string& label = volume.label;
  if (!label.empty()) return label;
  cells_.add(label, volume.name);
  if (!volume.name.empty() && names_[volume.name] == 1) return label;
  if (!label.empty()) label += ' ';
  label += '(';
  cells_.add(label, QFileInfo(volume.listing).fileName().toStdString());
  label += ')';
  return label;
}

}  // namespace quorvin
