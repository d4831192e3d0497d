// SPDX-License-Identifier: GPL-2.0-or-later

// What freed memory is kept in.
#include "platform/machine_memory.h"

#include <gtest/gtest.h>

#include <barrier>
#include <cstdlib>
#include <string_view>
#include <thread>
#include <vector>

// A sanitizer keeps freed memory in a store of its own.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define QUORVIN_HAS_STORES
#include <cstdio>
#include <malloc.h>
#endif

namespace quorvin::test {

namespace {

#ifdef QUORVIN_HAS_STORES

/// Of this process: how many stores of freed memory it has.
int storeCount() {
  char* text = nullptr;
  std::size_t size = 0;
  std::FILE* file = ::open_memstream(&text, &size);
  ::malloc_info(0, file);
  std::fclose(file);
  int count = 0;
  const std::string_view report(text, size);
  for (std::size_t at = report.find("<heap "); at != report.npos; at = report.find("<heap ", at + 1)) ++count;
  std::free(text);
  return count;
}

[[noreturn]] void exitWithStoresOfEightThreads() {
  shareFreedMemoryAmongThreads();
  std::barrier allHaveSome(8);
  std::vector<std::jthread> threads;
  for (int i = 0; i < 8; ++i) {
    threads.emplace_back([&] {
      const std::vector<char> some(1000);
      allHaveSome.arrive_and_wait();
    });
  }
  threads.clear();
  std::_Exit(storeCount());
}

TEST(FreedMemoryDeathTest, IsInOneStoreForTheFirstThreadAndOneForAllOthers) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(exitWithStoresOfEightThreads(), testing::ExitedWithCode(2), "");
}

#endif

}  // namespace

}  // namespace quorvin::test
