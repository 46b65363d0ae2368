#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <functional>

// veldmarkctl's reports for the user, made from the published state, so that they are the same with
// and without a running instance. Pure functions; several lines, without a final line break.
namespace veldmark::Report {

QString status(const QJsonObject &state);
// `nameOf` turns an application's id into the name that people know.
QString circuits(const QJsonObject &state,
                 const std::function<QString(const QString &id)> &nameOf = {});
// The steps to bridges, in one line each; none in a phase that does not show them.
QStringList steps(const QJsonObject &state);
// The offer of bridges with the command that accepts it; empty without one.
QString offer(const QJsonObject &state);
// The problem with terminal mode, or what ssh still lacks for it; empty without a problem.
QString terminal(const QJsonObject &state);

// A value of the state as `get` prints it: text unchanged, "true"/"false", numbers, nothing for an
// absent value, JSON for the rest.
QString value(const QJsonValue &value);

// "1.2 MB"; decimal units, one digit after the point from kB on.
QString bytes(double count);

} // namespace veldmark::Report
