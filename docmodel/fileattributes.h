// Handing a file's mode, owner and extended attributes on to the file that takes its place.
#pragma once

struct stat;

namespace docmodel {

// Gives `to` the owner and mode in `status` and the extended attributes of `from`, access lists
// among them. False, with errno set, when something can't be kept.
bool CopyAttributes(int from, const struct stat& status, int to);

}  // namespace docmodel
