// Calling off the loading of a picture.
#pragma once

#include <atomic>
#include <memory>

namespace quorvin {

/// A request to stop that several threads share; all copies are one request. Shared ownership, because either
/// side may end first: the window that asked, or the thread that works.
class PictureStop {
 public:
  void request() const { *isRequested_ = true; }
  bool isRequested() const { return *isRequested_; }

 private:
  std::shared_ptr<std::atomic<bool>> isRequested_ = std::make_shared<std::atomic<bool>>(false);
};

}  // namespace quorvin
