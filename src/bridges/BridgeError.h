#pragma once

#include <QString>

namespace veldmark {

// Why the chosen bridges cannot be used. There is one kind, `unavailable`; its text is the whole
// sentence that the user reads and is shown as it stands.
class BridgeError {
public:
    static BridgeError unavailable(QString text) { return BridgeError(std::move(text)); }

    QString description() const { return m_text; }

    friend bool operator==(const BridgeError &, const BridgeError &) = default;

private:
    explicit BridgeError(QString text) : m_text(std::move(text)) {}
    QString m_text;
};

} // namespace veldmark
