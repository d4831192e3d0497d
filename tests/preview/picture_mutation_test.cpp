// SPDX-License-Identifier: GPL-2.0-or-later

// Damaged pictures of every format: the program survives them, and no load takes long.
//
// Each test tries 40 mutations, and 300 where everything is tried; QUORVIN_MUTATIONS=10000 tries so many,
// QUORVIN_MUTATION_SEED others.
#include "metafile/metafile_corpus.h"
#include "metafile/play_metafile.h"
#include "preview/corpus_picture.h"
#include "preview/image_preview.h"
#include "support/processor_clock.h"
#include "support/sweep.h"
#include "support/temporary_folder.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iostream>
#include <random>

namespace quorvin::test {

namespace {

int usualMutations() {
  return sweep(300, 40);
}

int fromEnvironment(const char* name, int otherwise) {
  bool isNumber = false;
  const int value = qEnvironmentVariableIntValue(name, &isNumber);
  return isNumber ? value : otherwise;
}

/// The same mutations in every run.
class Mutator {
 public:
  explicit Mutator(QList<QByteArray> seeds)
      : seeds_(std::move(seeds)),
        random_(static_cast<unsigned>(fromEnvironment("QUORVIN_MUTATION_SEED", 1))) {}

  QByteArray next() {
    QByteArray bytes = seeds_[below(seeds_.size())];
    const qsizetype changes = 1 + below(4);
    for (qsizetype change = 0; change < changes && !bytes.isEmpty(); ++change) mutate(bytes);
    return bytes;
  }

 private:
  qsizetype below(qsizetype count) {
    return static_cast<qsizetype>(random_() % static_cast<unsigned long>(count));
  }

  /// Headers are hit more often than the rest, which is mostly pixels.
  qsizetype place(const QByteArray& bytes) {
    return below(2) == 0 ? below(std::min<qsizetype>(bytes.size(), 128)) : below(bytes.size());
  }

  void mutate(QByteArray& bytes) {
    const qsizetype at = place(bytes);
    switch (below(6)) {
      case 0:
        bytes[at] = static_cast<char>(bytes[at] ^ (1 << below(8)));
        return;
      case 1:
        bytes[at] = static_cast<char>(random_());
        return;
      case 2: {
        constexpr std::array<std::uint32_t, 8> kExtremes = {0,      1,          0x7F,       0xFF,
                                                            0xFFFF, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
        const std::uint32_t value = kExtremes.at(static_cast<std::size_t>(below(kExtremes.size())));
        const qsizetype width = qsizetype{1} << below(3);
        for (qsizetype byte = 0; byte < width && at + byte < bytes.size(); ++byte) {
          bytes[at + byte] = static_cast<char>(value >> (8 * byte));
        }
        return;
      }
      case 3:
        bytes.truncate(at);
        return;
      case 4:
        bytes.remove(at, 1 + below(16));
        return;
      default:
        bytes.insert(at, bytes.mid(place(bytes), 1 + below(64)));
        return;
    }
  }

  QList<QByteArray> seeds_;
  std::mt19937 random_;
};

QList<QByteArray> bytesOf(const auto& corpus) {
  QList<QByteArray> bytes;
  for (const auto& each : corpus) bytes.append(each.bytes);
  return bytes;
}

/// Shows mutated pictures one after another in the window, as a user would.
class PictureMutation : public testing::Test {
 protected:
  struct Outcome {
    int shown = 0;
    int refused = 0;
    qint64 longestLoad = 0;
    qint64 longestPause = 0;
  };

  /// `name` is the name of the file, which messages contain.
  Outcome showAll(const QString& name, const QList<QByteArray>& seeds) {
    Outcome outcome;
    const QString path = folder_.pathOf(name);
    ImagePreview preview(&owner_, {QStringLiteral(QUORVIN_METAFILE_PROGRAM)},
                         [&](const QString& reported, const RuntimeFault& fault) {
                           ++outcome.refused;
                           EXPECT_EQ(reported, path);
                           EXPECT_TRUE(fault.description().contains(path));
                         });
    ProcessorClock sinceBeat;
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout,
                     [&] { outcome.longestPause = std::max(outcome.longestPause, sinceBeat.restart()); });
    sinceBeat.start();
    beat.start(1);
    Mutator mutator(seeds);
    const int mutations = fromEnvironment("QUORVIN_MUTATIONS", usualMutations());
    for (int mutation = 0; mutation < mutations; ++mutation) {
      folder_.writeFile(name, mutator.next());
      QElapsedTimer clock;
      clock.start();
      preview.PreviewImage(path);
      while (preview.isLoading()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
      QCoreApplication::processEvents();
      outcome.longestLoad = std::max(outcome.longestLoad, clock.elapsed());
    }
    outcome.shown = mutations - outcome.refused;
    // A moving picture goes on for a while.
    QTest::qWait(50);
    return outcome;
  }

  void expectGood(const QString& name, const QList<QByteArray>& seeds, qint64 longestLoad) {
    const Outcome outcome = showAll(name, seeds);
    std::cout << name.toStdString() << ": " << outcome.shown << " shown, " << outcome.refused
              << " refused, longest load " << outcome.longestLoad << " ms, longest pause of the window "
              << outcome.longestPause << " ms\n";
    // Not all of them are beyond rescue, and not all are whole.
    EXPECT_GT(outcome.shown, 0);
    EXPECT_GT(outcome.refused, 0);
    EXPECT_LT(outcome.longestLoad, longestLoad);
    EXPECT_LT(outcome.longestPause, 2000);
  }

  TemporaryFolder folder_;
  QWidget owner_;
};

constexpr qint64 kPictureLoad = 20'000;
/// A drawing has ten seconds, and the machine may be busy.
constexpr qint64 kMetafileLoad = 100'000;

TEST_F(PictureMutation, Bitmaps) {
  expectGood(QStringLiteral("a.bmp"), bytesOf(bitmapCorpus()), kPictureLoad);
}

TEST_F(PictureMutation, Icons) {
  expectGood(QStringLiteral("a.ico"), bytesOf(iconCorpus()), kPictureLoad);
}

TEST_F(PictureMutation, Gifs) {
  expectGood(QStringLiteral("a.gif"), bytesOf(gifCorpus()), kPictureLoad);
}

TEST_F(PictureMutation, Jpegs) {
  expectGood(QStringLiteral("a.jpg"), bytesOf(jpegCorpus()), kPictureLoad);
}

TEST_F(PictureMutation, EnhancedMetafiles) {
  expectGood(QStringLiteral("a.emf"), bytesOf(enhancedMetafileCorpus()), kMetafileLoad);
}

TEST_F(PictureMutation, WindowsMetafiles) {
  expectGood(QStringLiteral("a.wmf"), bytesOf(windowsMetafileCorpus()), kMetafileLoad);
}

/// Without the process around it: the sanitizers see what happens inside.
TEST(MetafileMutation, ThePlayerItselfComesToNoHarm) {
  for (const QList<QByteArray>& seeds :
       {bytesOf(enhancedMetafileCorpus()), bytesOf(windowsMetafileCorpus())}) {
    Mutator mutator(seeds);
    int drawn = 0;
    for (int mutation = 0; mutation < fromEnvironment("QUORVIN_MUTATIONS", usualMutations()); ++mutation) {
      try {
        playMetafile(mutator.next());
        ++drawn;
      } catch (const MetafileFault&) {
        // Refused.
      }
    }
    EXPECT_GT(drawn, 0);
  }
}

}  // namespace

}  // namespace quorvin::test
