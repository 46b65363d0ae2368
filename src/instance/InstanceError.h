#pragma once

#include <QString>

#include <utility>

namespace veldmark {

// Why the running instance did not do what it was asked.
class InstanceError {
public:
    explicit InstanceError(QString description, bool isUsage = false)
        : m_description(std::move(description)), m_isUsage(isUsage)
    {
    }

    QString description() const { return m_description; } // one line
    // The request itself was wrong (a setting or a value that does not exist): asking again is no use.
    bool isUsage() const { return m_isUsage; }

private:
    QString m_description;
    bool m_isUsage;
};

} // namespace veldmark
