// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/format/line_scan.h"

#include "search/format/listing_line.h"
#include "support/instruction_sets.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace quorvin {
namespace {

constexpr std::uint64_t kOld = 0xDEADBEEFDEADBEEF;

struct Marks {
  std::vector<std::uint64_t> lineEnds;
  std::vector<std::uint64_t> care;

  static bool at(const std::vector<std::uint64_t>& bits, std::size_t i) {
    return (bits[i / 64] >> (i % 64) & 1U) != 0;
  }
};

/// The marks of `text` at a place in memory whose address ends in `shift`.
Marks marksOf(std::string_view text, std::size_t shift = 0, char around = 'x') {
  std::string padded(kLinePadding + shift, around);
  padded += text;
  padded.append(kLinePadding, around);
  const std::size_t blocks = (text.size() + 63) / 64;
  Marks marks{std::vector<std::uint64_t>(blocks + 1, kOld), std::vector<std::uint64_t>(blocks + 1, kOld)};
  markLines(padded.data() + kLinePadding + shift, text.size(), marks.lineEnds.data(), marks.care.data());
  EXPECT_EQ(marks.lineEnds.back(), kOld) << "written behind the last word of bits";
  EXPECT_EQ(marks.care.back(), kOld) << "written behind the last word of bits";
  marks.lineEnds.pop_back();
  marks.care.pop_back();
  return marks;
}

/// Whether the line from `begin` to `end` is marked as one that needs care.
bool isMarked(const Marks& marks, std::size_t begin, std::size_t end) {
  for (std::size_t i = begin; i < end; ++i) {
    if (Marks::at(marks.care, i)) return true;
  }
  return false;
}

bool needsCare(std::string_view line) {
  const LineKind kind = classifyLine(line);
  return !isAscii(line) || (kind != LineKind::Entry && kind != LineKind::Empty);
}

/// Line ends are where they are, lines that need care are marked, and no bit is set behind the text.
void expectRightMarks(std::string_view text, const Marks& marks) {
  std::size_t start = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    ASSERT_EQ(Marks::at(marks.lineEnds, i), text[i] == '\n') << "place " << i;
    if (text[i] != '\n') continue;
    if (needsCare(text.substr(start, i - start))) {
      ASSERT_TRUE(isMarked(marks, start, i)) << "line " << text.substr(start, i - start);
    }
    start = i + 1;
  }
  if (needsCare(text.substr(start))) {
    ASSERT_TRUE(isMarked(marks, start, text.size()));
  }
  for (std::size_t i = text.size(); i < marks.care.size() * 64; ++i) {
    ASSERT_FALSE(Marks::at(marks.lineEnds, i)) << "behind the text";
    ASSERT_FALSE(Marks::at(marks.care, i)) << "behind the text";
  }
}

class LineMarks : public test::InstructionSetTest {};

TEST_P(LineMarks, EverySizeAndAlignmentFindsTheLineEnds) {
  std::mt19937 random(5);
  for (std::size_t size = 0; size <= 200; ++size) {
    std::string text(size, '\0');
    for (char& c : text) c = "ab\n\r-:<e y"[random() % 10];
    for (std::size_t shift = 0; shift < 64; shift += 7) {
      expectRightMarks(text, marksOf(text, shift));
      ASSERT_FALSE(HasFatalFailure()) << "size " << size << ", shift " << shift;
    }
  }
}

TEST_P(LineMarks, LineFeedsAroundTheTextAreNotItsOwn) {
  for (std::size_t size = 0; size <= 130; ++size) {
    const Marks marks = marksOf(std::string(size, 'a'), 0, '\n');
    for (const std::uint64_t bits : marks.lineEnds) ASSERT_EQ(bits, 0U) << "size " << size;
  }
}

TEST_P(LineMarks, EveryMarkOfTheFormatIsSeenAtEveryPlace) {
  for (const std::string mark : {"Volume:", "Directory:", "<DIR>", "---------------", "\x80", "\xFF"}) {
    for (std::size_t before = 0; before <= 140; ++before) {
      const std::string text = "plain\n" + std::string(before, 'a') + mark + "b\nplain\n";
      const Marks marks = marksOf(text);
      expectRightMarks(text, marks);
      ASSERT_FALSE(HasFatalFailure()) << mark << " behind " << before;
      ASSERT_FALSE(isMarked(marks, 0, 6)) << mark << " behind " << before;
      ASSERT_FALSE(isMarked(marks, text.size() - 6, text.size())) << mark << " behind " << before;
    }
  }
}

