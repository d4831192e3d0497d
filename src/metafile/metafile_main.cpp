// quorvin-metafile: draws one metafile, which it reads from its standard input, and writes the image to its
// standard output as preview/metafile_answer.h describes. The program with the windows starts it for each
// metafile that it shows, so that a file that was made to do harm meets a process that can do none.
#include "metafile/metafile_answer.h"
#include "metafile/metafile_bytes.h"
#include "metafile/metafile_limits.h"
#include "metafile/metafile_play.h"

#include <QByteArray>
#include <QGuiApplication>

#include <array>
#include <cstdio>
#include <new>

namespace {

using namespace quorvin;

constexpr qsizetype kLargestFile = 64LL * 1024 * 1024;

QByteArray readAll(std::FILE* input) {
  QByteArray bytes;
  std::array<char, 65536> buffer;
  while (bytes.size() <= kLargestFile) {
    const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), input);
    if (count == 0) return bytes;
    bytes.append(buffer.data(), static_cast<qsizetype>(count));
  }
  throw MetafileFault("it is larger than 64 MB");
}

QByteArray answerTo(std::FILE* input) {
  try {
    return metafileAnswer(playMetafile(readAll(input)));
  } catch (const MetafileFault& fault) {
    return metafileRefusal(fault.what());
  } catch (const std::bad_alloc&) {
    return metafileRefusal("it needs too much memory");
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (!limitThisProcess()) return 1;
  // Fonts need an application object; a screen is not needed, and nobody's settings shall change the drawing.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QByteArray answer = answerTo(stdin);
  const std::size_t written =
      std::fwrite(answer.constData(), 1, static_cast<std::size_t>(answer.size()), stdout);
  return written == static_cast<std::size_t>(answer.size()) && std::fflush(stdout) == 0 ? 0 : 1;
}
