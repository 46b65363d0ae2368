#pragma once

#include "doctor/Finding.h"
#include "log/TorLog.h"

#include <QDateTime>
#include <QJsonObject>
#include <QStringList>

#include <optional>
#include <vector>

namespace veldmark {

struct KnownSecrets;

// What a report is made of, with the secrets. ReportMaker fills it in.
struct ReportSources {
    QDateTime made;
    QStringList versions;
    // The published state (PublishedState.h), and which of its fields are settings.
    QJsonObject state;
    QStringList settings;
    // Not in the state, a sentence each: the instance doesn't answer, the settings' file is broken.
    QStringList problems;
    QStringList notes;                  // of the helper and its watcher, a line each
    std::optional<QStringList> journal; // the names of the helper's entries; absent: unreadable
    std::optional<QString> rules;       // the kill switch in the kernel; absent: unreadable
    Findings findings;
    TorLog::Snapshot log;
};

// The report that a user may show to others: plain text in English, of bounded size, without the
// secrets of `ReportSources`. A plain value.
struct SupportReport {
    static constexpr qsizetype longestSection = 400; // lines; of more the last ones are kept

    struct Section {
        QString title;
        QStringList lines;
    };
    QDateTime made; // UTC
    std::vector<Section> sections;

    static SupportReport of(const ReportSources &from, const KnownSecrets &known);

    QString text() const; // ends with a line feed
    // {"made": …, "sections": [{"title": …, "lines": […]}]}
    QJsonObject json() const;
};

} // namespace veldmark
