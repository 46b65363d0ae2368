#include "cli/TerminalQuestion.h"

#include "base/Resumption.h"
#include "support/TestProgram.h"

#include <QTest>

#include <array>
#include <optional>

#include <fcntl.h>
#include <stdlib.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace veldmark;
using Answer = PrivilegedRunner::Answer;

namespace {

// A pseudo-terminal whose user the test is.
class Terminal {
public:
    Terminal() : m_user(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
        if (m_user < 0 || ::grantpt(m_user) != 0 || ::unlockpt(m_user) != 0)
            qFatal("no pseudo-terminal");
        ::fcntl(m_user, F_SETFL, O_NONBLOCK);
        std::array<char, 128> name{};
        ::ptsname_r(m_user, name.data(), name.size());
        path = QString::fromLatin1(name.data());
        m_open = ::open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC); // keeps what was typed
    }
    ~Terminal()
    {
        ::close(m_open);
        ::close(m_user);
    }
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;

    void type(const QByteArray &text) const
    {
        if (::write(m_user, text.constData(), static_cast<std::size_t>(text.size())) != text.size())
            qFatal("cannot type");
    }
    // All that it has shown since the last call.
    QString shown() const
    {
        QByteArray all;
        std::array<char, 4096> bytes{};
        for (ssize_t count = 0; (count = ::read(m_user, bytes.data(), bytes.size())) > 0;)
            all.append(bytes.data(), count);
        return QString::fromUtf8(all);
    }

    QString path;

private:
    int m_user;
    int m_open = -1;
};

// One question and its answer, once there is one.
struct Asked {
    explicit Asked(TerminalQuestion &question) { begin(question, &answer); }

    static QCoro::Task<void> begin(TerminalQuestion &question, std::optional<Answer> *answer)
    {
        *answer = co_await question.ask(u"Run it?"_s);
    }

    std::optional<Answer> answer;
};

// What a process says that stands in the foreground of the terminal, or in the background.
int answerOf(const Terminal &terminal, bool isInBackground)
{
    const pid_t leader = ::fork();
    if (leader == 0) {
        ::setsid();
        const int tty = ::open(QFile::encodeName(terminal.path).constData(), O_RDWR);
        ::ioctl(tty, TIOCSCTTY, 0);
        const pid_t asking = ::fork();
        if (asking == 0) {
            if (isInBackground)
                ::setpgid(0, 0);
            TerminalQuestion question;
            const auto task = question.ask(u"Run it?"_s);
            ::_exit(task.isReady() ? 2 : 1); // it asks, or is done
        }
        int status = 0;
        ::waitpid(asking, &status, 0);
        ::_exit(WIFEXITED(status) ? WEXITSTATUS(status) : 9);
    }
    int status = 0;
    ::waitpid(leader, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 9;
}

} // namespace

class TerminalQuestionTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void onlyYesApproves_data()
    {
        QTest::addColumn<QByteArray>("typed");
        QTest::addColumn<Answer>("answer");
        QTest::newRow("yes") << "yes\n"_ba << Answer::yes;
        QTest::newRow("blanks around it") << " yes \n"_ba << Answer::yes;
        QTest::newRow("a letter") << "y\n"_ba << Answer::no;
        QTest::newRow("more") << "yes, later\n"_ba << Answer::no;
        QTest::newRow("no") << "no\n"_ba << Answer::no;
        QTest::newRow("nothing") << "\n"_ba << Answer::no;
        QTest::newRow("the second line") << "no\nyes\n"_ba << Answer::no;
        QTest::newRow("the end") << "\x04"_ba << Answer::no;
    }

    void onlyYesApproves()
    {
        QFETCH(QByteArray, typed);
        QFETCH(Answer, answer);
        const Terminal terminal;
        TerminalQuestion question(terminal.path);
        const Asked asked(question);
        QCOMPARE(terminal.shown(),
                 u"\r\nRun it? Type yes to approve it, anything else to refuse.\r\n> "_s);
        terminal.type(typed.left(2));
        terminal.type(typed.mid(2));
        QTRY_VERIFY(asked.answer);
        QVERIFY(asked.answer == answer);
    }

    void whatWasTypedBeforeIsNoAnswer()
    {
        const Terminal terminal;
        TerminalQuestion question(terminal.path);
        terminal.type("yes\n");
        const Asked asked(question);
        terminal.type("no\n");
        QTRY_VERIFY(asked.answer);
        QVERIFY(asked.answer == Answer::no);
    }

    void withoutATerminalNobodyIsThere()
    {
        for (const QString &path : {u"/nowhere"_s, u"/dev/null"_s}) {
            TerminalQuestion question(path);
            const Asked asked(question);
            QVERIFY(asked.answer == Answer::nobodyThere);
        }
    }

    // There it would be stopped.
    void inTheBackgroundNobodyIsThere()
    {
        const Terminal terminal;
        QCOMPARE(answerOf(terminal, false), 1);
        const Terminal another;
        QCOMPARE(answerOf(another, true), 2);
    }

    void mayBeRefusedMeanwhile()
    {
        const Terminal terminal;
        TerminalQuestion question(terminal.path);
        question.refuse(); // nothing is asked yet
        const Asked asked(question);
        QVERIFY(!asked.answer);
        question.refuse();
        terminal.type("yes\n");
        QTRY_VERIFY(asked.answer);
        QVERIFY(asked.answer == Answer::no);
    }

    void leavesNobodyWaiting()
    {
        const Terminal terminal;
        auto question = std::make_unique<TerminalQuestion>(terminal.path);
        const Asked asked(*question);
        QVERIFY(!asked.answer);
        question.reset();
        QVERIFY(asked.answer == Answer::no);
        QCOMPARE(Resumption::waiting(), 0);
    }
};

VELDMARK_TEST(TerminalQuestionTest)
#include "TerminalQuestionTest.moc"
