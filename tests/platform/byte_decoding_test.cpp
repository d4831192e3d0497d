// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/byte_decoding.h"

#include "faults/runtime_fault.h"

#include <gtest/gtest.h>

namespace quorvin {
namespace {

std::string decoded(const std::string& encoding, std::initializer_list<std::string_view> pieces) {
  ByteDecoder decoder(encoding);
  std::string text;
  for (const std::string_view piece : pieces) decoder.append(text, piece);
  decoder.finish(text);
  return text;
}

TEST(ByteDecoding, BytesBecomeUtf8) {
  EXPECT_EQ(decoded("cp437", {"\x9C 5"}), "\u00A3 5");
  EXPECT_EQ(decoded("windows-1252", {"\x80\xFC"}), "\u20AC\u00FC");
  EXPECT_EQ(decoded("cp850", {}), "");
}

TEST(ByteDecoding, ACharacterMayComeInPieces) {
  EXPECT_EQ(decoded("cp932", {"a\x83", "", "\x41\x83", "\x41"}), "a\u30A2\u30A2");
}

TEST(ByteDecoding, BytesOfNoCharacterStayAsTheyAre) {
  EXPECT_EQ(decoded("windows-1252", {"a\x81\x80"}), "a\x81\u20AC");
  EXPECT_EQ(decoded("cp932", {"\xFF\x83\x41"}), "\xFF\u30A2");
  // The last character is not complete.
  EXPECT_EQ(decoded("cp932", {"a\x83"}), "a\x83");
}

TEST(ByteDecoding, LongTextsComeWhole) {
  const std::string bytes(100'000, '\xFC');
  std::string expected;
  for (int i = 0; i < 100'000; ++i) expected += "\u00FC";
  EXPECT_EQ(decoded("windows-1252", {bytes}), expected);
}

TEST(ByteDecoding, AnUnknownEncodingIsRefused) {
  try {
    const ByteDecoder decoder("cp1");
    ADD_FAILURE();
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.number(), 5);
    EXPECT_EQ(fault.description(), QStringLiteral("the system does not know the encoding \"cp1\""));
  }
}

}  // namespace
}  // namespace quorvin
