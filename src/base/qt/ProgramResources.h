#pragma once

namespace steward {

// Makes the compiled-in files (pictures, sounds, notes) reachable under ":/"; once is enough,
// and later calls do nothing.
void LoadProgramResources();

} // namespace steward
