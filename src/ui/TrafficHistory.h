#pragma once

#include <QObject>
#include <QQmlEngine>

#include <chrono>
#include <deque>

namespace veldmark {

// The traffic of the last two minutes, as rates between readings of the counters.
class TrafficHistory : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("belongs to the panel")

public:
    using TimePoint = std::chrono::steady_clock::time_point;
    static constexpr std::chrono::seconds span{120};

    struct Sample {
        TimePoint at;
        double down; // bytes per second since the previous sample
        double up;
    };

    using QObject::QObject;

    // Takes a reading of counters that only grow. A counter that shrinks (a new Tor) starts a new
    // history. A reading less than 0.2 s after the last one, or unchanged within a second, is left
    // out.
    void add(quint64 bytesRead, quint64 bytesWritten,
             TimePoint at = std::chrono::steady_clock::now());
    void clear();
    const std::deque<Sample> &samples() const { return m_samples; }

Q_SIGNALS:
    void changed();

private:
    std::deque<Sample> m_samples;
    bool m_started = false;
    quint64 m_read = 0;
    quint64 m_written = 0;
    TimePoint m_at;
};

} // namespace veldmark
