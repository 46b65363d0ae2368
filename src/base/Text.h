#pragma once

#include <QJsonValue>
#include <QString>

#include <type_traits>
#include <vector>

namespace veldmark {

// A text for the user, translated only where it is shown: a translatable sentence with its
// arguments, or words that are not translated (from Tor or the system, or a file name). A QString
// converts to such words; tr() makes a sentence:
//
//     Text::tr("Couldn't open %1 without Tor: %2").arg(name, error.description())
//
// lupdate finds it and lists it in the context "veldmark::Text". A plain value; any thread.
class Text {
public:
    Text() = default;
    Text(const QString &words) : m_source(words) { }

    // Like QObject::tr(): `source` is a literal with %1…%9 for arg(). With a `count` it has %n, and
    // translations have plural forms.
    static Text tr(const char *source, const char *comment = nullptr, int count = -1);
    // Several texts in one line.
    static Text joined(std::vector<Text> texts, const QString &separator = QStringLiteral(" "));

    // Fills the next place holders with numbers, words or texts. A % in an argument has no meaning.
    template <typename... Arguments> Text arg(const Arguments &...arguments) const
    {
        Text filled(*this);
        (filled.m_parts.push_back(argument(arguments)), ...);
        return filled;
    }

    QString english() const { return rendered(false); }
    // In the language of the installed translator; English without one.
    QString translated() const { return rendered(true); }
    // No part of it is translated.
    bool isWords() const { return m_kind == Kind::words; }
    bool isEmpty() const { return m_kind == Kind::words && m_source.isEmpty(); }

    // For another process, which may use another language. Words become a string, all else an
    // object.
    QJsonValue toJson() const;
    static Text fromJson(const QJsonValue &value);

    // Equal when the English texts are equal.
    friend bool operator==(const Text &a, const Text &b) { return a.english() == b.english(); }

private:
    enum class Kind { words, sentence, joined };

    template <typename T> static Text argument(const T &value)
    {
        if constexpr (std::is_integral_v<T>)
            return Text(QString::number(value));
        else
            return Text(value);
    }
    QString rendered(bool isTranslated) const;

    Kind m_kind = Kind::words;
    QString m_source;  // the words, the sentence, or the separator
    QString m_comment; // tells it from the same sentence with another meaning
    int m_count = -1;
    std::vector<Text> m_parts;
};

} // namespace veldmark
