#include "setup/folderlisteditor.h"

#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <algorithm>
#include <initializer_list>

#include "panes/celllistview.h"
#include "services/dialogs.h"
#include "services/folderlists.h"
#include "services/language.h"
#include "services/openexternal.h"
#include "services/seams.h"
#include "services/texts.h"

namespace docbench {
namespace {

void Enable(std::initializer_list<QPushButton*> buttons, bool enabled) {
    for (QPushButton* button : buttons)
        button->setEnabled(enabled);
}

QString TextOf(const CellListView& view, int row) {
    return view.List().At(row).cells.front().text;
}

void SetText(CellListView& view, int row, const QString& text) {
    view.List().Change(
        row, [&](CellRow& changed) { changed.cells.front() = {.text = text, .toolTip = text}; });
}

CellRow FolderRow(const QString& folder) {
    return {.cells = {{.text = folder, .toolTip = folder}}};
}

}  // namespace

FolderListEditor::FolderListEditor(const Controls& controls,
                                   std::function<void(const QString&)> showStatus, QObject* parent)
    : QObject(parent), controls_(controls), showStatus_(std::move(showStatus)) {
    for (CellListView* view : {controls_.wuNameDir, controls_.DirList})
        view->List().SetHeaders({{}});
    Connect();
}

void FolderListEditor::Connect() {
    connect(controls_.wuNameDir, &CellListView::RowClicked, this, &FolderListEditor::PickName);
    connect(controls_.wuNameDir, &CellListView::PickedByKey, this, &FolderListEditor::PickName);
    connect(controls_.wuKey, &QLineEdit::textChanged, this, &FolderListEditor::OnKeyChanged);
    connect(controls_.DirList, &CellListView::RowClicked, this, &FolderListEditor::PickFolder);
    connect(controls_.DirList, &CellListView::PickedByKey, this, &FolderListEditor::PickFolder);
    const auto onClick = [this](QPushButton* button, auto action) {
        connect(button, &QPushButton::clicked, this, action);
    };
    onClick(controls_.wuAddNewDir, [this] { AddFolder(); });
    onClick(controls_.wumoveup, [this] { MoveFolder(-1); });
    onClick(controls_.wumovedown, [this] { MoveFolder(+1); });
    onClick(controls_.wuDeleteDir, [this] { DeleteFolders(); });
    onClick(controls_.wuReset, [this] { controls_.DirList->List().Clear(); });
    onClick(controls_.wuApply, [this] { Apply(); });
    onClick(controls_.wuDelKey, [this] { DeleteList(); });
}

void FolderListEditor::ReloadNames() {
    RefreshFolderList(controls_.wuNameDir->List());
    controls_.DirList->List().Clear();
}

void FolderListEditor::ClearEditor() {
    Enable({controls_.wuDelKey, controls_.wuDeleteDir, controls_.wumoveup, controls_.wumovedown,
            controls_.wuAddNewDir, controls_.wuApply, controls_.wuReset},
           false);
    controls_.wuApply->setText(Tr(Text::AddFolderList));
    controls_.wuKey->clear();
}

void FolderListEditor::PickName(int row) {
    const QString name = TextOf(*controls_.wuNameDir, row);
    if (controls_.wuKey->text() == name)
        OnKeyChanged();  // picked again: what is stored, whatever has been edited
    else
        controls_.wuKey->setText(name);
    Enable({controls_.wuAddNewDir, controls_.wuApply, controls_.wuDelKey}, true);
    Enable({controls_.wumoveup, controls_.wumovedown, controls_.wuDeleteDir}, false);
    controls_.wuNameDir->SelectRow(row);
    controls_.wuKey->setFocus();
    controls_.wuKey->selectAll();
}

void FolderListEditor::OnKeyChanged() {
    const QString name = controls_.wuKey->text();
    if (name.isEmpty())
        return ClearEditor();
    const int row = RowOfName(name);
    controls_.wuApply->setText(Tr(row < 0 ? Text::AddFolderList : Text::Change));
    if (row >= 0) {
        controls_.wuNameDir->SelectRow(row);
        LoadDirList(ValueNameOf(name));
    }
    Enable({controls_.wuDelKey, controls_.wuAddNewDir, controls_.wumoveup, controls_.wumovedown,
            controls_.wuDeleteDir, controls_.wuApply, controls_.wuReset},
           true);
}

void FolderListEditor::LoadDirList(const QString& valueName) {
    std::vector<CellRow> rows;
    for (const QString& folder : ReadFolderList(valueName).split(u';', Qt::SkipEmptyParts))
        rows.push_back(FolderRow(folder));
    controls_.DirList->List().Clear();
    controls_.DirList->List().Append(std::move(rows));
}

int FolderListEditor::RowOfName(const QString& name) const {
    const std::vector<CellRow>& rows = controls_.wuNameDir->List().Rows();
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const CellRow& row) {
        return row.cells.front().text == name;
    });
    return found == rows.end() ? -1 : int(found - rows.begin());
}

