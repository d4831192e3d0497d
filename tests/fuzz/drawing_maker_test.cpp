// SPDX-License-Identifier: GPL-2.0-or-later

// Drawings that are made for the fuzz targets, and the seeds that were made so.
#include "fuzz/drawing_maker.h"

#include "fuzz/drawing_check.h"
#include "support/sweep.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QtEndian>
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <vector>

namespace quorvin::test {
namespace {

/// How each record kind was seen: the different contents of its records.
using Contents = std::map<std::uint32_t, std::set<QByteArray>>;

template <typename Number>
Number numberAt(const QByteArray& bytes, qsizetype at) {
  return at + qsizetype{sizeof(Number)} <= bytes.size() ? qFromLittleEndian<Number>(bytes.constData() + at)
                                                        : Number{0};
}

void addEnhancedRecords(const QByteArray& file, Contents& contents) {
  for (qsizetype at = 0; at + 8 <= file.size();) {
    const qsizetype size = numberAt<std::uint32_t>(file, at + 4);
    if (size < 8) return;
    contents[numberAt<std::uint32_t>(file, at)].insert(file.mid(at + 8, size - 8));
    at += size;
  }
}

void addWindowsRecords(const QByteArray& file, Contents& contents) {
  constexpr qsizetype kHeaders = 22 + 18;
  for (qsizetype at = kHeaders; at + 6 <= file.size();) {
    const qsizetype size = qsizetype{2} * numberAt<std::uint32_t>(file, at);
    if (size < 6) return;
    contents[numberAt<std::uint16_t>(file, at + 4)].insert(file.mid(at + 6, size - 6));
    at += size;
  }
}

Contents contentsOfSeeds(const QString& names, void (*add)(const QByteArray&, Contents&)) {
  Contents contents;
  const QDir folder(QStringLiteral(QUORVIN_FUZZ_SEEDS "/metafile"));
  for (const QString& name : folder.entryList({names}, QDir::Files)) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    add(file.readAll(), contents);
  }
  return contents;
}

void expectSeveral(const Contents& contents, std::span<const fuzz::RecordKind> kinds) {
  ASSERT_FALSE(kinds.empty());
  for (const fuzz::RecordKind& kind : kinds) {
    const auto found = contents.find(kind.number);
    ASSERT_NE(found, contents.end()) << kind.number;
    // A record without parameters is always the same.
    const bool hasParameters = *kind.parameters != '\0' && std::string(kind.parameters) != "b";
    EXPECT_GE(found->second.size(), hasParameters ? 2U : 1U) << kind.number;
  }
}

TEST(DrawingSeeds, HoldEveryRecordKindWithSeveralParameters) {
  expectSeveral(contentsOfSeeds(QStringLiteral("made_emf*"), addEnhancedRecords),
                fuzz::enhancedRecordKinds());
  expectSeveral(contentsOfSeeds(QStringLiteral("made_wmf*"), addWindowsRecords), fuzz::windowsRecordKinds());
}

TEST(DrawingMaker, KnowsEveryKindOfTheFormatsThatDraws) {
  std::set<std::uint32_t> enhanced;
  for (const fuzz::RecordKind& kind : fuzz::enhancedRecordKinds()) enhanced.insert(kind.number);
  std::set<std::uint32_t> windows;
  for (const fuzz::RecordKind& kind : fuzz::windowsRecordKinds()) windows.insert(kind.number);
  for (std::uint32_t kind = 2; kind <= 120; ++kind) {
    // The end of the file; numbers that no kind has; and colour spaces, printers and fonts, which draw
    // nothing.
    const std::set<std::uint32_t> others = {14, 69, 107, 109, 111, 112, 113, 117, 119};
    EXPECT_NE(enhanced.contains(kind), others.contains(kind)) << kind;
  }
  EXPECT_EQ(windows.size(), 69U) << "all but the end of the file";
}

TEST(DrawingMaker, WhatItMakesCanAlwaysBePlayed) {
  std::mt19937 random(5);
  for (int drawing = 0; drawing < test::sweep(1000, 40); ++drawing) {
    std::vector<std::uint8_t> bytes(random() % 600);
    for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random());
    fuzz::Choices choices(bytes.data(), bytes.size());
    EXPECT_TRUE(fuzz::checkDrawing(fuzz::chosenDrawing(choices))) << drawing;
  }
}

TEST(Choices, ThatHaveRunOutAreTheFirstOnes) {
  const std::uint8_t bytes[] = {7, 1, 2, 3, 4, 9};
  fuzz::Choices choices(bytes, sizeof bytes);
  EXPECT_EQ(choices.below(4), 3);
  EXPECT_EQ(choices.number(), 0x04030201U);
  EXPECT_FALSE(choices.atEnd());
  EXPECT_EQ(choices.bytes(5), QByteArray("\x09"));
  EXPECT_TRUE(choices.atEnd());
  EXPECT_EQ(choices.byte(), 0);
  EXPECT_FALSE(choices.oneIn(2));
  EXPECT_EQ(choices.of(bytes), 7);
}

}  // namespace
}  // namespace quorvin::test
