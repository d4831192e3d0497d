// Drawing a metafile, without the limits of the process that draws it for the program. An input is the file.
#include "metafile/play_metafile.h"

#include <QByteArrayView>
#include <QGuiApplication>

#include <cstdint>
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

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    const QByteArrayView file(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const quorvin::MetafilePicture picture = quorvin::playMetafile(file);
    if (picture.image.isNull()) std::abort();
  } catch (const quorvin::MetafileFault&) {
    // What is no metafile is said to be none.
  }
  return 0;
}
