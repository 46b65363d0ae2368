#pragma once

#include "ui/Session.h"

#include <QAbstractListModel>
#include <QQmlEngine>

namespace veldmark {

// What was found when this computer was looked at: one finding a row, what keeps a connect from
// working first.
class DoctorModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

    Q_PROPERTY(bool busy READ busy NOTIFY changed)
    Q_PROPERTY(QString verdict READ verdict NOTIFY changed)

public:
    enum Role {
        TextRole = Qt::UserRole + 1,
        ToneRole, // PanelModel::Tone, as a number
        SymbolRole,
        LevelRole,   // the finding's level in a word, for those who don't see the symbol
        CommandRole, // what to type; empty: nothing
        ButtonRole,  // the text of a button that mends it; empty: there is none
    };

    // `session` must outlive the model.
    explicit DoctorModel(Session &session, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    bool busy() const { return m_session.now().isExamining; }
    QString verdict() const; // in one sentence

    Q_INVOKABLE void examine() { m_session.examine(); }
    // Presses the row's button. Nothing for a row that there is not, or has none.
    Q_INVOKABLE void press(int row);
    Q_INVOKABLE void copy(const QString &text) const;

Q_SIGNALS:
    void changed();

private:
    void update();

    Session &m_session;
    Findings m_findings; // as shown
};

} // namespace veldmark
