// The program's own files seen as memory.
#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <span>

namespace quorvin {

/// A stretch of a file mapped for reading. Only for files that the program itself writes aside and renames,
/// which nobody shortens: the user's own files are read with SequentialFile. The mapping outlives the file's
/// name.
class MappedFile {
 public:
  /// Maps `size` bytes (more than 0) from `offset` on, which is a multiple of kMappingAlignment. Throws
  /// RuntimeFault when the file cannot be opened, is shorter than that, or cannot be mapped.
  MappedFile(const QString& path, std::int64_t offset, std::size_t size);
  ~MappedFile();
  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;

  std::span<const std::byte> bytes() const { return {data_, size_}; }

 private:
  const std::byte* data_ = nullptr;
  std::size_t size_ = 0;
};

/// A multiple of every page size in use.
inline constexpr std::size_t kMappingAlignment = std::size_t{1} << 16;

}  // namespace quorvin
