// The form that finds and replaces a text in the targets of a list.
#pragma once

#include <QDialog>
#include <memory>

#include "copy/textreplace.h"

namespace Ui {
class editDialog;
}

namespace docbench {

class CellListView;

class editDialog : public QDialog {
    Q_OBJECT

public:
    explicit editDialog(QWidget* parent = nullptr);
    ~editDialog() override;

    // The list that is worked on, from its top; it is not owned.
    void setListView(CellListView* list);
    void unsetListView();

protected:
    void done(int result) override;

private:
    void SetCaptions();
    void EnableButtons();
    void FindNext();
    void Replace();
    void ReplaceAll();
    void ShowHit(bool found);

    std::unique_ptr<Ui::editDialog> ui_;
    CellListView* targetList = nullptr;
    std::unique_ptr<TextReplace> replace_;
};

}  // namespace docbench
