#include "session/RestMode.h"

namespace steward {

void RestState::Enter(bool silent)
{
    RestTicks = 0;
    RestMode = true;
    RestSilent = silent;
}

bool RestState::Leave()
{
    bool was = RestMode;
    RestMode = false;
    return was;
}

void RestState::OnTimer(RestSender& sender)
{
    if (!RestMode)
        return;
    if (++RestTicks <= REST_TICK_LIMIT)
        return;
    sender.SendCommand("exper");
    if (!RestSilent)
        sender.SendCommand("act snores softly");
    RestTicks = 0;
}

} // namespace steward
