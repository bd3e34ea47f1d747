#include "CommandTable.h"
#include "Connection.h"
#include "Game.h"

namespace {

// Splits "NAME text" into the named player and the text; tells the speaker what went wrong.
Connection* Addressee(Game& game, Connection& c, const QByteArray& args, QByteArray& text)
{
    const qsizetype blank = args.indexOf(' ');
    text = blank < 0 ? QByteArray() : args.mid(blank + 1).trimmed();
    if (blank < 0 || text.isEmpty()) {
        c.SendLine("To whom, and what?");
        return nullptr;
    }
    Connection* target = game.FindPlayer(args.left(blank));
    if (!target)
        c.SendLine("You sense no one called " + args.left(blank) + " in the world.");
    return target;
}

bool HasText(Connection& c, const QByteArray& text)
{
    if (text.isEmpty())
        c.SendLine("What do you want to say?");
    return !text.isEmpty();
}

void Speak(Game& game, Connection& c, const QByteArray& text, const char* verb, bool toAll)
{
    if (!HasText(c, text))
        return;
    c.SendLine("You " + QByteArray(verb) + ", " + Quoted(text));
    const QByteArray heard = InServerColour(c.player.name + " " + verb + "s, " + Quoted(text));
    if (toAll)
        game.ToAll(heard, &c);
    else
        game.ToRoom(c.player.room, heard, &c);
}

void Whisper(Game& game, Connection& c, const QByteArray& args)
{
    QByteArray text;
    Connection* target = Addressee(game, c, args, text);
    if (!target)
        return;
    if (target->player.room != c.player.room) {
        c.SendLine(target->player.name + " is not here.");
        return;
    }
    c.SendLine("You whisper to " + target->player.name + ", " + Quoted(text));
    target->Notify(InServerColour(c.player.name + " whispers, " + Quoted(text)));
    for (Connection* other : game.Players())
        if (other != &c && other != target && other->player.room == c.player.room)
            other->Notify(c.player.name + " whispers something to " + target->player.name + ".");
}

void Think(Game& game, Connection& c, const QByteArray& text)
{
    if (!HasText(c, text))
        return;
    c.SendLine("You send out your thoughts, " + Quoted(text));
    game.ToAll("You pick up " + c.player.name + "'s thoughts, " + Quoted(text), &c);
}

void Contact(Game& game, Connection& c, const QByteArray& args)
{
    QByteArray text;
    Connection* target = Addressee(game, c, args, text);
    if (!target)
        return;
    c.SendLine("You reach out to " + target->player.name + "'s mind, " + Quoted(text));
    target->Notify(c.player.name + " thinks to you, " + Quoted(text));
}

void Link(Game& game, Connection& c, const QByteArray& text)
{
    if (!HasText(c, text))
        return;
    c.SendLine("You send over the Psycian link, " + Quoted(text));
    game.ToAll("You pick up " + c.player.name + "'s Psycian link, " + Quoted(text), &c);
}

} // namespace

void AddTalkCommands(CommandTable& table)
{
    table.Add("say",
              [](Game& g, Connection& c, const QByteArray& a) { Speak(g, c, a, "say", false); });
    table.Add("ask",
              [](Game& g, Connection& c, const QByteArray& a) { Speak(g, c, a, "ask", false); });
    table.Add("yell",
              [](Game& g, Connection& c, const QByteArray& a) { Speak(g, c, a, "yell", true); });
    table.Add("shout",
              [](Game& g, Connection& c, const QByteArray& a) { Speak(g, c, a, "shout", true); });
    table.Add("whisper", Whisper);
    table.Add("think", Think);
    table.Add("contact", Contact);
    table.Add("link", Link);
}
