// Documents of web folders that an editor has saved to their local copies and that their servers
// have not taken yet: whichever editor saves next uploads them again.
#pragma once

#include <QString>

namespace docbench {

// Whether a save has something to do for the document even if nothing was edited.
bool IsUploadPending(const QString& document);

// To be called before a document is loaded: what was saved to a copy that was given up since is
// gone, and not to be uploaded any more.
void ForgetGivenUpCopies();

// Writes the saved copy of a document back to its address; does nothing for an empty one. False
// when the server has not taken it, which the user has been told.
bool UploadSaved(const QString& document, const QString& address);

}  // namespace docbench
