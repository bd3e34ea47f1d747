#include "Game.h"

#include "Connection.h"

#include <algorithm>

namespace {

bool IsGoodName(const QByteArray& name)
{
    if (name.size() < Game::MinNameLength || name.size() > Game::MaxNameLength)
        return false;
    return std::all_of(name.begin(), name.end(),
                       [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); });
}

QByteArray Capitalised(const QByteArray& name)
{
    QByteArray out = name.toLower();
    out[0] = char(out[0] - 'a' + 'A');
    return out;
}

} // namespace

QByteArray InServerColour(const QByteArray& text)
{
    return "\x1b"
           "100" +
           text +
           "\x1b"
           "000";
}

QByteArray Quoted(const QByteArray& text)
{
    return '"' + text + '"';
}

Game::Game(quint32 seed) : random(seed) {}

void Game::Join(Connection& connection)
{
    connection.Send("\r\nWelcome to Thornmere, where the lanterns never go out.\r\n\r\n"
                    "By what name are you known? ");
}

void Game::Leave(Connection& connection, bool unexpectedly)
{
    const auto found = std::find(players.begin(), players.end(), &connection);
    if (found == players.end())
        return;
    players.erase(found);
    ToAll(" ** " + connection.player.name + " has left the world" +
          (unexpectedly ? " unexpectedly." : "."));
}

void Game::HandleLine(Connection& connection, const QByteArray& line)
{
    if (connection.stage == Connection::Stage::AskingName) {
        AskName(connection, line.trimmed());
        return;
    }
    if (line.trimmed().compare("set steward on", Qt::CaseInsensitive) == 0)
        connection.player.statusMode = true;
    else if (!line.trimmed().isEmpty() && !commands.Run(*this, connection, line))
        connection.SendLine("What? (Type \"info\" for a list of commands.)");
    if (connection.stage == Connection::Stage::Playing)
        connection.SendPrompt();
}

void Game::AskName(Connection& connection, const QByteArray& line)
{
    if (!IsGoodName(line)) {
        connection.Send("A name is two to sixteen letters. By what name are you known? ");
        return;
    }
    const QByteArray name = Capitalised(line);
    if (FindPlayer(name) || visitors.contains(name)) {
        connection.Send("Someone by that name already walks these streets. "
                        "By what name are you known? ");
        return;
    }
    connection.player.name = name;
    connection.player.room = Town::StartRoom;
    connection.stage = Connection::Stage::Playing;
    ToAll(" ** " + name + " just arrived in the world.");
    players.push_back(&connection);
    connection.SendLine("\r\nWell met, " + name + ". The town bell rings once as you arrive.\r\n");
    ShowRoom(connection);
    connection.SendPrompt();
}

void Game::ToAll(const QByteArray& text, const Connection* except)
{
    for (Connection* other : players)
        if (other != except)
            other->Notify(text);
}

void Game::ToRoom(int room, const QByteArray& text, const Connection* except)
{
    for (Connection* other : players)
        if (other != except && other->player.room == room)
            other->Notify(text);
}

Connection* Game::FindPlayer(const QByteArray& name) const
{
    for (Connection* other : players)
        if (other->player.name.compare(name, Qt::CaseInsensitive) == 0)
            return other;
    return nullptr;
}

QByteArrayList Game::NamesInRoom(int room, const Connection* except) const
{
    QByteArrayList names = VisitorsIn(room);
    for (const Connection* other : players)
        if (other != except && other->player.room == room)
            names.append(other->player.name);
    return names;
}

QByteArrayList Game::VisitorsIn(int room) const
{
    QByteArrayList names;
    for (const auto& [name, where] : visitorRooms)
        if (where == room && visitors.contains(name))
            names.append(name);
    return names;
}

void Game::SetVisitorRoom(const QByteArray& name, int room)
{
    for (auto& entry : visitorRooms)
        if (entry.first == name) {
            entry.second = room;
            return;
        }
    visitorRooms.emplace_back(name, room);
}

bool Game::RatPresent(int room)
{
    if (!town.At(room).hasRat)
        return false;
    if (ratHitPoints <= 0 && ratReturns.hasExpired())
        ratHitPoints = 12;
    return ratHitPoints > 0;
}

void Game::ShowRoom(Connection& connection) const
{
    const Player& player = connection.player;
    const Room& room = town.At(player.room);
    connection.SendLine(InServerColour(room.title));
    if (player.verbosity == Verbosity::Superbrief)
        return;
    if (player.verbosity == Verbosity::Full)
        for (const QByteArray& line : room.description)
            connection.SendLine(line);
    const QByteArrayList others = NamesInRoom(player.room, &connection);
    if (!others.isEmpty())
        connection.SendLine("Also here: " + others.join(", ") + ".");
    if (room.hasRat && (ratHitPoints > 0 || ratReturns.hasExpired()))
        connection.SendLine("A scrawny brown rat watches you from behind a barrel.");
    connection.SendLine(town.ExitLine(player.room));
}

void Game::MoveTo(Connection& connection, int room, const QByteArray& leaving)
{
    Player& player = connection.player;
    if (player.posture != Posture::Standing) {
        connection.SendLine("You will have to stand up first.");
        return;
    }
    ToRoom(player.room, player.name + " " + leaving, &connection);
    player.room = room;
    ToRoom(room, player.name + " just came in.", &connection);
    ShowRoom(connection);
}
