#include "session/qt/ReplayPlayer.h"

namespace steward {

ReplayPlayer::ReplayPlayer(SocketListener& link, SessionReplay::Print print, QObject* parent)
    : QObject(parent), replay_(link, std::move(print))
{
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &ReplayPlayer::PlayOne);
}

bool ReplayPlayer::Start(const std::string& path, double speed)
{
    if (!replay_.Open(path.c_str()))
        return false;
    waitMs_ = ReplayWaitMs(speed);
    playing_ = true;
    ScheduleNext();
    return true;
}

void ReplayPlayer::ScheduleNext()
{
    if (waitMs_ > 0)
        timer_.start(waitMs_);
    else
        QMetaObject::invokeMethod(this, &ReplayPlayer::PlayOne, Qt::QueuedConnection);
}

void ReplayPlayer::PlayOne()
{
    playing_ = replay_.PlayNextBlock();
    if (playing_)
        ScheduleNext();
}

} // namespace steward
