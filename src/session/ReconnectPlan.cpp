#include "session/ReconnectPlan.h"

#include "base/ByteText.h"

#include <algorithm>

namespace steward {

void ReconnectPlan::PlayerQuit()
{
    quit_ = true;
    waiting_ = false;
}

int ReconnectPlan::Dropped(bool optionOn)
{
    tries_ = 0;
    waiting_ = optionOn && !quit_;
    return waiting_ ? Wait() : 0;
}

int ReconnectPlan::TryFailed()
{
    if (!waiting_)
        return 0;
    waiting_ = ++tries_ < RECONNECT_TRIES;
    return waiting_ ? Wait() : 0;
}

void ReconnectPlan::Connected()
{
    tries_ = 0;
    waiting_ = false;
    quit_ = false;
}

int ReconnectPlan::Wait() const
{
    // The doubling stops long before the shift could overflow.
    const int shift = std::min(tries_, 6);
    return std::min(RECONNECT_FIRST_WAIT_S << shift, RECONNECT_LONGEST_WAIT_S);
}

bool IsQuitCommand(const char* text)
{
    while (*text == ' ' || *text == '\t')
        ++text;
    if (!StartsWithNoCase(text, "quit"))
        return false;
    const char after = text[4];
    return after == '\0' || after == ' ' || after == '\t' || after == '\r' || after == '\n';
}

} // namespace steward
