#pragma once

#include <QByteArray>

// Everything the status record tells the client about one player.
struct StatusFields {
    char promptCharacter = '>';
    int hitPoints = 0;
    int hitPointsMax = 0;
    int fatigue = 0;
    int fatigueMax = 0;
    int psi = 0;
    int psiMax = 0;
    int web = 0;
    int webMax = 0;
    qint64 silver = 0;
    qint64 gold = 0;
    int weight = 0;
    int weightMax = 0;
    int posture = 0;
    bool weaponReady = false;
    bool shieldReady = false;
    int roundTimeSeconds = 0;
};

// Fixed offsets of the record: two ESC, the prompt character, hex fields, flags, the round
// time, one filler byte, the closing ESC and CR LF.
constexpr int StatusRoundTimeOffset = 64;
constexpr int StatusRecordLength = 70;

// Formats the record; out-of-range values are clamped so that no field ever reads as negative.
QByteArray FormatStatusRecord(const StatusFields& fields);
