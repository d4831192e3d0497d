// SPDX-License-Identifier: GPL-2.0-or-later

// Drawing a metafile, and what has to hold whatever is in it.
#pragma once

#include <QByteArrayView>

#include <cstdint>

namespace quorvin::fuzz {

/// Draws the metafile, and hands the picture over as the program that draws does. Returns whether there is a
/// picture. Throws BrokenPromise when it is no picture, or does not come over as it is. Needs a
/// QGuiApplication.
bool checkDrawing(QByteArrayView metafile);

}  // namespace quorvin::fuzz
