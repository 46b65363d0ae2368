#include "app/LastWords.h"

#include "platform/PlatformProfile.h"

#include <QFile>

#include <cstdlib>

#include <unistd.h>

namespace veldmark {

namespace {

// Made early and never destroyed: at exit nothing else can be relied on.
struct Words {
    QByteArray marker;
    QByteArray text;
};
Words *words = nullptr;

void speak()
{
    if (!words || ::access(words->marker.constData(), F_OK) != 0)
        return;
    [[maybe_unused]] const auto written =
        ::write(STDERR_FILENO, words->text.constData(), static_cast<size_t>(words->text.size()));
}

} // namespace

LastWords::LastWords(const PlatformProfile &profile)
{
    words = new Words{QFile::encodeName(profile.sessionMarker),
                      "veldmark: "
                          + Text::tr("Ended without its display. Your network is still set up for Tor: start Veldmark again, or "
                                     "restore it with: %1").arg(profile.manualRestoreCommand).translated().toUtf8()
                          + '\n'};
    std::atexit(speak);
}

LastWords::~LastWords()
{
    delete words;
    words = nullptr;
}

} // namespace veldmark
