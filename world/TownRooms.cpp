#include "Town.h"

// Room numbers, so that the exits below read as a map.
enum RoomId {
    Square,
    LanternStreet,
    HarbourRoad,
    TempleSteps,
    SmithyLane,
    NorthGate,
    BellTower,
    Quay,
    SleepingOtter,
    HerbGarden,
    Meadow,
    Cellar,
    TempleGarden,
};

std::vector<Room> TownRooms()
{
    std::vector<Room> rooms(13);
    rooms[Square] = {
        "[Thornmere, Market Square]",
        {"Cobbles worn smooth by a thousand market days spread out around a stone fountain",
         "shaped like a leaping salmon. Awnings of striped canvas flap over empty stalls, and",
         "the smell of fresh bread drifts in from somewhere close by."},
        {{"north", LanternStreet},
         {"east", HarbourRoad},
         {"south", TempleSteps},
         {"west", SmithyLane},
         {"southeast", HerbGarden}},
        {}};
    rooms[LanternStreet] = {
        "[Thornmere, Lantern Street]",
        {"Iron lanterns hang from brackets on every house along this narrow street, their",
         "glass panes polished to a shine. A rope ladder dangles from the bell tower above."},
        {{"south", Square}, {"northwest", NorthGate}, {"up", BellTower}},
        {{"ladder", BellTower}, {"tower", BellTower}}};
    rooms[HarbourRoad] = {
        "[Thornmere, Harbour Road]",
        {"The road slopes gently down toward the water, lined with fishermen's cottages.",
         "A painted otter grins from the sign above a stout oak door on the north side."},
        {{"west", Square}, {"east", Quay}},
        {{"door", SleepingOtter}, {"inn", SleepingOtter}}};
    rooms[TempleSteps] = {
        "[Thornmere, Temple Steps]",
        {"Broad white steps climb toward the quiet temple of the Lantern Keeper. Beside them",
         "a wrought iron gate opens onto a garden where bees hum among the lavender.",
         "Pilgrims have left small clay lamps along the lowest step."},
        {{"north", Square}},
        {{"gate", TempleGarden}, {"temple", TempleGarden}}};
    rooms[SmithyLane] = {
        "[Thornmere, Smithy Lane]",
        {"Sparks leap from the open forge of the town smith, and the ring of hammer on",
         "anvil echoes off the walls. A trapdoor in the lane leads down into an old cellar."},
        {{"east", Square}, {"down", Cellar}},
        {{"trapdoor", Cellar}, {"cellar", Cellar}}};
    rooms[NorthGate] = {
        "[Thornmere, North Gate]",
        {"Two squat towers guard the gate in the town wall. The gate itself stands open,",
         "and beyond it green meadows roll away toward the hills."},
        {{"southeast", LanternStreet}},
        {{"gate", Meadow}}};
    rooms[BellTower] = {
        "[Thornmere, Bell Tower]",
        {"A great bronze bell hangs in the timber frame overhead. From up here the whole",
         "town lies spread below you, its roofs a patchwork of slate and red tile."},
        {{"down", LanternStreet}},
        {{"ladder", LanternStreet}}};
    rooms[Quay] = {
        "[Thornmere, The Quay]",
        {"Fishing boats bob against the stone quay, their nets hung out to dry. Gulls wheel",
         "and cry overhead, and the harbour water glitters green and cold."},
        {{"west", HarbourRoad}, {"southwest", HerbGarden, true}},
        {{"harbour", HerbGarden}, {"water", HerbGarden}}};
    rooms[SleepingOtter] = {
        "[Thornmere, The Sleeping Otter]",
        {"A low beamed taproom, warm with the glow of a peat fire. Tankards hang from hooks",
         "above the bar, and a grey cat sleeps on the warmest bench."},
        {{"out", HarbourRoad}},
        {{"door", HarbourRoad}}};
    rooms[HerbGarden] = {
        "[Thornmere, Herb Garden]",
        {"Neat beds of sage, thyme and rosemary fill this sheltered garden. A gap in the",
         "hedge to the northeast leads toward the harbour."},
        {{"northwest", Square}, {"northeast", Quay, true}},
        {}};
    rooms[Meadow] = {
        "[Outside Thornmere, Meadow]",
        {"Tall grass ripples in the wind, dotted with poppies and cornflowers. The town gate",
         "stands behind you; there is no path onward, only the open meadow."},
        {},
        {{"gate", NorthGate}}};
    rooms[Cellar] = {
        "[Thornmere, Old Cellar]",
        {"Damp stone walls glisten in the light from the trapdoor above. Broken barrels are",
         "piled in a corner, and something small rustles among them."},
        {{"up", SmithyLane}},
        {{"trapdoor", SmithyLane}},
        true};
    rooms[TempleGarden] = {
        "[Thornmere, Temple Garden]",
        {"Lavender and white roses grow between paths of crushed shell. A stone bench under",
         "a pear tree invites you to sit and rest a while."},
        {{"out", TempleSteps}},
        {{"gate", TempleSteps}}};
    return rooms;
}
