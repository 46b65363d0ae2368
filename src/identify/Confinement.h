#pragma once

namespace veldmark {

// From root to an account that owns nothing, with the right to change the firewall alone, also in
// programs that it starts; no other right can be had again. False when any of it fails.
[[nodiscard]] bool keepFirewallRightAlone();

} // namespace veldmark
