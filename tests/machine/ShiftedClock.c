// A clock of the machine's own. It is preloaded into every program of the machine and adds the
// seconds in the file to the kernel's time of day. Clocks that measure durations are unchanged, as
// after a sleep.

#define _GNU_SOURCE
#include <fcntl.h>
#include <stddef.h>
#include <stdint.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

static const volatile int64_t *shift;

__attribute__((constructor)) static void open_shift(void)
{
    int file = open("/etc/shifted-clock", O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return;
    void *page = mmap(NULL, sizeof(int64_t), PROT_READ, MAP_SHARED, file, 0);
    close(file);
    if (page != MAP_FAILED)
        shift = page;
}

int clock_gettime(clockid_t which, struct timespec *now)
{
    int status = (int)syscall(SYS_clock_gettime, which, now);
    if (status == 0 && shift && (which == CLOCK_REALTIME || which == CLOCK_REALTIME_COARSE))
        now->tv_sec += *shift;
    return status;
}

int gettimeofday(struct timeval *restrict now, void *restrict zone)
{
    int status = (int)syscall(SYS_gettimeofday, now, zone);
    if (status == 0 && now && shift)
        now->tv_sec += *shift;
    return status;
}

time_t time(time_t *stored)
{
    struct timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    if (stored)
        *stored = now.tv_sec;
    return now.tv_sec;
}
