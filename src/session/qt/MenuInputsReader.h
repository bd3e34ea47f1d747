#pragma once

#include "session/MenuState.h"

namespace steward {

class ChildWindowSet;
class CommandLine;
class GameLink;
class ScriptControl;
struct Session;

// Where the menus' greying and checks are read from, each time a menu opens.
struct MenuSources {
    const Session& State;
    const GameLink& Link;
    const CommandLine& Line;
    ChildWindowSet& Windows;
    const ScriptControl& Scripts;
};

MenuInputs ReadMenuInputs(const MenuSources& sources);

} // namespace steward
