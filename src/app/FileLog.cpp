#include "app/FileLog.h"

namespace veldmark {

namespace {

LogLine::Level levelOf(TorLogLine::Level level)
{
    switch (level) {
    case TorLogLine::Level::error:
        return LogLine::Level::error;
    case TorLogLine::Level::warning:
        return LogLine::Level::warning;
    case TorLogLine::Level::notice:
        return LogLine::Level::notice;
    case TorLogLine::Level::info:
        break;
    }
    return LogLine::Level::info;
}

} // namespace

FileLog::FileLog(const PlatformProfile &profile) : m_store(TorLog(profile))
{
    QObject::connect(&m_store, &TorLogStore::changed, this, &FileLog::read);
}

void FileLog::read()
{
    using Kind = TorLog::Snapshot::Kind;
    const TorLog::Snapshot &snapshot = m_store.snapshot();
    m_state = snapshot.kind() == Kind::lines        ? State::lines
            : snapshot.kind() == Kind::unreadable ? State::unreadable
                                                  : State::empty;
    m_lines.clear();
    for (const TorLogLine &line : snapshot.lines())
        m_lines.push_back({line.time.value_or(QString()), levelOf(line.level), line.message, line.raw});
    Q_EMIT changed();
}

} // namespace veldmark
