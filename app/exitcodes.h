// How the program ends.
#pragma once

namespace docbench {

inline constexpr int kExitDone = 0;
inline constexpr int kExitPartly = 1;  // done, but something was refused or failed
inline constexpr int kExitUsage = 2;
inline constexpr int kExitNoDocument = 3;  // the document can't be opened

}  // namespace docbench
