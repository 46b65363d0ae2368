// The settings file: the store starts with any content. An intact file is valid for QSettings, too,
// and loses nothing when a value is changed. A damaged file is kept as a whole under another name.
#include "fuzz/Require.h"

#include "system/SettingsFile.h"
#include "system/SettingsStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

using namespace veldmark;

namespace {

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    REQUIRE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    static const QTemporaryDir folder(QDir::tempPath() + QStringLiteral("/veldmark-fuzz-XXXXXX"));
    static PlatformProfile profile = PlatformProfile::linux(Places::below(folder.path()));
    // Each input gets its own name: QSettings takes two files of the same name, size and time for
    // the same, and inputs come in quick succession.
    static quint64 number = 0;
    const QString path = folder.filePath(QString::number(++number));
    const QString aside = path + QStringLiteral(".broken");
    profile.settingsFile = path;
    write(path, bytes);

    const SettingsFileState state = settingsFileState(path);
    REQUIRE(settingsFileState(path) == state);
    const bool isIntact = state == SettingsFileState::Intact;
    const QVariantMap before = isIntact ? readSettingsFile(path) : QVariantMap();
    SettingsStore store(profile);
    REQUIRE(store.problem().has_value() != isIntact);
    if (!isIntact)
        REQUIRE(contentOf(aside) == bytes);
    store.string(QStringLiteral("exitCountry"));
    store.boolean(QStringLiteral("strictMode"));
    store.stringList(QStringLiteral("bypassApps"));

    const QString key = QStringLiteral("fuzzedKey");
    store.setString(key, QStringLiteral("value"));
    REQUIRE(!store.problem());
    QVariantMap after = readSettingsFile(path);
    REQUIRE(after.value(key).toString() == u"value");
    after.remove(key);
    QVariantMap expected = before;
    expected.remove(key);
    REQUIRE(after.keys() == expected.keys());
    for (auto value = expected.begin(); value != expected.end(); ++value)
        REQUIRE(after.value(value.key()).toStringList() == value.value().toStringList());
    QFile::remove(path);
    QFile::remove(aside);
    return 0;
}
