// The half of the copy pane that concerns the targets: fields, dialogs, and what follows them.

#include <QFocusEvent>
#include <QKeyEvent>

#include "copy/copychecks.h"
#include "copy/copylist.h"
#include "copy/copyref.h"
#include "copy/editdialog.h"
#include "copy/parentlist.h"
#include "panes/celllistview.h"
#include "services/dialogs.h"
#include "services/language.h"
#include "services/openexternal.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webdocument.h"
#include "shell/openurlfrm.h"
#include "ui_copyref.h"

namespace docbench {
namespace {

constexpr int kBehindAnyPath = 1000;  // a length and a position

}  // namespace

QString copyRef::SourceTarget(const QString& folder) const {
    return TargetIn(folder, CopyName({mPrefix, mSuffix}, FileNameOf(mDocumentPath)));
}

void copyRef::UpdateAffix() {
    const bool inFront = ui_->OptionPrefix_0->isChecked();
    mPrefix = inFront ? ui_->prefix->text() : QString();
    mSuffix = inFront ? QString() : ui_->prefix->text();
}

void copyRef::RecomputeTargets(bool forceLong) {
    UpdateAffix();
    if (mDocumentPath.isEmpty())
        return;
    docbench::RecomputeTargets(
        {.folder = FolderText(), .affixes = {mPrefix, mSuffix}, .forceLong = forceLong},
        mRowFolders, Copies(), Parents());
    ui_->toFile->setText(SourceTarget(FolderText()));
}

// Every name is accepted: what the disk makes of it, the copy finds out.
bool copyRef::ValidateFolderText(const QString&) const {
    return true;
}

bool copyRef::ValidateTargetFile(const QString& path) const {
    return ValidateFolderText(FolderOf(path));
}

void copyRef::OnTargetPathChanged(const QString& text) {
    if (!text.isEmpty())
        RecomputeTargets(true);
}

void copyRef::OnToFileChanged(const QString& text) {
    mTargetAccepted = false;
    if (text.isEmpty())
        ui_->apply->setEnabled(false);
}

bool copyRef::eventFilter(QObject* watched, QEvent* event) {
    // A field that loses the focus since it was disabled was not left by the user.
    const auto* field = qobject_cast<QWidget*>(watched);
    if (field && field->isEnabled() && event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
        if (watched == ui_->toFile)
            AcceptTargetFile();
        else if (!ValidateFolderText(FolderText()))
            ui_->targetPath->setText(mOriginalFolder);
    }
    if (event->type() == QEvent::KeyPress && OnKey(watched, static_cast<QKeyEvent*>(event)->key()))
        return true;
    return Pane::eventFilter(watched, event);
}

bool copyRef::OnKey(const QObject* field, int key) {
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!enter && key != Qt::Key_Escape)
        return false;
    if (field == ui_->toFile)
        enter ? AcceptTargetFile() : ResetTargetFile();
    else if (enter)
        AcceptTargetPath();
    else {
        ui_->apply->setEnabled(false);
        ui_->targetPath->setText(mOriginalFolder);
    }
    return true;
}

// Beside a text that was refused once, the user's second try stands.
void copyRef::AcceptTargetFile() {
    if (mTargetAccepted || ValidateTargetFile(ui_->toFile->text())) {
        ui_->apply->setEnabled(true);
        return;
    }
    Refuse(ui_->toFile);
    mTargetAccepted = true;
}

// The text always goes in front here, and the separator is that of a disk.
void copyRef::ResetTargetFile() {
    ui_->apply->setEnabled(false);
    const QChar separator = IsWebPath(FolderText()) ? u'\\' : u'/';
    ui_->toFile->setText(FolderText() + separator + ui_->prefix->text() +
                         FileNameOf(mDocumentPath));
}

void copyRef::AcceptTargetPath() {
    if (!ValidateFolderText(FolderText()))
        return Refuse(ui_->targetPath);
    RecomputeTargets(true);
    ui_->apply->setEnabled(true);
}

void copyRef::Refuse(QLineEdit* field) {
    field->setFocus();
    field->setSelection(0, kBehindAnyPath);
    ui_->apply->setEnabled(false);
}

void copyRef::BrowseFile() {
    const QPointer<copyRef> alive(this);
    const QString source = ui_->oldname->text();
    const QString name =
        gWebDocument ? PickWebDocument(this)
                     : gSeams.dialogs->SaveFile(Tr(Text::ChooseDocument), FilterFor(source),
                                                FolderOf(source) + FileNameOf(ui_->toFile->text()));
    if (!alive)
        return;
    if (!name.isEmpty()) {
        if (gWebDocument || ValidateTargetFile(name))
            ui_->toFile->setText(name);
        else
            ui_->toFile->setCursorPosition(0);
    }
    ui_->toFile->setFocus();
    ui_->toFile->setCursorPosition(kBehindAnyPath);
}

void copyRef::BrowseFolder() {
    const QPointer<copyRef> alive(this);
    const QString folder = BrowseForFolder(FolderText(), Tr(Text::CopyTargetWhat));
    if (!alive || folder.isEmpty())
        return;
    ui_->targetPath->setText(folder);
    RecomputeTargets(true);
}

// One row's target by hand.
void copyRef::ChooseTarget(CellListView* list, int row) {
    const bool isCopy = list == ui_->lv_0;
    const CellRow& shown = list->List().At(row);
    const bool hasTarget = isCopy || ReadParentRow(shown).state == ParentState::Copy;
    QString path = shown.cells[isCopy ? size_t(kCopyTarget) : size_t(kParentTarget)].tag;
    const bool isLocked = !ui_->toFile->isEnabled();  // a copy runs, or is done
    if (path.isEmpty() || !hasTarget || isLocked)
        return;
    const QPointer<copyRef> alive(this);
    const int load = loads_;
    const QString name = gSeams.dialogs->SaveFile(Tr(Text::ChooseDocument), FilterFor(path),
                                                  FolderText() + u'/' + FileNameOf(path));
    if (!alive || load != loads_ || name.isEmpty())
        return;
    if (isCopy)
        SetCopyTarget(Copies(), row, name);
    else
        SetParentTarget(Parents(), row, name);
}

void copyRef::ReplaceInTargets() {
    editDialog dialog(window());
    editDialog_ = &dialog;
    dialog.setListView(ui_->lv_0);
    dialog.exec();
}

}  // namespace docbench
