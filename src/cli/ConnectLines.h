#pragma once

#include "cli/ProgressLine.h"

#include <QJsonObject>
#include <QStringList>

namespace veldmark {

// Prints a connect of the running instance for `veldmarkctl connect`: the progress on a redrawn
// line; below it what keeps Tor from connecting, the steps to bridges and the offer of them, each
// once. Main thread.
class ConnectLines {
public:
    ConnectLines();

    // Each state that the instance sends, in the user's language.
    void show(const QJsonObject &state);
    // Ends the progress line.
    void finish();

private:
    void sayNew(QString &former, const QString &text);

    ProgressLine m_progress;
    bool m_hasBegun = false; // what was said before is of an earlier attempt
    QString m_problem;
    QStringList m_steps;
    QString m_offer;
};

} // namespace veldmark
