#pragma once

#include "base/Clock.h"
#include "bridges/TransportDownloader.h"
#include "bridges/TransportSearch.h"
#include "checks/ExitCheckProbe.h"
#include "checks/ResolverSource.h"
#include "control/ControlPort.h"
#include "controller/TorController.h"
#include "controller/WakeNotice.h"
#include "platform/PlatformProfile.h"
#include "platform/RunningApplications.h"
#include "system/ChildProcessRunner.h"
#include "system/PrivilegedRunner.h"
#include "system/SettingsStore.h"
#include "terminal/TerminalIntegration.h"

#include <memory>

namespace veldmark {

// The one place that builds the real controller with all its services, for the system that
// `profile` describes. Main thread.
class RealController {
public:
    explicit RealController(const PlatformProfile &profile);

    TorController &controller() { return m_controller; }
    SettingsStore &settings() { return m_settings; }
    RunningApplications &applications() { return *m_applications; }
    PrivilegedRunner &privileged() { return m_privileged; }
    TransportDownloader &downloader() { return m_downloader; }

private:
    // In the order of construction. The wake notice is destroyed first, then the controller.
    const PlatformProfile m_profile;
    SystemClock m_clock;
    SettingsStore m_settings;
    ChildProcessRunner m_processes;
    PrivilegedRunner m_privileged;
    ControlPort m_controlPort;
    ExitCheckProbe m_probe;
    std::unique_ptr<ResolverSource> m_resolvers;
    TerminalIntegration m_terminal;
    std::unique_ptr<RunningApplications> m_applications;
    TransportDownloader m_downloader;
    TransportSearch m_search;
    TorController m_controller;
    WakeNotice m_wake;
};

} // namespace veldmark
