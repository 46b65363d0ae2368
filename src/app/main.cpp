#include "app/Application.h"

#include "instance/InstanceClient.h"
#include "ui/Symbols.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>
#include <QMessageBox>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

using namespace veldmark;

namespace {

QCoro::Task<void> raiseOther(std::shared_ptr<InstanceClient> client)
{
    const QJsonObject request{{QStringLiteral("command"), QStringLiteral("raise")}};
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
    application.setWindowIcon(QPixmap::fromImage(Symbols::image(QStringLiteral("veldmark"), 64, QColor(0x62, 0x36, 0xc9))));

    QTranslator translator;
    if (translator.load(QLocale(), QStringLiteral("veldmark"), QStringLiteral("_"), QStringLiteral(":/i18n")))
        application.installTranslator(&translator);

    QCommandLineParser parser;
    const QCommandLineOption hidden(QStringLiteral("hidden"),
                                    QCoreApplication::translate("main", "Start without a window, as at login."));
    parser.addOption(hidden);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.process(application);

    const PlatformProfile profile = PlatformProfile::current(Places::fromEnvironment());
    if (const auto other = InstanceClient::connectTo(profile)) {
        if (parser.isSet(hidden))
            return 0; // it is there already
        QTimer::singleShot(0, &application, [other] { raiseOther(other); });
        return QApplication::exec();
    }

    Application program(profile);
    if (const auto started = program.start(parser.isSet(hidden)); !started) {
        QTextStream(stderr) << "veldmark: " << started.error() << '\n';
        QMessageBox::critical(nullptr, QStringLiteral("Veldmark"), started.error());
        return 1;
    }
    return QApplication::exec();
}
