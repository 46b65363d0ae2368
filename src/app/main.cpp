#include "app/Activation.h"
#include "app/Application.h"
#include "app/LastWords.h"
#include "base/Resumption.h"

#include "instance/InstanceClient.h"
#include "ui/Symbols.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QLocale>
#include <QMessageBox>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

using namespace veldmark;

namespace {

// Hands the running instance what this second start was for. `command`: "raise" or "connect".
QCoro::Task<void> tellOther(std::shared_ptr<InstanceClient> client, QString command)
{
    const QJsonObject request{{QStringLiteral("command"), command}};
    const auto done = co_await client->run(request, [](const QJsonObject &) {});
    if (!done)
        QTextStream(stderr) << "veldmark: " << done.error().description() << '\n';
    QCoreApplication::exit(done ? 0 : 1);
}

} // namespace

int main(int argc, char **argv)
{
    // Nothing here needs a GPU, and its drivers cost more memory than the whole program.
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
    QApplication application(argc, argv);
    application.setApplicationName(QStringLiteral("veldmark"));
    application.setApplicationVersion(QStringLiteral(VELDMARK_VERSION));
    application.setDesktopFileName(QStringLiteral("veldmark"));
    application.setQuitOnLastWindowClosed(false);
    becomeMenuBarProgram();
    application.setWindowIcon(QPixmap::fromImage(Symbols::image(QStringLiteral("veldmark"), 64, QColor(0x62, 0x36, 0xc9))));

    QTranslator translator;
    if (translator.load(QLocale(), QStringLiteral("veldmark"), QStringLiteral("_"), QStringLiteral(":/i18n")))
        application.installTranslator(&translator);

    QCommandLineParser parser;
    const QCommandLineOption hidden(QStringLiteral("hidden"),
                                    QCoreApplication::translate("main", "Start without a window, as at login."));
    const QCommandLineOption connectNow(QStringLiteral("connect"),
                                        QCoreApplication::translate("main", "Connect at once."));
    parser.addOptions({hidden, connectNow});
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(application);

    const PlatformProfile profile = PlatformProfile::current(Places::fromEnvironment());
    if (const auto other = InstanceClient::connectTo(profile)) {
        if (parser.isSet(hidden) && !parser.isSet(connectNow))
            return 0; // it is there already
        const QString command = parser.isSet(connectNow) ? QStringLiteral("connect") : QStringLiteral("raise");
        QTimer::singleShot(0, &application, [other, command] { tellOther(other, command); });
        return QApplication::exec();
    }

    const LastTurn lastTurn; // what still waits when the program ends goes after everything else
    const LastWords lastWords(profile);
    Application program(profile);
    if (const auto started = program.start(parser.isSet(hidden), parser.isSet(connectNow)); !started) {
        QTextStream(stderr) << "veldmark: " << started.error() << '\n';
        QString text = started.error();
        if (QFile::exists(profile.sessionMarker)) // what this start was perhaps meant to restore
            text += u'\n'
                + QCoreApplication::translate("main", "Your network is still set up for Tor. To restore it without "
                                                      "Veldmark, run:\n%1")
                      .arg(profile.manualRestoreCommand);
        QMessageBox::critical(nullptr, QStringLiteral("Veldmark"), text);
        return 1;
    }
    return QApplication::exec();
}
