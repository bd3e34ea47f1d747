#include "session/Trace.h"

#include <cstdarg>
#include <cstdio>

namespace steward {

namespace {

bool traceOn = false;

} // namespace

void SetTraceEnabled(bool on)
{
    traceOn = on;
}

void Trace(const char* format, ...)
{
    if (!traceOn)
        return;
    std::va_list arguments;
    va_start(arguments, format);
    std::vfprintf(stderr, format, arguments);
    va_end(arguments);
}

} // namespace steward
