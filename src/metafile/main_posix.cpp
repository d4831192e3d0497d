// SPDX-License-Identifier: GPL-2.0-or-later

// quorvin-metafile: reads a metafile from its standard input, draws it, and writes the answer that boundary.h
// describes to its standard output. Before it reads anything it limits itself, so that a file that was made
// to do harm meets a process that can do none.
#include "metafile/boundary.h"
#include "metafile/play_metafile.h"

#include <QByteArray>
#include <QGuiApplication>

#include <array>
#include <csignal>
#include <cstdio>
#include <new>
#include <sys/resource.h>

namespace {

using namespace quorvin;

constexpr rlim_t kMemory = 512ULL * 1024 * 1024;
constexpr rlim_t kProcessorSeconds = 5;
constexpr rlim_t kOpenFiles = 64;

bool limit(decltype(RLIMIT_AS) resource, rlim_t most) {
  rlimit before{};
  if (getrlimit(resource, &before) != 0) return false;
  // A lower limit that is set already stays.
  const rlim_t wanted = before.rlim_max == RLIM_INFINITY || before.rlim_max > most ? most : before.rlim_max;
  const rlimit limits{wanted, wanted};
  return setrlimit(resource, &limits) == 0;
}

bool limitMemory() {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
  // The sanitizers reserve terabytes that they never use.
  return true;
#else
  return limit(RLIMIT_AS, kMemory);
#endif
}

/// From now on this process has at most 512 MB of address space, five seconds of processor time (from its
/// start) and 64 open files, cannot write to any file (a pipe that is open stays usable), and leaves no core
/// behind. Beyond a limit it fails or is ended by the system. Returns whether all limits could be set.
bool limitThisProcess() {
  // A write that is refused for its size should fail, not end the process.
  std::signal(SIGXFSZ, SIG_IGN);
  return limitMemory() && limit(RLIMIT_CPU, kProcessorSeconds) && limit(RLIMIT_NOFILE, kOpenFiles) &&
         limit(RLIMIT_FSIZE, 0) && limit(RLIMIT_CORE, 0);
}

QByteArray readAll(std::FILE* input) {
  QByteArray bytes;
  std::array<char, 65536> buffer;
  while (bytes.size() <= kLargestMetafile) {
    const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), input);
    if (count == 0) return bytes;
    bytes.append(buffer.data(), static_cast<qsizetype>(count));
  }
  throw MetafileFault(kMetafileTooLarge);
}

QByteArray answerTo(std::FILE* input) {
  try {
    return metafileAnswer(playMetafile(readAll(input)));
  } catch (const MetafileFault& fault) {
    return metafileRefusal(fault.what());
  } catch (const std::bad_alloc&) {
    return metafileRefusal(QT_TRANSLATE_NOOP("Texts", "it needs too much memory"));
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (!limitThisProcess()) return 1;
  // Fonts need an application object. A screen is not needed, and no user's settings should change the
  // drawing.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  const QByteArray answer = answerTo(stdin);
  const std::size_t written =
      std::fwrite(answer.constData(), 1, static_cast<std::size_t>(answer.size()), stdout);
  return written == static_cast<std::size_t>(answer.size()) && std::fflush(stdout) == 0 ? 0 : 1;
}
