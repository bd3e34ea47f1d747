#pragma once

#include <cstddef>
#include <cstdio>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace steward::bench {

// Names of players and creatures that the generated play mentions; highlight lists use them too.
inline const char* const NAMES[] = {"Mara",    "Kaelen", "Oswin",  "Thessaly",
                                    "Brannoc", "Ilse",   "Corwen", "Edda"};
inline const char* const PLACES[] = {"the old mill", "the market square", "the river ford",
                                     "the chapel of the moon", "the western gate"};
inline const char* const CREATURES[] = {"a grey wolf", "an orc raider", "a cave bear",
                                        "a young drake", "a bandit archer"};
inline const char* const SPOKEN[] = {"Shall we go to the market?", "Watch your back out there.",
                                     "I have silver for the ferry.", "Hail and well met!"};

// A 70-byte status record: ESC ESC, prompt, hexadecimal fields, closing ESC, CR LF.
inline std::string StatusRecordLine(std::mt19937& random)
{
    char record[80];
    std::snprintf(record, sizeof record,
                  "\x1B\x1B>%04X0064%04X0064001E001E00140014%08X%08X%04X01F40000%04X00\x1B\r\n",
                  static_cast<unsigned>(random() % 100), static_cast<unsigned>(random() % 100),
                  static_cast<unsigned>(random() % 5000), static_cast<unsigned>(random() % 50),
                  static_cast<unsigned>(random() % 500), static_cast<unsigned>(random() % 6));
    return record;
}

// One line of a day's play as the server sends it, picked with the weights a player sees:
// narration, speech in the server's colour tokens, exit lists, fights, status records,
// thoughts and arrivals.
inline std::string PlayLine(std::mt19937& random)
{
    const char* name = NAMES[random() % std::size(NAMES)];
    const char* place = PLACES[random() % std::size(PLACES)];
    const char* creature = CREATURES[random() % std::size(CREATURES)];
    char line[240];
    switch (random() % 10) {
    case 0:
    case 1:
        std::snprintf(line, sizeof line,
                      "You are standing near %s. The wind moves the long grass.\r\n", place);
        break;
    case 2:
        std::snprintf(line, sizeof line,
                      "\x1B"
                      "1ab%s says,\x1B"
                      "0ab \"%s\"\r\n",
                      name, SPOKEN[random() % std::size(SPOKEN)]);
        break;
    case 3:
        std::snprintf(line, sizeof line, "Obvious exits: north, east, southwest, up.\r\n");
        break;
    case 4:
        std::snprintf(line, sizeof line, "%s attacks %s and hits for %u damage!\r\n", name,
                      creature, static_cast<unsigned>(random() % 40));
        break;
    case 5:
        std::snprintf(line, sizeof line, "You see %s, a rusty dagger and 12 gold coins here.\r\n",
                      creature);
        break;
    case 6:
    case 7:
        return StatusRecordLine(random);
    case 8:
        std::snprintf(line, sizeof line, "%s thinks to you, \"Meet me at %s.\"\r\n", name, place);
        break;
    default:
        std::snprintf(line, sizeof line, " ** %s just arrived in the world.\r\n", name);
        break;
    }
    return line;
}

// The same play every run.
inline std::vector<std::string> PlayLines(std::size_t count)
{
    std::mt19937 random(20261123);
    std::vector<std::string> lines;
    lines.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        lines.push_back(PlayLine(random));
    return lines;
}

// The play as one stream of exactly size bytes.
inline std::string PlayStream(std::size_t size)
{
    std::mt19937 random(20261123);
    std::string stream;
    stream.reserve(size + 256);
    while (stream.size() < size)
        stream += PlayLine(random);
    stream.resize(size);
    return stream;
}

} // namespace steward::bench
