#include "controller/TorController.h"

#include "platform/PlatformProfile.h"
#include "system/IdentityProgram.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace std::chrono_literals;

namespace veldmark {

namespace {

using State = KillSwitch::State;

constexpr auto lookInterval = 1s;
constexpr qint64 noteLimitBytes = 64;
// The watcher writes twice a second, so a dead watcher shows within three seconds. The note's age
// is measured with the system's clock, which may be set and which runs on during sleep. So the last
// fresh note stays valid a little longer by the program's own clock.
constexpr auto freshTime = 1s;
constexpr auto graceTime = 1500ms;

// The watcher's last note. It goes with the session, and with a restart of the computer.
struct Note {
    std::optional<KillSwitch> rules; // absent: no note, or nonsense
    QDateTime written;               // UTC; now without a note
    bool isFresh = false;
};

Note lastNote(const QString &path)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {std::nullopt, now};
    const QDateTime written = file.fileTime(QFileDevice::FileModificationTime).toUTC();
    const std::chrono::milliseconds age(written.msecsTo(now));
    return {KillSwitch::parse(file.read(noteLimitBytes)), std::min(written, now),
            age >= -freshTime && age <= freshTime};
}

bool isOneOf(const std::optional<KillSwitch> &rules, State state)
{
    return rules && rules->state == state;
}

} // namespace

std::optional<KillSwitch> TorController::judgedKillSwitch()
{
    const auto &before = killSwitch();
    const auto since = [&before](State state, const QDateTime &time) {
        return isOneOf(before, state) ? *before
                                      : KillSwitch{state, before ? before->missed : 0, time};
    };
    if (markedMode() != RoutingMode::strict) {
        // The network was opened from outside under a strict session.
        const bool wasStrict = phase() == ConnectionPhase::connected
            && activeMode() == RoutingMode::strict;
        return wasStrict ? std::optional(since(State::open, QDateTime::currentDateTimeUtc()))
                         : std::nullopt;
    }
    const Note note = lastNote(m_services.profile.killSwitchNote);
    if (note.isFresh && note.rules) {
        m_killSwitchSeen = m_services.clock.now();
        return note.rules;
    }
    // An open kill switch counts as open until the watcher reports it closed, also for a program
    // that begins to look only now.
    if (isOneOf(note.rules, State::open))
        return note.rules;
    const bool isRecent = before && m_services.clock.now() - m_killSwitchSeen < graceTime;
    return isRecent || isOneOf(before, State::open)
        ? before
        : std::optional(since(State::unknown, note.written));
}

LeakStatus TorController::believable(const LeakStatus &found) const
{
    const bool isOpen = killSwitch() && !killSwitch()->blocks();
    return isOpen && found == LeakStatus::blocked() ? LeakStatus::notTested() : found;
}

void TorController::lookAtKillSwitch()
{
    if (phase() == ConnectionPhase::disconnected || phase() == ConnectionPhase::disconnecting)
        return;
    killSwitch = judgedKillSwitch();
    leakStatus = believable(leakStatus());
    if (killSwitch() == std::exchange(m_knownKillSwitch, killSwitch()))
        return;
    const auto told = std::exchange(m_killSwitchMessage, killSwitchMessage());
    if (m_killSwitchMessage)
        errorMessage = m_killSwitchMessage;
    else if (errorMessage() == told)
        errorMessage = std::nullopt;
}

void TorController::lookAtSeparation()
{
    const auto found = IdentityProgram::separates(m_services.profile);
    if (!separateApps())
        separated = std::nullopt;
    else if (found) // else the last look still counts
        separated = found;
}

std::optional<Text> TorController::killSwitchMessage() const
{
    if (m_torStopped)
        return deathMessage();
    // The network was restored from outside on purpose; torDied() tells it.
    if (!isSessionMarkerPresent())
        return std::nullopt;
    switch (killSwitch() ? killSwitch()->state : State::standing) {
    case State::putBack:
        return KillSwitch::putBackText();
    case State::open:
        return Text::tr(
            "Another program removed Veldmark's firewall rules and they could not be put back. Traffic "
            "may leave this computer directly. Disconnect and connect again.");
    case State::unknown:
        return Text::tr(
            "The watcher of Veldmark's firewall rules has stopped reporting, so it isn't known whether the kill switch blocks traffic. Disconnect and connect again.");
    case State::standing:
        break;
    }
    return std::nullopt;
}

Text TorController::deathMessage() const
{
    if (activeMode() != RoutingMode::strict)
        return Text::tr(
            "Tor stopped running. Apps using the proxy can't connect until you reconnect "
            "or Restore Network.");
    const bool hasLeaked = leakStatus().isExposed() || dnsStatus().isLeak();
    switch (killSwitch() ? killSwitch()->state : State::unknown) {
    case State::standing:
        if (hasLeaked)
            return Text::tr(
                "Tor stopped running. The kill switch is still blocking traffic, but the last checks saw traffic go around Tor. Reconnect, or Restore Network to go online without Tor.");
        return Text::tr(
            "Tor stopped running. The kill switch is still blocking traffic, so nothing "
            "leaked. Reconnect, or Restore Network to go back online.");
    case State::putBack:
        return Text::tr(
            "Tor stopped running. The kill switch is blocking traffic again, but another program had removed its rules for a while. Reconnect, or Restore Network to go online without Tor.");
    case State::open:
        return Text::tr(
            "Tor stopped running, and the kill switch doesn't block traffic: another program removed its rules. Traffic may leave this computer directly. Reconnect, or Restore Network.");
    case State::unknown:
        break;
    }
    return Text::tr(
        "Tor stopped running, and it isn't known whether the kill switch is still blocking traffic. Reconnect, or Restore Network to go online without Tor.");
}

void TorController::startKillSwitchWatch()
{
    lookAtKillSwitch();
    watchKillSwitch(next(&TorController::m_killSwitchWatch));
}

void TorController::forgetKillSwitch()
{
    stopKillSwitchWatch();
    killSwitch = std::nullopt;
    m_knownKillSwitch = std::nullopt;
    m_killSwitchMessage = std::nullopt;
    m_torStopped = false;
}

QCoro::Task<void> TorController::watchKillSwitch(Run run)
{
    for (;;) {
        co_await m_services.clock.sleep(lookInterval);
        if (run.isOver())
            co_return;
        // Another process has restored the network.
        if (phase() == ConnectionPhase::stale && !isSessionMarkerPresent()) {
            errorMessage = std::nullopt;
            endSession();
            co_return;
        }
        // Another process has disconnected. An answer at Tor's port no longer proves this session.
        if (phase() == ConnectionPhase::connected && activeMode() == RoutingMode::proxy
            && !isSessionMarkerPresent()) {
            torDied();
            co_return;
        }
        if ((phase() == ConnectionPhase::connected || phase() == ConnectionPhase::stale)
            && isSessionMarkerPresent())
            lookAtSession(); // the marker may be another session's
        if (run.isOver())
            co_return;
        lookAtKillSwitch();
        lookAtSeparation();
    }
}

} // namespace veldmark
