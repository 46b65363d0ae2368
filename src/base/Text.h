#pragma once

#include <QJsonValue>
#include <QString>

#include <type_traits>
#include <vector>

namespace veldmark {

// What a user reads, from where it is known to where it is shown: a sentence of ours with its
// arguments, or words that are nobody's to translate (Tor's, the system's, a file's name). A
// QString becomes such words by itself; a sentence of ours is made by tr():
//
//     Text::tr("Couldn't open %1 without Tor: %2").arg(name, error.description())
//
// lupdate finds it there and lists it in the context "veldmark::Text". A plain value; any thread.
class Text {
public:
    Text() = default;
    Text(const QString &words) : m_source(words) { }

    // As QObject::tr(): `source` is a literal with %1…%9 for arg(); with a `count` it has %n, and
    // languages have forms for it.
    static Text tr(const char *source, const char *comment = nullptr, int count = -1);
    // Several texts in one line.
    static Text joined(std::vector<Text> texts, const QString &separator = QStringLiteral(" "));

    // Fills the next place holders; numbers, words and texts. An argument is taken as it stands,
    // also with a % in it.
    template <typename... Arguments> Text arg(const Arguments &...arguments) const
    {
        Text filled(*this);
        (filled.m_parts.push_back(argument(arguments)), ...);
        return filled;
    }

    QString english() const { return rendered(false); }
    // In the language of the installed translator; English without one.
    QString translated() const { return rendered(true); }
    // Nothing of it is ours to translate.
    bool isWords() const { return m_kind == Kind::words; }
    bool isEmpty() const { return m_kind == Kind::words && m_source.isEmpty(); }

    // For another process, which may have another language: words are a string, all else an object.
    QJsonValue toJson() const;
    static Text fromJson(const QJsonValue &value);

    // Who reads English cannot tell them apart.
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
    QString m_source;  // the words, the sentence, or what stands between the parts
    QString m_comment; // what tells it from the same sentence elsewhere
    int m_count = -1;
    std::vector<Text> m_parts;
};

} // namespace veldmark
