#include "system/HelperError.h"

namespace veldmark {

HelperError::HelperError(Kind kind, QString description)
    : m_kind(kind), m_description(std::move(description))
{
}

HelperError HelperError::failed(QString message)
{
    return {Kind::Failed, std::move(message)};
}

HelperError HelperError::unapproved(QString message)
{
    return {Kind::Unapproved, std::move(message)};
}

HelperError HelperError::missingHelper()
{
    return {Kind::MissingHelper,
            QStringLiteral("The helper script is missing from the app bundle. Rebuild the app with "
                           "build.sh.")};
}

HelperError HelperError::cancelled()
{
    return {Kind::Cancelled, QStringLiteral("Cancelled.")};
}

HelperError HelperError::notStarted(const StartError &error)
{
    return {Kind::NotStarted, error.description()};
}

} // namespace veldmark
