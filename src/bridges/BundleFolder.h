#pragma once

#include "base/Result.h"
#include "base/Text.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

// The folder of the downloaded bundle, and how another one takes its place so that at every moment
// one of the two stands there whole. Blocking; any thread, one at a time.
namespace veldmark {

// What stands in an installed bundle's small text files, trimmed; nothing when there is no such
// file.
struct BundleRecord {
    std::optional<QString> version;
    std::optional<QString> verification; // "signature" or "https"
    std::optional<QString> signedAt;     // with the former: seconds since 1970

    static BundleRecord read(const QString &folder);
};

// The right to change a bundle's folder; one at a time on this computer. Lets go when destroyed, or
// when the process ends in whatever way. Beside `folder` it uses hidden names that begin like it:
// .NAME.lock, .NAME.old and .NAME.new-ABCDEF; the last is another one each time, so that an
// unpacking program that has outlived its killed parent cannot write into it.
class BundleFolder {
public:
    // Lets two folders change places in one step. False where the file system cannot.
    using Exchange = std::function<bool(const QString &one, const QString &other)>;
    static bool exchange(const QString &one, const QString &other);

    // Takes the right and clears up what a process that was killed has left: puts back a bundle
    // that had been taken away, and removes unfinished ones. The error is a sentence.
    static Result<std::shared_ptr<BundleFolder>, Text> claim(
        const QString &folder, Exchange exchange = &BundleFolder::exchange);
    ~BundleFolder();
    BundleFolder(const BundleFolder &) = delete;
    BundleFolder &operator=(const BundleFolder &) = delete;

    // The temporary folder that the last holder of the right had noted and not taken back; empty
    // when there was none.
    QString forgotten() const { return m_forgotten; }
    // Notes a temporary folder, so that the next holder finds it should this process be killed;
    // an empty text takes it back.
    void note(const QString &temporary) const;

    // Makes an empty folder for a new bundle, on the same file system. Once.
    Result<QString, Text> fresh();
    // Keeps copies of what the new bundle was unpacked from and of what vouches for it beside it,
    // in a folder of the user's alone, for whoever verifies it again (SignedBundle); all three
    // files or none. To be called after unpacking and before publish().
    void keepOrigin(const QString &archive, const QString &signature, const QString &key) const;
    // Instead: nothing of that name stays, were it the archive's own.
    void forgetOrigin() const;
    // Writes the new bundle's record, puts the new bundle where the old one was and removes the old
    // one. signedAt: of a verified one, in seconds since 1970.
    Result<void, Text> publish(const QString &version, bool isVerified, qint64 signedAt = 0) const;
    // The version that the new bundle brings itself, before publish() notes one; nothing when it
    // does not.
    std::optional<QString> freshVersion() const;
    // Removes a new bundle that is not to be published.
    void discard() const;

private:
    BundleFolder(QString folder, Exchange exchange, int lock);
    QString beside(const char *suffix) const;
    void removeUnfinished() const;
    void recover() const;

    QString m_folder;
    Exchange m_exchange;
    int m_lock;
    QString m_forgotten;
    QString m_fresh; // empty before there is one
};

// Removes a folder with everything in it, also where permissions are odd; a link is removed, not
// followed. Nothing happens when there is nothing.
void removeTree(const QString &path);

} // namespace veldmark
