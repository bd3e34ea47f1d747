#pragma once

#include "StatusRecord.h"

#include <QByteArray>
#include <QDeadlineTimer>

enum class Posture { Standing = 0, Sitting = 1, Lying = 2 };
enum class Verbosity { Full, Brief, Superbrief };

// One player's state in the world; the status record is made from it.
struct Player {
    QByteArray name;
    int room = 0;
    Posture posture = Posture::Standing;
    Verbosity verbosity = Verbosity::Full;
    bool statusMode = false;
    bool weaponReady = false;
    bool shieldReady = false;
    int hitPoints = 100;
    int hitPointsMax = 100;
    int fatigue = 60;
    int fatigueMax = 60;
    int psi = 20;
    int psiMax = 20;
    int web = 5;
    int webMax = 5;
    qint64 silver = 12;
    qint64 gold = 3;
    int weight = 14;
    int weightMax = 80;
    QDeadlineTimer roundTime{0};

    // Whole seconds of the last action's delay still to run, rounded up.
    int RoundTimeLeft() const { return int((roundTime.remainingTime() + 999) / 1000); }

    StatusFields Status() const
    {
        return {'>',       hitPoints,    hitPointsMax, fatigue,     fatigueMax,     psi,
                psiMax,    web,          webMax,       silver,      gold,           weight,
                weightMax, int(posture), weaponReady,  shieldReady, RoundTimeLeft()};
    }
};
