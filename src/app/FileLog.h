#pragma once

#include "log/TorLogStore.h"
#include "platform/PlatformProfile.h"
#include "ui/LogFeed.h"

namespace veldmark {

// The log window's feed: Tor's files, watched while the window is open.
class FileLog final : public LogFeed {
    Q_OBJECT

public:
    explicit FileLog(const PlatformProfile &profile);

    const TorLog::Snapshot &snapshot() const override { return m_store.snapshot(); }
    void start() override { m_store.start(); }
    void stop() override { m_store.stop(); }

private:
    TorLogStore m_store;
};

} // namespace veldmark
