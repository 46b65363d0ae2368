#include "platform/RunningApplications.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QTemporaryDir>
#include <QTest>

using namespace veldmark;

namespace {

QString folder() // of the entries
{
    return QFile::decodeName(qgetenv("XDG_DATA_HOME")) + QStringLiteral("/applications");
}

void writeEntry(const QString &name, const QByteArray &lines)
{
    QFile file(folder() + u'/' + name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Desktop Entry]\nType=Application\n" + lines);
}

} // namespace

class InstalledApplicationsTest : public QObject {
    Q_OBJECT

    QHash<QString, InstalledApplication> found; // by file name

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QDir().mkpath(folder()));
        writeEntry(QStringLiteral("game.desktop"), "Name=A Game\nExec=/bin/true\nIcon=game-icon\n");
        writeEntry(QStringLiteral("picture.desktop"), "Name=Pictures\nExec=/bin/true %F\nIcon=/opt/pictures/logo.png\n");
        writeEntry(QStringLiteral("plain.desktop"), "Name=Plain\nExec=/bin/true\n");
        writeEntry(QStringLiteral("hidden.desktop"), "Name=Hidden\nExec=/bin/true\nNoDisplay=true\n");
        writeEntry(QStringLiteral("gone.desktop"), "Name=Gone\nExec=/no/such/program\nTryExec=/no/such/program\n");
        writeEntry(QStringLiteral("broken.desktop"), "Name\n");
        const auto applications = runningApplications();
        for (const InstalledApplication &application : applications->installed())
            found.insert(application.path.section(u'/', -1), application);
    }

    void areThoseThatAMenuWouldShow()
    {
        QStringList names = found.keys();
        names.sort();
        QCOMPARE(names, QStringList({QStringLiteral("game.desktop"), QStringLiteral("picture.desktop"),
                                     QStringLiteral("plain.desktop")}));
    }

    void haveNamePathAndIcon()
    {
        const InstalledApplication game = found.value(QStringLiteral("game.desktop"));
        QCOMPARE(game.name, QStringLiteral("A Game"));
        QCOMPARE(game.path, folder() + QStringLiteral("/game.desktop"));
        QCOMPARE(game.icon, QStringLiteral("game-icon"));
        QCOMPARE(found.value(QStringLiteral("picture.desktop")).icon, QStringLiteral("/opt/pictures/logo.png"));
        QVERIFY(found.value(QStringLiteral("plain.desktop")).icon.isEmpty());
    }
};

// GIO reads where the entries are when it is first used.
int main(int argc, char **argv)
{
    const QTemporaryDir data;
    qputenv("XDG_DATA_HOME", QFile::encodeName(data.path()));
    qputenv("XDG_DATA_DIRS", QFile::encodeName(data.path() + QStringLiteral("/none")));
    qputenv("LC_ALL", "C");
    QCoreApplication application(argc, argv);
    InstalledApplicationsTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "InstalledApplicationsTest.moc"
