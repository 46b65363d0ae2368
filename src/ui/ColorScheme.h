#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QQmlEngine>
#include <QVariant>

#include <optional>

namespace veldmark {

// The system's preferences: dark or light, full or reduced motion; and the direction of the user's
// language. Read from the desktop portal where there is one, else from the palette. Follows changes
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
    // Whether windows are laid out from right to left.
    static bool mirrored();
    // Whether the fonts have pictures of the countries' flags. Found on the first call, which loads
    // a large font; the first window must not wait for that.
    bool flagsDrawn() const;
    // Overrides the system's preferences from now on.
    void force(bool dark, bool reducedMotion);
    void setFlagsDrawn(bool drawn) { m_flagsDrawn = drawn; }

    // The flag of a country with a two-letter code, as text.
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
    mutable std::optional<bool> m_flagsDrawn; // absent before the first call
    bool m_forced = false;
    bool m_portalDecides = false;
};

} // namespace veldmark
