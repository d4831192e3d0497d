// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/volumes/file_kinds.h"

#include "texts/texts.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quorvin {

namespace {

constexpr int kFirstYear = 1995;
constexpr int kYearsOfSpan = 5;
constexpr int kLastSpan = kNoYears - 1;

using Ending = std::pair<std::string_view, FileKind>;

/// Sorted, for the search in it.
constexpr std::array kEndings = {
    Ending{"7z", FileKind::Archives},    Ending{"aac", FileKind::Audio},
    Ending{"ape", FileKind::Audio},      Ending{"apk", FileKind::Programs},
    Ending{"arw", FileKind::Pictures},   Ending{"avi", FileKind::Video},
    Ending{"bin", FileKind::Programs},   Ending{"bmp", FileKind::Pictures},
    Ending{"bz2", FileKind::Archives},   Ending{"cab", FileKind::Archives},
    Ending{"cr2", FileKind::Pictures},   Ending{"csv", FileKind::Documents},
    Ending{"deb", FileKind::Archives},   Ending{"dll", FileKind::Programs},
    Ending{"dng", FileKind::Pictures},   Ending{"doc", FileKind::Documents},
    Ending{"docx", FileKind::Documents}, Ending{"epub", FileKind::Documents},
    Ending{"exe", FileKind::Programs},   Ending{"flac", FileKind::Audio},
    Ending{"flv", FileKind::Video},      Ending{"gif", FileKind::Pictures},
    Ending{"gz", FileKind::Archives},    Ending{"heic", FileKind::Pictures},
    Ending{"htm", FileKind::Documents},  Ending{"html", FileKind::Documents},
    Ending{"ico", FileKind::Pictures},   Ending{"img", FileKind::Archives},
    Ending{"iso", FileKind::Archives},   Ending{"jar", FileKind::Programs},
    Ending{"jpeg", FileKind::Pictures},  Ending{"jpg", FileKind::Pictures},
    Ending{"m2ts", FileKind::Video},     Ending{"m4a", FileKind::Audio},
    Ending{"m4v", FileKind::Video},      Ending{"md", FileKind::Documents},
    Ending{"mid", FileKind::Audio},      Ending{"mkv", FileKind::Video},
    Ending{"mobi", FileKind::Documents}, Ending{"mov", FileKind::Video},
    Ending{"mp3", FileKind::Audio},      Ending{"mp4", FileKind::Video},
    Ending{"mpeg", FileKind::Video},     Ending{"mpg", FileKind::Video},
    Ending{"msi", FileKind::Programs},   Ending{"mts", FileKind::Video},
    Ending{"nef", FileKind::Pictures},   Ending{"odp", FileKind::Documents},
    Ending{"ods", FileKind::Documents},  Ending{"odt", FileKind::Documents},
    Ending{"ogg", FileKind::Audio},      Ending{"ogv", FileKind::Video},
    Ending{"opus", FileKind::Audio},     Ending{"pdf", FileKind::Documents},
    Ending{"png", FileKind::Pictures},   Ending{"ppt", FileKind::Documents},
    Ending{"pptx", FileKind::Documents}, Ending{"ps", FileKind::Documents},
    Ending{"psd", FileKind::Pictures},   Ending{"rar", FileKind::Archives},
    Ending{"raw", FileKind::Pictures},   Ending{"rpm", FileKind::Archives},
    Ending{"rtf", FileKind::Documents},  Ending{"so", FileKind::Programs},
    Ending{"svg", FileKind::Pictures},   Ending{"tar", FileKind::Archives},
    Ending{"tgz", FileKind::Archives},   Ending{"tif", FileKind::Pictures},
    Ending{"tiff", FileKind::Pictures},  Ending{"ts", FileKind::Video},
    Ending{"txt", FileKind::Documents},  Ending{"vob", FileKind::Video},
    Ending{"wav", FileKind::Audio},      Ending{"webm", FileKind::Video},
    Ending{"webp", FileKind::Pictures},  Ending{"wma", FileKind::Audio},
    Ending{"wmv", FileKind::Video},      Ending{"xls", FileKind::Documents},
    Ending{"xlsx", FileKind::Documents}, Ending{"xz", FileKind::Archives},
    Ending{"zip", FileKind::Archives},   Ending{"zst", FileKind::Archives},
};
static_assert(std::ranges::is_sorted(kEndings, {}, &Ending::first));

}  // namespace

FileKind kindOfName(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) return FileKind::Others;
  const std::string_view ending = name.substr(dot + 1);
  const auto found = std::ranges::lower_bound(kEndings, ending, {}, &Ending::first);
  return found != kEndings.end() && found->first == ending ? found->second : FileKind::Others;
}

QString titleOf(FileKind kind) {
  switch (kind) {
    case FileKind::Pictures:
      return Texts::tr("Pictures");
    case FileKind::Video:
      return Texts::tr("Video");
    case FileKind::Audio:
      return Texts::tr("Audio");
    case FileKind::Documents:
      return Texts::tr("Documents");
    case FileKind::Archives:
      return Texts::tr("Archives");
    case FileKind::Programs:
      return Texts::tr("Programs");
    case FileKind::Others:
      return Texts::tr("Others");
  }
  return {};
}

std::uint8_t yearSpanOf(DateValue date) {
  if (date < 1) return kNoYears;
  const int year = calendarDateOf(splitDateValue(date).day).year;
  if (year < kFirstYear) return 0;
  return static_cast<std::uint8_t>(std::min((year - kFirstYear) / kYearsOfSpan + 1, kLastSpan));
}

QString titleOfYears(std::uint8_t span) {
  if (span == kNoYears) return Texts::tr("No date");
  if (span == 0) return Texts::tr("Up to %1").arg(kFirstYear - 1);
  const int first = kFirstYear + (span - 1) * kYearsOfSpan;
  if (span == kLastSpan) return Texts::tr("From %1 on").arg(first);
  return QStringLiteral("%1\u2013%2").arg(first).arg(first + kYearsOfSpan - 1);
}

}  // namespace quorvin
