// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue_writer.h"

#include "platform/text_encoding.h"

#include <cerrno>
#include <charconv>
#include <cstddef>
#include <system_error>

namespace quorvin {
namespace {

constexpr std::size_t kBufferSize = std::size_t{1} << 20;
constexpr int kNameColumns = 65;
constexpr int kSizeColumns = 16;

bool continuesCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

[[noreturn]] void throwSystemError(const std::string& doing) {
  throw std::system_error(errno, std::generic_category(), doing);
}

std::FILE* openForWriting(const std::string& path) {
  if (path == "-") return stdout;
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) throwSystemError("cannot write " + path);
  return file;
}

}  // namespace

void CatalogueWriter::CloseFile::operator()(std::FILE* file) const {
  if (file != stdout) std::fclose(file);
}

CatalogueWriter::CatalogueWriter(const std::string& path, const QLocale& locale)
    : file_(openForWriting(path)),
      dates_(locale),
      groupSign_(encodeSystemText(locale.groupSeparator()).toStdString()),
      groupSignCharacters_(static_cast<int>(locale.groupSeparator().size())) {
  buffer_.reserve(kBufferSize + 4096);
}

void CatalogueWriter::beginBlock(std::string_view volume, std::string_view folder) {
  endLine();
  buffer_ += "Volume:    ";
  buffer_ += volume;
  endLine();
  buffer_ += "Directory: ";
  buffer_ += folder;
  endLine();
  endLine();
  ++folders_;
}

void CatalogueWriter::subFolder(std::string_view name) {
  buffer_ += "<DIR> ";
  buffer_ += name;
  endLine();
  subFoldersOpen_ = true;
}

void CatalogueWriter::endSubFolders() {
  if (!subFoldersOpen_) return;
  endLine();
  subFoldersOpen_ = false;
}

void CatalogueWriter::entry(std::string_view name, const FileTraits& traits) {
  const bool unsupported = name.find('?') != std::string_view::npos;
  appendName(name);
  appendSize(unsupported ? -1 : traits.size);
  buffer_ += " bytes ";
  if (unsupported) {
    buffer_ += dates_.zeroDate();
  } else {
    dates_.append(buffer_, traits.moment);
  }
  endLine();
  ++entries_;
}

void CatalogueWriter::finish() {
  writeOut();
  if (std::fflush(file_.get()) != 0) throwSystemError("cannot write the listing");
}

// Columns count characters, so a name of many bytes may still fit.
void CatalogueWriter::appendName(std::string_view name) {
  int characters = 0;
  std::size_t end = 0;
  for (; end < name.size(); ++end) {
    if (continuesCharacter(name[end])) continue;
    if (characters == kNameColumns) break;
    ++characters;
  }
  buffer_.append(name.substr(0, end));
  buffer_.append(static_cast<std::size_t>(kNameColumns - characters), ' ');
}

void CatalogueWriter::appendSize(std::int64_t size) {
  char digits[24];
  const char* const end = std::to_chars(std::begin(digits), std::end(digits), size).ptr;
  const int length = static_cast<int>(end - digits);
  const int groupSigns = size < 0 ? 0 : (length - 1) / 3;

  const int width = length + groupSigns * groupSignCharacters_;
  buffer_.append(static_cast<std::size_t>(kSizeColumns - width), ' ');
  for (int i = 0; i < length; ++i) {
    if (groupSigns > 0 && i > 0 && (length - i) % 3 == 0) buffer_ += groupSign_;
    buffer_ += digits[i];
  }
}

void CatalogueWriter::endLine() {
  buffer_ += "\r\n";
  if (buffer_.size() >= kBufferSize) writeOut();
}

void CatalogueWriter::writeOut() {
  if (std::fwrite(buffer_.data(), 1, buffer_.size(), file_.get()) != buffer_.size()) {
    throwSystemError("cannot write the listing");
  }
  bytes_ += static_cast<std::int64_t>(buffer_.size());
  buffer_.clear();
}

}  // namespace quorvin
