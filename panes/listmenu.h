// The menu of a list of documents: open and export.
#pragma once

#include <QMenu>
#include <functional>
#include <optional>

#include "services/listtable.h"

class QLabel;
class QAction;

namespace docbench {

class CellListView;
class Pane;

class ListMenu : public QMenu {
    Q_OBJECT

public:
    // Named `name`; pops up over the list, whose form owns it. `open` and `exportList` are what its
    // entries "mnopen" and "mnexport" do.
    ListMenu(const char* name, CellListView* list, std::function<void()> open,
             std::function<void()> exportList);

    // How mnopen is enabled in a list with rows: always, or only with a selected row.
    enum class Opens { AnyRow, SelectedRow };
    void SetOpens(Opens opens) { opens_ = opens; }
    // With SelectedRow: which rows can be opened; by default all.
    void SetCanOpen(std::function<bool(int row)> canOpen) { canOpen_ = std::move(canOpen); }

private:
    void PopUp(QPoint globalPosition);

    CellListView* list_;
    QAction* mnopen;
    QAction* mnexport;
    Opens opens_ = Opens::AnyRow;
    std::function<bool(int)> canOpen_ = [](int) { return true; };
};

// Opens a document in the CAD application, by the verb "Open".
void OpenDocumentInCad(const QString& path);

// Exports a table. The pane's status line tells how it went, and `place`, a label of the pane,
// where the file is. The pane may go away behind the box of a failure.
void ExportFrom(Pane& pane, const std::optional<TextTable>& table, QLabel& place);

}  // namespace docbench
