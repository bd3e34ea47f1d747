#include "Npcs.h"

#include "Connection.h"
#include "Game.h"

namespace {

constexpr int MinPauseMs = 4000;
constexpr int MaxPauseMs = 12000;

struct Townsfolk {
    const char* name;
    int home;
};

constexpr Townsfolk Folk[] = {{"Orla", 0}, {"Bram", 8}, {"Tamsin", 7}};

constexpr const char* Sayings[] = {
    "Fresh bread at the Otter this morning, if you hurry.",
    "The gulls are loud today. Storm coming, mark my words.",
    "Has anyone seen my grey cat?",
    "The bell tower needs a new rope before the festival.",
};

constexpr const char* Musings[] = {
    "I wonder who left the temple gate open again.",
    "Nets to mend, always nets to mend.",
    "Something is living in the smith's cellar.",
};

template <typename T, size_t N> const T& Pick(QRandomGenerator& random, const T (&items)[N])
{
    return items[random.bounded(int(N))];
}

} // namespace

Npcs::Npcs(Game& g, QObject* parent) : QObject(parent), game(g)
{
    timer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, [this] {
        Act();
        ScheduleNext();
    });
    for (const Townsfolk& person : Folk) {
        game.VisitorsOnline().append(person.name);
        game.SetVisitorRoom(person.name, person.home);
    }
    ScheduleNext();
}

void Npcs::ScheduleNext()
{
    timer.start(int(game.Random().bounded(MinPauseMs, MaxPauseMs)));
}

void Npcs::Act()
{
    QRandomGenerator& random = game.Random();
    const Townsfolk& person = Pick(random, Folk);
    const QByteArray name = person.name;
    QByteArrayList& online = game.VisitorsOnline();
    if (!online.contains(name)) {
        if (game.FindPlayer(name))
            return;
        online.append(name);
        game.ToAll(" ** " + name + " just arrived in the world.");
        return;
    }
    switch (random.bounded(6)) {
    case 0:
        online.removeAll(name);
        game.ToAll(" ** " + name + " has left the world.");
        break;
    case 1:
        game.ToAll("You pick up " + name + "'s thoughts, " + Quoted(Pick(random, Musings)));
        break;
    case 2:
        if (!game.Players().empty()) {
            Connection* target = game.Players()[random.bounded(int(game.Players().size()))];
            target->Notify(target->player.room == person.home
                               ? InServerColour(name + " whispers, " + Quoted("Mind the rat downstairs."))
                               : name + " thinks to you, " + Quoted("Come and find me some time."));
        }
        break;
    case 3:
        game.ToAll(InServerColour(name + " yells, " + Quoted("Lanterns lit, all's well!")));
        break;
    default:
        game.ToRoom(person.home, InServerColour(name + " says, " + Quoted(Pick(random, Sayings))));
        break;
    }
}
