#include "app/Windows.h"

#include "app/Activation.h"
#include "ui/Module.h"
#include "ui/Symbols.h"

#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QScreen>

#include <algorithm>

namespace veldmark {

Windows::Windows(Session &session, LogFeed &log)
    : m_session(session)
    , m_panel(session)
    , m_options(session)
    , m_settings(session)
    , m_circuits(session)
    , m_log(log, session.profile())
{
    prepareEngine(m_engine);
}

std::unique_ptr<QQuickWindow> Windows::make(const QString &file, const QVariantMap &properties)
{
    QQmlComponent component(&m_engine, moduleFile(file));
    QObject *made = component.isReady() ? component.createWithInitialProperties(properties) : nullptr;
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
        {QStringLiteral("circuits"), {QStringLiteral("circuits/CircuitsWindow.qml"), with(&m_circuits)}},
        {QStringLiteral("log"), {QStringLiteral("log/LogWindow.qml"), with(&m_log)}},
        {QStringLiteral("settings"), {QStringLiteral("settings/SettingsWindow.qml"), with(&m_settings)}},
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
    if (hasPanel) {
        QObject::connect(shown, SIGNAL(windowWanted(QString)), this, SLOT(onWindowWanted(QString)));
        QObject::connect(shown, SIGNAL(chooserWanted()), this, SLOT(chooseApplications()));
        QObject::connect(shown, SIGNAL(quitWanted()), this, SIGNAL(quitWanted()));
    }
    if (name == QLatin1String("settings"))
        QObject::connect(shown, SIGNAL(torChooserWanted()), this, SLOT(chooseTor()));
    QObject::connect(shown, &QWindow::visibleChanged, this, [this, name, hasPanel](bool visible) {
        if (visible)
            return;
        if (name == QLatin1String("main"))
            Q_EMIT mainClosed();
        if (!hasPanel) // queued: the window is still in its own signal
            QMetaObject::invokeMethod(this, [this, name] {
                const auto at = m_windows.find(name);
                if (at != m_windows.end() && !at->second->isVisible())
                    m_windows.erase(at);
            }, Qt::QueuedConnection);
    });
    return true;
}

bool Windows::open(const QString &name)
{
    if (!ensure(name))
        return false;
    if (name == QLatin1String("circuits"))
        m_session.refreshCircuits();
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
    const QScreen *screen = QGuiApplication::screenAt(anchor.center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry();
    const int right = std::max(room.left(), room.right() - panel->width() - 8);
    const int bottom = std::max(room.top(), room.bottom() - panel->height() - 8);
    panel->setPosition(std::clamp(anchor.center().x() - panel->width() / 2, room.left(), right),
                       std::clamp(anchor.bottom() + 4, room.top(), bottom));
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

void Windows::chooseTor()
{
    auto *dialog = new QFileDialog(nullptr, tr("Select the tor executable"), m_settings.torFolder().toLocalFile());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    QObject::connect(dialog, &QFileDialog::fileSelected, &m_settings,
                     [this](const QString &file) { m_settings.chooseTor(QUrl::fromLocalFile(file)); });
    dialog->open();
}

void Windows::chooseApplications()
{
    const bool mac = m_session.profile().name == QLatin1String("macos");
    auto *dialog = new QFileDialog(nullptr, tr("Choose apps that may skip Tor in strict mode"),
                                   mac ? QStringLiteral("/Applications")
                                       : QStringLiteral("/usr/share/applications"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    if (!mac)
        dialog->setNameFilter(tr("Applications (*.desktop)"));
    QObject::connect(dialog, &QFileDialog::filesSelected, &m_options, [this](const QStringList &files) {
        for (const QString &file : files)
            m_options.addApplication(file);
    });
    dialog->open();
}

} // namespace veldmark
