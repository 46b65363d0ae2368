#include "cli/Console.h"

#include <cstdio>

#include <sys/ioctl.h>
#include <unistd.h>

namespace veldmark::Console {

namespace {
void write(FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}
} // namespace

void print(const Text &text)
{
    write(stdout, text.translated().toUtf8() + '\n');
}

void printError(const Text &text)
{
    write(stderr, "veldmarkctl: " + text.translated().toUtf8() + '\n');
}

void draw(const QString &text)
{
    write(stdout, text.toUtf8());
}

bool isTerminal()
{
    return isatty(STDOUT_FILENO) && qEnvironmentVariable("TERM") != QLatin1String("dumb");
}

int width()
{
    winsize size{};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}

} // namespace veldmark::Console
