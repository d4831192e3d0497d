// SPDX-License-Identifier: GPL-2.0-or-later

// The walk down a tree as deep as trees get.
#include "index/walk_fixture.h"

#include <unistd.h>

namespace quorvin {
namespace {

// A chain of folders, each with a file, made and removed step by step: its paths are longer than the system
// takes.
class DeepTree {
 public:
  DeepTree(const QString& top, int depth) : depth_(depth) {
    at_ = ::open(top.toUtf8().constData(), O_RDONLY | O_DIRECTORY);
    for (int i = 0; i < depth && at_ >= 0; ++i) {
      const int file = ::openat(at_, "f", O_WRONLY | O_CREAT, 0600);
      ::close(file);
      const bool made = ::mkdirat(at_, "d", 0700) == 0;
      moveTo(made ? ::openat(at_, "d", O_RDONLY | O_DIRECTORY) : -1);
    }
  }
  ~DeepTree() {
    for (int i = 0; i < depth_; ++i) {
      moveTo(::openat(at_, "..", O_RDONLY | O_DIRECTORY));
      ::unlinkat(at_, "d", AT_REMOVEDIR);
      ::unlinkat(at_, "f", 0);
    }
    ::close(at_);
  }
  DeepTree(const DeepTree&) = delete;
  DeepTree& operator=(const DeepTree&) = delete;

  bool made() const { return at_ >= 0; }

 private:
  void moveTo(int folder) {
    ::close(at_);
    at_ = folder;
  }

  int depth_;
  int at_;
};

class DirIODeep : public test::WalkTest {};

TEST_F(DirIODeep, FiveThousandLevelsAreListed) {
  constexpr int kDepth = 5000;
  const DeepTree chain(tree.path(), kDepth);
  ASSERT_TRUE(chain.made());
  const QByteArray listing = walk(tree.path());
  EXPECT_EQ(listing.count("Directory: "), kDepth + 1);
  EXPECT_EQ(listing.count("\r\nf "), kDepth);
  EXPECT_TRUE(listing.endsWith("Directory: " + listed(tree.path()) + QByteArray("d\\").repeated(kDepth) +
                               "\r\n\r\n"));
  EXPECT_EQ(state.errorLog, QString());
  EXPECT_TRUE(messages.askedOfFaults.empty());
}

}  // namespace
}  // namespace quorvin
