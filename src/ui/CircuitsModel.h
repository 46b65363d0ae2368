#pragma once

#include "circuits/CircuitGraph.h"
#include "ui/Session.h"

#include <QAbstractListModel>
#include <QColor>
#include <QQmlEngine>
#include <QTimer>

namespace veldmark {

// The list of circuits, the followed one, and its path as steps. One row a circuit, in the
// session's order, which is also the order of the palette. While the list is seen, the circuits are
// read again every few seconds. Rows are inserted, removed and moved one by one.
class CircuitsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed)
    Q_PROPERTY(bool connected READ connected NOTIFY changed)
    Q_PROPERTY(bool optimizing READ optimizing NOTIFY changed)
    Q_PROPERTY(QString optimizeText READ optimizeText NOTIFY changed)
    Q_PROPERTY(QString error READ error NOTIFY changed)
    Q_PROPERTY(bool empty READ empty NOTIFY changed)
    Q_PROPERTY(QString followed READ followed WRITE follow NOTIFY changed)
    Q_PROPERTY(int followedRow READ followedRow NOTIFY changed)
    Q_PROPERTY(QVariantList steps READ steps NOTIFY changed)
    Q_PROPERTY(QString purpose READ purpose NOTIFY changed)
    Q_PROPERTY(bool seen READ seen WRITE setSeen NOTIFY changed)

public:
    enum Role {
        IdRole = Qt::UserRole + 1, // Tor's number of the circuit, as text
        TitleRole,                 // "Circuit 12"
        DetailRole,  // the countries or nicknames of its relays, the round-trip time, applications
        ColorRole,   // QColor
        FollowedRole // bool
    };

    // `session` must outlive the model.
    explicit CircuitsModel(Session &session, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    QString subtitle() const;
    bool connected() const { return m_session.now().phase == ConnectionPhase::connected; }
    bool optimizing() const { return m_session.now().isOptimizing; }
    QString optimizeText() const;
    QString error() const;
    bool empty() const { return circuits().empty(); }
    QString purpose() const;

    // The followed circuit's number; empty when no circuit is followed, or when the circuit or its
    // session has ended.
    QString followed() const;
    Q_INVOKABLE void follow(const QString &id);
    int followedRow() const; // -1: none
    // The path of the followed circuit, each step a map: symbol, country, role, title, detail,
    // tint, last, picture. Empty when no circuit is followed. The sites of each application are a
    // step of their own, with its picture's URL (empty without one).
    QVariantList steps() const;

    const std::vector<CircuitInfo> &circuits() const { return m_session.now().circuits; }
    QString computer() const;

    Q_INVOKABLE void newIdentity() { m_session.newIdentity(); }
    Q_INVOKABLE void optimizeCircuits() { m_session.optimizeCircuits(); }
    Q_INVOKABLE void newCircuit() { m_session.newCircuit(followed()); }
    void refresh();

    bool seen() const { return m_seen; }
    void setSeen(bool seen); // whether the user can see the list

    // "Asked for by Firefox" for these applications' ids; empty for none.
    QString askedBy(const QStringList &applications) const;

    static QColor paletteColor(std::size_t index);
    // "DE · 192.0.2.7"; "Unknown" for an unknown part.
    static QString placeOf(const RelayInfo &relay);

Q_SIGNALS:
    void changed();

private:
    void update();
    void showRows();
    const InstalledApplication &application(const QString &id) const;
    void addSites(QVariantList &path, const CircuitInfo &circuit, const QColor &tint) const;
    const CircuitInfo *followedCircuit() const;

    Session &m_session;
    std::vector<CircuitInfo> m_shown; // the circuits of the present rows
    QString m_followed;
    QTimer m_ticks{this};
    // by identity; read again when the list is shown
    mutable QHash<QString, InstalledApplication> m_applications;
    bool m_seen = false;
    bool m_wasConnected = false;
    bool m_wasOptimizing = false;
};

} // namespace veldmark
