#pragma once

#include "base/Clock.h"
#include "base/Result.h"
#include "base/Text.h"
#include "bridges/BridgeChoice.h"
#include "bridges/BridgeError.h"
#include "bridges/PluggableTransports.h"
#include "bridges/SpeedTest.h"

#include <QStringList>

#include <functional>
#include <optional>

// Turns the user's selection into the helper's options for starting Tor with bridges. planBridges()
// is the entry; the other functions are its steps, pure and for any thread.
namespace veldmark {

// The user's selection, as the settings hold it.
struct BridgeRequest {
    BridgeChoice choice = BridgeChoice::off;
    QString customBridges;      // as the user entered them
    bool optimizeSpeed = false; // keep only the fastest bridges
    // The kill switch is active and would block the probes, so none is made.
    bool isBlocked = false;
    QStringList lastLines = {}; // of the previous session; used again when no test is possible
};

// The result of a selection. The caller stores the parts that are present, even when `arguments` is
// an error, and then shows the error's sentence.
struct BridgePlan {
    // The transports found on the computer; absent when nothing was searched (`off`).
    std::optional<PluggableTransports> transports;
    // The lines chosen for this connection; absent for `off`, or when the selection failed earlier.
    // Present together with an error when only a program for them is missing.
    std::optional<QStringList> lines;
    // The helper's options: --bridge with each line, then --pt-webtunnel, --pt-lyrebird and
    // --pt-snowflake with their programs, as far as the lines need them. Empty for `off`.
    Result<QStringList, BridgeError> arguments;
};

// The functions that planBridges() calls, all on the caller's thread.
struct BridgeTools {
    std::function<QCoro::Task<PluggableTransports>()> locate;
    BridgeProbe probe;
    // Receives a status text for the user while bridges are being tested. May be called at any time
    // until planBridges() has finished. The function must check that its target still exists and
    // that this attempt is still current.
    std::function<void(Text)> status;
    // Like `locate`, without starting programs to ask them. Without it `locate` is used.
    std::function<QCoro::Task<PluggableTransports>()> locateWithoutAsking = {};
};

// Searches for transports, chooses the lines, tests their speed when asked to, and builds the
// options. Takes up to 3 s for the speed test, plus the search. The search asks programs only when
// the lines need a snowflake client and none is known.
QCoro::Task<BridgePlan> planBridges(BridgeRequest request, BridgeTools tools);

// The lines of a selection other than `off`, before any speed test.
Result<QStringList, BridgeError> selectedBridgeLines(const BridgeRequest &request,
                                                     const PluggableTransports &transports);

// Whether a program or the built-in lines are missing that a download brings.
bool lacksTransport(BridgeChoice choice, const QString &customBridges,
                    const PluggableTransports &found);

// The helper's options for these lines. The error is a sentence about the first transport, in
// alphabetical order, that no program serves, or about the missing program.
Result<QStringList, BridgeError> bridgeArguments(const QStringList &lines,
                                                 const PluggableTransports &transports);

} // namespace veldmark
