// SPDX-License-Identifier: GPL-2.0-or-later

// The process that draws a metafile, seen from the program with the windows.
#pragma once

#include "metafile/boundary.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <stop_token>

namespace quorvin {

/// The program that draws, and how long it may take.
struct MetafileChild {
  QString program;
  std::chrono::milliseconds patience = std::chrono::seconds(10);
};

/// quorvin-metafile in the folder of the running program or, where it is installed, in ../libexec/quorvin
/// from there.
MetafileChild usualMetafileChild();

/// Starts the program, gives it `metafile`, waits for its answer and checks it. The process has ended when
/// the function returns. May take as long as `child` allows, so it is called outside of the user interface's
/// thread. Throws MetafileFault with the reason why there is no picture.
MetafilePicture drawInChild(const MetafileChild& child, const QByteArray& metafile,
                            const std::stop_token& stop);

}  // namespace quorvin
