// Having a metafile drawn by a process of its own.
#pragma once

#include "metafile/boundary.h"
#include "preview/picture_stop.h"

#include <QByteArray>
#include <QString>

#include <chrono>

namespace quorvin {

/// The program that draws, and how long it may take.
struct MetafileChild {
  QString program;
  std::chrono::milliseconds patience = std::chrono::seconds(10);
};

/// quorvin-metafile beside the running program or, installed, in the folder ../libexec/quorvin seen from
/// there.
MetafileChild usualMetafileChild();

/// Starts the program, gives it `metafile` and waits for its answer, which is checked. The process has ended
/// when the function returns. To be called where waiting is allowed. Throws MetafileFault: the reason why
/// there is no picture.
MetafilePicture drawInChild(const MetafileChild& child, const QByteArray& metafile, const PictureStop& stop);

}  // namespace quorvin
