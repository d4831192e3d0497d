// SPDX-License-Identifier: GPL-2.0-or-later

// What the programs say to people. Every text that a user reads is marked here, and nowhere in another way:
// the translations are made of what is marked.
#pragma once

#include <QCoreApplication>
#include <QString>

#include <cstdint>

namespace quorvin {

/// Texts::tr("%1 hits", nullptr, Texts::plural(hits)) is the English text, or that of the language that is
/// spoken (languages.h); English where it has none. The text is a literal, or a constant that is marked with
/// QT_TRANSLATE_NOOP("Texts", "..."). English has no translation, so its singular is a text of its own: the
/// one with the plural is for all other numbers, zero among them. A look-up costs about a microsecond: what
/// shows many rows makes its texts once.
class Texts {
  Q_DECLARE_TR_FUNCTIONS(Texts)

 public:
  /// What chooses between the plurals of a language for `count`, which may be larger than that can be.
  static int plural(std::int64_t count) {
    constexpr std::int64_t kEnough = 1'000'000;
    return static_cast<int>(count < kEnough ? count : kEnough + count % kEnough);
  }

  /// The code of the language that is spoken: "en", "de".
  static QString language() {
    //: The code of the language that you translate into, such as de
    return tr("en");
  }
};

}  // namespace quorvin
