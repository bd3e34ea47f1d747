#include "FloodSource.h"

#include "Game.h"
#include "StatusRecord.h"

namespace {

constexpr const char* Names[] = {"Orla", "Bram", "Tamsin", "Mara", "Corwin", "Ysolde"};
constexpr const char* Narration[] = {
    "The fountain splashes quietly in the middle of the square.",
    "A cart loaded with cabbages rumbles past toward the market.",
    "The smell of fresh bread drifts in from somewhere close by.",
    "A gull lands on a lantern bracket and eyes you hungrily.",
};
constexpr const char* Exits[] = {"Obvious exits: north, east, south, west, southeast.",
                                 "Obvious exits: south, northwest, up.",
                                 "Obvious exits: west, southwest*.", "Obvious exits: none."};

} // namespace

FloodSource::FloodSource(qint64 totalBytes, quint32 seed) : random(seed), remaining(totalBytes) {}

QByteArray FloodSource::Next(qint64 wanted)
{
    QByteArray chunk;
    if (done)
        return chunk;
    while (remaining > 0 && chunk.size() < wanted) {
        QByteArray line = Line();
        // A line cut short could leave a status record or a colour open and swallow the end
        // line, so the last one that does not fit is made up whole to the exact size.
        if (line.size() > remaining)
            line = remaining == 1 ? "\n" : QByteArray(remaining - 2, '.') + "\r\n";
        chunk += line;
        remaining -= line.size();
    }
    if (remaining <= 0) {
        chunk += EndLine;
        done = true;
    }
    sentBytes += chunk.size();
    sentLines += chunk.count('\n');
    return chunk;
}

QByteArray FloodSource::Line()
{
    const QByteArray name = Names[random.bounded(6)];
    switch (random.bounded(7)) {
    case 0:
        return InServerColour(name + " says, " + Quoted("Lovely evening for it.")) + "\r\n";
    case 1:
        return QByteArray(Exits[random.bounded(4)]) + "\r\n";
    case 2: {
        StatusFields fields;
        fields.hitPoints = int(random.bounded(1, 101));
        fields.hitPointsMax = 100;
        fields.fatigue = int(random.bounded(0, 61));
        fields.fatigueMax = 60;
        return FormatStatusRecord(fields);
    }
    case 3:
        return "You pick up " + name + "'s thoughts, " + Quoted("Who left the gate open?") + "\r\n";
    case 4:
        return " ** " + name +
               (random.bounded(2) ? " just arrived in the world.\r\n" : " has left the world.\r\n");
    default:
        return QByteArray(Narration[random.bounded(4)]) + "\r\n";
    }
}
