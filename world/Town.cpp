#include "Town.h"

namespace {

struct Abbreviation {
    const char* shortForm;
    const char* name;
};

constexpr Abbreviation Directions[] = {
    {"n", "north"}, {"ne", "northeast"}, {"e", "east"},  {"se", "southeast"},
    {"s", "south"}, {"sw", "southwest"}, {"w", "west"},  {"nw", "northwest"},
    {"u", "up"},    {"d", "down"},       {"out", "out"},
};

int FindIn(const std::vector<Exit>& exits, const QByteArray& word)
{
    for (const Exit& exit : exits)
        if (exit.word == word)
            return exit.target;
    return -1;
}

} // namespace

std::vector<Room> TownRooms();

Town::Town() : rooms(TownRooms()) {}

int Town::FollowExit(int room, const QByteArray& direction) const
{
    return FindIn(At(room).exits, direction);
}

int Town::FollowThing(int room, const QByteArray& thing) const
{
    return FindIn(At(room).things, thing);
}

QByteArray Town::ExitLine(int room) const
{
    QByteArrayList words;
    for (const Exit& exit : At(room).exits)
        words.append(exit.starred ? exit.word + '*' : exit.word);
    return "Obvious exits: " + (words.isEmpty() ? QByteArray("none") : words.join(", ")) + ".";
}

QByteArray DirectionName(const QByteArray& word)
{
    for (const Abbreviation& d : Directions)
        if (word == d.shortForm || word == d.name)
            return d.name;
    return {};
}
