// SPDX-License-Identifier: GPL-2.0-or-later
#include "fuzz/drawing_check.h"

#include "fuzz/require.h"
#include "metafile/play_metafile.h"

#include <QLoggingCategory>

namespace quorvin::fuzz {
namespace {

MetafilePicture handedOver(const MetafilePicture& picture) {
  try {
    return pictureOfMetafileAnswer(metafileAnswer(picture));
  } catch (const MetafileFault& fault) {
    throw BrokenPromise(std::string("a picture can be handed over: ") + fault.what());
  }
}

}  // namespace

bool checkDrawing(QByteArrayView metafile) {
  // The toolkit has much to say about fonts and palettes.
  static const bool isQuiet = (QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false")), true);
  static_cast<void>(isQuiet);
  MetafilePicture picture;
  try {
    picture = playMetafile(metafile);
  } catch (const MetafileFault&) {
    // What is no metafile is said to be none.
    return false;
  }
  require(!picture.image.isNull(), "there is an image");
  const MetafilePicture received = handedOver(picture);
  require(received.ownSize == picture.ownSize, "the size is handed over");
  require(received.image == picture.image, "the image is handed over");
  require(received.leftOut == picture.leftOut, "what is left out is handed over");
  return true;
}

}  // namespace quorvin::fuzz
