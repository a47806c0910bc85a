#include "services/exporttable.h"

#include "services/dialogs.h"
#include "services/errorstate.h"
#include "services/language.h"
#include "services/seams.h"
#include "services/spreadsheet.h"
#include "services/texts.h"

namespace docbench {

bool ExportToSpreadsheet(const std::optional<TextTable>& table, QString* where) {
    if (!table || !gSeams.spreadsheet)
        return false;
    QString file;
    ErrorState errors;
    if (!errors.Assign(file, [&] { return gSeams.spreadsheet->Show(*table); })) {
        gSeams.dialogs->Box(Format(Text::ExportError, errors.Description()), Dialogs::Icon::None,
                            QString());
        return false;
    }
    if (where)
        *where = file;
    return true;
}

}  // namespace docbench
