// SPDX-License-Identifier: GPL-2.0-or-later

// Importing the lists of other programs. An input is a byte for the format (that of the first lines, or one
// of all), a byte for the encoding and what else the user says, and the list.
#include "catalogue/import/list_import.h"
#include "fuzz/require.h"
#include "support/temporary_folder.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace quorvin {
namespace {

struct Made {
  QByteArray listing;
  ImportReport report;
};

ImportRequest requestOf(std::uint8_t format, std::uint8_t choice) {
  static constexpr std::array<const char*, 4> kEncodings{"utf-8", "utf-8", "cp850", "windows-1252"};
  static constexpr std::array<const char*, 4> kPatterns{"%s %T@ %p\\n", "%y\\t%h\\t%f\\t%s\\t%TY-%Tm-%Td\\0",
                                                        "%p (%l)", "%t %P"};
  ImportRequest request;
  const std::size_t number = format % (listFormats().size() + 1);
  if (number < listFormats().size()) request.format = &listFormats()[number];
  request.encoding = kEncodings[choice % 4];
  request.options.pattern = kPatterns[choice / 4 % 4];
  if (choice / 16 % 2 != 0) request.options.columns = "path=1,size=2,date=3,type=4";
  if (choice / 32 % 2 != 0) request.options.made = 20'000;
  request.options.areSizesBytes = choice / 64 % 2 != 0;
  if (choice / 128 != 0) request.folder = QStringLiteral("/media/cd");
  request.label = QStringLiteral("List");
  return request;
}

Made made(std::string_view list, const ImportRequest& request) {
  static const TemporaryFolder folder;
  const QString place = folder.pathOf(QStringLiteral("listing"));
  FileAside file(place, {.durability = Durability::None});
  const ListLines::Read read = [&list](std::span<char> buffer) {
    const std::size_t count = std::min(buffer.size(), list.size());
    std::memcpy(buffer.data(), list.data(), count);
    list.remove_prefix(count);
    return count;
  };
  Made made;
  made.report =
      importList(read, request, QLocale::c(), place, file.writer(), [](std::int64_t) { return true; });
  file.commit();
  made.listing = folder.readFile(QStringLiteral("listing"));
  return made;
}

/// The lines of a listing are those that the report counts, and no others.
void check(const Made& it) {
  std::int64_t folders = 0;
  std::int64_t files = 0;
  for (const QByteArray& line : it.listing.split('\n')) {
    fuzz::require(line.isEmpty() || line.endsWith('\r'), "a line ends with CR LF");
    fuzz::require(line.count('\r') <= 1, "a line has one end");
    if (line.startsWith("Directory: \\") && line.endsWith("\\\r")) ++folders;
    const bool isHead = line.size() < 2 || line.startsWith("Volume:    ") || line.startsWith("Directory: ") ||
                        line.startsWith("<DIR> ");
    const bool isFile = line.size() >= 102 && line.contains(" bytes ");
    fuzz::require(isHead || isFile, "a line is a head or a file's");
    if (isFile && !isHead) ++files;
  }
  const ImportCounts& counts = it.report.counts;
  // A name may look like a head.
  fuzz::require(files <= counts.files && folders >= counts.folders, "the listing holds what is counted");
  fuzz::require(it.report.notUnderstood <= it.report.lines, "a line is not understood once");
}

}  // namespace
}  // namespace quorvin

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvin;
  if (size < 2) return 0;
  ImportRequest request = requestOf(data[0], data[1]);
  const std::string_view list(reinterpret_cast<const char*>(data) + 2, size - 2);
  const Made inMemory = made(list, request);
  check(inMemory);
  request.memory = 300;
  fuzz::require(made(list, request).listing == inMemory.listing, "a small memory makes the same listing");
  return 0;
}
