// SPDX-License-Identifier: GPL-2.0-or-later

// The figures of the window as Markdown tables.
#pragma once

#include <QJsonObject>

#include <iosfwd>
#include <string>
#include <vector>

namespace quorvin {

/// The three measurements of one query; what the objects hold is told in window_measurements.h.
struct QueryFigures {
  std::string words;
  QJsonObject first;
  QJsonObject later;
  QJsonObject stop;
};

void writeWindowReport(std::ostream& out, const std::vector<QueryFigures>& queries);

}  // namespace quorvin
