#pragma once

#include "base/ResumeOnce.h"
#include "checks/NetworkProbe.h"
#include "checks/ResolverSource.h"
#include "platform/RunningApplications.h"
#include "system/ProcessRunner.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <deque>
#include <functional>
#include <optional>
#include <vector>

// Small implementations of the program's own interfaces with answers set by the test.
namespace veldmark {

// Runs nothing: `answer` gives the result of each call. A call for which `hold` is true waits until
// `release()`.
class ScriptedRunner final : public ProcessRunner {
public:
    struct Call {
        QString executable;
        QStringList arguments;
    };
    using Answer = std::function<Result<ProcessResult, StartError>(const Call &call)>;

    ~ScriptedRunner() override { release(); }

    QCoro::Task<Result<ProcessResult, StartError>> run(QString executable,
                                                       QStringList arguments) override
    {
        const Call call{executable, arguments};
        calls.push_back(call);
        if (hold && hold(call)) {
            const ResumeOnce<bool> gate;
            m_held.push_back(gate);
            co_await gate;
        }
        const Answer now = answer;
        co_return now(call);
    }

    // Records a helper's call as if its options were on the command line.
    QCoro::Task<Result<ProcessResult, StartError>> runWithInput(QString executable,
                                                                QStringList arguments,
                                                                QByteArray input) override
    {
        QStringList words = QString::fromUtf8(input).split(u'\n');
        words.resize(words.indexOf(QStringLiteral("end")));
        arguments.removeLast(); // "-"
        inputs.push_back(input);
        return run(executable, arguments + words);
    }

    void release()
    {
        while (!m_held.empty()) {
            m_held.front().complete(true);
            m_held.pop_front();
        }
    }
    std::size_t held() const { return m_held.size(); }

    Answer answer = [](const Call &) { return ProcessResult{}; };
    std::function<bool(const Call &call)> hold;
    std::vector<Call> calls;
    std::vector<QByteArray> inputs;

private:
    std::deque<ResumeOnce<bool>> m_held;
};

class ScriptedProbe final : public NetworkProbe {
public:
    // The answer is fixed at the time of the request.
    QCoro::Task<ProbeResult> viaTor() override
    {
        ++torProbes;
        const ProbeResult answer = torAnswer;
        if (beforeTorAnswer)
            co_await beforeTorAnswer();
        co_return answer;
    }
    QCoro::Task<ProbeResult> direct() override
    {
        ++directProbes;
        const ProbeResult answer = directAnswer;
        if (beforeDirectAnswer)
            co_await beforeDirectAnswer();
        co_return answer;
    }

    static ProbeResult nothing() { return Failure(ProbeError{ProbeError::Kind::transport, {}}); }

    ProbeResult torAnswer = IPCheck{true, QStringLiteral("203.0.113.10")};
    ProbeResult directAnswer = nothing();
    std::function<QCoro::Task<void>()> beforeTorAnswer;
    std::function<QCoro::Task<void>()> beforeDirectAnswer;
    int torProbes = 0;
    int directProbes = 0;
};

class ScriptedResolvers final : public ResolverSource {
public:
    QCoro::Task<SystemResolvers> resolvers() override
    {
        ++readings;
        const SystemResolvers now{answer, isComplete};
        if (beforeAnswer)
            co_await beforeAnswer();
        co_return now;
    }

    std::vector<DNSResolver> answer;
    bool isComplete = true;
    std::function<QCoro::Task<void>()> beforeAnswer;
    int readings = 0;
};

// Applications with the names and copies that a test sets; a copy ends when the test says so.
class ScriptedApplications final : public RunningApplications {
public:
    QString displayName(const QString &path) const override { return names.value(path, path); }
    std::vector<qint64> copiesOf(const QString &path) const override { return copies.value(path); }
    void askToQuit(qint64 process) override { asked.push_back(process); }
    bool hasEnded(qint64 process) const override { return ended.contains(process); }

    QHash<QString, QString> names;
    QHash<QString, std::vector<qint64>> copies;
    std::vector<qint64> asked;
    QSet<qint64> ended;
};

} // namespace veldmark
