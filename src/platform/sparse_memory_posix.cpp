// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/sparse_memory.h"

#include <new>
#include <sys/mman.h>

namespace quorvin {

SparseMemory::SparseMemory(std::size_t size) : size_(size) {
  if (size == 0) return;
  // Room is asked for when it is used: most of it never is.
  constexpr int kOwn = MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE;
  void* data = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, kOwn, -1, 0);
  if (data == MAP_FAILED) throw std::bad_alloc();
#ifdef MADV_NOHUGEPAGE
  // A page of two megabytes for each few kilobytes that are looked at here and there would fill the memory.
  ::madvise(data, size, MADV_NOHUGEPAGE);
#endif
  data_ = static_cast<std::byte*>(data);
}

SparseMemory::~SparseMemory() {
  if (data_ != nullptr) ::munmap(data_, size_);
}

void SparseMemory::release() const {
  if (data_ != nullptr) ::madvise(data_, size_, MADV_DONTNEED);
}

}  // namespace quorvin
