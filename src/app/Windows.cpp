#include "app/Windows.h"

#include "app/Activation.h"
#include "app/Taskbar.h"
#include "ui/Module.h"
#include "ui/Symbols.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QScreen>

#include <algorithm>

namespace veldmark {

namespace {

WindowPlaces::Height heightOf(const QString &name)
{
    return name == QLatin1String("main") ? WindowPlaces::Height::ownedByContent
                                         : WindowPlaces::Height::remembered;
}

} // namespace

Windows::Windows(Session &session, LogFeed &log, SettingsStore &settings)
    : m_session(session),
      m_panel(session),
      m_options(session),
      m_settings(session),
      m_circuits(session),
      m_log(log, session.profile()),
      m_choices(session),
      m_report(session),
      m_places(settings),
      m_torChooser(QDBusConnection::sessionBus()),
      m_entryChooser(QDBusConnection::sessionBus()),
      m_reportChooser(QDBusConnection::sessionBus())
{
    QObject::connect(&m_torChooser, &FileChooser::chosen, &m_settings,
                     [this](const QStringList &files) {
                         m_settings.chooseTor(QUrl::fromLocalFile(files.first()));
                     });
    QObject::connect(&m_entryChooser, &FileChooser::chosen, &m_session,
                     [this](const QStringList &files) {
                         for (const QString &file : files)
                             m_session.addBypassApp(file);
                     });
    QObject::connect(&m_reportChooser, &FileChooser::chosen, &m_report,
                     [this](const QStringList &files) { m_report.save(files.first()); });
}

Windows::~Windows()
{
    for (const auto &[name, window] : m_windows) {
        window->disconnect(this); // closing by the destructor is not the user's
        if (window->isVisible())
            keepPlace(name, window.get());
    }
}

std::unique_ptr<QQuickWindow> Windows::make(const QString &file, const QVariantMap &properties)
{
    if (!m_engine) {
        m_engine = std::make_unique<QQmlApplicationEngine>();
        prepareEngine(*m_engine);
    }
    QQmlComponent component(m_engine.get(), moduleFile(file));
    QObject *made = component.isReady() ? component.createWithInitialProperties(properties)
                                        : nullptr;
    auto *window = qobject_cast<QQuickWindow *>(made);
    if (!window) {
        delete made;
        Q_EMIT failed(component.errorString().trimmed());
    }
    return std::unique_ptr<QQuickWindow>(window);
}

bool Windows::ensure(const QString &name)
{
    if (m_windows.contains(name))
        return true;
    struct Recipe {
        QString file;
        QVariantMap properties;
    };
    const QVariantMap panel{{QStringLiteral("panelModel"), QVariant::fromValue(&m_panel)},
                            {QStringLiteral("optionsModel"), QVariant::fromValue(&m_options)}};
    const auto with = [](auto *model) {
        return QVariantMap{{QStringLiteral("model"), QVariant::fromValue(model)}};
    };
    const std::map<QString, Recipe> recipes{
        {QStringLiteral("main"), {QStringLiteral("main/MainWindow.qml"), panel}},
        {QStringLiteral("panel"), {QStringLiteral("main/PanelPopup.qml"), panel}},
        {QStringLiteral("circuits"),
         {QStringLiteral("circuits/CircuitsWindow.qml"), with(&m_circuits)}},
        {QStringLiteral("log"), {QStringLiteral("log/LogWindow.qml"), with(&m_log)}},
        {QStringLiteral("settings"),
         {QStringLiteral("settings/SettingsWindow.qml"), with(&m_settings)}},
        {QStringLiteral("chooser"),
         {QStringLiteral("chooser/ChooserWindow.qml"), with(&m_choices)}},
        {QStringLiteral("report"), {QStringLiteral("report/ReportWindow.qml"), with(&m_report)}},
    };
    const auto recipe = recipes.find(name);
    if (recipe == recipes.end())
        return false;
    auto window = make(recipe->second.file, recipe->second.properties);
    if (!window)
        return false;
    QQuickWindow *const shown = window.get();
    m_windows[name] = std::move(window);

    const bool hasPanel = name == QLatin1String("main") || name == QLatin1String("panel");
    if (hasPanel || name == QLatin1String("settings"))
        QObject::connect(shown, SIGNAL(windowWanted(QString)), this, SLOT(onWindowWanted(QString)));
    if (hasPanel)
        QObject::connect(shown, SIGNAL(chooserWanted()), this, SLOT(chooseApplications()));
    QObject::connect(shown, SIGNAL(quitWanted()), this, SIGNAL(quitWanted()));
    if (name == QLatin1String("settings"))
        QObject::connect(shown, SIGNAL(torChooserWanted()), this, SLOT(chooseTor()));
    if (name == QLatin1String("chooser"))
        QObject::connect(shown, SIGNAL(fileWanted()), this, SLOT(chooseEntries()));
    if (name == QLatin1String("report"))
        QObject::connect(shown, SIGNAL(saveWanted()), this, SLOT(chooseReportFile()));
    if (name != QLatin1String("panel")) // the panel's place is at the tray
        m_places.remember(name, shown, heightOf(name));
    QObject::connect(shown, &QWindow::visibleChanged, this, [this, name](bool visible) {
        if (!visible)
            onHidden(name);
    });
    return true;
}

void Windows::keepPlace(const QString &name, const QQuickWindow *window)
{
    if (name != QLatin1String("panel"))
        m_places.keep(name, window, heightOf(name));
}

void Windows::onHidden(const QString &name)
{
    keepPlace(name, m_windows[name].get()); // Qt emits this before the window loses its place
    if (name == QLatin1String("main"))
        Q_EMIT mainClosed();
    if (name == QLatin1String("main") || name == QLatin1String("panel"))
        return;
    // Queued: the window is still in its own signal.
    QMetaObject::invokeMethod(
        this,
        [this, name] {
            const auto at = m_windows.find(name);
            if (at != m_windows.end() && !at->second->isVisible())
                m_windows.erase(at);
        },
        Qt::QueuedConnection);
}

bool Windows::open(const QString &name)
{
    if (!ensure(name))
        return false;
    if (name == QLatin1String("main"))
        m_session.lookForTransports(); // its options show what the bridges need
    QQuickWindow *window = m_windows[name].get();
    window->show();
    window->raise();
    window->requestActivate();
    comeToFront();
    return true;
}

void Windows::togglePanel(const QRect &anchor)
{
    if (!ensure(QStringLiteral("panel")))
        return;
    QQuickWindow *panel = m_windows[QStringLiteral("panel")].get();
    if (panel->isVisible()) {
        panel->hide();
        return;
    }
    m_session.lookForTransports();
    const QScreen *screen = QGuiApplication::screenAt(anchor.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry();
    const int right = std::max(room.left(), room.right() - panel->width() - 8);
    const int bottom = std::max(room.top(), room.bottom() - panel->height() - 8);
    panel->setPosition(std::clamp(anchor.center().x() - panel->width() / 2, room.left(), right),
                       std::clamp(anchor.bottom() + 4, room.top(), bottom));
    leaveOutOfTaskbar(*panel); // each time, since hiding the window clears the request
    panel->show();
    panel->raise();
    panel->requestActivate();
    comeToFront();
}

QQuickWindow *Windows::find(const QString &name) const
{
    const auto at = m_windows.find(name);
    return at == m_windows.end() ? nullptr : at->second.get();
}

bool Windows::isAnyShown() const
{
    return std::any_of(m_windows.begin(), m_windows.end(),
                       [](const auto &entry) { return entry.second->isVisible(); });
}

void Windows::chooseTor()
{
    m_torChooser.ask(
        {.title = tr("Select the tor executable"), .folder = m_settings.torFolder().toLocalFile()});
}

void Windows::chooseApplications()
{
    if (m_session.profile().applicationSuffix == QLatin1String(".desktop"))
        open(QStringLiteral("chooser"));
    else
        chooseEntries();
}

void Windows::chooseEntries()
{
    const QString suffix = m_session.profile().applicationSuffix;
    m_entryChooser.ask({.title = tr("Choose apps that may skip Tor in strict mode"),
                        .folder = suffix == QLatin1String(".app")
                            ? QStringLiteral("/Applications")
                            : QStringLiteral("/usr/share/applications"),
                        .filterName = tr("Applications"),
                        .filterPattern = u'*' + suffix,
                        .several = true});
}

void Windows::chooseReportFile()
{
    m_reportChooser.ask({.title = tr("Save the report"),
                         .folder = m_session.profile().places.home,
                         .newName = QStringLiteral("veldmark-report.txt")});
}

} // namespace veldmark
