#include "CommandTable.h"

CommandTable::CommandTable()
{
    AddMoveCommands(*this);
    AddTalkCommands(*this);
    AddInfoCommands(*this);
    AddBodyCommands(*this);
}

bool CommandTable::Run(Game& game, Connection& connection, const QByteArray& line) const
{
    const QByteArray trimmed = line.trimmed();
    const qsizetype blank = trimmed.indexOf(' ');
    const QByteArray word = trimmed.left(blank < 0 ? trimmed.size() : blank).toLower();
    const auto found = handlers.find(word);
    if (found == handlers.end())
        return false;
    found->second(game, connection, blank < 0 ? QByteArray() : trimmed.mid(blank + 1).trimmed());
    return true;
}
