// The form that says where, and for which kinds of use, to look for the users of a document.
#pragma once

#include <QDialog>
#include <memory>

#include "panes/usekinds.h"

namespace Ui {
class SearchDialog;
}

namespace docbench {

class FolderListInput;
class UseKindBoxes;

// What the form says; it outlives the form. After Cancel it is as it was before.
struct SearchScope {
    QString Lookin;
    bool subfolders = true;
    bool inContext = true;
    bool references = true;
    bool mirrored = true;
};

class SearchDialog : public QDialog {
    Q_OBJECT

public:
    explicit SearchDialog(SearchScope& scope, QWidget* parent = nullptr);
    ~SearchDialog() override;

    // Fills the form before it is shown.
    void init(const QString& lookin, bool subfolders, bool inContext, bool references,
              bool mirrored);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    void SetCaptions();
    void TakeOver();

    SearchScope& scope_;
    std::unique_ptr<Ui::SearchDialog> ui_;
    FolderListInput* lookIn_;
    UseKindBoxes* kinds_;
};

}  // namespace docbench
