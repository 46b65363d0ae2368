#pragma once

namespace veldmark {

// Changes from root to an account that owns nothing. The process and its child programs keep only
// the right to change the firewall, and can't regain any other. False when a step fails.
[[nodiscard]] bool keepFirewallRightAlone();

} // namespace veldmark
