// Opening documents and other files in the programs that they belong to.
#pragma once

#include <QString>

namespace docbench {

// True when this process is the CAD application, with the controls on one of its windows.
bool IsHostedByCad();

// Opens a document in the CAD application, starting it if it does not run; a help file in the help
// window; any other file in the program that the desktop associates with it. `parameters` and
// `folder` count only there; "0" stands for none. Says nothing when a document can't be opened.
void OpenDocumentExternally(const QString& verb, const QString& file, const QString& parameters,
                            const QString& folder, int showCommand);

// Lets the user choose a folder, beginning at `start`; `what` tells in the title what for. Empty on
// cancel.
QString BrowseForFolder(const QString& start, const QString& what);

}  // namespace docbench
