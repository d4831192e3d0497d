// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/http_request.h"

namespace quorvin {

QNetworkRequest anonymousRequest(const QUrl& address, std::chrono::milliseconds silence) {
  constexpr int kMostRedirects = 10;
  QNetworkRequest request(address);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
  request.setMaximumRedirectsAllowed(kMostRedirects);
  for (const QNetworkRequest::Attribute personal :
       {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
        QNetworkRequest::AuthenticationReuseAttribute}) {
    request.setAttribute(personal, QNetworkRequest::Manual);
  }
  request.setTransferTimeout(static_cast<int>(silence.count()));
  request.setRawHeader("Accept-Encoding", "identity");
  return request;
}

}  // namespace quorvin
