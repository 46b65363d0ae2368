#pragma once

#include <QObject>
#include <QString>

#include <vector>

namespace veldmark {

struct LogLine {
    enum class Level { error, warning, notice, info };
    QString time; // empty: the line has none
    Level level = Level::info;
    QString message;
    QString raw; // the whole line

    friend bool operator==(const LogLine &, const LogLine &) = default;
};

// Where the log window's lines come from. Follows the files between start() and stop(). Main thread.
class LogFeed : public QObject {
    Q_OBJECT

public:
    enum class State { lines, empty, unreadable };

    using QObject::QObject;
    virtual State state() const = 0;
    virtual const std::vector<LogLine> &lines() const = 0;
    virtual void start() = 0;
    virtual void stop() = 0;

Q_SIGNALS:
    void changed();
};

} // namespace veldmark
