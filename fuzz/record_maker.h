// SPDX-License-Identifier: GPL-2.0-or-later

// The parameters of metafile records, made from choices.
#pragma once

#include "fuzz/choices.h"
#include "metafile/byte_writer.h"

#include <QByteArray>

#include <cstdint>
#include <vector>

namespace quorvin::fuzz {

/// Makes the content of one record. Most numbers lie in or near a sheet of 400 by 200 units; some are beyond
/// all bounds.
class RecordMaker {
 public:
  /// `head` is how many bytes of the record come before its content, which places in a record count.
  RecordMaker(Choices& choices, int head) : choices_(choices), head_(head) {}

  /// `parameters` names the parameters in their order, a letter each.
  ///
  /// Numbers of 32 bits: n a measure, u a small number (a mode, a style), c a colour, f a fraction, i the
  /// number of an object, o the same or that of a stock object, t a ternary operation, m two of them, a how
  /// to blend, s how much to restore, b a box that nobody looks at. Numbers of 16 bits: w a measure, v a
  /// small number, j the number of an object, e how much to restore. Points behind their number: P of 32
  /// bits, p of 16, V behind a number of 16; Q, q, W the same for several lists of points; D, d points and
  /// what each is for. Bitmaps: B and K the place of one that comes behind the parameters, K of one bit to
  /// the pixel; E a bitmap right here. Text: x, X narrow or wide letters behind the parameters, y, Y several
  /// of them, S a short one right here; N, M those of Windows metafiles, without and with a box. And: l and R
  /// the length of a region and the region, Z one of a Windows metafile; F, f fonts; G gradients; C a
  /// comment; h its length and anything; H anything.
  QByteArray made(const char* parameters);

 private:
  /// What comes behind the parameters: its place, counted from `base`, is written at `field`, and behind that
  /// its length if `hasLength`.
  struct Behind {
    qsizetype field;
    bool hasLength;
    QByteArray bytes;
  };

  void add(char parameter);
  bool addNumber(char parameter);
  bool addPoints(char parameter);
  bool addText(char parameter);
  void addRest(char parameter);

  std::int32_t measure();
  std::uint32_t small();
  void point(bool isShort);
  void points(int count, bool isShort);
  void listsOfPoints(bool isShort);
  void placeOfBitmap(bool isMonochrome);
  void placeOfText(bool isWide);
  void textWithBox();
  void font(bool isWide);
  void gradients();
  QByteArray region();
  void windowsRegion();
  void comment();

  Choices& choices_;
  int head_;
  test::ByteWriter content_;
  std::vector<Behind> behind_;
  QByteArray region_;
};

}  // namespace quorvin::fuzz
