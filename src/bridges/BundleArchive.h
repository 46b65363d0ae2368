#pragma once

#include "base/Text.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

// Checks a downloaded archive, before and after it is unpacked. It may contain only files, folders,
// and links without ".." and without a leading "/".
namespace veldmark {

// Why the archive must not be unpacked, as a sentence; absent when it may. The arguments are the
// output of "tar --numeric-owner -t" and "-tv" for it, GNU's or the Mac's. Pure.
std::optional<Text> listingProblem(QByteArrayView names, QByteArrayView details);

// The same check for an archive file, by running `tar`. Blocks for up to a few minutes.
std::optional<Text> archiveProblem(const QString &tar, const QString &archive);

// Checks the files unpacked into `folder`, and sets plain permissions: 755, or 644 for files that
// are not executable. The sentence says what is forbidden there. Blocks.
std::optional<Text> settleUnpacked(const QString &folder);

} // namespace veldmark
