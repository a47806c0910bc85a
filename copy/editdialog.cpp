#include "copy/editdialog.h"

#include "panes/celllistview.h"
#include "services/dialogs.h"
#include "services/language.h"
#include "services/seams.h"
#include "services/texts.h"
#include "shell/languagefonts.h"
#include "ui_editdialog.h"

namespace docbench {

editDialog::editDialog(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::editDialog>()) {
    LoadResources();
    ui_->setupUi(this);
    SetCaptions();
    ApplyLanguageFonts(*this);
    EnableButtons();
    connect(ui_->FindtextBox, &QLineEdit::textChanged, this, &editDialog::EnableButtons);
    connect(ui_->findNext, &QPushButton::clicked, this, &editDialog::FindNext);
    connect(ui_->ReplaceButton, &QPushButton::clicked, this, &editDialog::Replace);
    connect(ui_->replaceallButton, &QPushButton::clicked, this, &editDialog::ReplaceAll);
    connect(ui_->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

editDialog::~editDialog() = default;

void editDialog::SetCaptions() {
    setWindowTitle(Tr(Text::MenuReplace));
    ui_->MatchCase->setText(Tr(Text::MatchCase));
    ui_->ReplaceButton->setText(Tr(Text::ReplaceButton));
    ui_->findNext->setText(Tr(Text::FindNext));
    ui_->CancelButton->setText(Tr(Text::Cancel));
    ui_->replaceallButton->setText(Tr(Text::ReplaceAll));
    ui_->Label2->setText(Tr(Text::ReplaceWith));
    ui_->Label1->setText(Tr(Text::FindWhat));
}

void editDialog::EnableButtons() {
    const bool any = !ui_->FindtextBox->text().isEmpty();
    for (QPushButton* button : {ui_->findNext, ui_->ReplaceButton, ui_->replaceallButton})
        button->setEnabled(any);
}

void editDialog::setListView(CellListView* list) {
    targetList = list;
    replace_ = std::make_unique<TextReplace>(list->List());
}

void editDialog::unsetListView() {
    replace_.reset();
    targetList = nullptr;
}

void editDialog::done(int result) {
    unsetListView();
    QDialog::done(result);
}

void editDialog::FindNext() {
    if (targetList)
        ShowHit(replace_->FindNext(ui_->FindtextBox->text()));
}

void editDialog::Replace() {
    if (targetList)
        ShowHit(replace_->Replace(ui_->FindtextBox->text(), ui_->replaceTextBox->text()));
}

void editDialog::ReplaceAll() {
    if (targetList)
        replace_->ReplaceAll(ui_->FindtextBox->text(), ui_->replaceTextBox->text());
}

void editDialog::ShowHit(bool found) {
    if (found)
        targetList->SelectRow(replace_->CurrentRow() - 1);
    else
        gSeams.dialogs->Box(Format(Text::TextNotFound, ui_->FindtextBox->text()),
                            Dialogs::Icon::Exclamation, gAppTitle);
}

}  // namespace docbench
