// SPDX-License-Identifier: GPL-2.0-or-later

// The twelve months by name, long and short, and in Japanese, where each is a number with a sign.
#include "dates/read_general_date.h"

namespace quorvin {

namespace {

const DateCase kGermanMonths[] = {
    {"de_DE", "5. Januar 2004", "2004-01-05 00:00:00"},
    {"de_DE", "5. Februar 2004", "2004-02-05 00:00:00"},
    {"de_DE", "5. März 2004", "2004-03-05 00:00:00"},
    {"de_DE", "5. April 2004", "2004-04-05 00:00:00"},
    {"de_DE", "5. Mai 2004", "2004-05-05 00:00:00"},
    {"de_DE", "5. Juni 2004", "2004-06-05 00:00:00"},
    {"de_DE", "5. Juli 2004", "2004-07-05 00:00:00"},
    {"de_DE", "5. August 2004", "2004-08-05 00:00:00"},
    {"de_DE", "5. September 2004", "2004-09-05 00:00:00"},
    {"de_DE", "5. Oktober 2004", "2004-10-05 00:00:00"},
    {"de_DE", "5. November 2004", "2004-11-05 00:00:00"},
    {"de_DE", "5. Dezember 2004", "2004-12-05 00:00:00"},
    {"de_DE", "5. Jan. 2004", "2004-01-05 00:00:00"},
    {"de_DE", "5. Feb. 2004", "2004-02-05 00:00:00"},
    {"de_DE", "5. Apr. 2004", "2004-04-05 00:00:00"},
    {"de_DE", "5. Aug. 2004", "2004-08-05 00:00:00"},
    {"de_DE", "5. Sept. 2004", "2004-09-05 00:00:00"},
    {"de_DE", "5. Okt. 2004", "2004-10-05 00:00:00"},
    {"de_DE", "5. Nov. 2004", "2004-11-05 00:00:00"},
    {"de_DE", "5. Dez. 2004", "2004-12-05 00:00:00"},
};

const DateCase kFrenchMonths[] = {
    {"fr_FR", "5 janvier 2004", "2004-01-05 00:00:00"},   {"fr_FR", "5 février 2004", "2004-02-05 00:00:00"},
    {"fr_FR", "5 mars 2004", "2004-03-05 00:00:00"},      {"fr_FR", "5 avril 2004", "2004-04-05 00:00:00"},
    {"fr_FR", "5 mai 2004", "2004-05-05 00:00:00"},       {"fr_FR", "5 juin 2004", "2004-06-05 00:00:00"},
    {"fr_FR", "5 juillet 2004", "2004-07-05 00:00:00"},   {"fr_FR", "5 août 2004", "2004-08-05 00:00:00"},
    {"fr_FR", "5 septembre 2004", "2004-09-05 00:00:00"}, {"fr_FR", "5 octobre 2004", "2004-10-05 00:00:00"},
    {"fr_FR", "5 novembre 2004", "2004-11-05 00:00:00"},  {"fr_FR", "5 décembre 2004", "2004-12-05 00:00:00"},
    {"fr_FR", "5 janv. 2004", "2004-01-05 00:00:00"},     {"fr_FR", "5 févr. 2004", "2004-02-05 00:00:00"},
    {"fr_FR", "5 avr. 2004", "2004-04-05 00:00:00"},      {"fr_FR", "5 juil. 2004", "2004-07-05 00:00:00"},
    {"fr_FR", "5 sept. 2004", "2004-09-05 00:00:00"},     {"fr_FR", "5 oct. 2004", "2004-10-05 00:00:00"},
    {"fr_FR", "5 nov. 2004", "2004-11-05 00:00:00"},      {"fr_FR", "5 déc. 2004", "2004-12-05 00:00:00"},
};

const DateCase kSwedishMonths[] = {
    {"sv_SE", "5 januari 2004", "2004-01-05 00:00:00"},   {"sv_SE", "5 februari 2004", "2004-02-05 00:00:00"},
    {"sv_SE", "5 mars 2004", "2004-03-05 00:00:00"},      {"sv_SE", "5 april 2004", "2004-04-05 00:00:00"},
    {"sv_SE", "5 maj 2004", "2004-05-05 00:00:00"},       {"sv_SE", "5 juni 2004", "2004-06-05 00:00:00"},
    {"sv_SE", "5 juli 2004", "2004-07-05 00:00:00"},      {"sv_SE", "5 augusti 2004", "2004-08-05 00:00:00"},
    {"sv_SE", "5 september 2004", "2004-09-05 00:00:00"}, {"sv_SE", "5 oktober 2004", "2004-10-05 00:00:00"},
    {"sv_SE", "5 november 2004", "2004-11-05 00:00:00"},  {"sv_SE", "5 december 2004", "2004-12-05 00:00:00"},
    {"sv_SE", "5 jan. 2004", "2004-01-05 00:00:00"},      {"sv_SE", "5 feb. 2004", "2004-02-05 00:00:00"},
    {"sv_SE", "5 apr. 2004", "2004-04-05 00:00:00"},      {"sv_SE", "5 aug. 2004", "2004-08-05 00:00:00"},
    {"sv_SE", "5 sep. 2004", "2004-09-05 00:00:00"},      {"sv_SE", "5 okt. 2004", "2004-10-05 00:00:00"},
    {"sv_SE", "5 nov. 2004", "2004-11-05 00:00:00"},      {"sv_SE", "5 dec. 2004", "2004-12-05 00:00:00"},
};

const DateCase kJapaneseMonths[] = {
    {"ja_JP", "2004年1月5日", "2004-01-05 00:00:00"},  {"ja_JP", "2004年2月5日", "2004-02-05 00:00:00"},
    {"ja_JP", "2004年3月5日", "2004-03-05 00:00:00"},  {"ja_JP", "2004年4月5日", "2004-04-05 00:00:00"},
    {"ja_JP", "2004年5月5日", "2004-05-05 00:00:00"},  {"ja_JP", "2004年6月5日", "2004-06-05 00:00:00"},
    {"ja_JP", "2004年7月5日", "2004-07-05 00:00:00"},  {"ja_JP", "2004年8月5日", "2004-08-05 00:00:00"},
    {"ja_JP", "2004年9月5日", "2004-09-05 00:00:00"},  {"ja_JP", "2004年10月5日", "2004-10-05 00:00:00"},
    {"ja_JP", "2004年11月5日", "2004-11-05 00:00:00"}, {"ja_JP", "2004年12月5日", "2004-12-05 00:00:00"},
};

}  // namespace

INSTANTIATE_TEST_SUITE_P(GermanMonths, ReadGeneralDate, testing::ValuesIn(kGermanMonths), nameOfCase);
INSTANTIATE_TEST_SUITE_P(FrenchMonths, ReadGeneralDate, testing::ValuesIn(kFrenchMonths), nameOfCase);
INSTANTIATE_TEST_SUITE_P(SwedishMonths, ReadGeneralDate, testing::ValuesIn(kSwedishMonths), nameOfCase);
INSTANTIATE_TEST_SUITE_P(JapaneseMonths, ReadGeneralDate, testing::ValuesIn(kJapaneseMonths), nameOfCase);

}  // namespace quorvin
