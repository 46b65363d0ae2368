#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

// Pure parsers of Tor Browser's and the Tor Expert Bundle's own files about transports. The input
// is not trusted; only valid bridge lines are returned.
namespace veldmark {

// The "bridges" of a pt_config.json: bridge lines under the file's transport names. Empty when the
// text is no JSON object, when the member is missing or is not made of lists of texts, or when none
// of the lines is valid.
QMap<QString, QStringList> bridgesOfTransportConfiguration(const QByteArray &json);

// The transports that the "pluggableTransports" of a pt_config.json assign to the program with this
// file name. Its values are lines such as "ClientTransportPlugin obfs4,snowflake exec
// ${pt_path}lyrebird".
QStringList transportsOfPluginLines(const QByteArray &json, const QString &programName);

// The default bridges in the text of Tor Browser's preferences, by the transport of each line.
// Plain bridges are left out.
QMap<QString, QStringList> bridgesOfPreferences(const QString &preferences);

} // namespace veldmark
