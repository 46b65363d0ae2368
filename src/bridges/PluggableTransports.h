#pragma once

#include "base/Result.h"
#include "base/StopToken.h"
#include "bridges/BridgeChoice.h"
#include "bridges/BridgeError.h"
#include "platform/PlatformProfile.h"

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace veldmark {

class TransportMemory;

// The transport programs and built-in bridges that were found on this computer. A plain value,
// filled by locate() from copies of Tor Browser and of the Tor Expert Bundle; nothing of it is
// shipped with the program.
struct PluggableTransports {
    // Absolute paths of executable files.
    std::optional<QString> lyrebird;  // lyrebird, or the older obfs4proxy
    std::optional<QString> snowflake; // snowflake-client, or a lyrebird that serves snowflake too
    std::optional<QString> webtunnel; // webtunnel-client

    // Bridge lines, each normalised and valid, under the keys that their source uses: "obfs4",
    // "snowflake", "meek_lite", "webtunnel", in newer bundles also "meek" and "meek-azure".
    QMap<QString, QStringList> builtin;
    QString source; // the label of the place that `builtin` comes from; empty with it

    // The transports that lyrebird is used for: obfs4, meek_lite, webtunnel, obfs3, scramblesuit.
    static const QSet<QString> &lyrebirdTransports();

    // The built-in lines for `obfs4`, `snowflake` or `meek`, or the sentence that says where to get
    // some. The first key of builtinKeys() that holds any decides; of lines that a bundle files
    // under another name than their transport's, those of that transport count. At most as many as
    // can be used at once.
    Result<QStringList, BridgeError> builtinLines(BridgeChoice choice) const;

    // Searches afresh. Never fails: what cannot be read is not found.
    //
    // Searched are the profile's Tor Browser and its bundle, with all their folders, then the
    // profile's program folders. Of several lyrebirds the last wins (the bundle's over the
    // browser's), of the other programs the first; within one place files count in the order of
    // their paths. Built-in bridges come from the first place that has any: from its
    // pt_config.json, else from the preferences inside its omni.ja. `bundleVersion` is the version
    // of the downloaded bundle, for its label.
    //
    // Where there is no snowflake-client, `snowflake` is lyrebird's path if the pt_config.json
    // beside it says that it serves snowflake, or else if it says so itself when it is started for
    // a moment (see servedTransports()).
    //
    // Blocks: it walks folders of many thousand files and runs unzip and perhaps lyrebird, each
    // bounded in time and output. Any thread but the one that draws; see TransportSearch. Once
    // `ended` says so it returns in a moment, and what it returns is worth nothing.
    //
    // With a `memory`, archives and programs that it knows are not asked again. With `mayAsk` false
    // no program is started: lyrebird counts for snowflake when its place or the memory says so.
    static PluggableTransports locate(const PlatformProfile &profile,
                                      std::optional<QString> bundleVersion = std::nullopt,
                                      const StopToken &ended = {},
                                      TransportMemory *memory = nullptr, bool mayAsk = true);

    friend bool operator==(const PluggableTransports &, const PluggableTransports &) = default;
};

} // namespace veldmark
