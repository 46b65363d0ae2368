#include "base/Text.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>

namespace veldmark {

namespace {

const QString sourceKey = QStringLiteral("text");
const QString commentKey = QStringLiteral("comment");
const QString countKey = QStringLiteral("count");
const QString argumentsKey = QStringLiteral("with");
const QString separatorKey = QStringLiteral("between");
const QString partsKey = QStringLiteral("parts");

// `form` with each %1…%9 replaced by its word.
QString filled(const QString &form, const QStringList &words)
{
    QString text;
    for (qsizetype i = 0; i < form.size(); ++i) {
        const int number = form[i] == u'%' && i + 1 < form.size() ? form[i + 1].digitValue() : -1;
        if (number < 1 || number > words.size()) {
            text += form[i];
            continue;
        }
        text += words[number - 1];
        ++i;
    }
    return text;
}

QString translation(const QString &source, const QString &comment, int count)
{
    const QByteArray disambiguation = comment.toUtf8();
    return QCoreApplication::translate("veldmark::Text", source.toUtf8().constData(),
                                       comment.isEmpty() ? nullptr : disambiguation.constData(),
                                       count);
}

} // namespace

Text Text::tr(const char *source, const char *comment, int count)
{
    Text text(QString::fromUtf8(source));
    text.m_kind = Kind::sentence;
    text.m_comment = QString::fromUtf8(comment);
    text.m_count = count;
    return text;
}

Text Text::joined(std::vector<Text> texts, const QString &separator)
{
    Text text(separator);
    text.m_kind = Kind::joined;
    text.m_parts = std::move(texts);
    return text;
}

QString Text::rendered(bool isTranslated) const
{
    if (m_kind == Kind::words)
        return m_source;
    QStringList parts;
    for (const Text &part : m_parts)
        parts << part.rendered(isTranslated);
    if (m_kind == Kind::joined)
        return parts.join(m_source);
    QString form = isTranslated ? translation(m_source, m_comment, m_count) : m_source;
    if (m_count >= 0)
        form.replace(QStringLiteral("%n"), QString::number(m_count));
    return filled(form, parts);
}

QJsonValue Text::toJson() const
{
    if (m_kind == Kind::words)
        return m_source;
    QJsonArray parts;
    for (const Text &part : m_parts)
        parts.append(part.toJson());
    if (m_kind == Kind::joined)
        return QJsonObject{{separatorKey, m_source}, {partsKey, parts}};
    QJsonObject object{{sourceKey, m_source}};
    if (!m_comment.isEmpty())
        object.insert(commentKey, m_comment);
    if (m_count >= 0)
        object.insert(countKey, m_count);
    if (!parts.isEmpty())
        object.insert(argumentsKey, parts);
    return object;
}

Text Text::fromJson(const QJsonValue &value)
{
    const QJsonObject object = value.toObject();
    const bool isSentence = object.contains(sourceKey);
    if (!isSentence && !object.contains(partsKey))
        return Text(value.toString());
    Text text(object.value(isSentence ? sourceKey : separatorKey).toString());
    text.m_kind = isSentence ? Kind::sentence : Kind::joined;
    text.m_comment = object.value(commentKey).toString();
    text.m_count = object.value(countKey).toInt(-1);
    for (const QJsonValue &part : object.value(isSentence ? argumentsKey : partsKey).toArray())
        text.m_parts.push_back(fromJson(part));
    return text;
}

} // namespace veldmark
