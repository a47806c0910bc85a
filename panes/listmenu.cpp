#include "panes/listmenu.h"

#include <QLabel>
#include <QPointer>

#include "panes/celllistview.h"
#include "services/exporttable.h"
#include "services/language.h"
#include "services/openexternal.h"
#include "services/texts.h"
#include "shell/pane.h"

namespace docbench {

ListMenu::ListMenu(const char* name, CellListView* list, std::function<void()> open,
                   std::function<void()> exportList)
    : QMenu(list), list_(list) {
    setObjectName(QLatin1String(name));
    mnopen = addAction(Tr(Text::MenuOpen), this, std::move(open));
    mnopen->setObjectName(QStringLiteral("mnopen"));
    mnexport = addAction(Tr(Text::MenuExport), this, std::move(exportList));
    mnexport->setObjectName(QStringLiteral("mnexport"));
    connect(list, &CellListView::MenuRequested, this, &ListMenu::PopUp);
}

void ListMenu::PopUp(QPoint globalPosition) {
    const bool rows = list_->List().Count() > 0;
    const int selected = list_->SelectedRow();
    mnopen->setEnabled(rows && (opens_ == Opens::AnyRow || (selected >= 0 && canOpen_(selected))));
    mnexport->setEnabled(rows);
    popup(globalPosition);
}

void OpenDocumentInCad(const QString& path) {
    OpenDocumentExternally(QStringLiteral("Open"), path, QStringLiteral("0"), QStringLiteral("0"),
                           1);
}

void ExportFrom(Pane& pane, const std::optional<TextTable>& table, QLabel& place) {
    const QPointer<Pane> alive(&pane);
    QString where;
    const bool done = ExportToSpreadsheet(table, &where);
    if (!alive)
        return;
    pane.SetStatusText(done ? Format(Text::ExportDone, QString::number(table->size() - 1))
                            : QString(Tr(Text::ExportFailed)));
    if (!where.isEmpty())
        place.setText(where);
}

}  // namespace docbench
