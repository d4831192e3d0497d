// Work aside from the user interface.
#pragma once

#include <QFuture>
#include <QPromise>
#include <QThreadPool>

#include <exception>
#include <memory>
#include <utility>

namespace quorvin {

/// Runs `work` in one of the threads of `pool`. What it returns, or throws, comes out of the future.
template <typename Work>
auto inBackground(QThreadPool& pool, Work work) -> QFuture<decltype(work())> {
  // Shared, because a task of the pool must be copyable.
  const auto promise = std::make_shared<QPromise<decltype(work())>>();
  pool.start([promise, work = std::move(work)]() mutable {
    promise->start();
    try {
      promise->addResult(work());
    } catch (...) {
      promise->setException(std::current_exception());
    }
    promise->finish();
  });
  return promise->future();
}

}  // namespace quorvin
