#include "app/RecoveryNotice.h"

#include "platform/PlatformProfile.h"
#include "system/SessionOwner.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdlib>

#include <unistd.h>

namespace veldmark {

namespace {

// Made early and not freed by exit(), which may run when little else still works.
struct LastMessage {
    PlatformProfile profile;
    QByteArray text;
};
LastMessage *lastMessage = nullptr;

void speak()
{
    if (!lastMessage || !RecoveryNotice::isNetworkLeft(lastMessage->profile))
        return;
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, lastMessage->text.constData(),
                                                  static_cast<size_t>(lastMessage->text.size()));
}

} // namespace

bool RecoveryNotice::isNetworkLeft(const PlatformProfile &profile)
{
    return QFile::exists(profile.sessionMarker) && !SessionOwner::ofAnotherProcess(profile);
}

QString RecoveryNotice::advice(const PlatformProfile &profile)
{
    if (!isNetworkLeft(profile))
        return {};
    return u'\n'
        + QCoreApplication::translate(
              "main",
              "Your network is still set up for Tor. To restore it without Veldmark, run:\n%1")
              .arg(profile.manualRestoreCommand);
}

RecoveryNotice::RecoveryNotice(const PlatformProfile &profile)
{
    lastMessage = new LastMessage{
        profile,
        "veldmark: "
            + Text::tr(
                  "Ended because the display is gone. Your network is still set up for Tor: start Veldmark again, or restore the network with: %1")
                  .arg(profile.manualRestoreCommand)
                  .translated()
                  .toUtf8()
            + '\n'};
    std::atexit(speak);
}

RecoveryNotice::~RecoveryNotice()
{
    delete lastMessage;
    lastMessage = nullptr;
}

} // namespace veldmark
