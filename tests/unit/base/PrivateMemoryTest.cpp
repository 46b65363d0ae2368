#include "base/PrivateMemory.h"

#include "support/TestProgram.h"

#include <QTest>

#ifdef __linux__
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#endif
#include <sys/resource.h>

using namespace veldmark;

class PrivateMemoryTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void nobodyElseReadsIt()
    {
#if !defined(__linux__) || defined(VELDMARK_SANITIZED)
        QSKIP("is switched off here, or is not reported");
#else
        // In a child process, since the change cannot be undone.
        QCOMPARE(::prctl(PR_GET_DUMPABLE), 1);
        const pid_t child = ::fork();
        if (child == 0) {
            keepMemoryPrivate();
            rlimit limit{};
            const bool done = ::prctl(PR_GET_DUMPABLE) == 0 && ::getrlimit(RLIMIT_CORE, &limit) == 0
                && limit.rlim_cur == 0;
            ::_exit(done ? 0 : 1);
        }
        int status = -1;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QCOMPARE(status, 0);
#endif
    }
};

VELDMARK_TEST(PrivateMemoryTest)
#include "PrivateMemoryTest.moc"
