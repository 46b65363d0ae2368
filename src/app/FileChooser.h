#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QObject>
#include <QStringList>

namespace veldmark {

// Asks for files, or for a file to write, with the desktop's own dialogue: through its portal where
// there is one, else with Qt's. One question at a time. A new question replaces an open one, whose
// answer is then ignored. Main thread.
class FileChooser : public QObject {
    Q_OBJECT

public:
    struct Question {
        QString title = {};
        QString folder = {}; // where the dialogue starts
        // For example "Applications" and "*.desktop". Empty: every file.
        QString filterName = {}, filterPattern = {};
        bool several = false;
        // For a file to write: the name that the dialogue proposes. The user has agreed when the
        // file that is chosen is there already.
        QString newName = {};
    };

    explicit FileChooser(const QDBusConnection &bus) : m_bus(bus) { }

    void ask(const Question &question);

Q_SIGNALS:
    void chosen(const QStringList &files); // absolute paths; not emitted when the user cancels

private Q_SLOTS:
    void onResponse(uint response, const QVariantMap &results, const QDBusMessage &message);

private:
    void onAnswer(const QDBusPendingCall &call);
    void askWithQt();
    void listen(const QString &request);
    void stopListening();

    QDBusConnection m_bus;
    Question m_question;
    QString m_request; // path of the portal's object for the open question
    quint64 m_asked = 0;
};

} // namespace veldmark
