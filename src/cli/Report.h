#pragma once

#include <QJsonObject>
#include <QString>

// What veldmarkctl shows a person, made from the published state (so that it is the same for a
// running instance and without one). Pure functions; several lines, without a final line break.
namespace veldmark::Report {

QString status(const QJsonObject &state);
QString circuits(const QJsonObject &state);
// What is wrong with terminal mode, or what ssh still lacks for it; empty when all is well.
QString terminal(const QJsonObject &state);

// A value of the state as `get` prints it: text as it is, "true"/"false", numbers, nothing for an
// absent value, JSON for the rest.
QString value(const QJsonValue &value);

// "1.2 MB"; decimal units, one digit after the point from kB on.
QString bytes(double count);

} // namespace veldmark::Report
