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

    State state() const override { return m_state; }
    const std::vector<LogLine> &lines() const override { return m_lines; }
    void start() override { m_store.start(); }
    void stop() override { m_store.stop(); }

private:
    void read();

    TorLogStore m_store;
    State m_state = State::empty;
    std::vector<LogLine> m_lines;
};

} // namespace veldmark
