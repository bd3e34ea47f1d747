#pragma once

namespace steward {

// A widget with this property set to true types its own keys: the keyboard's macros and the
// command line stand aside while it has the focus.
constexpr char OWN_KEYS_PROPERTY[] = "stewardOwnKeys";

} // namespace steward
