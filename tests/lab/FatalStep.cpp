// A library for LD_PRELOAD that kills its program, as by SIGKILL from outside, right before the
// file change with the number VELDMARK_FATAL_STEP; 1 is the first. A file change makes, removes or
// renames a file or folder. Child programs are left alone.

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const int fatalStep = [] {
    const char *step = std::getenv("VELDMARK_FATAL_STEP");
    ::unsetenv("LD_PRELOAD");
    return step == nullptr ? 0 : std::atoi(step);
}();
std::atomic<int> steps{0};

void step()
{
    if (++steps == fatalStep)
        ::kill(::getpid(), SIGKILL);
}

template <typename Call> Call next(const char *name)
{
    return reinterpret_cast<Call>(::dlsym(RTLD_NEXT, name));
}

int openNext(const char *name, const char *path, int flags, va_list rest)
{
    const bool isNew = (flags & O_CREAT) != 0;
    const mode_t mode = isNew ? va_arg(rest, mode_t) : 0;
    if (isNew)
        step();
    return next<int (*)(const char *, int, ...)>(name)(path, flags, mode);
}

} // namespace

extern "C" {

int open(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const int file = openNext("open", path, flags, rest);
    va_end(rest);
    return file;
}

int open64(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const int file = openNext("open64", path, flags, rest);
    va_end(rest);
    return file;
}

int mkdir(const char *path, mode_t mode) noexcept
{
    step();
    return next<int (*)(const char *, mode_t)>("mkdir")(path, mode);
}

char *mkdtemp(char *pattern) noexcept
{
    step();
    return next<char *(*)(char *)>("mkdtemp")(pattern);
}

int rmdir(const char *path) noexcept
{
    step();
    return next<int (*)(const char *)>("rmdir")(path);
}

int unlink(const char *path) noexcept
{
    step();
    return next<int (*)(const char *)>("unlink")(path);
}

int rename(const char *from, const char *to) noexcept
{
    step();
    return next<int (*)(const char *, const char *)>("rename")(from, to);
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
              unsigned flags) noexcept
{
    step();
    return next<int (*)(int, const char *, int, const char *, unsigned)>("renameat2")(
        fromFolder, from, toFolder, to, flags);
}

} // extern "C"
