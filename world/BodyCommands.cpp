#include "CommandTable.h"
#include "Connection.h"
#include "Game.h"

namespace {

constexpr int AttackSeconds = 3;
constexpr int AttackFatigue = 2;
constexpr int RatReturnMs = 20000;

QByteArray VitalsLine(const char* what, int value, int maximum)
{
    return QByteArray(" ** Current ") + what + ": " + QByteArray::number(value) + " of " +
           QByteArray::number(maximum);
}

void Ready(Game&, Connection& c, const QByteArray& args, bool on)
{
    const QByteArray thing = args.toLower();
    bool& flag = thing == "saber" ? c.player.weaponReady : c.player.shieldReady;
    if (thing != "saber" && thing != "shield") {
        c.SendLine(on ? "Ready what? Your saber or your shield?" : "Unready what?");
        return;
    }
    if (flag == on) {
        c.SendLine(on ? "It is ready already." : "It is put away already.");
        return;
    }
    flag = on;
    c.SendLine("You " + QByteArray(on ? "ready" : "put away") + " your " + thing + ".");
}

template <Posture Target> void Settle(Game& g, Connection& c, const QByteArray&)
{
    static const char* const Verbs[] = {"stand up", "sit down", "lie down"};
    static const char* const Others[] = {"stands up", "sits down", "lies down"};
    if (c.player.posture == Target) {
        c.SendLine("You are already doing that.");
        return;
    }
    c.player.posture = Target;
    c.SendLine(QByteArray("You ") + Verbs[int(Target)] + ".");
    g.ToRoom(c.player.room, c.player.name + " " + Others[int(Target)] + ".", &c);
}

void RatBitesBack(Game& g, Connection& c)
{
    Player& p = c.player;
    const int bite = int(g.Random().bounded(1, 5));
    const int blocked = p.shieldReady ? 1 : 0;
    p.hitPoints = std::max(1, p.hitPoints - std::max(0, bite - blocked));
    c.SendLine(bite > blocked ? "The rat sinks its teeth into your ankle!"
                              : "The rat's teeth skitter off your shield.");
    c.SendLine(VitalsLine("hit points", p.hitPoints, p.hitPointsMax));
}

void Attack(Game& g, Connection& c, const QByteArray& args)
{
    Player& p = c.player;
    if (!args.isEmpty() && args.toLower() != "rat") {
        c.SendLine("You see no " + args + " here.");
        return;
    }
    if (!g.RatPresent(p.room)) {
        c.SendLine("There is nothing here to attack.");
        return;
    }
    if (const int left = p.RoundTimeLeft(); left > 0) {
        c.SendLine("...wait " + QByteArray::number(left) + " seconds.");
        return;
    }
    const int damage = p.weaponReady ? int(g.Random().bounded(3, 7)) : 1;
    g.ratHitPoints -= damage;
    p.fatigue = std::max(0, p.fatigue - AttackFatigue);
    p.roundTime.setRemainingTime(AttackSeconds * 1000);
    c.SendLine(p.weaponReady ? "You slash at the rat with your saber!" : "You swat at the rat.");
    if (g.ratHitPoints <= 0) {
        c.SendLine("The rat squeals once and lies still.");
        g.ratReturns.setRemainingTime(RatReturnMs);
    } else {
        RatBitesBack(g, c);
    }
    c.SendLine("[" + QByteArray::number(AttackSeconds) + " sec. delay]");
}

void Rest(Game&, Connection& c, const QByteArray&)
{
    Player& p = c.player;
    c.SendLine("You rest a while and let the hum of the town wash over you.");
    p.hitPoints = p.hitPointsMax;
    p.fatigue = p.fatigueMax;
    c.SendLine(" ** You are fully healed.");
    c.SendLine(" ** You are fully rested.");
}

void Quit(Game&, Connection& c, const QByteArray&)
{
    c.SendLine("Fare well, " + c.player.name + ". The lanterns will be lit for your return.");
    c.Close("quit");
}

} // namespace

void AddBodyCommands(CommandTable& table)
{
    table.Add("ready", [](Game& g, Connection& c, const QByteArray& a) { Ready(g, c, a, true); });
    table.Add("unready",
              [](Game& g, Connection& c, const QByteArray& a) { Ready(g, c, a, false); });
    table.Add("stand", Settle<Posture::Standing>);
    table.Add("sit", Settle<Posture::Sitting>);
    table.Add("lie", Settle<Posture::Lying>);
    table.Add("attack", Attack);
    table.Add("kill", Attack);
    table.Add("rest", Rest);
    table.Add("quit", Quit);
}
