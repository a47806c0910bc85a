#include "panes/searchprogress.h"

#include <QLabel>

#include "services/docaccess.h"
#include "services/language.h"
#include "services/texts.h"

namespace docbench {

void ShowSearchProgress(QLabel& label, const SearchCounts& counts, int rowsFound,
                        TextId<1> foundText) {
    QStringList parts{Format(Text::DocumentsLookedAt, QString::number(counts.documents)),
                      Format(foundText, QString::number(rowsFound))};
    if (counts.unread > 0)
        parts.append(Format(Text::FilesNotRead, QString::number(counts.unread)));
    label.setText(parts.join(QStringLiteral("   ")));
    label.repaint();
}

}  // namespace docbench
