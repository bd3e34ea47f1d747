#include "session/qt/AutoReconnect.h"

#include "session/GameLink.h"
#include "session/Session.h"

#include <cstdio>

namespace steward {

namespace {

// Holds the longest message below with its numbers.
constexpr std::size_t TEXT_SIZE = 128;
constexpr char TRY_WAIT_TEXT[] = "\r\n*** Reconnecting in %d seconds (try %d of %d)...\r\n";
constexpr char CONNECTED_TEXT[] = "\r\n*** Reconnected to the game.\r\n";
constexpr char FAILED_TEXT[] = "\r\n*** %s (try %d of %d)\r\n";
constexpr char GAVE_UP_TEXT[] = "\r\n*** Gave up reconnecting after %d tries.\r\n";

} // namespace

AutoReconnect::AutoReconnect(GameLink& link, const Session& session, QObject* parent)
    : QObject(parent), link_(link), session_(session)
{
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &AutoReconnect::Try);
}

void AutoReconnect::Dropped()
{
    if (const int wait = link_.Reconnect().Dropped(session_.Steward.IsOn(RECONNECT_ON_DROP)))
        WaitForTry(wait);
}

void AutoReconnect::Stop()
{
    link_.Reconnect().Stop();
    timer_.stop();
}

void AutoReconnect::Try()
{
    ReconnectPlan& plan = link_.Reconnect();
    if (!plan.Waiting() || !link_.IsDisconnected())
        return;
    const int attempt = plan.Try();
    const int result = link_.ConnectToGame(session_.ConnectionString);
    if (result == CONNECT_OK) {
        link_.PrintToGameWindow(CONNECTED_TEXT);
        return;
    }
    const char* failure = ConnectFailureText(result);
    char text[TEXT_SIZE];
    std::snprintf(text, sizeof text, FAILED_TEXT,
                  failure ? failure : ConnectFailureText(CONNECT_FAILED), attempt, RECONNECT_TRIES);
    link_.PrintToGameWindow(text);
    if (const int wait = plan.TryFailed()) {
        WaitForTry(wait);
        return;
    }
    std::snprintf(text, sizeof text, GAVE_UP_TEXT, RECONNECT_TRIES);
    link_.PrintToGameWindow(text);
}

void AutoReconnect::WaitForTry(int seconds)
{
    char text[TEXT_SIZE];
    std::snprintf(text, sizeof text, TRY_WAIT_TEXT, seconds, link_.Reconnect().Try(),
                  RECONNECT_TRIES);
    link_.PrintToGameWindow(text);
    timer_.start(seconds * 1000);
}

} // namespace steward
