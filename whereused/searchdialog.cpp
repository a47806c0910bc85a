#include "whereused/searchdialog.h"

#include "panes/folderlistinput.h"
#include "panes/usekindboxes.h"
#include "services/language.h"
#include "services/texts.h"
#include "shell/languagefonts.h"
#include "ui_searchdialog.h"

namespace docbench {

SearchDialog::SearchDialog(SearchScope& scope, QWidget* parent)
    : QDialog(parent), scope_(scope), ui_(std::make_unique<Ui::SearchDialog>()) {
    LoadResources();
    ui_->setupUi(this);
    lookIn_ = new FolderListInput({ui_->wuLookin, ui_->wuDrop1, ui_->Command2},
                                  FolderListInput::OnLeaving::Accepts, this);
    lookIn_->SetRefillsOnShow(false);
    kinds_ = new UseKindBoxes(ui_->wuFindRef, ui_->wuFindInCtx, ui_->wifindMirrored, this);
    SetCaptions();
    ApplyLanguageFonts(*this);
    ui_->wuSubfloder->setChecked(true);
    ui_->OKButton->setEnabled(false);
    connect(ui_->wuLookin, &QLineEdit::textChanged, this,
            [this](const QString& text) { ui_->OKButton->setEnabled(!text.isEmpty()); });
    connect(ui_->OKButton, &QPushButton::clicked, this, &SearchDialog::TakeOver);
    connect(ui_->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
}

SearchDialog::~SearchDialog() = default;

void SearchDialog::SetCaptions() {
    setWindowTitle(Tr(Text::SearchScope));
    ui_->Frame1->setTitle(Tr(Text::SearchScopeFrame));
    ui_->wuLookin->setAccessibleName(Tr(Text::SearchScopeFrame));
    ui_->wuSubfloder->setText(Tr(Text::WithSubfolders));
    ui_->OKButton->setText(Tr(Text::Ok));
    ui_->CancelButton->setText(Tr(Text::Cancel));
}

void SearchDialog::init(const QString& lookin, bool subfolders, bool inContext, bool references,
                        bool mirrored) {
    ui_->wuSubfloder->setChecked(subfolders);
    kinds_->SetKinds({.references = references, .inContext = inContext, .mirrored = mirrored});
    ui_->wuLookin->setText(lookin);
}

void SearchDialog::mousePressEvent(QMouseEvent* event) {
    lookIn_->HideList();
    QDialog::mousePressEvent(event);
}

void SearchDialog::TakeOver() {
    const UseKinds kinds = kinds_->Kinds();
    scope_ = {.Lookin = ui_->wuLookin->text(),
              .subfolders = ui_->wuSubfloder->isChecked(),
              .inContext = kinds.inContext,
              .references = kinds.references,
              .mirrored = kinds.mirrored};
    accept();
}

}  // namespace docbench
