#include "identify/GroupName.h"

#include "support/TestProgram.h"

#include <QTest>

using namespace veldmark;

class GroupNameTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsTheApplication_data()
    {
        QTest::addColumn<QByteArray>("group");
        QTest::addColumn<QByteArray>("application");
        const auto row = [](const char *group, const char *application) {
            QTest::newRow(group) << QByteArray(group) << QByteArray(application);
        };
        row("app-gnome-firefox-12345.scope", "firefox");
        row("app-gnome-org.gnome.Epiphany-12345.scope", "org.gnome.Epiphany");
        row("app-gnome-google\\x2dchrome-77.scope", "google-chrome");
        row("app-flatpak-org.mozilla.firefox-4242.scope", "org.mozilla.firefox");
        row("app-org.kde.konsole-0123456789abcdef0123456789abcdef.scope", "org.kde.konsole");
        row("app-org.kde.konsole@0123456789abcdef.service", "org.kde.konsole");
        row("app-app\\x2dorg.kde.konsole.slice", "org.kde.konsole");
        row("app-dbus\\x2d:1.2\\x2dorg.gnome.Calculator.slice", "org.gnome.Calculator");
        row("dbus-:1.2-org.gnome.Calculator@0.service", "org.gnome.Calculator");
        row("app-org.gnome.Terminal.slice", "org.gnome.Terminal");
        row("app-Hyprland-foot-1a2b3c4d.scope", "foot");
        row("app-firefox.service", "firefox");
        row("app-decade.scope", "decade");
        row("app-gnome-decade-1.scope", "decade");
        row("snap.firefox.firefox-0f0f0f0f-1111-2222-3333-444444444444.scope",
            "snap.firefox.firefox");
        row("snap.firefox.firefox.0f0f0f0f-1111-2222-3333-444444444444.scope",
            "snap.firefox.firefox");
        row("app-veldmark-bank-99.scope", "as:bank");
        row("app-veldmark-my\\x2dbank-99.scope", "as:my-bank");
        row("gnome-terminal-server.service", "gnome-terminal-server");
        row("run-u12.scope", "run-u12");
        row("app.slice", "app");
        row("app-\\x0a-1.scope", "\\x0a");
        row("a b\xff.scope", "a\\x20b\\xff");
        row("app-\\x5cx41-1.scope", "\\x5cx41");
        row("app--1.scope", "app--1");
        row("app-veldmark-1234.mount", "");
        row(".scope", "");
        row("", "");
        row("no-unit", "");
    }

    void tellsTheApplication()
    {
        QFETCH(QByteArray, group);
        QFETCH(QByteArray, application);
        QCOMPARE(QByteArray::fromStdString(applicationOf(group.toStdString())), application);
    }

    void tellsLoginSessions()
    {
        QCOMPARE(loginSessionOf("session-2.scope"), std::string("session-2"));
        QCOMPARE(loginSessionOf("session-c1.scope"), std::string("session-c1"));
        for (const char *other : {"session-.scope", "session-2.service", "user@1000.service",
                                  "app-session-2.scope", ""})
            QCOMPARE(loginSessionOf(other), std::string());
    }
};

VELDMARK_TEST(GroupNameTest)
#include "GroupNameTest.moc"
