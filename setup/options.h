// The user's options, as the settings store keeps them.
#pragma once

#include <QString>
#include <optional>

namespace docbench {

enum class Option { ShowDescription, UseSearchRules, UseViewer, Logging };

// None while nobody has stored it. That of the log is looked for in the settings of the machine
// where the user has none.
std::optional<bool> ReadOption(Option option);

// NotOpened: the store can't be read, and nothing was tried.
enum class Stored { Yes, NotOpened, Failed };
Stored StoreOption(Option option, bool value);

}  // namespace docbench
