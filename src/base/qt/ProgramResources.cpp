#include "base/qt/ProgramResources.h"

#include <QtGlobal>

// The compiled-in files sit in the static ui library, whose resource initialiser nothing else
// references, so it is called here by name; it must be called outside any namespace.
static void InitResources()
{
    Q_INIT_RESOURCE(resources);
}

namespace steward {

void LoadProgramResources()
{
    static const bool loaded = [] {
        InitResources();
        return true;
    }();
    (void)loaded;
}

} // namespace steward
