// Everything outside the process, as the rest of the system reaches it.
#pragma once

namespace docbench {

class Dialogs;
class DocumentAccess;
class FileSystem;
class HelpViewer;
class KeyRing;
class OutsideObjects;
class ShellExecute;
class Spreadsheet;

// Set once by the program (or the test) before the first control is made; owned by whoever sets
// them.
struct Seams {
    Dialogs* dialogs = nullptr;           // until they are set, messages go to the log
    DocumentAccess* documents = nullptr;  // null when the document library could not be loaded
    FileSystem* files = nullptr;          // null: the disk itself
    HelpViewer* help = nullptr;
    KeyRing* keyring = nullptr;  // null: passwords are kept in memory alone
    OutsideObjects* outside = nullptr;
    ShellExecute* shell = nullptr;
    Spreadsheet* spreadsheet = nullptr;
};

extern Seams gSeams;

}  // namespace docbench
