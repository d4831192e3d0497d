// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/plain_walker.h"

#include "dates/general_date.h"

#include <QDateTime>
#include <QLocale>

#include <dirent.h>
#include <stdexcept>
#include <sys/stat.h>

namespace quorvin::test {
namespace {

std::string listed(std::string name) {
  for (char& byte : name) {
    if (byte == '\\' || byte == '\r' || byte == '\n') byte = '?';
  }
  if (!QByteArray::fromStdString(name).isValidUtf8()) throw std::runtime_error("no text: " + name);
  return name;
}

bool isQuestioned(const std::string& listedName) {
  return listedName.find('?') != std::string::npos;
}

std::string withBackslashes(std::string path) {
  for (char& byte : path) {
    if (byte == '/') byte = '\\';
  }
  return path;
}

std::string grouped(long long size) {
  std::string digits = std::to_string(size);
  if (size > 9'999'999'999) return digits;
  for (auto place = static_cast<int>(digits.size()) - 3; place > 0; place -= 3) {
    digits.insert(static_cast<std::size_t>(place), ",");
  }
  return digits;
}

std::string column(const std::string& text, int width) {
  const QString characters = QString::fromStdString(text);
  const auto codePoints = static_cast<int>(characters.toUcs4().size());
  return width > 0 ? text + std::string(static_cast<std::size_t>(std::max(0, width - codePoints)), ' ')
                   : std::string(static_cast<std::size_t>(std::max(0, -width - codePoints)), ' ') + text;
}

std::string cut(const std::string& text) {
  std::string result;
  int characters = 0;
  for (const char byte : text) {
    if ((static_cast<unsigned char>(byte) & 0xC0U) != 0x80U && ++characters > 65) break;
    result += byte;
  }
  return result;
}

std::string entryLine(const std::string& name, const struct stat& status) {
  const std::string listedName = listed(name);
  if (isQuestioned(listedName)) return column(cut(listedName), 65) + column("-1", -16) + " bytes 00:00:00";
  const QDateTime changed = QDateTime::fromSecsSinceEpoch(status.st_mtim.tv_sec);
  return column(cut(listedName), 65) + column(grouped(status.st_size), -16) + " bytes " +
         generalDateText(dateValueOf(changed), QLocale::c()).toStdString();
}

void walk(const std::string& folder, PlainBlocks& blocks) {
  PlainBlock& block = blocks[withBackslashes(folder)];
  DIR* const names = ::opendir(folder.c_str());
  if (names == nullptr) throw std::runtime_error("cannot open " + folder);
  std::set<std::string> toWalk;
  while (const dirent* entry = ::readdir(names)) {
    const std::string name = entry->d_name;
    if (name.front() == '.' || name == "pagefile.sys") continue;
    struct stat own {};
    struct stat target {};
    if (::lstat((folder + name).c_str(), &own) != 0)
      throw std::runtime_error("cannot look at " + folder + name);
    const bool broken = ::stat((folder + name).c_str(), &target) != 0;
    if (broken) continue;
    if (S_ISREG(target.st_mode)) block.entries.insert(entryLine(name, target));
    if (!S_ISDIR(target.st_mode) || isQuestioned(listed(name))) continue;
    block.subFolders.insert(name);
    if (S_ISDIR(own.st_mode)) toWalk.insert(folder + name + '/');
  }
  ::closedir(names);
  for (const std::string& subFolder : toWalk) walk(subFolder, blocks);
}

/// Gives a listing's lines one after another.
class Lines {
 public:
  explicit Lines(const QByteArray& listing) : rest_(listing) {}

  bool atEnd() const { return rest_.isEmpty(); }
  std::string peek() const { return rest_.left(end()).toStdString(); }
  std::string take() {
    const std::string line = peek();
    rest_.remove(0, end() + 2);
    return line;
  }
  /// Takes a line that must begin so, and gives what follows.
  std::string take(const std::string& start) {
    const std::string line = take();
    if (!line.starts_with(start)) throw std::runtime_error("not \"" + start + "\": " + line);
    return line.substr(start.size());
  }

 private:
  qsizetype end() const {
    const qsizetype place = rest_.indexOf("\r\n");
    if (place < 0) throw std::runtime_error("a line without an end");
    return place;
  }

  QByteArray rest_;
};

void takeEmptyLine(Lines& lines) {
  if (const std::string line = lines.take(); !line.empty()) throw std::runtime_error("not empty: " + line);
}

void takeBlock(Lines& lines, const std::string& label, PlainBlocks& blocks) {
  takeEmptyLine(lines);
  if (lines.take("Volume:    ") != label) throw std::runtime_error("another volume");
  const std::string folder = lines.take("Directory: ");
  takeEmptyLine(lines);
  const auto [place, isNew] = blocks.emplace(folder, PlainBlock{});
  if (!isNew) throw std::runtime_error("twice: " + folder);
  PlainBlock& block = place->second;
  while (!lines.atEnd() && lines.peek().starts_with("<DIR> ")) block.subFolders.insert(lines.take("<DIR> "));
  if (!block.subFolders.empty()) takeEmptyLine(lines);
  while (!lines.atEnd() && !lines.peek().empty()) block.entries.insert(lines.take());
}

}  // namespace

PlainBlocks plainWalk(const std::string& top) {
  PlainBlocks blocks;
  walk(top, blocks);
  return blocks;
}

PlainBlocks blocksOf(const QByteArray& listing, const std::string& label) {
  PlainBlocks blocks;
  Lines lines(listing);
  while (!lines.atEnd()) takeBlock(lines, label, blocks);
  return blocks;
}

std::string differenceOf(const PlainBlocks& blocks, const PlainBlocks& expected) {
  for (const auto& [folder, block] : expected) {
    const auto found = blocks.find(folder);
    if (found == blocks.end()) return "missing: " + folder;
    if (found->second != block) return "different: " + folder;
  }
  return blocks.size() > expected.size() ? "folders that should not be there" : "";
}

}  // namespace quorvin::test
