#include "base/Trace.h"

#include <cstdarg>
#include <cstdio>

namespace steward {
namespace {

class StandardErrorSink : public TraceSink {
  public:
    void TraceLine(const char* line) override { std::fputs(line, stderr); }
};

StandardErrorSink standardError;
TraceSink* traceSink = nullptr;

} // namespace

TraceSink* SetTraceSink(TraceSink* sink)
{
    TraceSink* previous = traceSink;
    traceSink = sink;
    return previous;
}

void SetTraceEnabled(bool on)
{
    SetTraceSink(on ? &standardError : nullptr);
}

void Trace(const char* format, ...)
{
    if (!traceSink)
        return;
    char line[4096];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    traceSink->TraceLine(line);
}

} // namespace steward
