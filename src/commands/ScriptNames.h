#pragma once

namespace steward {

struct CommandState;

// A typed `.Cmd` line without its prefix: the name up to the first blank, ".Cmd" when it has
// no dot, and the rest behind one blank as the parameters.
void SetCommandScript(CommandState& state, const char* line);
// The name of a `{=name}` macro, cut at its closing brace, with ".Stw" when it has no dot.
void SetMacroScript(CommandState& state, const char* name);

} // namespace steward
