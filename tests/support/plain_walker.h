// SPDX-License-Identifier: GPL-2.0-or-later

// The judge of listings of real trees: a walk that shares nothing with the program's but the texts of dates,
// and a reader of blocks.
#pragma once

#include <QByteArray>

#include <map>
#include <set>
#include <string>

namespace quorvin::test {

/// What one block says of a folder; the order within a block is the file system's and does not count. Entries
/// are whole lines.
struct PlainBlock {
  std::multiset<std::string> subFolders;
  std::multiset<std::string> entries;

  bool operator==(const PlainBlock&) const = default;
};

/// Blocks by the folder's path as listed.
using PlainBlocks = std::map<std::string, PlainBlock>;

/// Walks the folder at `top`, a path with a slash at its end, and gives what a listing of it must hold, in
/// the C locale. Throws std::runtime_error when something cannot be read.
PlainBlocks plainWalk(const std::string& top);

/// Takes a listing of one volume apart. Throws std::runtime_error where its layout is broken, where a block
/// is of another volume than `label`, and where a folder comes twice.
PlainBlocks blocksOf(const QByteArray& listing, const std::string& label);

/// Names the first folder in which `blocks` differ from `expected`; empty where nothing does.
std::string differenceOf(const PlainBlocks& blocks, const PlainBlocks& expected);

}  // namespace quorvin::test
