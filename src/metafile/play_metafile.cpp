// SPDX-License-Identifier: GPL-2.0-or-later
#include "metafile/play_metafile.h"

#include "metafile/emf_player.h"
#include "metafile/metafile_bytes.h"
#include "metafile/wmf_player.h"

namespace quorvin {

MetafilePicture playMetafile(QByteArrayView bytes) {
  if (isEnhancedMetafile(bytes)) return EmfPlayer(MetafileBytes(bytes)).play();
  if (isWindowsMetafile(bytes)) return WmfPlayer(MetafileBytes(bytes)).play();
  throw MetafileFault(QT_TRANSLATE_NOOP("Texts", "it is not a metafile"));
}

}  // namespace quorvin
