#pragma once

#include "ui/Session.h"

#include <QAbstractListModel>
#include <QQmlEngine>

namespace veldmark {

// The findings of the examination of this computer: one a row, those that prevent a connect first.
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
        LevelRole,   // the finding's level as a word, for users who don't see the symbol
        CommandRole, // a command to type; may be empty
        ButtonRole,  // the text of the button that fixes it; empty: no button
    };

    // `session` must outlive the model.
    explicit DoctorModel(Session &session, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    bool busy() const { return m_session.now().isExamining; }
    QString verdict() const; // the result in one sentence

    Q_INVOKABLE void examine() { m_session.examine(); }
    // Presses the row's button. Ignores an unknown row and a row without a button.
    Q_INVOKABLE void press(int row);
    Q_INVOKABLE void copy(const QString &text) const;

Q_SIGNALS:
    void changed();

private:
    void update();

    Session &m_session;
    Findings m_findings; // the shown findings
};

} // namespace veldmark
