// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/text_encoding.h"

#include "support/qt_printing.h"

#include <gtest/gtest.h>

namespace quorvin {

// Bytes beyond ASCII are written out, so that the tests do not lean on the encoding of this file.

TEST(DecodeSystemText, ReadsTheCodePage) {
  EXPECT_EQ(decodeSystemText("plain"), u"plain");
  EXPECT_EQ(decodeSystemText("Z\xC3\xBCrich"), u"Z\u00FCrich");
  EXPECT_EQ(decodeSystemText("\xF0\x9F\x8E\xB5"), u"\U0001F3B5");
  EXPECT_EQ(decodeSystemText(""), u"");
  EXPECT_EQ(decodeSystemText(QByteArrayView("a\0b", 3)), QString::fromUtf16(u"a\0b", 3));
}

TEST(DecodeSystemText, KeepsAByteOrderMarkAsACharacter) {
  EXPECT_EQ(decodeSystemText("\xEF\xBB\xBFx"), u"\uFEFFx");
}

TEST(DecodeSystemText, ReadsALineThatIsNotValidAsWindows1252) {
  EXPECT_EQ(decodeSystemText("Z\xFCrich"), u"Z\u00FCrich");
  EXPECT_EQ(decodeSystemText("\x80 \x93x\x94"), u"\u20AC \u201Cx\u201D");
  EXPECT_EQ(decodeSystemText("\xC3\xBC\xFC"), u"\u00C3\u00BC\u00FC");
}

TEST(DecodeSystemText, ReadsCutAndForbiddenSequencesAsWindows1252) {
  EXPECT_EQ(decodeSystemText("a\xC3"), u"a\u00C3");
  EXPECT_EQ(decodeSystemText("a\xE2\x82"), u"a\u00E2\u201A");
  EXPECT_EQ(decodeSystemText("\xC0\x80"), u"\u00C0\u20AC");
  EXPECT_EQ(decodeSystemText("\xED\xA0\x80"), u"\u00ED\u00A0\u20AC");
  EXPECT_EQ(decodeSystemText("\xF5\x80\x80\x80"), u"\u00F5\u20AC\u20AC\u20AC");
}

TEST(DecodeSystemText, KeepsTheFiveUndefinedBytesAsControls) {
  EXPECT_EQ(decodeSystemText("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D");
}

TEST(DecodeSystemText, GivesOneCharacterForEachByteOfWindows1252) {
  QByteArray all;
  for (int byte = 1; byte < 256; ++byte) all += static_cast<char>(byte);
  const QString text = decodeSystemText(all);
  ASSERT_EQ(text.size(), 255);
  for (int byte = 0xA0; byte < 256; ++byte) EXPECT_EQ(text[byte - 1].unicode(), byte);
}

TEST(EncodeSystemText, WritesTheCodePage) {
  EXPECT_EQ(encodeSystemText(u"Z\u00FCrich"), QByteArray("Z\xC3\xBCrich"));
  EXPECT_EQ(encodeSystemText(u"\U0001F3B5"), QByteArray("\xF0\x9F\x8E\xB5"));
  EXPECT_EQ(encodeSystemText(u""), QByteArray(""));
}

TEST(EncodeSystemText, WritesAQuestionMarkForWhatItCannotHold) {
  const char16_t lone[] = {u'a', 0xD800, u'b', 0xDC00, u'\u00FC'};
  EXPECT_EQ(encodeSystemText(QStringView(lone, 5)), QByteArray("a?b?\xC3\xBC"));
  const char16_t reversed[] = {0xDC00, 0xD800};
  EXPECT_EQ(encodeSystemText(QStringView(reversed, 2)), QByteArray("??"));
}

TEST(SimpleLowerCase, TurnsEachCharacterIntoOne) {
  EXPECT_EQ(simpleLowerCase(u"ABC xyz 123"), u"abc xyz 123");
  EXPECT_EQ(simpleLowerCase(u"\u00C4\u00D6\u00DC"), u"\u00E4\u00F6\u00FC");
  EXPECT_EQ(simpleLowerCase(u"\u0394\u03A3"), u"\u03B4\u03C3");
  EXPECT_EQ(simpleLowerCase(u"\u00DF\u1E9E"), u"\u00DF\u00DF");
  EXPECT_EQ(simpleLowerCase(u"\u0130I"), u"ii");
  EXPECT_EQ(simpleLowerCase(u"\U00010400"), u"\U00010428");
}

TEST(SimpleLowerCase, LeavesUnpairedHalvesAlone) {
  const char16_t lone[] = {0xD801, u'A', 0xDC00};
  const char16_t lower[] = {0xD801, u'a', 0xDC00};
  EXPECT_EQ(simpleLowerCase(QStringView(lone, 3)), QStringView(lower, 3));
}

TEST(SimpleLowerCase, NeverChangesTheLength) {
  for (char32_t character = 1; character < 0x110000; ++character) {
    if (character >= 0xD800 && character < 0xE000) continue;
    const QString text = QString::fromUcs4(&character, 1);
    ASSERT_EQ(simpleLowerCase(text).size(), text.size()) << std::hex << static_cast<unsigned>(character);
  }
}

TEST(TextOfUtf8, KeepsAByteOrderMark) {
  EXPECT_EQ(textOfUtf8("\xEF\xBB\xBF\xC3\xA4"), u"\uFEFF\u00E4"_qs);
  EXPECT_EQ(textOfUtf8("\xEF\xBB\xBF"), u"\uFEFF"_qs);
  EXPECT_EQ(textOfUtf8(""), u""_qs);
}

TEST(TextOfUtf8, BytesThatAreNotValidAreReplaced) {
  EXPECT_EQ(textOfUtf8("a\xFF"), u"a\uFFFD"_qs);
}

TEST(TrimBlanks, TakesBlanksOffBothEnds) {
  EXPECT_EQ(trimBlanks(u"  a b  "), u"a b");
  EXPECT_EQ(trimBlanks(u"   "), u"");
  EXPECT_EQ(trimBlanks(u""), u"");
}

TEST(TrimBlanks, LeavesOtherWhiteSpace) {
  EXPECT_EQ(trimBlanks(u" \ta\u00A0 "), u"\ta\u00A0");
}

}  // namespace quorvin
