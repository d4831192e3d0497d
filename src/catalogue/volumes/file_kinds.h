// SPDX-License-Identifier: GPL-2.0-or-later

// What kind of file a name stands for, and how old a date is: what a space map is coloured by.
#pragma once

#include "dates/general_date.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace quorvin {

enum class FileKind : std::uint8_t { Pictures, Video, Audio, Documents, Archives, Programs, Others };
inline constexpr std::size_t kFileKinds = 7;

/// By the ending of the name, which is in lower case.
FileKind kindOfName(std::string_view lowerCaseName);
QString titleOf(FileKind kind);

/// Five years at a time: up to 1994, 1995 to 1999 and so on, from 2025 on. The last one is for no date.
inline constexpr std::size_t kYearSpans = 9;
inline constexpr std::uint8_t kNoYears = kYearSpans - 1;
std::uint8_t yearSpanOf(DateValue date);
QString titleOfYears(std::uint8_t span);

}  // namespace quorvin
