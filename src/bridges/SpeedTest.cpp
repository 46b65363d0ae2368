#include "bridges/SpeedTest.h"

#include "bridges/BridgeLines.h"

#include <algorithm>

namespace veldmark {

std::vector<qsizetype> speedTestCandidates(const QStringList &lines)
{
    std::vector<qsizetype> candidates;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const bool isEmpty = std::all_of(lines[i].begin(), lines[i].end(),
                                         [](QChar c) { return c == u' '; });
        const std::optional<QString> transport = BridgeLines::transport(lines[i]);
        if (!isEmpty && (!transport || *transport == u"obfs4"))
            candidates.push_back(i);
    }
    return candidates;
}

FastestSelection fastestSelection(const QStringList &lines,
                                  const std::vector<qsizetype> &candidates,
                                  const std::vector<std::optional<ConnectTime>> &times)
{
    Q_ASSERT(candidates.size() == times.size());
    struct Answer {
        qsizetype line;
        ConnectTime time;
    };
    std::vector<Answer> answers;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        if (times[i])
            answers.push_back({candidates[i], *times[i]});
    }
    if (answers.empty())
        return {lines, Text::tr("No bridge answered a quick test, trying them all")};

    std::stable_sort(answers.begin(), answers.end(),
                     [](const Answer &a, const Answer &b) { return a.time < b.time; });
    answers.resize(std::min(answers.size(), std::size_t(fastestBridgeCount)));

    FastestSelection selection;
    for (const Answer &answer : answers)
        selection.lines.append(lines[answer.line]);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (!std::binary_search(candidates.begin(), candidates.end(), i))
            selection.lines.append(lines[i]);
    }
    selection.status
        = Text::tr("Using the %1 fastest of %2 bridges").arg(answers.size()).arg(candidates.size());
    return selection;
}

QCoro::Task<QStringList> fastestBridges(QStringList lines, BridgeProbe probe,
                                        std::function<void(Text)> status)
{
    const std::vector<qsizetype> candidates = speedTestCandidates(lines);
    if (candidates.size() < 2)
        co_return lines;
    status(Text::tr("Testing %n bridges…", nullptr, static_cast<int>(candidates.size())));

    // A task runs as soon as it is made, so all probes run before the first is awaited. A candidate
    // without an address has no time.
    std::vector<std::optional<ConnectTime>> times(candidates.size());
    std::vector<std::pair<std::size_t, QCoro::Task<std::optional<ConnectTime>>>> probes;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        if (const std::optional<BridgeAddress> at = BridgeLines::address(lines[candidates[i]]))
            probes.emplace_back(i, probe(at->host, at->port, bridgeProbeLimit));
    }
    for (auto &[index, running] : probes) {
        const std::optional<ConnectTime> time = co_await running;
        times[index] = time;
    }

    const FastestSelection selection = fastestSelection(lines, candidates, times);
    status(selection.status);
    co_return selection.lines;
}

} // namespace veldmark
