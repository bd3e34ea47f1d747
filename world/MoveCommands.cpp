#include "CommandTable.h"
#include "Connection.h"
#include "Game.h"

namespace {

void Walk(Game& game, Connection& c, const QByteArray& direction)
{
    const int target = game.TownMap().FollowExit(c.player.room, direction);
    if (target < 0) {
        c.SendLine("You can't go that way.");
        return;
    }
    game.MoveTo(c, target, "goes " + direction + ".");
}

void Through(Game& game, Connection& c, const QByteArray& args, const char* verb)
{
    QByteArray thing = args.toLower();
    if (thing.startsWith("the "))
        thing = thing.mid(4);
    if (thing.isEmpty()) {
        c.SendLine(QByteArray(verb).toUpper().left(1) + QByteArray(verb).mid(1) + " what?");
        return;
    }
    const int target = game.TownMap().FollowThing(c.player.room, thing);
    if (target >= 0) {
        game.MoveTo(c, target, QByteArray(verb) + "s through the " + thing + ".");
        return;
    }
    const QByteArray direction = DirectionName(thing);
    if (!direction.isEmpty())
        Walk(game, c, direction);
    else
        c.SendLine("You see no " + thing + " to " + verb + " here.");
}

template <const char* Direction> void Go(Game& game, Connection& c, const QByteArray&)
{
    Walk(game, c, Direction);
}

constexpr char North[] = "north", Northeast[] = "northeast", East[] = "east",
               Southeast[] = "southeast", South[] = "south", Southwest[] = "southwest",
               West[] = "west", Northwest[] = "northwest", Up[] = "up", Down[] = "down",
               Out[] = "out";

struct DirectionCommand {
    const char* shortForm;
    const char* longForm;
    CommandHandler handler;
};

constexpr DirectionCommand DirectionCommands[] = {
    {"n", "north", Go<North>}, {"ne", "northeast", Go<Northeast>},
    {"e", "east", Go<East>},   {"se", "southeast", Go<Southeast>},
    {"s", "south", Go<South>}, {"sw", "southwest", Go<Southwest>},
    {"w", "west", Go<West>},   {"nw", "northwest", Go<Northwest>},
    {"u", "up", Go<Up>},       {"d", "down", Go<Down>},
    {"o", "out", Go<Out>},
};

} // namespace

void AddMoveCommands(CommandTable& table)
{
    for (const DirectionCommand& d : DirectionCommands) {
        table.Add(d.shortForm, d.handler);
        table.Add(d.longForm, d.handler);
    }
    table.Add("go", [](Game& g, Connection& c, const QByteArray& a) { Through(g, c, a, "go"); });
    table.Add("climb",
              [](Game& g, Connection& c, const QByteArray& a) { Through(g, c, a, "climb"); });
    table.Add("swim",
              [](Game& g, Connection& c, const QByteArray& a) { Through(g, c, a, "swim"); });
    table.Add("enter",
              [](Game& g, Connection& c, const QByteArray& a) { Through(g, c, a, "enter"); });
    table.Add("look", [](Game& g, Connection& c, const QByteArray&) { g.ShowRoom(c); });
    table.Add("l", [](Game& g, Connection& c, const QByteArray&) { g.ShowRoom(c); });
}
