// SPDX-License-Identifier: GPL-2.0-or-later

// fuzz_seed_maker FOLDER: writes the made seeds of the targets that read drawings and archives into their
// folders below FOLDER. The same seeds each time, until the makers change.
#include "fuzz/drawing_maker.h"

#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstdio>
#include <random>
#include <span>
#include <stdexcept>
#include <vector>

namespace quorvin::fuzz {
namespace {

/// So many kinds are in a drawing, each so many times.
constexpr std::size_t kKindsEach = 8;
constexpr int kTimesEach = 3;
constexpr int kMadeInputs = 16;

class SeedFolder {
 public:
  SeedFolder(const QString& top, const QString& target) : folder_(top + u'/' + target) {
    if (!QDir().mkpath(folder_)) throw std::runtime_error("cannot make " + folder_.toStdString());
  }

  void add(const QString& kind, const QByteArray& bytes) {
    const QString number = QString::number(++count_).rightJustified(2, u'0');
    QFile file(folder_ + QStringLiteral("/made_") + kind + number);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    if (!isWritten) throw std::runtime_error("cannot write " + file.fileName().toStdString());
  }

 private:
  QString folder_;
  int count_ = 0;
};

std::vector<std::uint8_t> anyBytes(std::mt19937& random, std::size_t count) {
  std::vector<std::uint8_t> bytes(count);
  for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random());
  return bytes;
}

/// Every kind several times in a row, so that its parameters differ, and not far from its neighbours.
template <typename Make>
void addDrawings(SeedFolder& folder, const QString& name, std::span<const RecordKind> kinds, Make&& make) {
  constexpr std::size_t kEnough = 20'000;
  std::mt19937 random(1);
  for (std::size_t first = 0; first < kinds.size(); first += kKindsEach) {
    std::vector<RecordKind> rows;
    for (int time = 0; time < kTimesEach; ++time) {
      for (const RecordKind& kind : kinds.subspan(first, std::min(kKindsEach, kinds.size() - first)))
        rows.push_back(kind);
    }
    const std::vector<std::uint8_t> bytes = anyBytes(random, kEnough);
    Choices choices(bytes.data(), bytes.size());
    folder.add(name, make(std::span<const RecordKind>(rows), choices));
  }
}

void makeSeeds(const QString& top) {
  SeedFolder drawings(top, QStringLiteral("metafile"));
  addDrawings(drawings, QStringLiteral("emf"), enhancedRecordKinds(), enhancedDrawing);
  addDrawings(drawings, QStringLiteral("wmf"), windowsRecordKinds(), windowsDrawing);
  for (const char* target : {"made_metafile", "made_archive"}) {
    SeedFolder folder(top, QString::fromLatin1(target));
    std::mt19937 random(2);
    for (int input = 1; input <= kMadeInputs; ++input) {
      const std::vector<std::uint8_t> bytes = anyBytes(random, 60U * static_cast<unsigned>(input));
      folder.add(QString(), QByteArray(reinterpret_cast<const char*>(bytes.data()),
                                       static_cast<qsizetype>(bytes.size())));
    }
  }
}

}  // namespace
}  // namespace quorvin::fuzz

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: fuzz_seed_maker FOLDER\n", stderr);
    return 2;
  }
  quorvin::fuzz::makeSeeds(QString::fromLocal8Bit(argv[1]));
  return 0;
}
