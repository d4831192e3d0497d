// SPDX-License-Identifier: GPL-2.0-or-later

// Work in another thread, with the result handed over to the user interface.
#pragma once

#include "files/pool_work.h"

#include <QFuture>
#include <QFutureWatcher>
#include <QObject>
#include <QPromise>
#include <QThreadPool>

#include <exception>
#include <memory>
#include <utility>

namespace quorvin {

/// Runs `work`, which owns all that it uses, in a thread of `pool` and then, in the thread of `user`,
/// `use(future)`; `future` holds what the work returned, or throws what it threw. When `user` is destroyed
/// first, `use` is not called, but the work goes on to its end.
template <typename Work, typename Use>
void inBackground(QThreadPool& pool, QObject* user, Work work, Use use) {
  using Result = decltype(work());
  auto* watcher = new QFutureWatcher<Result>(user);
  QObject::connect(watcher, &QFutureWatcherBase::finished, user, [watcher, use = std::move(use)] {
    watcher->deleteLater();
    use(watcher->future());
  });
  // Shared, because a task of the pool must be copyable.
  const auto promise = std::make_shared<QPromise<Result>>();
  watcher->setFuture(promise->future());
  startIn(pool, [promise, work = std::move(work)]() mutable {
    promise->start();
    try {
      promise->addResult(work());
    } catch (...) {
      promise->setException(std::current_exception());
    }
    promise->finish();
  });
}

}  // namespace quorvin
