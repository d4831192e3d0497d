// SPDX-License-Identifier: GPL-2.0-or-later

// Readable sizes in the messages of failed tests.
#pragma once

#include "support/qt_printing.h"

#include <QSizeF>

#include <ostream>

inline void PrintTo(const QSizeF& size, std::ostream* out) {
  *out << size.width() << " x " << size.height();
}

inline void PrintTo(const QSize& size, std::ostream* out) {
  PrintTo(QSizeF(size), out);
}
