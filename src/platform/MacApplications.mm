#include "platform/BundlePath.h"
#include "platform/InstalledApplications.h"
#include "platform/RunningApplications.h"

#import <AppKit/AppKit.h>

#include <QDir>

#include <algorithm>

#include <unistd.h>

// Compiled without automatic reference counting: every object requested here belongs to an
// autorelease pool.
namespace veldmark {

namespace {

NSString *text(const QString &string)
{
    return [NSString stringWithUTF8String:string.toUtf8().constData()];
}

QString text(NSString *string)
{
    return string ? QString::fromUtf8([string UTF8String]) : QString();
}

QString nameOf(const QString &path)
{
    @autoreleasepool {
        QString name = text([[NSFileManager defaultManager] displayNameAtPath:text(path)]);
        return name.remove(QStringLiteral(".app"));
    }
}

class MacApplications final : public RunningApplications {
public:
    QString displayName(const QString &path) const override { return nameOf(path); }

    std::vector<qint64> copiesOf(const QString &path) const override
    {
        std::vector<qint64> found;
        @autoreleasepool {
            const QString wanted = comparableBundle(path);
            for (NSRunningApplication *application in
                 [[NSWorkspace sharedWorkspace] runningApplications]) {
                const pid_t process = [application processIdentifier];
                // a new process may have no id yet
                if (process == getpid() || process <= 0)
                    continue;
                if (comparableBundle(text([[application bundleURL] path])) == wanted)
                    found.push_back(process);
            }
        }
        return found;
    }

    void askToQuit(qint64 process) override
    {
        @autoreleasepool {
            [running(process) terminate];
        }
    }

    bool hasEnded(qint64 process) const override
    {
        @autoreleasepool {
            NSRunningApplication *const application = running(process);
            return !application || [application isTerminated];
        }
    }

private:
    static NSRunningApplication *running(qint64 process)
    {
        return [NSRunningApplication
            runningApplicationWithProcessIdentifier:static_cast<pid_t>(process)];
    }
};

} // namespace

std::unique_ptr<RunningApplications> runningApplications(const QString &)
{
    return std::make_unique<MacApplications>();
}

std::vector<InstalledApplication> installedApplications()
{
    std::vector<InstalledApplication> applications;
    for (const QString &folder :
         {QStringLiteral("/Applications"), QStringLiteral("/Applications/Utilities"),
          QDir::homePath() + QStringLiteral("/Applications")}) {
        const QStringList bundles = QDir(folder).entryList({QStringLiteral("*.app")},
                                                           QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString &bundle : bundles) {
            const QString path = folder + u'/' + bundle;
            applications.push_back({path, nameOf(path), {}});
        }
    }
    std::sort(applications.begin(), applications.end(), [](const auto &a, const auto &b) {
        const int order = QString::localeAwareCompare(a.name.toCaseFolded(), b.name.toCaseFolded());
        return order != 0 ? order < 0 : a.path < b.path;
    });
    return applications;
}

InstalledApplication applicationOfIdentity(const QString &id)
{
    return {{}, id, {}}; // the system tells no applications apart
}

} // namespace veldmark
