#include "base/PrivateRequest.h"

#include <QSslConfiguration>
#include <QUrl>

namespace veldmark {

QNetworkRequest privateRequest(const QUrl &url, QSslConfiguration tls)
{
    tls.setPeerVerifyMode(QSslSocket::VerifyPeer);
    QNetworkRequest request(url);
    request.setSslConfiguration(tls);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    // By default Qt sends the user's language and accepts compressed answers.
    request.setRawHeader("Accept-Language", "en");
    request.setRawHeader("Accept-Encoding", "identity");
    return request;
}

} // namespace veldmark
