#pragma once

#include "base/Text.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

// What is inside an archive that came from elsewhere, before and after it is unpacked. Only files,
// folders, and links that lead further down or to a neighbour may be in it.
namespace veldmark {

// What makes an archive unfit, as a sentence; nothing when it may be unpacked. The arguments are
// what "tar --numeric-owner -t" and "-tv" print for it, GNU's or the Mac's. Pure.
std::optional<Text> listingProblem(QByteArrayView names, QByteArrayView details);

// The same for an archive file, asking `tar`. Blocks for up to a few minutes.
std::optional<Text> archiveProblem(const QString &tar, const QString &archive);

// Looks at what has been unpacked into `folder`, and gives every file and folder in it plain
// permissions (755, or 644 for files that are no programs). The sentence says what should not be
// there. Blocks.
std::optional<Text> settleUnpacked(const QString &folder);

} // namespace veldmark
