#pragma once

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

#include <functional>
#include <mutex>
#include <optional>
#include <tuple>

namespace veldmark {

// What searches for transports have learnt from files that are slow to ask: archives that are
// unpacked and programs that are started. It holds for a file as long as that has its path, times,
// size and place on the disk; what gave no answer is asked again. Any thread; whoever asks of the
// same kind meanwhile waits for the first one's answer.
class TransportMemory {
public:
    using Bridges = QMap<QString, QStringList>; // lines by transport

    TransportMemory() = default;
    Q_DISABLE_COPY_MOVE(TransportMemory)

    // The bridges in `archive`; empty when `read` finds no answer.
    Bridges bridges(const QString &archive, const std::function<std::optional<Bridges>()> &read);
    // The transports that `program` serves; empty without an answer. With no `ask`, what is known,
    // at once.
    QStringList served(const QString &program,
                       const std::function<std::optional<QStringList>()> &ask);

private:
    // Device and number of the file, its size, its times of change in nanoseconds.
    using Stamp = std::tuple<quint64, quint64, qint64, qint64, qint64>;
    static std::optional<Stamp> stampOf(const QString &path);

    template <typename Answer> struct Store {
        std::mutex guard;  // of what is known
        std::mutex asking; // one at a time
        QHash<QString, std::pair<Stamp, Answer>> known;

        Answer find(const QString &path, const std::function<std::optional<Answer>()> &ask);
        std::optional<Answer> look(const QString &path, const Stamp &stamp);
    };

    Store<Bridges> m_archives;
    Store<QStringList> m_programs;
};

} // namespace veldmark
