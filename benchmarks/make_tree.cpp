// SPDX-License-Identifier: GPL-2.0-or-later

// Makes a tree of made-up files and folders on disk: any number, the same ones for the same seed on every
// machine.
#include "disk_tree.h"

#include <CLI/CLI.hpp>

#include <cstdint>
#include <exception>
#include <iostream>
#include <string>

int main(int argumentCount, char** arguments) {
  std::string top;
  std::int64_t files = 1'000'000;
  std::int64_t folders = 83'000;
  std::uint64_t seed = 1;
  CLI::App app("Makes a tree of made-up files and folders on disk. The files take up no room.");
  app.add_option("FOLDER", top, "The folder to make the tree in; it must not exist yet")->required();
  app.add_option("--files", files)
      ->check(CLI::Range(std::int64_t{1}, std::int64_t{100'000'000}))
      ->capture_default_str();
  app.add_option("--folders", folders)
      ->check(CLI::Range(std::int64_t{1}, std::int64_t{10'000'000}))
      ->capture_default_str();
  app.add_option("--seed", seed, "Equal seeds give equal trees")->capture_default_str();
  CLI11_PARSE(app, argumentCount, arguments);
  try {
    quorvin::DiskTree(seed, files, folders).make(top);
  } catch (const std::exception& failure) {
    std::cerr << "make_tree: " << failure.what() << '\n';
    return 2;
  }
  return 0;
}
