#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace veldmark {

struct PlatformProfile;

// Values that are secret wherever they appear.
struct KnownSecrets {
    QString home;            // the user's own
    QStringList homes;       // of other accounts
    QStringList names;       // of accounts, their owners and the computer
    QStringList bridgeLines; // as typed, valid or not, and as Tor reads them
    QStringList paths;       // the user's choices of programs

    // Of this computer, read from the profile's files and the system, and of the published state
    // (PublishedState.h).
    static KnownSecrets of(const PlatformProfile &profile, const QJsonObject &state);

    // Words that every report has, so that they tell nothing as a user's name. Replacing them would
    // tell.
    static bool isOrdinary(const QString &name);
};

} // namespace veldmark
