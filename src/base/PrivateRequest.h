#pragma once

#include <QNetworkRequest>

class QSslConfiguration;
class QUrl;

namespace veldmark {

// A GET request that tells the server as little about the user as possible: no cookies, no stored
// logins, English as the only language, one protocol version. It requests no compression, so a
// small answer cannot grow. The server's certificate is always verified against `tls`. Any thread.
QNetworkRequest privateRequest(const QUrl &url, QSslConfiguration tls);

} // namespace veldmark
