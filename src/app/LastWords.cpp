#include "app/LastWords.h"

#include "platform/PlatformProfile.h"
#include "system/SessionOwner.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdlib>

#include <unistd.h>

namespace veldmark {

namespace {

// Made early and not freed by exit(), which may run when little else still works.
struct Words {
    PlatformProfile profile;
    QByteArray text;
};
Words *words = nullptr;

void speak()
{
    if (!words || !LastWords::isNetworkLeft(words->profile))
        return;
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, words->text.constData(),
                                                  static_cast<size_t>(words->text.size()));
}

} // namespace

bool LastWords::isNetworkLeft(const PlatformProfile &profile)
{
    return QFile::exists(profile.sessionMarker) && !SessionOwner::ofAnotherProcess(profile);
}

QString LastWords::advice(const PlatformProfile &profile)
{
    if (!isNetworkLeft(profile))
        return {};
    return u'\n'
        + QCoreApplication::translate(
              "main",
              "Your network is still set up for Tor. To restore it without Veldmark, run:\n%1")
              .arg(profile.manualRestoreCommand);
}

LastWords::LastWords(const PlatformProfile &profile)
{
    words = new Words{
        profile,
        "veldmark: "
            + Text::tr(
                  "Ended without its display. Your network is still set up for Tor: start Veldmark again, or "
                  "restore it with: %1")
                  .arg(profile.manualRestoreCommand)
                  .translated()
                  .toUtf8()
            + '\n'};
    std::atexit(speak);
}

LastWords::~LastWords()
{
    delete words;
    words = nullptr;
}

} // namespace veldmark
