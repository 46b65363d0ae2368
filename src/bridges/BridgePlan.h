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

// From the user's selection to the options that make the helper start Tor with bridges. Start at
// planBridges(); everything else here is one of its steps, pure and of any thread.
namespace veldmark {

// What the user has selected, as the settings hold it.
struct BridgeRequest {
    BridgeChoice choice = BridgeChoice::off;
    QString customBridges;      // as typed
    bool optimizeSpeed = false; // keep only the fastest
    // A kill switch stands: it would refuse the probes, so none is made.
    bool isBlocked = false;
    QStringList lastLines = {}; // of the session before; used again where no test can be made
};

// What a selection came to. The caller stores the parts that are present, also when `arguments`
// is an error, and then shows the error's sentence.
struct BridgePlan {
    // What was found on the computer; absent when nothing was searched (`off`).
    std::optional<PluggableTransports> transports;
    // The lines chosen for this connection; absent when the selection failed before there were
    // any, or is `off`. Present with an error when only a program for them is missing.
    std::optional<QStringList> lines;
    // The helper's options: a pair of --bridge and line for each line, then --pt-webtunnel,
    // --pt-lyrebird and --pt-snowflake, each with its program, as far as they are needed. Empty for
    // `off`.
    Result<QStringList, BridgeError> arguments;
};

// What planBridges() needs from outside. All of it is called on the caller's thread.
struct BridgeTools {
    std::function<QCoro::Task<PluggableTransports>()> locate;
    BridgeProbe probe;
    // Takes a line for the user while bridges are being tested. May be called at any time until
    // planBridges() has finished: guard what it writes to if that may die before, and look there
    // whether this attempt is still the current one.
    std::function<void(Text)> status;
    // As `locate`, without waiting for a program's answer; without it `locate` is used.
    std::function<QCoro::Task<PluggableTransports>()> locateWithoutAsking = {};
};

// Searches for transports, chooses the lines, tests their speed when asked to, and builds the
// options. Takes up to 3 s for the speed test, plus what the search takes. What programs say of
// themselves is waited for only where the lines need a snowflake client and none is known.
QCoro::Task<BridgePlan> planBridges(BridgeRequest request, BridgeTools tools);

// The lines that a selection other than `off` stands for, before any speed test.
Result<QStringList, BridgeError> selectedBridgeLines(const BridgeRequest &request,
                                                     const PluggableTransports &transports);

// The helper's options for these lines, or the sentence about the first transport, in alphabetical
// order, that no program serves, or about the program that is missing.
Result<QStringList, BridgeError> bridgeArguments(const QStringList &lines,
                                                 const PluggableTransports &transports);

} // namespace veldmark
