#include "app/FileChooser.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingReply>
#include <QFile>
#include <QFileDialog>
#include <QUrl>

// The portal's filter, (sa(us)): a name, and patterns. Patterns of kind 0 are shell wildcards.
struct PortalPattern {
    uint kind = 0;
    QString pattern;
};
struct PortalFilter {
    QString name;
    QList<PortalPattern> patterns;
};
Q_DECLARE_METATYPE(PortalPattern)
Q_DECLARE_METATYPE(PortalFilter)

static QDBusArgument &operator<<(QDBusArgument &argument, const PortalPattern &pattern)
{
    argument.beginStructure();
    argument << pattern.kind << pattern.pattern;
    argument.endStructure();
    return argument;
}
static const QDBusArgument &operator>>(const QDBusArgument &argument, PortalPattern &pattern)
{
    argument.beginStructure();
    argument >> pattern.kind >> pattern.pattern;
    argument.endStructure();
    return argument;
}
static QDBusArgument &operator<<(QDBusArgument &argument, const PortalFilter &filter)
{
    argument.beginStructure();
    argument << filter.name << filter.patterns;
    argument.endStructure();
    return argument;
}
static const QDBusArgument &operator>>(const QDBusArgument &argument, PortalFilter &filter)
{
    argument.beginStructure();
    argument >> filter.name >> filter.patterns;
    argument.endStructure();
    return argument;
}

namespace veldmark {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString object = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.FileChooser");
const QString requestInterface = QStringLiteral("org.freedesktop.portal.Request");

} // namespace

void FileChooser::ask(const Question &question)
{
    stopListening();
    m_question = question;
    ++m_asked;
    if (!m_bus.isConnected()) {
        askWithQt();
        return;
    }
    qDBusRegisterMetaType<PortalPattern>();
    qDBusRegisterMetaType<QList<PortalPattern>>();
    qDBusRegisterMetaType<PortalFilter>();
    qDBusRegisterMetaType<QList<PortalFilter>>();
    // The answer is a signal of an object whose path the caller chooses. Listening before the call
    // makes sure that no answer is missed.
    const QString token = QStringLiteral("veldmark%1").arg(m_asked);
    const QString sender = m_bus.baseService().mid(1).replace(u'.', u'_');
    listen(object + QStringLiteral("/request/%1/%2").arg(sender, token));

    QVariantMap options{
        {QStringLiteral("handle_token"), token},
        {QStringLiteral("multiple"), question.several},
        {QStringLiteral("current_folder"), QFile::encodeName(question.folder) + '\0'}};
    if (!question.filterPattern.isEmpty()) {
        const PortalFilter filter{question.filterName,
                                  QList<PortalPattern>{PortalPattern{0, question.filterPattern}}};
        const QList<PortalFilter> filters{filter};
        options.insert(QStringLiteral("filters"), QVariant::fromValue(filters));
    }
    const bool isNew = !question.newName.isEmpty();
    if (isNew)
        options.insert(QStringLiteral("current_name"), question.newName);
    QDBusMessage call = QDBusMessage::createMethodCall(service, object, interface,
                                                       isNew ? QStringLiteral("SaveFile")
                                                             : QStringLiteral("OpenFile"));
    call << QString() << question.title << options;
    auto *answer = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, this,
                     [this, asked = m_asked](QDBusPendingCallWatcher *done) {
                         done->deleteLater();
                         if (asked == m_asked)
                             onAnswer(*done);
                     });
}

void FileChooser::onAnswer(const QDBusPendingCall &call)
{
    const QDBusPendingReply<QDBusObjectPath> reply = call;
    if (reply.isError()) { // there is no portal, or it has no file dialogue
        stopListening();
        askWithQt();
    } else if (!m_request.isEmpty() && reply.value().path() != m_request) {
        listen(reply.value().path()); // older portals choose the path themselves
    }
}

void FileChooser::listen(const QString &request)
{
    stopListening();
    m_request = request;
    m_bus.connect(service, m_request, requestInterface, QStringLiteral("Response"), this,
                  SLOT(onResponse(uint, QVariantMap, QDBusMessage)));
}

void FileChooser::stopListening()
{
    if (!m_request.isEmpty())
        m_bus.disconnect(service, m_request, requestInterface, QStringLiteral("Response"), this,
                         SLOT(onResponse(uint, QVariantMap, QDBusMessage)));
    m_request.clear();
}

void FileChooser::onResponse(uint response, const QVariantMap &results, const QDBusMessage &message)
{
    if (message.path() != m_request)
        return; // the answer to an earlier question
    stopListening();
    QStringList files;
    for (const QString &uri : results.value(QStringLiteral("uris")).toStringList()) {
        if (const QUrl url(uri); url.isLocalFile())
            files << url.toLocalFile();
    }
    if (response == 0 && !files.isEmpty())
        Q_EMIT chosen(files);
}

void FileChooser::askWithQt()
{
    auto *dialog = new QFileDialog(nullptr, m_question.title, m_question.folder);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(m_question.several ? QFileDialog::ExistingFiles
                                           : QFileDialog::ExistingFile);
    if (!m_question.newName.isEmpty()) {
        dialog->setFileMode(QFileDialog::AnyFile);
        dialog->setAcceptMode(QFileDialog::AcceptSave);
        dialog->selectFile(m_question.newName);
    }
    if (!m_question.filterPattern.isEmpty())
        dialog->setNameFilter(
            QStringLiteral("%1 (%2)").arg(m_question.filterName, m_question.filterPattern));
    QObject::connect(dialog, &QFileDialog::filesSelected, this, &FileChooser::chosen);
    dialog->open();
}

} // namespace veldmark
