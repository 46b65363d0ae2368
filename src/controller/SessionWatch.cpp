#include "controller/SessionWatch.h"

#include "controller/TorController.h"
#include "platform/PlatformProfile.h"

#include <QFileInfo>
#include <QSocketNotifier>

#include <utility>

#include <unistd.h>
#ifdef Q_OS_LINUX
#include <sys/syscall.h>
#endif

namespace veldmark {

SessionWatch::SessionWatch(TorController &controller) : m_controller(controller)
{
    QObject::connect(&m_folders, &QFileSystemWatcher::directoryChanged, this, &SessionWatch::look,
                     Qt::QueuedConnection);
    QObject::connect(&controller.otherSession, &Field::changed, this, &SessionWatch::watchOwner,
                     Qt::QueuedConnection);
    // What this one takes for the end of its own session may have been another's beginning.
    QObject::connect(&controller.phase, &Field::changed, this, &SessionWatch::look,
                     Qt::QueuedConnection);
    watchFolder();
    watchOwner();
}

SessionWatch::~SessionWatch()
{
    m_owner.reset();
    if (m_process >= 0)
        ::close(m_process);
}

void SessionWatch::look()
{
    watchFolder();
    m_controller.lookAtSession();
}

// The marker's folder, or as long as it is missing the nearest one above it.
void SessionWatch::watchFolder()
{
    for (;;) { // once more after each: the next one below may have come meanwhile
        QString folder = QFileInfo(m_controller.profile().sessionMarker).path();
        while (!QFileInfo::exists(folder) && folder.size() > 1)
            folder = QFileInfo(folder).path();
        const QStringList former = m_folders.directories();
        if (former.contains(folder))
            return;
        if (!former.isEmpty())
            m_folders.removePaths(former);
        if (!m_folders.addPath(folder))
            return; // the commands of this instance look for themselves
    }
}

void SessionWatch::watchOwner()
{
    m_owner.reset();
    if (m_process >= 0)
        ::close(std::exchange(m_process, -1));
#if defined(Q_OS_LINUX) && defined(SYS_pidfd_open)
    if (!m_controller.otherSession())
        return;
    m_process = static_cast<int>(
        ::syscall(SYS_pidfd_open, m_controller.otherSession()->process, 0));
    if (m_process < 0) { // it has gone just now, or the kernel is too old to tell
        QMetaObject::invokeMethod(this, &SessionWatch::look, Qt::QueuedConnection);
        return;
    }
    m_owner = std::make_unique<QSocketNotifier>(m_process, QSocketNotifier::Read);
    QObject::connect(m_owner.get(), &QSocketNotifier::activated, this, [this] {
        m_owner->setEnabled(false); // it has ended for good
        QMetaObject::invokeMethod(this, &SessionWatch::look, Qt::QueuedConnection);
    });
#endif
}

} // namespace veldmark
