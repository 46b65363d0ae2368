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
    // The end of this process's session may be the beginning of another one.
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

// Watches the marker's folder or, while that is missing, the nearest existing folder above it.
void SessionWatch::watchFolder()
{
    for (;;) { // repeats, since the next folder below may have appeared meanwhile
        QString folder = QFileInfo(m_controller.profile().sessionMarker).path();
        while (!QFileInfo::exists(folder) && folder.size() > 1)
            folder = QFileInfo(folder).path();
        const QStringList former = m_folders.directories();
        if (former.contains(folder))
            return;
        if (!former.isEmpty())
            m_folders.removePaths(former);
        if (!m_folders.addPath(folder))
            return; // this instance's commands look at the session themselves
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
    if (m_process < 0) { // the process has just ended, or the kernel is too old
        QMetaObject::invokeMethod(this, &SessionWatch::look, Qt::QueuedConnection);
        return;
    }
    m_owner = std::make_unique<QSocketNotifier>(m_process, QSocketNotifier::Read);
    QObject::connect(m_owner.get(), &QSocketNotifier::activated, this, [this] {
        m_owner->setEnabled(false); // the process has ended
        QMetaObject::invokeMethod(this, &SessionWatch::look, Qt::QueuedConnection);
    });
#endif
}

} // namespace veldmark
