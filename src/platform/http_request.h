// SPDX-License-Identifier: GPL-2.0-or-later

// Requests to servers that the program does not trust.
#pragma once

#include <QNetworkRequest>
#include <QUrl>

#include <chrono>

namespace quorvin {

/// What a reply may hold in memory before it is read.
inline constexpr qint64 kHttpReadBuffer = qint64{64} << 10;

/// A request that tells nothing of the user: no cookies, no passwords. It follows at most ten redirections,
/// none to a less safe kind of connection or to a file, ends when nothing comes for `silence`, and asks for
/// documents as they are: packed ones could unpack to far more than was sent, and have another length than
/// the one announced.
QNetworkRequest anonymousRequest(const QUrl& address, std::chrono::milliseconds silence);

}  // namespace quorvin
