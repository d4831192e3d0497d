// The three kinds of source that a listing file comes from.
#pragma once

#include <cstdint>

namespace quorvin {

enum class SourceKind : std::uint8_t { Online, MainDataFile, Offline };

/// The colour of a hit's row by its kind of source, as 0xRRGGBB: blue, red, orange.
constexpr std::uint32_t rowColour(SourceKind kind) {
  switch (kind) {
    case SourceKind::Online:
      return 0x0000FF;
    case SourceKind::MainDataFile:
      return 0xFF0000;
    case SourceKind::Offline:
      return 0xFF7F00;
  }
  return 0;
}

}  // namespace quorvin
