// SPDX-License-Identifier: GPL-2.0-or-later

// The console companion runs on servers without any windows, and the desktop's search starts its helper
// before anybody wants a window; nothing may pull windows in by the back door.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>
#include <string>

namespace quorvin::lint {
namespace {

/// The shared libraries that the program at `path` loads, directly or through others, as ldd tells them.
std::string librariesOf(const std::string& path) {
  const std::string command = "ldd '" + path + "'";
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  std::string output;
  std::array<char, 4096> buffer;
  while (pipe) {
    const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe.get());
    if (count == 0) break;
    output.append(buffer.data(), count);
  }
  return output;
}

TEST(ConsoleProgram, LoadsNoQtWidgets) {
  const std::string libraries = librariesOf(QUORVIN_CLI_PROGRAM);
  ASSERT_THAT(libraries, testing::HasSubstr("libQt6Core"));
  EXPECT_THAT(libraries, testing::Not(testing::HasSubstr("libQt6Widgets")))
      << "quorvin-cli has been linked with a library that uses QtWidgets; see src/console/CMakeLists.txt.";
}

TEST(SearchProvider, LoadsNothingOfTheWindowSystem) {
  const std::string libraries = librariesOf(QUORVIN_PROVIDER_PROGRAM);
  ASSERT_THAT(libraries, testing::HasSubstr("libQt6DBus"));
  EXPECT_THAT(libraries, testing::Not(testing::HasSubstr("libQt6Gui")))
      << "quorvin-search-provider has been linked with a library that draws; see "
         "src/provider/CMakeLists.txt.";
}

}  // namespace
}  // namespace quorvin::lint
