#include "app/Activation.h"
#include "app/Application.h"
#include "app/RecoveryNotice.h"
#include "base/PrivateMemory.h"
#include "base/Resumption.h"
#include "base/UsersLanguage.h"

#include "instance/InstanceClient.h"
#include "ui/Symbols.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>
#include <QMessageBox>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <array>
#include <string_view>

using namespace veldmark;

namespace {

// Tells the running instance why it was started a second time. `command`: "raise" or "connect".
QCoro::Task<void> tellOther(std::shared_ptr<InstanceClient> client, QString command)
{
    const QJsonObject request{{QStringLiteral("command"), command}};
    const auto done = co_await client->run(request,
                                           [](const QJsonObject &, const QJsonObject &) {});
    if (!done)
        QTextStream(stderr) << "veldmark: " << done.error().description().translated() << '\n';
    QCoreApplication::exit(done ? 0 : 1);
}

// The command line's options.
class CommandLine {
public:
    CommandLine()
    {
        m_parser.addOptions({hidden, connectNow});
        m_parser.addHelpOption();
        m_parser.addVersionOption();
    }
    // Ends the program when the command line only asks for an answer.
    void process() { m_parser.process(*QCoreApplication::instance()); }
    bool has(const QCommandLineOption &option) const { return m_parser.isSet(option); }

    const QCommandLineOption hidden{
        QStringLiteral("hidden"),
        QCoreApplication::translate("main", "Start without a window, as at login.")};
    const QCommandLineOption connectNow{QStringLiteral("connect"),
                                        QCoreApplication::translate("main", "Connect at once.")};

private:
    QCommandLineParser m_parser;
};

void nameProgram()
{
    QCoreApplication::setApplicationName(QStringLiteral("veldmark"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VELDMARK_VERSION));
}

// Whether the command line only asks for information, which needs no display.
bool isQuestion(int argc, char **argv)
{
    static constexpr std::array<std::string_view, 5> questions{"-h", "--help", "--help-all", "-v",
                                                               "--version"};
    return std::any_of(argv + 1, argv + argc, [](const char *word) {
        return std::find(questions.begin(), questions.end(), word) != questions.end();
    });
}

int perform(const PlatformProfile &profile, const CommandLine &line)
{
    const RecoveryNotice recoveryNotice(profile);
    Application program(profile);
    if (const auto started = program.start(line.has(line.hidden), line.has(line.connectNow));
        !started) {
        QTextStream(stderr) << "veldmark: " << started.error().translated() << '\n';
        QMessageBox::critical(nullptr, QStringLiteral("Veldmark"),
                              started.error().translated() + RecoveryNotice::advice(profile));
        return 1;
    }
    return QApplication::exec();
}

int answer(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    nameProgram();
    const UsersLanguage language;
    CommandLine().process();
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    keepMemoryPrivate();
    if (isQuestion(argc, argv))
        return answer(argc, argv);
    // The program needs no GPU. GPU drivers use more memory than the whole program.
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
    QApplication application(argc, argv);
    nameProgram();
    application.setDesktopFileName(QStringLiteral("veldmark"));
    application.setQuitOnLastWindowClosed(false);
    becomeMenuBarProgram();
    application.setWindowIcon(QPixmap::fromImage(
        Symbols::image(QStringLiteral("veldmark"), 64, QColor(0x62, 0x36, 0xc9))));

    const UsersLanguage language;
    QApplication::setLayoutDirection(language.direction());
    CommandLine line;
    line.process();

    const PlatformProfile profile = PlatformProfile::current(Places::fromEnvironment());
    if (const auto other = InstanceClient::connectTo(profile)) {
        if (line.has(line.hidden) && !line.has(line.connectNow))
            return 0; // the instance already runs
        const QString command = line.has(line.connectNow) ? QStringLiteral("connect")
                                                          : QStringLiteral("raise");
        QTimer::singleShot(0, &application, [other, command] { tellOther(other, command); });
        return QApplication::exec();
    }

    return runToCoroutineEnds([&] { return perform(profile, line); });
}
