#include "system/HelperError.h"

namespace veldmark {

HelperError::HelperError(Kind kind, Text description)
    : m_kind(kind),
      m_description(std::move(description))
{
}

HelperError HelperError::failed(Text message)
{
    return {Kind::Failed, std::move(message)};
}

HelperError HelperError::unapproved(Text message)
{
    return {Kind::Unapproved, std::move(message)};
}

HelperError HelperError::unapprovedProgram(Text message)
{
    return {Kind::UnapprovedProgram, std::move(message)};
}

HelperError HelperError::missingHelper()
{
    return {Kind::MissingHelper, Text::tr("The helper is missing. Reinstall Veldmark.")};
}

HelperError HelperError::cancelled()
{
    return {Kind::Cancelled, Text::tr("Cancelled.")};
}

HelperError HelperError::notStarted(const StartError &error)
{
    return {Kind::NotStarted, error.description()};
}

} // namespace veldmark
