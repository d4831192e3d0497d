// SPDX-License-Identifier: GPL-2.0-or-later

// Drawing a metafile.
#pragma once

#include "metafile/boundary.h"

#include <QByteArrayView>

namespace quorvin {

/// Draws a whole metafile on white. Records that make no sense are left out. Throws MetafileFault where the
/// file as a whole makes none: its header is wrong, or its chain of records leads out of the file or has no
/// end. Needs a QGuiApplication, for the fonts. A small file can ask for any amount of work and memory, so
/// this is meant for a process with limits.
MetafilePicture playMetafile(QByteArrayView bytes);

}  // namespace quorvin
