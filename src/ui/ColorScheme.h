#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QQmlEngine>
#include <QVariant>

#include <optional>

namespace veldmark {

// What the system prefers: dark or light, motion or less of it; and the direction of the user's
// language. Comes from the desktop portal where one answers, else from the palette; follows changes
// of both. One per QML engine.
class ColorScheme : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY changed)
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY changed)
    Q_PROPERTY(bool mirrored READ mirrored NOTIFY changed)
    Q_PROPERTY(bool flagsDrawn READ flagsDrawn CONSTANT)

public:
    explicit ColorScheme(QObject *parent = nullptr);

    bool dark() const { return m_dark; }
    bool reducedMotion() const { return m_reducedMotion; }
    // Windows are laid out from the right.
    static bool mirrored();
    // Whether the fonts here have pictures for the flags of countries. Looked up when first asked:
    // it loads a large font, which the first window should not wait for.
    bool flagsDrawn() const;
    // Overrides what the system says, from now on.
    void force(bool dark, bool reducedMotion);
    void setFlagsDrawn(bool drawn) { m_flagsDrawn = drawn; }

    // The flag of a country of two letters, as text.
    Q_INVOKABLE static QString flag(const QString &country);

Q_SIGNALS:
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void askPortal(const QString &group, const QString &key);
    void take(const QString &key, const QVariant &value);
    void readPalette();

private Q_SLOTS:
    void onSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    bool m_dark = false;
    bool m_reducedMotion = false;
    mutable std::optional<bool> m_flagsDrawn; // absent until asked
    bool m_forced = false;
    bool m_portalDecides = false;
};

} // namespace veldmark
