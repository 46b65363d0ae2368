#pragma once

#include <QNetworkRequest>

class QSslConfiguration;
class QUrl;

namespace veldmark {

// A GET request that tells the server as little about the user as it can: no cookies, no stored
// logins, no language but English, and one protocol version. Nothing is asked for in packed form,
// so a small answer cannot swell; the server's certificate is always verified against `tls`.
// Any thread.
QNetworkRequest privateRequest(const QUrl &url, QSslConfiguration tls);

} // namespace veldmark
