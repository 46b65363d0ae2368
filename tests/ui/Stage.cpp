#include "Stage.h"

#include "ui/ColorScheme.h"
#include "ui/Module.h"

#include <QCoreApplication>
#include <QDir>
#include <QQmlAbstractUrlInterceptor>
#include <QQmlComponent>

namespace veldmark {

namespace {

PlatformProfile profileBelow(const QString &folder)
{
    PlatformProfile profile = PlatformProfile::linux(Places::below(folder));
    profile.torInstallHint = QStringLiteral("sudo apt install tor tor-geoipdb");
    profile.runDirectory = QStringLiteral("/var/lib/veldmark/run");
    profile.manualRestoreCommand = QStringLiteral(
        "sudo bash /usr/share/veldmark/veldmark-helper.sh disconnect");
    return profile;
}

// Loads the module's files from the source tree instead of the program, to draw a change without
// compiling: VELDMARK_QML=src/ui veldmark-pictures FOLDER.
class SourceTree final : public QQmlAbstractUrlInterceptor {
public:
    explicit SourceTree(const QString &folder) : m_folder(QDir(folder).absolutePath()) { }
    QUrl intercept(const QUrl &url, DataType type) override
    {
        const QString inside = QStringLiteral("qrc:/qt/qml/Veldmark/qml/");
        const QString wanted = url.toString();
        return type == QmlFile && wanted.startsWith(inside)
            ? QUrl::fromLocalFile(m_folder + QStringLiteral("/qml/") + wanted.mid(inside.size()))
            : url;
    }

private:
    QString m_folder;
};

} // namespace

Stage::Stage()
    : profile(profileBelow(folder.path())),
      session(profile),
      panel(session),
      options(session),
      settings(session),
      circuits(session),
      lines(log, profile),
      choices(session),
      report(session)
{
    prepareEngine(engine);
    if (const QString sources = qEnvironmentVariable("VELDMARK_QML"); !sources.isEmpty()) {
        static SourceTree tree(sources);
        engine.addUrlInterceptor(&tree);
    }
    QObject::connect(&engine, &QQmlEngine::warnings, &engine,
                     [this](const QList<QQmlError> &errors) {
                         for (const QQmlError &error : errors)
                             m_warnings << error.toString();
                     });
    setDark(false);
}

void Stage::setDark(bool dark, bool flags)
{
    auto *scheme = engine.singletonInstance<ColorScheme *>(
        qmlTypeId("Veldmark", 1, 0, "ColorScheme"));
    scheme->setFlagsDrawn(flags);
    scheme->force(dark, true);
}

QQuickWindow *Stage::open(const QString &file, QVariantMap properties)
{
    m_window.reset();
    QQmlComponent component(&engine, moduleFile(file));
    QObject *made = component.isReady() ? component.createWithInitialProperties(properties)
                                        : nullptr;
    for (const QQmlError &error : component.errors())
        m_warnings << error.toString();
    show(qobject_cast<QQuickWindow *>(made));
    return m_window.get();
}

bool Stage::show(QQuickWindow *window)
{
    m_window.reset(window);
    if (m_window)
        m_window->show();
    return m_window != nullptr;
}

QImage Stage::picture()
{
    // Layouts polish more than once; a grab polishes and draws.
    for (int pass = 0; pass < 3; ++pass) {
        QCoreApplication::processEvents();
        m_window->grabWindow();
    }
    return m_window->grabWindow();
}

} // namespace veldmark
