#pragma once

#include "CommandTable.h"
#include "Town.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QDeadlineTimer>
#include <QRandomGenerator>

#include <vector>

class Connection;

// The shared world: rooms, the players in them, and the talk between them.
class Game {
  public:
    static constexpr int MinNameLength = 2;
    static constexpr int MaxNameLength = 16;

    explicit Game(quint32 seed);

    void Join(Connection& connection);
    void Leave(Connection& connection, bool unexpectedly);
    void HandleLine(Connection& connection, const QByteArray& line);

    const Town& TownMap() const { return town; }
    QRandomGenerator& Random() { return random; }

    // Everyone playing, optionally one left out; others in a room; one by name.
    void ToAll(const QByteArray& text, const Connection* except = nullptr);
    void ToRoom(int room, const QByteArray& text, const Connection* except = nullptr);
    Connection* FindPlayer(const QByteArray& name) const;
    QByteArrayList NamesInRoom(int room, const Connection* except) const;
    const std::vector<Connection*>& Players() const { return players; }

    void ShowRoom(Connection& connection) const;
    void MoveTo(Connection& connection, int room, const QByteArray& leaving);

    // Non-player characters currently in the world, for "world" and "look".
    QByteArrayList& VisitorsOnline() { return visitors; }
    QByteArrayList VisitorsIn(int room) const;
    void SetVisitorRoom(const QByteArray& name, int room);

    // The cellar rat; it comes back a while after it has been killed.
    int ratHitPoints = 12;
    QDeadlineTimer ratReturns{0};
    bool RatPresent(int room);

  private:
    void AskName(Connection& connection, const QByteArray& line);

    Town town;
    CommandTable commands;
    QRandomGenerator random;
    std::vector<Connection*> players;
    QByteArrayList visitors;
    std::vector<std::pair<QByteArray, int>> visitorRooms;
};

// Text wrapped in the colour tokens the game puts around speech and room titles.
QByteArray InServerColour(const QByteArray& text);
QByteArray Quoted(const QByteArray& text);
