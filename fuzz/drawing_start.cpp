// SPDX-License-Identifier: GPL-2.0-or-later

// What fuzzing drawings needs before the first input.
#include <QGuiApplication>

#include <cstdlib>

// The toolkit keeps its fonts until the process ends.
extern "C" const char* __asan_default_options() {
  return "detect_leaks=0";
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  // Lives as long as the process.
  static QGuiApplication application(*argc, *argv);
  return 0;
}
