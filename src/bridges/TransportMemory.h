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

// Remembers what transport searches have learnt from files that are slow to ask: archives that are
// unpacked and programs that are started. An answer is valid while the file's path, times, size and
// inode stay the same. A missing answer is asked for again. Any thread; a caller with a question of
// the same kind waits until the one under way is answered.
class TransportMemory {
public:
    using Bridges = QMap<QString, QStringList>; // lines by transport

    TransportMemory() = default;
    Q_DISABLE_COPY_MOVE(TransportMemory)

    // The bridges in `archive`; empty when `read` has no answer.
    Bridges bridges(const QString &archive, const std::function<std::optional<Bridges>()> &read);
    // The transports that `program` serves; empty without an answer. Without `ask` it returns at
    // once what is known.
    QStringList served(const QString &program,
                       const std::function<std::optional<QStringList>()> &ask);

private:
    // The file's device and inode, its size, its modification and change times in nanoseconds.
    using Stamp = std::tuple<quint64, quint64, qint64, qint64, qint64>;
    static std::optional<Stamp> stampOf(const QString &path);

    template <typename Answer> struct Store {
        std::mutex guard;  // protects `known`
        std::mutex asking; // held while asking
        QHash<QString, std::pair<Stamp, Answer>> known;

        Answer find(const QString &path, const std::function<std::optional<Answer>()> &ask);
        std::optional<Answer> look(const QString &path, const Stamp &stamp);
    };

    Store<Bridges> m_archives;
    Store<QStringList> m_programs;
};

} // namespace veldmark
