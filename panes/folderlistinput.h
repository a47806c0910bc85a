// The input of a list of folders: a text, the named lists that drop down, a browse button.
#pragma once

#include <QObject>

class QLineEdit;
class QListView;
class QPushButton;

namespace docbench {

class CellList;

class FolderListInput : public QObject {
    Q_OBJECT

public:
    struct Controls {
        QLineEdit* wuLookin;
        QPushButton* wuDrop1;
        QPushButton* browse;
    };
    enum class OnLeaving { Accepts, TestsFolders };
    enum class Drops { Appends, Refuses };

    // The controls belong to `form`, which gets the list "List1" as a further child and owns this
    // object.
    FolderListInput(const Controls& controls, OnLeaving onLeaving, QWidget* form,
                    Drops drops = Drops::Appends);

    QString Text() const;
    // A new entry behind those that are there.
    void Append(const QString& entry);
    // Tests the folders of a field that was just left, which otherwise comes with the next events.
    void TestIfLeft();
    void HideList();
    void RefreshList();  // from the settings
    // Whether the list is filled anew each time it drops down; else it keeps what RefreshList gave.
    void SetRefillsOnShow(bool refills) { refillsOnShow_ = refills; }
    // In place of the usual title of the dialog that browses for a folder.
    void SetBrowseTitle(const QString& title) { browseTitle_ = title; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ToggleList();
    void Browse();
    void Pick(int row);
    void TestFolders();

    Controls controls_;
    OnLeaving onLeaving_;
    QWidget* form_;
    QListView* List1_;
    CellList* names_;
    bool refillsOnShow_ = true;
    QString browseTitle_;   // empty: the usual one
    bool isLeft_ = false;   // and its folders are still to be tested
    bool testing_ = false;  // its own box takes the focus as well
};

}  // namespace docbench
