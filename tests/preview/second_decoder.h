// SPDX-License-Identifier: GPL-2.0-or-later

// Programs of other people that decode the same pictures.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QStringList>

namespace quorvin::test {

/// Runs a program, gives it `input` and returns what it writes. Throws std::runtime_error with its messages
/// when it fails.
QByteArray outputOf(const QString& program, const QStringList& arguments, const QByteArray& input = {});

/// The frames of a picture as ImageMagick sees them, each laid over those before as its disposal says.
/// `format` is ImageMagick's name of the file's format.
QList<QImage> imageMagickFrames(const QByteArray& picture, const QString& format);

/// A JPEG or GIF picture as stb_image sees it, which shares no code with the library that nearly everybody
/// uses. A null image when it can read no such picture.
QImage stbImage(const QByteArray& picture);

}  // namespace quorvin::test
