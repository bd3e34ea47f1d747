#pragma once

namespace steward {

// Trace lines are for developers: they go to standard error, and only while switched on.
void SetTraceEnabled(bool on);
void Trace(const char* format, ...) __attribute__((format(printf, 1, 2)));

} // namespace steward
