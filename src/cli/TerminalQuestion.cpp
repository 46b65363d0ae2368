#include "cli/TerminalQuestion.h"

#include "base/ResumeOnce.h"

#include <QFile>
#include <QSocketNotifier>

#include <array>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace veldmark {

namespace {

using Answer = PrivilegedRunner::Answer;

constexpr QLatin1String approval("yes"); // in every language
constexpr qsizetype typedLimitBytes = 1024;

// Reading from the background would stop the process. The terminal of another session has no
// foreground for this one.
bool isInBackground(int terminal)
{
    const pid_t front = ::tcgetpgrp(terminal);
    return front > 0 && front != ::getpgrp();
}

} // namespace

struct TerminalQuestion::OpenQuestion {
    int terminal;
    std::unique_ptr<QSocketNotifier> notifier;
    QByteArray typed;
    ResumeOnce<Answer> answer;

    explicit OpenQuestion(const QString &path)
        // a description of its own, so that the shell's stays blocking
        : terminal(
            ::open(QFile::encodeName(path).constData(), O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK))
    {
    }
    ~OpenQuestion()
    {
        notifier.reset();
        if (terminal >= 0)
            ::close(terminal);
    }
    OpenQuestion(const OpenQuestion &) = delete;
    OpenQuestion &operator=(const OpenQuestion &) = delete;

    bool canAsk() const
    {
        return terminal >= 0 && ::isatty(terminal) == 1 && !isInBackground(terminal);
    }
    bool show(const QByteArray &text) const
    {
        return ::write(terminal, text.constData(), static_cast<std::size_t>(text.size()))
            == text.size();
    }
    void read()
    {
        std::array<char, 256> bytes{};
        const ssize_t count = ::read(terminal, bytes.data(), bytes.size());
        if (count < 0 && errno == EAGAIN)
            return;
        if (count > 0)
            typed.append(bytes.data(), count);
        const qsizetype end = typed.indexOf('\n');
        if (count > 0 && end < 0 && typed.size() < typedLimitBytes)
            return;
        notifier->setEnabled(false);
        answer.complete(end >= 0 && QLatin1String(typed.left(end).trimmed()) == approval
                            ? Answer::yes
                            : Answer::no);
    }
};

TerminalQuestion::TerminalQuestion(QString terminal) : m_terminal(std::move(terminal)) { }

TerminalQuestion::~TerminalQuestion()
{
    const std::shared_ptr<OpenQuestion> asking = m_asking;
    if (!asking)
        return;
    asking->answer.complete(Answer::no);
    asking->answer.deliver();
}

QCoro::Task<Answer> TerminalQuestion::ask(Text text)
{
    const auto asking = std::make_shared<OpenQuestion>(m_terminal);
    if (!asking->canAsk())
        co_return Answer::nobodyThere;
    // A line of progress may stand there unfinished.
    const Text question = Text::joined(
        {text, Text::tr("Type %1 to approve it, anything else to refuse.").arg(approval)});
    ::tcflush(asking->terminal, TCIFLUSH);
    if (!asking->show('\n' + question.translated().toUtf8() + "\n> "))
        co_return Answer::nobodyThere;
    asking->notifier = std::make_unique<QSocketNotifier>(asking->terminal, QSocketNotifier::Read);
    QObject::connect(asking->notifier.get(), &QSocketNotifier::activated, asking->notifier.get(),
                     [raw = asking.get()] { raw->read(); });
    m_asking = asking;
    const Answer answer = co_await asking->answer; // this object may be gone
    co_return answer;
}

void TerminalQuestion::refuse()
{
    if (!m_asking || !m_asking->answer.complete(Answer::no))
        return;
    m_asking->notifier->setEnabled(false);
    m_asking->show("\n");
}

} // namespace veldmark