QString FolderListEditor::ValueNameOf(const QString& name) const {
    const int row = RowOfName(name);
    const bool foreign = row >= 0 && controls_.wuNameDir->List().At(row).cells[1].text !=
                                         QLatin1String(kFolderListMarker);
    return foreign ? name : name + QLatin1String(kFolderListMarker);
}

void FolderListEditor::AddFolder() {
    const QPointer<FolderListEditor> alive(this);
    const QString folder = BrowseForFolder(QString(), Tr(Text::FolderListWhat));
    if (!alive || folder.isEmpty())
        return;
    controls_.DirList->List().Append(FolderRow(folder));
    Enable({controls_.wuDeleteDir, controls_.wuApply}, true);
}

void FolderListEditor::PickFolder() {
    const int count = controls_.DirList->List().Count();
    const int row = controls_.DirList->SelectedRow();
    controls_.wumoveup->setEnabled(count >= 2 && row != 0);
    controls_.wumovedown->setEnabled(count >= 2 && row != count - 1);
    controls_.wuDeleteDir->setEnabled(count > 0);
    controls_.DirList->setFocus();
}

void FolderListEditor::MoveFolder(int by) {
    CellListView& folders = *controls_.DirList;
    const int row = folders.SelectedRow();
    const int other = row + by;
    if (row < 0 || other < 0 || other >= folders.List().Count())
        return;
    const QString moved = TextOf(folders, row);
    SetText(folders, row, TextOf(folders, other));
    SetText(folders, other, moved);
    folders.SelectRow(other);
    PickFolder();
}

void FolderListEditor::DeleteFolders() {
    CellList& folders = controls_.DirList->List();
    const QList<int> rows = controls_.DirList->SelectedRows();
    if (rows.size() == folders.Count()) {
        folders.Clear();
    } else {
        for (auto row = rows.crbegin(); row != rows.crend(); ++row)
            folders.Remove(*row);
    }
    if (folders.Count() == 0)
        Enable({controls_.wuDeleteDir, controls_.wuApply, controls_.wumovedown, controls_.wumoveup},
               false);
    controls_.DirList->setFocus();
}

void FolderListEditor::Apply() {
    const QString name = controls_.wuKey->text();
    if (name.isEmpty())
        return;
    if (name.contains(u' ')) {
        const QPointer<FolderListEditor> alive(this);
        gSeams.dialogs->Box(Tr(Text::FolderListNameWithBlank), Dialogs::Icon::Exclamation,
                            gAppTitle);
        if (alive)
            controls_.wuKey->setFocus();
        return;
    }
    QStringList folders;
    for (const CellRow& row : controls_.DirList->List().Rows())
        folders.append(row.cells.front().text);
    WriteFolderList(ValueNameOf(name), folders.join(u';'));
    ReloadNames();
    controls_.wuKey->clear();
    Enable({controls_.wuAddNewDir, controls_.wumoveup, controls_.wumovedown, controls_.wuDeleteDir},
           false);
    showStatus_(Format(Text::FolderListSaved, name));
}

void FolderListEditor::DeleteList() {
    const QString name = controls_.wuKey->text();
    if (name.isEmpty())
        return;
    const QPointer<FolderListEditor> alive(this);
    if (!DeleteFolderList(ValueNameOf(name)))
        gSeams.dialogs->Box(Format(Text::FolderListNotDeleted, name), Dialogs::Icon::None,
                            gAppTitle);
    if (!alive)
        return;
    ReloadNames();
    ClearEditor();
}

}  // namespace docbench
