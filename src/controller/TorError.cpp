#include "controller/TorError.h"

namespace veldmark {

TorError TorError::bootstrapTimeout(const std::optional<Text> &lastError)
{
    return TorError(
        lastError ? Text::tr("Tor didn't finish connecting within 5 minutes. (%1)").arg(*lastError)
                  : Text::tr("Tor didn't finish connecting within 5 minutes."));
}

} // namespace veldmark
