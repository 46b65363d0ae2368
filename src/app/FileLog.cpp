#include "app/FileLog.h"

namespace veldmark {

FileLog::FileLog(const PlatformProfile &profile) : m_store(TorLog(profile))
{
    QObject::connect(&m_store, &TorLogStore::changed, this, &LogFeed::changed);
}

} // namespace veldmark
