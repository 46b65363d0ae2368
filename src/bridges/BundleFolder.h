#pragma once

#include "base/Result.h"
#include "base/Text.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

// The folder of the downloaded bundle, and its replacement by a new bundle. One of the two bundles
// is complete on disk at any moment. Blocking; any thread, one at a time.
namespace veldmark {

// The contents of an installed bundle's small text files, trimmed; absent when a file is missing.
struct BundleRecord {
    std::optional<QString> version;
    std::optional<QString> verification; // "signature" or "https"
    std::optional<QString> signedAt;     // only with "signature": seconds since 1970

    static BundleRecord read(const QString &folder);
};

// The exclusive right to change a bundle's folder, one at a time on this computer. Released by the
// destructor, or when the process ends in any way. It uses hidden names beside `folder`:
// .NAME.lock, .NAME.old and .NAME.new-ABCDEF. The last name is random, so that an unpacking program
// that has outlived its killed parent cannot write into a later folder.
class BundleFolder {
public:
    // Exchanges two folders in one step. False when the file system cannot do that.
    using Exchange = std::function<bool(const QString &one, const QString &other)>;
    static bool exchange(const QString &one, const QString &other);

    // Takes the right and cleans up after a killed process: restores a bundle that was moved away,
    // and removes unfinished ones. The error is a sentence.
    static Result<std::shared_ptr<BundleFolder>, Text> claim(
        const QString &folder, Exchange exchange = &BundleFolder::exchange);
    ~BundleFolder();
    BundleFolder(const BundleFolder &) = delete;
    BundleFolder &operator=(const BundleFolder &) = delete;

    // The temporary folder that the last holder of the right noted and did not clear; empty when
    // there is none.
    QString forgotten() const { return m_forgotten; }
    // Notes a temporary folder, so that the next holder finds it if this process is killed. An
    // empty text clears the note.
    void note(const QString &temporary) const;

    // Makes an empty folder for a new bundle, on the same file system. Call it once.
    Result<QString, Text> fresh();
    // Keeps copies of the archive, its signature and the key in the new bundle's folder, in a
    // subfolder that only the user can enter, so that root can verify the bundle again
    // (SignedBundle). Keeps all three files or none. Call it after unpacking and before publish().
    void keepOrigin(const QString &archive, const QString &signature, const QString &key) const;
    // Used instead of keepOrigin(): removes that subfolder, even when the archive contains one.
    void forgetOrigin() const;
    // Writes the new bundle's record, puts the new bundle in the old one's place and removes the
    // old one. signedAt: only for a verified bundle, in seconds since 1970.
    Result<void, Text> publish(const QString &version, bool isVerified, qint64 signedAt = 0) const;
    // The version named by the new bundle's own VERSION file, before publish() writes one; absent
    // without such a file.
    std::optional<QString> freshVersion() const;
    // Removes a new bundle that will not be published.
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
    QString m_fresh; // empty before fresh()
};

// Removes a folder with its contents, even with unusual permissions. A link is removed, not
// followed. A missing folder is no error.
void removeTree(const QString &path);

} // namespace veldmark
