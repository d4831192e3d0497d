// SPDX-License-Identifier: GPL-2.0-or-later

// The calls that read a folder. Any thread may make them, several at a time on one folder. Errors are errno
// values, 0 for none.
#pragma once

#include "files/descriptor.h"
#include "files/folder_reader.h"

#include <array>
#include <cstddef>
#include <memory>

namespace quorvin {

/// An open folder, or none. It is shared, since a thread that makes a call keeps it open until the call is
/// over, whatever has become of the walk meanwhile.
using OpenFolder = std::shared_ptr<const Descriptor>;

/// Opens a sub-folder of `above`; never through a link. `opened` is unchanged after an error.
int openSubFolder(const Descriptor& above, const char* name, OpenFolder& opened);

/// As FolderReader::lookUp.
int lookUpName(const Descriptor& folder, const char* name, NameStatus& status);

/// Whether an error says that the process or the machine has run out of descriptors or memory.
bool isExhaustion(int error);

/// Reads names as FolderReader::next does, a stretch of the folder at a time.
class FolderStretch {
 public:
  int next(const Descriptor& folder, FolderName& name);
  /// Whether all names of the stretch have been given: the next call asks the system.
  bool isUsedUp() const { return position_ == filled_; }
  /// Another folder is read from now on.
  void forget() { position_ = filled_ = 0; }

 private:
  int fill(const Descriptor& folder);

  alignas(std::max_align_t) std::array<char, 65536> buffer_;
  std::size_t position_ = 0;
  std::size_t filled_ = 0;
};

}  // namespace quorvin
