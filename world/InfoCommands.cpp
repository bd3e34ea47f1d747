#include "CommandTable.h"
#include "Connection.h"
#include "Game.h"

#include <QTime>

namespace {

struct Topic {
    const char* name;
    const char* text;
};

constexpr Topic Topics[] = {
    {"", "Commands: north, south, east, west (and ne, se, sw, nw), up, down, out, go, climb,\r\n"
         "swim, enter, look, say, ask, yell, shout, whisper, think, contact, link, inv, skills,\r\n"
         "spells, health, exper, time, weather, world, full, brief, superbrief, ready, unready,\r\n"
         "sit, stand, lie, attack, rest, quit.\r\n"
         "More on: info crimes, languages, magick, martialarts, money, psionics, religion,\r\n"
         "runespells, vis."},
    {"crimes", "The town watch frowns on theft, brawling in the market and unpaid bar tabs.\r\n"
               "Offenders spend a night in the gatehouse with the watch captain's poetry."},
    {"languages", "Most folk of Thornmere speak Common. Sailors on the quay trade in Harbour\r\n"
                  "Cant, and the temple keeps its prayers in the old Lantern tongue."},
    {"magick", "Magick draws on the web of the world. Your Web gauge shows how much you can\r\n"
               "shape before you must rest."},
    {"martialarts",
     "Ready a saber and a shield before a fight. Each attack takes three seconds;\r\n"
     "strike too soon and you will be told to wait."},
    {"money", "Coins come in silver and gold; ten silver make one gold. The Sleeping Otter\r\n"
              "takes both, and so does the smith."},
    {"psionics", "A trained mind can think aloud to everyone (think), reach one other mind\r\n"
                 "(contact NAME TEXT) or speak over the Psycian link (link TEXT)."},
    {"religion", "The Lantern Keeper watches over travellers by night. Pilgrims leave lamps on\r\n"
                 "the temple steps and rest in the garden beyond the gate."},
    {"runespells", "Runespells are carved, not spoken. No rune-carver has settled in town yet."},
    {"vis", "Vis is the body's vigour. Fatigue falls as you fight and returns as you rest."},
};

void Info(Game&, Connection& c, const QByteArray& args)
{
    for (const Topic& topic : Topics)
        if (args.toLower() == topic.name) {
            c.SendLine(topic.text);
            return;
        }
    c.SendLine("There is no such topic. Type \"info\" for the list.");
}

void Inventory(Game&, Connection& c, const QByteArray&)
{
    const Player& p = c.player;
    c.SendLine(QByteArray("You are carrying a saber") +
               (p.weaponReady ? " (in hand)" : " (sheathed)") + ", a round shield" +
               (p.shieldReady ? " (on your arm)" : " (on your back)") +
               ", a waterskin and a heel of bread.");
    c.SendLine("Your purse holds " + QByteArray::number(p.silver) + " silver and " +
               QByteArray::number(p.gold) + " gold.");
}

void Health(Game&, Connection& c, const QByteArray&)
{
    const Player& p = c.player;
    c.SendLine(" ** Current hit points: " + QByteArray::number(p.hitPoints) + " of " +
               QByteArray::number(p.hitPointsMax));
    c.SendLine(" ** Current fatigue: " + QByteArray::number(p.fatigue) + " of " +
               QByteArray::number(p.fatigueMax));
    c.SendLine("Psi: " + QByteArray::number(p.psi) + " of " + QByteArray::number(p.psiMax) +
               "   Web: " + QByteArray::number(p.web) + " of " + QByteArray::number(p.webMax));
    c.SendLine(p.hitPoints == p.hitPointsMax ? "You are in fine health." : "You have a few cuts.");
}

void Time(Game&, Connection& c, const QByteArray&)
{
    static const char* const Parts[] = {"deep night", "early morning", "late morning",
                                        "afternoon",  "evening",       "night"};
    const int hour = QTime::currentTime().hour();
    c.SendLine(QByteArray("The bell tower says it is ") + Parts[hour / 4] + " in Thornmere.");
}

void Weather(Game& g, Connection& c, const QByteArray&)
{
    static const char* const Skies[] = {
        "A soft sea breeze carries the smell of salt and tar.",
        "Clouds drift in from the hills, heavy with rain that never quite falls.",
        "The sun shines warm on the rooftops.",
        "A light drizzle beads on every lantern pane.",
    };
    c.SendLine(Skies[g.Random().bounded(4)]);
}

void World(Game& g, Connection& c, const QByteArray&)
{
    QByteArrayList names = g.VisitorsOnline();
    for (const Connection* other : g.Players())
        names.append(other->player.name);
    c.SendLine("Walking the world of Thornmere: " + names.join(", ") + ".");
}

void Skills(Game&, Connection& c, const QByteArray&)
{
    c.SendLine("Saber: journeyman   Shield: apprentice   Swimming: fair   Climbing: good");
}

void Spells(Game&, Connection& c, const QByteArray&)
{
    c.SendLine("You know Kindle Lantern and Calm Waters. Neither needs casting in town.");
}

void Experience(Game&, Connection& c, const QByteArray&)
{
    c.SendLine("You have 1200 experience points and are well on the way to your next rank.");
}

template <Verbosity Level> void SetVerbosity(Game&, Connection& c, const QByteArray&)
{
    static const char* const Names[] = {"full", "brief", "superbrief"};
    c.player.verbosity = Level;
    c.SendLine(QByteArray("Room descriptions are now ") + Names[int(Level)] + ".");
}

} // namespace

void AddInfoCommands(CommandTable& table)
{
    table.Add("info", Info);
    table.Add("help", Info);
    table.Add("inv", Inventory);
    table.Add("inventory", Inventory);
    table.Add("health", Health);
    table.Add("time", Time);
    table.Add("weather", Weather);
    table.Add("world", World);
    table.Add("skills", Skills);
    table.Add("spells", Spells);
    table.Add("exper", Experience);
    table.Add("full", SetVerbosity<Verbosity::Full>);
    table.Add("brief", SetVerbosity<Verbosity::Brief>);
    table.Add("superbrief", SetVerbosity<Verbosity::Superbrief>);
}
