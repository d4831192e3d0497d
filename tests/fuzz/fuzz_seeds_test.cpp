// SPDX-License-Identifier: GPL-2.0-or-later

// The seeds of all fuzz targets: what a target holds an input against holds for them.
#include "support/sweep.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>

#define QUORVIN_FUZZ_TARGET(name) \
  extern "C" int quorvin_fuzz_##name(const std::uint8_t* bytes, std::size_t count);
#include "fuzz_targets.inc"
#undef QUORVIN_FUZZ_TARGET

namespace quorvin::test {
namespace {

struct Target {
  const char* name;
  std::function<int(const std::uint8_t*, std::size_t)> run;
};

const std::vector<Target>& targets() {
  static const std::vector<Target> targets = {
#define QUORVIN_FUZZ_TARGET(name) {#name, quorvin_fuzz_##name},
#include "fuzz_targets.inc"
#undef QUORVIN_FUZZ_TARGET
  };
  return targets;
}

QStringList namesIn(const QString& folder, QDir::Filters filters) {
  return QDir(folder).entryList(filters | QDir::NoDotAndDotDot, QDir::Name);
}

const QString kSeeds = QStringLiteral(QUORVIN_FUZZ_SEEDS);

class FuzzSeeds : public testing::TestWithParam<Target> {
 protected:
  QStringList seeds() const { return namesIn(folder(), QDir::Files); }

  QByteArray seed(const QString& name) const {
    QFile file(folder() + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
  }

  void run(const QByteArray& input) const {
    // A block of its own, so that a read behind its end is seen.
    const std::vector<std::uint8_t> bytes(input.begin(), input.end());
    EXPECT_NO_THROW(GetParam().run(bytes.data(), bytes.size()));
  }

 private:
  QString folder() const { return kSeeds + u'/' + QString::fromLatin1(GetParam().name) + u'/'; }
};

TEST_P(FuzzSeeds, HoldWhatTheirTargetPromises) {
  ASSERT_GE(seeds().size(), 3) << "every target has a few seeds";
  for (const QString& name : seeds()) {
    SCOPED_TRACE(name.toStdString());
    run(seed(name));
  }
}

TEST_P(FuzzSeeds, HoldItWhereverTheyAreCut) {
  for (const QString& name : seeds()) {
    SCOPED_TRACE(name.toStdString());
    const QByteArray whole = seed(name);
    const qsizetype step = 1 + whole.size() / test::sweep(200, 4);
    for (qsizetype length = 0; length < whole.size(); length += step) run(whole.first(length));
  }
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzSeeds, testing::ValuesIn(targets()),
                         [](const auto& target) { return std::string(target.param.name); });

TEST(FuzzTargets, EveryFolderOfSeedsBelongsToATarget) {
  QStringList names;
  for (const Target& target : targets()) names += QString::fromLatin1(target.name);
  EXPECT_EQ(namesIn(kSeeds, QDir::Dirs), names);
}

}  // namespace
}  // namespace quorvin::test
