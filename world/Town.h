#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <vector>

// A way out of a room: a compass word shown in the exit list, or a thing to go through.
struct Exit {
    QByteArray word;
    int target = 0;
    bool starred = false;
};

struct Room {
    QByteArray title;
    QByteArrayList description;
    std::vector<Exit> exits;  // listed in "Obvious exits:"
    std::vector<Exit> things; // reached with go, climb, swim or enter
    bool hasRat = false;
};

// The rooms of Thornmere town, fixed at start.
class Town {
  public:
    static constexpr int StartRoom = 0;

    Town();

    int RoomCount() const { return int(rooms.size()); }
    const Room& At(int room) const { return rooms.at(room); }
    // The room behind a compass word (full name) or a thing, or -1.
    int FollowExit(int room, const QByteArray& direction) const;
    int FollowThing(int room, const QByteArray& thing) const;
    QByteArray ExitLine(int room) const;

  private:
    std::vector<Room> rooms;
};

// "n" becomes "north" and so on; a word that is no direction comes back empty.
QByteArray DirectionName(const QByteArray& word);
