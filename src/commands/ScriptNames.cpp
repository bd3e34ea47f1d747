#include "commands/ScriptNames.h"

#include "base/ByteText.h"
#include "commands/CommandParts.h"

#include <cstring>

namespace steward {

namespace {

// Copies the first length bytes of the text, cut at the buffer's end.
void CopyPart(char* out, std::size_t capacity, const char* text, std::size_t length)
{
    std::size_t kept = length < capacity - 1 ? length : capacity - 1;
    std::memcpy(out, text, kept);
    out[kept] = 0;
}

void AppendExtension(char* name, std::size_t capacity, const char* extension)
{
    if (!std::strchr(name, '.'))
        AppendCut(name, capacity, extension);
}

} // namespace

void SetCommandScript(CommandState& state, const char* line)
{
    std::size_t length = std::strcspn(line, " ");
    CopyPart(state.ScriptName, sizeof state.ScriptName, line, length);
    const char* rest = line + length;
    if (*rest == ' ')
        ++rest;
    CopyCut(state.ScriptParameters, sizeof state.ScriptParameters, rest);
    AppendExtension(state.ScriptName, sizeof state.ScriptName, ".Cmd");
}

void SetMacroScript(CommandState& state, const char* name)
{
    CopyPart(state.ScriptName, sizeof state.ScriptName, name, std::strcspn(name, "}"));
    AppendExtension(state.ScriptName, sizeof state.ScriptName, ".Stw");
}

} // namespace steward
