#include "search/format/entry_columns.h"

#include "support/instruction_sets.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace quorvin {
namespace {

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
