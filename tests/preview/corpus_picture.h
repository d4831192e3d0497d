// SPDX-License-Identifier: GPL-2.0-or-later

// A picture file that a test has made, and what must be seen.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>

#include <string>
#include <vector>

namespace quorvin::test {

/// `frames` are the pictures as they must be seen one after another, worked out from what was put into the
/// file and not by decoding it. `tolerance` is the most by which a channel may differ (of 255): above zero
/// where the format itself leaves the rounding open.
struct CorpusPicture {
  std::string name;
  QByteArray bytes;
  QList<QImage> frames;
  int tolerance = 0;

  const QImage& expected() const { return frames.front(); }
};

/// Every bit depth, compression and header of bitmaps.
std::vector<CorpusPicture> bitmapCorpus();

/// Icons of all depths, with small and large pictures, several in one file, and a pointer.
std::vector<CorpusPicture> iconCorpus();

/// GIF pictures: colours, interlacing, transparency, and moving ones with every kind of disposal.
std::vector<CorpusPicture> gifCorpus();

/// Baseline and progressive JPEG pictures, grey ones, with all samplings, restarts, and of four colours; made
/// by the encoder of the second decoder, with what that one decodes as expectation.
std::vector<CorpusPicture> jpegCorpus();

/// The largest difference of any channel between two images; 256 when their sizes differ.
int largestDifference(const QImage& one, const QImage& other);

}  // namespace quorvin::test
