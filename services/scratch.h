// The process's own folder for temporary files, safe from other users and cleaned up after crashes.
#pragma once

#include <QString>

namespace docbench {

// Below the system's temporary folder, readable by this user alone, with a separator at its end;
// empty until PrepareScratch has run.
extern QString gTempFolder;
// The scratch file of the preview: one for the process, overwritten by each preview.
extern QString gTempBitmap;

// What every control runs at its start: makes the temporary folder when there is none yet, and
// clears away what is stale. When none can be made the log says why, and gTempFolder names a folder
// that is not there: whoever writes into it fails and tells the user.
void PrepareScratch();

// Deletes the local copies left in this process's folder, and the whole folders of processes that
// are gone, however they ended. The folder of a living one is never touched.
void DeleteStaleScratch();

// Deletes this process's local copies: at the stop of the frame.
void DeleteScratch();

}  // namespace docbench
