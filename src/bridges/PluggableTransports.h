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

// The transport programs and built-in bridges found on this computer. A plain value, filled by
// locate() from copies of Tor Browser and of the Tor Expert Bundle. Veldmark ships none of them.
struct PluggableTransports {
    // Absolute paths of executable files.
    std::optional<QString> lyrebird;  // lyrebird, or the older obfs4proxy
    std::optional<QString> snowflake; // snowflake-client, or a lyrebird that serves snowflake too
    std::optional<QString> webtunnel; // webtunnel-client

    // Bridge lines, normalised and valid, under their source's keys: "obfs4", "snowflake",
    // "meek_lite", "webtunnel", in newer bundles also "meek" and "meek-azure".
    QMap<QString, QStringList> builtin;
    QString source; // the label of the place that `builtin` comes from; empty without one

    // The transports that lyrebird serves: obfs4, meek_lite, webtunnel, obfs3, scramblesuit.
    static const QSet<QString> &lyrebirdTransports();

    // The built-in lines for `obfs4`, `snowflake` or `meek`, or a sentence that says where to get
    // some. The first key of builtinKeys() that has lines is used. Where a bundle lists lines under
    // another name than their transport's, only the lines of that transport count. At most as many
    // as can be used at once.
    Result<QStringList, BridgeError> builtinLines(BridgeChoice choice) const;

    // Searches again. Never fails: an unreadable file counts as missing.
    //
    // It searches the profile's Tor Browser and its bundle, with all their folders, then the
    // profile's program folders. Of several lyrebirds the last is used (the bundle's before the
    // browser's), of the other programs the first; within one place files are ordered by path.
    // Built-in bridges come from the first place that has any: from its pt_config.json, else from
    // the preferences inside its omni.ja. `bundleVersion` is the downloaded bundle's version, for
    // its label.
    //
    // Without a snowflake-client, `snowflake` is lyrebird's path if the pt_config.json beside it
    // says that it serves snowflake, or else if lyrebird says so when it is briefly started (see
    // servedTransports()).
    //
    // Blocks: it walks folders of many thousand files and runs unzip and perhaps lyrebird, each
    // limited in time and output. Any thread but the main one; see TransportSearch. Once `ended` is
    // requested it returns within a moment, with an incomplete result.
    //
    // With a `memory`, known archives and programs are not asked again. With `mayAsk` false no
    // transport program is started: lyrebird counts for snowflake when its place or the memory says
    // so.
    static PluggableTransports locate(const PlatformProfile &profile,
                                      std::optional<QString> bundleVersion = std::nullopt,
                                      const StopToken &ended = {},
                                      TransportMemory *memory = nullptr, bool mayAsk = true);

    friend bool operator==(const PluggableTransports &, const PluggableTransports &) = default;
};

} // namespace veldmark
