// The editor of the named folder lists, on the controls of the setup pane.
#pragma once

#include <QObject>
#include <functional>

class QLineEdit;
class QPushButton;

namespace docbench {

class CellListView;

class FolderListEditor : public QObject {
    Q_OBJECT

public:
    struct Controls {
        CellListView* wuNameDir;  // the names; the first sub-item is the marker of the user's own
        CellListView* DirList;    // the folders of the list that is edited
        QLineEdit* wuKey;         // its name
        QPushButton* wuApply;
        QPushButton* wuDelKey;
        QPushButton* wuAddNewDir;
        QPushButton* wuDeleteDir;
        QPushButton* wumoveup;
        QPushButton* wumovedown;
        QPushButton* wuReset;
    };
    // `showStatus` is told what was stored.
    FolderListEditor(const Controls& controls, std::function<void(const QString&)> showStatus,
                     QObject* parent);

    void ReloadNames();
    void ClearEditor();

private:
    void Connect();
    void PickName(int row);
    void OnKeyChanged();
    void LoadDirList(const QString& valueName);
    QString ValueNameOf(const QString& name) const;
    int RowOfName(const QString& name) const;  // -1 without
    void AddFolder();
    void PickFolder();
    void MoveFolder(int by);
    void DeleteFolders();
    void Apply();
    void DeleteList();

    Controls controls_;
    std::function<void(const QString&)> showStatus_;
};

}  // namespace docbench
