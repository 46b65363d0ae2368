#pragma once

#include "ui/Session.h"

#include <QAbstractListModel>
#include <QQmlEngine>
#include <QQuickImageProvider>

namespace veldmark {

// The installed applications, from which the user chooses those that may bypass Tor. One
// application a row, by name, filtered by the search.
class ApplicationChoices : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY changed)
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY changed)

public:
    enum Role {
        NameRole = Qt::UserRole + 1,
        PictureRole, // URL of the application's picture, as text; empty without one
        ChosenRole   // bool: the application may bypass Tor
    };

    // `session` must outlive the model.
    explicit ApplicationChoices(Session &session, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    QString search() const { return m_search; }
    void setSearch(const QString &text);
    QString emptyText() const; // why there are no rows

    // Reads the installed applications again.
    Q_INVOKABLE void refresh();
    // Chooses the row's application, or removes it from the chosen ones. Ignores an unknown row.
    Q_INVOKABLE void toggle(int row);

Q_SIGNALS:
    void changed();

private:
    void update();

    Session &m_session;
    QString m_search;
    std::vector<InstalledApplication> m_all; // by name
    std::vector<std::size_t> m_shown;        // indexes into m_all
};

// Pictures of applications: "image://application/" followed by the icon's name or file,
// percent-encoded.
class ApplicationIcons final : public QQuickImageProvider {
public:
    ApplicationIcons() : QQuickImageProvider(Image) { }
    // The URL of an icon's name or file; empty for none.
    static QString url(const QString &icon);
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

} // namespace veldmark