TEST_P(LineMarks, FifteenHyphensAreTheFewestThatAreMarked) {
  for (std::size_t hyphens = 13; hyphens <= 17; ++hyphens) {
    for (std::size_t before = 0; before <= 130; ++before) {
      const std::string text = std::string(before, 'a') + std::string(hyphens, '-') + "a\n";
      ASSERT_EQ(isMarked(marksOf(text), 0, text.size()), hyphens >= 15)
          << hyphens << " hyphens behind " << before;
    }
  }
}

TEST_P(LineMarks, PlainNamesAreNotMarked) {
  for (const std::string_view name :
       {"C: drive", "volume 7", "Directory of songs", "a-b-c-d-e-f-g", "10:20:30", "a>b", "tilde ~ \x7F"}) {
    const Marks marks = marksOf(name);
    EXPECT_FALSE(isMarked(marks, 0, name.size())) << name;
  }
}

TEST_P(LineMarks, GeneratedTextIsMarkedWhereverItMustBe) {
  static constexpr std::string_view kPieces[] = {"Volume:", "Directory:", "<DIR>", "---------------",
                                                 "-------", "---",        "\n",    "\r\n",
                                                 "e:",      "y:",         "a",     "\xC3\xA9"};
  std::mt19937 random(9);
  for (int round = 0; round < 20000; ++round) {
    std::string text;
    for (auto pieces = random() % 20; pieces > 0; --pieces) {
      text += kPieces[random() % std::size(kPieces)];
      text.append(random() % 4, 'a');
    }
    expectRightMarks(text, marksOf(text, random() % 64));
    ASSERT_FALSE(HasFatalFailure()) << text;
  }
}

INSTANTIATE_TEST_SUITE_P(On, LineMarks, test::everyInstructionSet(), test::instructionSetName);

void expectRightFold(const char* in) {
  std::string out(kFoldWidth + 1, '#');
  const FoldedColumns folded = foldColumns(in, out.data());
  for (std::size_t i = 0; i < kFoldWidth; ++i) {
    const bool upper = in[i] >= 'A' && in[i] <= 'Z';
    const std::uint64_t textBits = i < 64 ? folded.textLow : folded.textHigh;
    const std::uint64_t upperBits = i < 64 ? folded.upperLow : folded.upperHigh;
    ASSERT_EQ(out[i], upper ? in[i] - 'A' + 'a' : in[i]) << "column " << i;
    ASSERT_EQ((textBits >> (i % 64) & 1U) != 0, in[i] != ' ') << "column " << i;
    ASSERT_EQ((upperBits >> (i % 64) & 1U) != 0, upper) << "column " << i;
  }
  ASSERT_EQ(folded.textHigh >> (kFoldWidth - 64), 0U);
  ASSERT_EQ(folded.upperHigh >> (kFoldWidth - 64), 0U);
  ASSERT_EQ(out.back(), '#') << "written behind the eighty columns";
}

class EntryColumns : public test::InstructionSetTest {};

TEST_P(EntryColumns, EveryByteIsRightInEveryColumn) {
  std::string in(kFoldWidth, '\0');
  for (unsigned first = 0; first < 256; ++first) {
    for (std::size_t i = 0; i < kFoldWidth; ++i) in[i] = static_cast<char>(first + i);
    expectRightFold(in.data());
    ASSERT_FALSE(HasFatalFailure()) << "from byte " << first;
  }
}

TEST_P(EntryColumns, EveryAlignmentIsRight) {
  std::mt19937 random(8);
  std::string in(kFoldWidth + 64, '\0');
  for (char& c : in) c = "@AZ[`az{ "[random() % 9];
  for (std::size_t shift = 0; shift < 64; ++shift) {
    expectRightFold(in.data() + shift);
    ASSERT_FALSE(HasFatalFailure()) << "shift " << shift;
  }
}

INSTANTIATE_TEST_SUITE_P(On, EntryColumns, test::everyInstructionSet(), test::instructionSetName);

}  // namespace
}  // namespace quorvin
