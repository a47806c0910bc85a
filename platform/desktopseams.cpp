#include "platform/desktopseams.h"

#include "platform/desktopdialogs.h"
#include "platform/desktopoutsideobjects.h"
#include "platform/desktopshellexecute.h"
#include "platform/helpwindow.h"
#include "platform/secretkeyring.h"
#include "platform/windowtexts.h"
#include "platform/xlsxspreadsheet.h"
#include "services/documentlibrary.h"
#include "services/programfolder.h"

namespace docbench {

struct DesktopSeams::Parts {
    DesktopDialogs dialogs;
    DocumentLibrary library;
    HelpWindow help;
    SecretKeyRing keyring;
    DesktopOutsideObjects outside;
    DesktopShellExecute shell;
    XlsxSpreadsheet spreadsheet;
    WindowTexts texts;
};

DesktopSeams::DesktopSeams() : parts_(std::make_unique<Parts>()), former_(gSeams) {
    gSeams = {.dialogs = &parts_->dialogs,
              .documents = parts_->library.Access(),
              .help = &parts_->help,
              .keyring = &parts_->keyring,
              .outside = &parts_->outside,
              .shell = &parts_->shell,
              .spreadsheet = &parts_->spreadsheet};
    parts_->texts.Load(ProgramFolder());
}

DesktopSeams::~DesktopSeams() {
    gSeams = former_;
}

}  // namespace docbench
