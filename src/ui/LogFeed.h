#pragma once

#include "log/TorLog.h"

#include <QObject>

namespace veldmark {

// The source of the log window's lines. Follows the files between start() and stop(). Main thread.
class LogFeed : public QObject {
    Q_OBJECT

public:
    using State = TorLog::Snapshot::Kind;

    using QObject::QObject;
    virtual const TorLog::Snapshot &snapshot() const = 0;
    virtual void start() = 0;
    virtual void stop() = 0;

Q_SIGNALS:
    void changed();
};

} // namespace veldmark
