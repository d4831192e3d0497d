// SPDX-License-Identifier: GPL-2.0-or-later

// Metafiles of every record kind, made from choices.
#pragma once

#include "fuzz/choices.h"

#include <QByteArray>

#include <cstdint>
#include <span>
#include <vector>

namespace quorvin::fuzz {

/// A record kind, by its number in the file format, and the parameters of its records as letters, which
/// drawing_maker.cpp explains.
struct RecordKind {
  std::uint16_t number;
  const char* parameters;
};

/// All kinds of the two formats, those that draw nothing included.
std::span<const RecordKind> enhancedRecordKinds();
std::span<const RecordKind> windowsRecordKinds();

/// A metafile with a few tools selected and then a record of each of `kinds`. Its chain of records is sound,
/// so that it can always be played; single records may be spoiled.
QByteArray enhancedDrawing(std::span<const RecordKind> kinds, Choices& choices);
QByteArray windowsDrawing(std::span<const RecordKind> kinds, Choices& choices);

/// The same, of either format, with kinds that are chosen, too, until the choices end.
QByteArray chosenDrawing(Choices& choices);

}  // namespace quorvin::fuzz
