// SPDX-License-Identifier: GPL-2.0-or-later

// Handing work over to the threads of a pool.
#pragma once

#include <QThreadPool>

#include <functional>
#include <utility>
#if defined(__SANITIZE_THREAD__)
#include <sanitizer/tsan_interface.h>
#endif

namespace quorvin {

#if defined(__SANITIZE_THREAD__)
/// What the sanitizer is told in place of what it cannot see: the toolkit is built without it, so that work
/// which a used thread gets from another one looks like memory that both touch.
inline char handingOver;
#endif

/// Has a thread of `pool` run `work`, which is copyable and owns all that it uses.
template <typename Work>
void startIn(QThreadPool& pool, Work work) {
#if defined(__SANITIZE_THREAD__)
  std::function<void()> task = [work = std::move(work)]() mutable {
    __tsan_acquire(&handingOver);
    work();
  };
  // All that is handed over has been written by now.
  __tsan_release(&handingOver);
  pool.start(std::move(task));
#else
  pool.start(std::move(work));
#endif
}

}  // namespace quorvin
