#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

// What Tor Browser and the Tor Expert Bundle say about transports, in their own files: pure parsers
// of what they hold. Text from them is not trusted; only valid bridge lines come out.
namespace veldmark {

// The "bridges" of a pt_config.json: bridge lines by transport name, as the file gives the names.
// Empty when the text is no JSON object, has no such member, or one of another shape than lists of
// texts, and when not one line in it is valid.
QMap<QString, QStringList> bridgesOfTransportConfiguration(const QByteArray &json);

// The transports that the "pluggableTransports" of a pt_config.json let the program of this file
// name serve: its values are lines such as
// "ClientTransportPlugin obfs4,snowflake exec ${pt_path}lyrebird".
QStringList transportsOfPluginLines(const QByteArray &json, const QString &programName);

// The default bridges in the text of Tor Browser's preferences, by the transport of each line;
// plain bridges are left out.
QMap<QString, QStringList> bridgesOfPreferences(const QString &preferences);

} // namespace veldmark
