#pragma once

#include "ui/Session.h"

#include <QObject>
#include <QQmlEngine>

namespace veldmark {

// The report window: a text for others without secrets, which the user reads before copying or
// saving it. Nothing sends it.
class ReportModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(bool busy READ busy NOTIFY changed)
    Q_PROPERTY(QString note READ note NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed)

public:
    // `session` must outlive the model.
    explicit ReportModel(Session &session, QObject *parent = nullptr);

    QString text() const { return m_session.now().report; } // empty while it is being made
    bool busy() const { return m_session.now().isReporting; }
    QString note() const;    // where it was saved; empty unless it was
    QString problem() const; // why it was not; empty unless it failed

    // Opens a new window: makes a new report.
    Q_INVOKABLE void open() { m_session.makeReport(); }
    Q_INVOKABLE void copy() const;
    // Writes the shown report to a file that the user has chosen.
    void save(const QString &file) { m_session.saveReport(file); }

Q_SIGNALS:
    void changed();

private:
    Session &m_session;
};

} // namespace veldmark
