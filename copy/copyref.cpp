#include "copy/copyref.h"

#include <QCoreApplication>

#include "copy/copychecks.h"
#include "copy/copylist.h"
#include "copy/copywalk.h"
#include "copy/editdialog.h"
#include "copy/parentlist.h"
#include "copy/parentsearch.h"
#include "frame/desccontrol.h"
#include "panes/celllistview.h"
#include "panes/listmenu.h"
#include "panes/searchprogress.h"
#include "services/dialogs.h"
#include "services/docaccess.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"
#include "shell/languagefonts.h"
#include "shell/picturestore.h"
#include "shell/waitcursor.h"
#include "ui_copyref.h"
#include "whereused/filemissingdialog.h"

namespace docbench {
namespace {

constexpr int kDrawEvery = 50;  // milliseconds between two pictures of the progress

QString Labelled(const QString& text) {
    return text + QStringLiteral(" :");
}

void Warn(const QString& text) {
    gSeams.dialogs->Box(text, Dialogs::Icon::Exclamation, gAppTitle);
}

int AskWithButtons(const QString& question, const QStringList& buttons, QWidget* parent) {
    FileMissingDialog dialog(parent->window());  // which the pane may leave alone
    dialog.init(question);
    dialog.SetNumberOfButton(int(buttons.size()));
    for (int i = 0; i < buttons.size(); ++i)
        dialog.SetButton(i, buttons[i]);
    dialog.exec();
    return dialog.Result;
}

}  // namespace

copyRef::copyRef(QWidget* parent) : Pane(parent), ui_(std::make_unique<Ui::copyRef>()) {
    LoadResources();
    ui_->setupUi(this);
    InitLists();
    InitPaneTexts();
    ApplyLanguageFonts(*this);
    ConnectControls();
    EnablePaneControls(false);
    ShowTargetControls(false);
    ShowLists();
}

copyRef::~copyRef() {
    if (editDialog_)
        editDialog_->reject();
}

CellList& copyRef::Copies() {
    return ui_->lv_0->List();
}

CellList& copyRef::Parents() {
    return ui_->lv_1->List();
}

QString copyRef::FolderText() const {
    return ui_->targetPath->text();
}

void copyRef::InitLists() {
    PrepareCopyList(Copies());
    PrepareParentList(Parents());
    new ListMenu(
        "mnlistmenu", ui_->lv_0, [this] { OpenCopyRow(); },
        [this] { Export(PackCopyList(Copies())); });
    auto* parents = new ListMenu(
        "mnlistmenu2", ui_->lv_1, [this] { OpenParentRow(); },
        [this] { Export(PackParentList(Parents())); });
    parents->actions()[0]->setObjectName(QStringLiteral("mn2open"));
    parents->actions()[1]->setObjectName(QStringLiteral("mn2export"));
}

void copyRef::InitPaneTexts() {
    ui_->cmdReplace->setText(Tr(Text::ReplaceButton));
    ui_->BrowseFile->setText(Tr(Text::BrowseMore));
    ui_->children->setText(Tr(Text::CopyReferencesToo));
    ui_->selectall->setText(Tr(Text::ClearAll));
    ui_->whereused->setText(Tr(Text::ParentDocuments));
    ui_->browse->setText(Tr(Text::Browse));
    ui_->OptionPrefix_0->setText(Tr(Text::AsPrefix));
    ui_->OptionPrefix_1->setText(Tr(Text::AsSuffix));
    ui_->apply->setText(Tr(Text::Apply));
    ui_->reset->setText(Tr(Text::Reset));
    ui_->Frame2->setTitle(Tr(Text::ParentDocuments));
    ui_->Findnow->setText(Tr(Text::FindNow));
    ui_->searchrule->setText(Tr(Text::MenuSearchScope));
    ui_->LabelFolder->setText(Labelled(Tr(Text::TargetFolder)));
    ui_->Re->setText(Labelled(Tr(Text::CopyWord)));
    ui_->Label1->setText(Labelled(Tr(Text::NewName)));
    ui_->prefix->setAccessibleName(QString(Tr(Text::AsPrefix)).remove(u'&'));
    ui_->Picture1->setPixmap(
        PictureOf(QStringLiteral("COPY")).pixmap(QSize(16, 16), devicePixelRatioF()));
    ui_->lv_0->setAccessibleName(QString(Tr(Text::CopyReferencesToo)).remove(u'&'));
    ui_->lv_1->setAccessibleName(Tr(Text::ParentDocuments));
    for (CellListView* list : {ui_->lv_0, ui_->lv_1})
        list->setToolTip(Tr(Text::HeaderTip));
    ui_->DescControl1->text(Tr(Text::CopyHelp));
    ui_->DescControl1->icon(PictureOf(QStringLiteral("COPY")));
    ui_->DescControl1->SetHelpFile(gHelpFile, HelpTopic());
}

void copyRef::ConnectControls() {
    ui_->toFile->installEventFilter(this);
    ui_->targetPath->installEventFilter(this);
    connect(ui_->toFile, &QLineEdit::textChanged, this, &copyRef::OnToFileChanged);
    connect(ui_->targetPath, &QLineEdit::textChanged, this, &copyRef::OnTargetPathChanged);
    connect(ui_->prefix, &QLineEdit::textChanged, this, [this] { RecomputeTargets(false); });
    connect(ui_->OptionPrefix_0, &QRadioButton::toggled, this, [this] {
        if (ui_->prefix->isEnabled())  // else the copy is done, and its targets stay
            RecomputeTargets(false);
    });
    connect(ui_->BrowseFile, &QPushButton::clicked, this, &copyRef::BrowseFile);
    connect(ui_->browse, &QPushButton::clicked, this, &copyRef::BrowseFolder);
    connect(ui_->children, &QCheckBox::toggled, this, &copyRef::OnChildren);
    connect(ui_->whereused, &QCheckBox::toggled, this, &copyRef::OnWhereUsed);
    connect(ui_->selectall, &QPushButton::clicked, this, &copyRef::SelectAll);
    connect(ui_->cmdReplace, &QPushButton::clicked, this, &copyRef::ReplaceInTargets);
    connect(ui_->Findnow, &QPushButton::clicked, this, &copyRef::FindOrStop);
    connect(ui_->searchrule, &QPushButton::clicked, this, &copyRef::ChooseScope);
    connect(ui_->reset, &QPushButton::clicked, this, &copyRef::ResetParents);
    connect(ui_->apply, &QPushButton::clicked, this, &copyRef::Apply);
    connect(ui_->lv_0, &CellListView::HeaderClicked, this,
            [this](int column) { ToggleCopyColumn(Copies(), column); });
    connect(ui_->lv_1, &CellListView::HeaderClicked, this,
            [this](int column) { ToggleParentColumn(Parents(), column); });
    // The row's box is clicked: its tick comes first, and the click behind it decides.
    connect(&Parents(), &CellList::TickedByUser, this, [this](int row) {
        ui_->lv_1->SelectRow(row);
        GoToNextState(Parents(), row);
    });
    for (CellListView* list : {ui_->lv_0, ui_->lv_1})
        connect(list, &CellListView::Activated, this,
                [this, list](int row) { ChooseTarget(list, row); });
}

void copyRef::ReleaseAll() {
    mStopSearch = true;
}

void copyRef::SetShowDesc(bool show) {
    ui_->DescControl1->setVisible(show);
}

void copyRef::hideEvent(QHideEvent* event) {
    if (editDialog_)
        editDialog_->reject();
    Pane::hideEvent(event);
}

void copyRef::SetPartName(const QString& partName, const QString& fullpath,
                          const QString& treefullpath) {
    mStopSearch = true;  // a search that is running is for another document
    if (running_) {
        pending_ = Load{partName, fullpath, treefullpath};
        return;
    }
    ++loads_;
    mPartName = partName;
    mDocumentPath = fullpath;
    ui_->oldname->setText(fullpath);
    Copies().Clear();
    Parents().Clear();
    ResetCopyHeaders(Copies());
    ResetParentHeaders(Parents());
    ShowOutcome({});
    ui_->lblProgress->clear();
    ui_->targetPath->setText(FolderNoSeparator(fullpath));
    if (fullpath.isEmpty()) {
        EnablePaneControls(false);
        EnableListButtons();
        ui_->toFile->clear();
        return;
    }
    ErrorState errors;
    if (!errors.Run([this] { LoadDocument(); }))
        Warn(errors.Description());
}

void copyRef::LoadDocument() {
    const int load = loads_;
    mOriginalFolder = FolderText();
    ui_->prefix->setText(Tr(Text::DefaultPrefix));
    UpdateAffix();
    ui_->toFile->setText(SourceTarget(FolderText()));
    mLookIn = FolderText();
    Documents().MakeDocumentFile()->Open(LocalCopyOf(mDocumentPath));  // proves that it can be read
    ui_->editBox1->show();
    ui_->whereused->setChecked(false);
    const QPointer<copyRef> alive(this);  // events run below
    ui_->children->setChecked(false);
    if (!alive || load != loads_)
        return;
    BuildCopyList(mDocumentPath);
    if (!alive || load != loads_)
        return;  // another document came in meanwhile
    EnablePaneControls(true);
    ui_->reset->setEnabled(false);
    ui_->selectall->setText(Tr(Text::ClearAll));
}

void copyRef::BuildCopyList(const QString& path) {
    const int load = loads_;
    Copies().Clear();
    mRowFolders.clear();
    mReplacedFiles.clear();
    const WaitCursor wait;
    const QPointer<copyRef> alive(this);
    QCoreApplication::processEvents();
    if (!alive || load != loads_ || path.isEmpty())
        return;
    mBaseFolder = FolderOf(path);
    const CopyWalkResult result =
        ListReferences({.document = path,
                        .targetFolder = FolderText(),
                        .affixes = {mPrefix, mSuffix},
                        .references = ui_->children->isChecked(),
                        .progress =
                            [this](int read, const QString& document) {
                                ShowStep(Format(Text::DocumentsLookedAt, read) +
                                         QStringLiteral("   ") + FileNameOf(document));
                            }},
                       Copies());
    if (!alive || load != loads_)
        return;  // in a box of the walk
    mRowFolders = result.rowFolders;
    mMissingCount = result.missing;
    ui_->lblProgress->clear();
    FitLists();
    SetStatusText(Format(Text::CopyRows, Copies().Count(), mMissingCount));
}

// Drawn at once, since events run only where they are told to, but not for every single file.
void copyRef::ShowStep(const QString& text) {
    if (sinceDrawn_.isValid() && !sinceDrawn_.hasExpired(kDrawEvery))
        return;
    sinceDrawn_.start();
    drawn_ = true;
    ui_->lblProgress->setText(text);
    ui_->lblProgress->repaint();
}

void copyRef::EnablePaneControls(bool enabled) {
    QWidget* const controls[] = {ui_->apply,      ui_->reset,      ui_->browse,   ui_->Findnow,
                                 ui_->searchrule, ui_->targetPath, ui_->toFile,   ui_->BrowseFile,
                                 ui_->prefix,     ui_->children,   ui_->whereused};
    for (QWidget* control : controls)
        control->setEnabled(enabled);
}

void copyRef::EnableAffixOptions(bool enabled) {
    for (QRadioButton* option : {ui_->OptionPrefix_0, ui_->OptionPrefix_1})
        option->setEnabled(enabled);
}

void copyRef::EnableListButtons() {
    for (QPushButton* button : {ui_->cmdReplace, ui_->selectall})
        button->setEnabled(Copies().Count() > 0);
}

void copyRef::ShowTargetControls(bool visible) {
    QWidget* const controls[] = {ui_->prefix,   ui_->targetPath, ui_->browse,    ui_->Frame3,
                                 ui_->Picture1, ui_->cmdReplace, ui_->selectall, ui_->LabelFolder};
    for (QWidget* control : controls)
        control->setVisible(visible);
    EnableListButtons();
}

void copyRef::ShowLists() {
    const bool copies = ui_->children->isChecked();
    const bool parents = ui_->whereused->isChecked();
    ui_->lv_0->setVisible(copies);
    ui_->Frame2->setVisible(parents);
    ui_->Picture2->setVisible(copies || parents);
    ui_->Frame1->setVisible(!copies && !parents);
}

// Source and target side by side, however long they are; the parents' columns as they need.
void copyRef::FitLists() {
    ui_->lv_1->FitColumns();
    ui_->lv_0->FitColumns();
    const int room = ui_->lv_0->viewport()->width() - ui_->lv_0->columnWidth(kCopyTick);
    for (const int column : {int(kCopySource), int(kCopyTarget)})
        ui_->lv_0->setColumnWidth(column, qMin(ui_->lv_0->columnWidth(column), room * 2 / 5));
}

void copyRef::OnChildren(bool ticked) {
    const int load = loads_;
    const QPointer<copyRef> alive(this);
    EnablePaneControls(false);
    EnableAffixOptions(false);
    ShowLists();
    BuildCopyList(mDocumentPath);
    if (!alive)
        return;
    EnableAffixOptions(true);
    if (load != loads_)
        return;
    if (ticked || !ui_->whereused->isChecked())
        ShowTargetControls(ticked);
    else
        EnableListButtons();
    EnablePaneControls(true);
}

void copyRef::OnWhereUsed(bool ticked) {
    if (ticked || !ui_->children->isChecked())
        ShowTargetControls(ticked);
    ShowLists();
}

void copyRef::SelectAll() {
    const bool ticks = ui_->selectall->text() == Tr(Text::SelectAll);
    TickAll(Copies(), ticks);
    ui_->selectall->setText(ticks ? Tr(Text::ClearAll) : Tr(Text::SelectAll));
}

// The button is its own stop.
void copyRef::FindOrStop() {
    if (ui_->Findnow->text() == Tr(Text::Stop)) {
        mStopSearch = true;
    } else if (!searching_) {
        const QPointer<copyRef> alive(this);
        SearchParents();
        if (!alive)
            return;
    }
    ui_->Findnow->setText(Tr(Text::FindAgain));
}

void copyRef::SearchParents() {
    const QPointer<copyRef> alive(this);
    const int load = loads_;
    const auto gone = [alive, load] { return !alive || alive->loads_ != load; };
    EnablePaneControls(false);
    EnableAffixOptions(false);  // the rows that arrive have the affixes of now
    mStopSearch = false;
    searching_ = true;
    ui_->Findnow->setText(Tr(Text::Stop));
    ui_->Findnow->setEnabled(true);
    Parents().Clear();
    RowBatch rows = ParentRows(Parents());
    const ParentSearch parents{
        .search = {.document = ui_->oldname->text(),
                   .kinds = {.references = scope_.references,
                             .inContext = scope_.inContext,
                             .mirrored = scope_.mirrored},
                   .subfolders = scope_.subfolders,
                   .status = [this](const QString& text) { SetStatusText(text); },
                   .yield = [] { QCoreApplication::processEvents(); },
                   .cancelled = [alive, gone] { return gone() || alive->mStopSearch; },
                   .progress =
                       [this, &rows](const SearchCounts& counts) {
                           rows.Offer();
                           ShowSearchProgress(*ui_->lblProgress, counts, rows.Count());
                       }},
        .targetFolder = FolderText(),
        .affixes = {mPrefix, mSuffix}};
    docbench::SearchParents(parents, mLookIn, rows);
    if (!alive)
        return;
    searching_ = false;
    EnableAffixOptions(true);
    if (gone())
        return;
    rows.Flush();
    SetStatusText(Format(Text::HoldersFound, Parents().Count()));
    FitLists();
    EnablePaneControls(true);
    ui_->apply->setEnabled(!FolderText().isEmpty());
    ui_->reset->setEnabled(Parents().Count() > 0);
}

void copyRef::ChooseScope() {
    SearchScope scope = scope_;
    scope.Lookin.clear();  // stays so on cancel
    SearchDialog dialog(scope, window());
    const QPointer<copyRef> alive(this);
    dialog.init(mLookIn, scope_.subfolders, scope_.inContext, scope_.references, scope_.mirrored);
    dialog.exec();
    if (!alive || scope.Lookin.isEmpty())
        return;
    scope_ = scope;
    mLookIn = scope.Lookin;
}

void copyRef::ResetParents() {
    Parents().Clear();
    ui_->reset->setEnabled(false);
}

bool copyRef::CheckBeforeCopy() {
    const QPointer<copyRef> alive(this);
    const CheckOutcome outcome =
        docbench::CheckBeforeCopy({.source = ui_->oldname->text(),
                                   .target = ui_->toFile->text(),
                                   .copies = Copies(),
                                   .parents = Parents(),
                                   .replacedFiles = mReplacedFiles,
                                   .ask =
                                       [this](const QString& question, const QStringList& buttons) {
                                           return AskWithButtons(question, buttons, this);
                                       },
                                   .there = [alive] { return !alive.isNull(); }});
    if (!alive)
        return false;
    if (outcome == CheckOutcome::RefusedTarget || outcome == CheckOutcome::RefusedTargetType)
        ui_->toFile->setFocus();
    if (outcome == CheckOutcome::RefusedTargetType)
        ui_->toFile->selectAll();
    return outcome == CheckOutcome::Ok;
}

// A document that comes behind one of the boxes waits for the end.
void copyRef::Apply() {
    if (running_)
        return;
    running_ = true;
    const QPointer<copyRef> alive(this);
    if (CheckBeforeCopy())
        CarryOut();
    if (!alive)
        return;
    running_ = false;
    if (!pending_)
        return;
    const Load load = *std::exchange(pending_, std::nullopt);
    SetPartName(load.partName, load.fullpath, load.treefullpath);
}

void copyRef::CarryOut() {
    EnablePaneControls(false);
    EnableAffixOptions(false);
    for (QWidget* control :
         std::initializer_list<QWidget*>{ui_->cmdReplace, ui_->selectall, ui_->lv_0, ui_->lv_1})
        control->setEnabled(false);
    const QPointer<copyRef> alive(this);
    sinceDrawn_.invalidate();  // the first step is shown at once
    CopyResult result;
    ErrorState errors;
    {
        const WaitCursor wait;
        const CopyPlan plan{.source = ui_->oldname->text(),
                            .target = ui_->toFile->text(),
                            .copies = Copies(),
                            .parents = Parents(),
                            .replacedFiles = mReplacedFiles};
        errors.Assign(result, [&] { return RunCopy(plan, Progress()); });
    }
    if (!alive)
        return;
    running_ = false;
    ui_->lblProgress->clear();
    EnableAffixOptions(true);
    for (CellListView* list : {ui_->lv_0, ui_->lv_1})
        list->setEnabled(true);
    if (errors.Failed())
        Warn(errors.Description());
    if (alive)
        EndRun(result);
}

CopyProgress copyRef::Progress() {
    return {
        .status = [this](const QString& text) { SetStatusText(text); },
        .step =
            [this](int done, int all, const QString& path) {
                ShowStep(QStringLiteral("%1 / %2   %3").arg(done).arg(all).arg(FileNameOf(path)));
            },
        .rowDone =
            [this](CopyProgress::List which, int row) {
                if (std::exchange(drawn_, false))
                    BringIntoView(which, row);
            },
        .rowInQuestion = [this](CopyProgress::List which, int row) { BringIntoView(which, row); },
        .yield =
            [alive = QPointer<copyRef>(this)] {
                QCoreApplication::processEvents();
                return !alive.isNull();
            },
        .there = [alive = QPointer<copyRef>(this)] { return !alive.isNull(); }};
}

void copyRef::BringIntoView(CopyProgress::List which, int row) {
    CellListView* list = which == CopyProgress::List::Copies ? ui_->lv_0 : ui_->lv_1;
    list->scrollTo(list->List().index(row, 0));
    list->viewport()->repaint();
}

void copyRef::EndRun(const CopyResult& result) {
    switch (result.end) {
        case CopyResult::End::Gone:
            return;
        case CopyResult::End::CancelledAtOnce:
            EnablePaneControls(true);
            EnableListButtons();
            SetStatusText(Tr(Text::CopyCancelled));
            return;
        case CopyResult::End::Cancelled:
            EnablePaneControls(true);
            SetStatusText(Tr(Text::CopyCancelled));
            return;
        case CopyResult::End::SourceFailed:
            EnablePaneControls(true);
            EnableListButtons();
            SetStatusText(result.message);
            Warn(result.message);
            return;
        case CopyResult::End::Done:
            break;
    }
    ShowOutcome(result.target);
    const QPointer<copyRef> alive(this);
    Q_EMIT FileUpdated(QString());
    if (alive)
        SetStatusText(Format(Text::CopyDone, result.copied, result.failed));
}

void copyRef::ShowOutcome(const Cell& target) {
    QPalette palette = ui_->toFile->parentWidget()->palette();
    const QVariant color = ForegroundFor(target.foreColor, palette);
    if (color.isValid()) {
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            palette.setColor(group, QPalette::Text, color.value<QColor>());
    }
    ui_->toFile->setPalette(palette);
    ui_->toFile->setToolTip(target.toolTip);
}

void copyRef::PackWhereUsedSafeArray(TextTable& table) const {
    if (const auto packed = PackParentList(ui_->lv_1->List()))
        table = *packed;
}

void copyRef::PackCopyBoxSafeArray(TextTable& table) const {
    if (const auto packed = PackCopyList(ui_->lv_0->List()))
        table = *packed;
}

void copyRef::OpenCopyRow() {
    const int row = ui_->lv_0->SelectedRow();
    if (row < 0)
        return;
    const CopyRow shown = ReadCopyRow(Copies().At(row));
    if (shown.missing)
        return Warn(Tr(Text::RowMissing));
    OpenDocumentInCad(shown.source);
}

void copyRef::OpenParentRow() {
    const int row = ui_->lv_1->SelectedRow();
    if (row >= 0 && Parents().At(row).cells[kParentHolder].foreColor != kColorRed)
        OpenDocumentInCad(Parents().At(row).cells[kParentHolder].tag);
}

void copyRef::Export(const std::optional<TextTable>& table) {
    if (!table)
        return Warn(Tr(Text::ExportEmpty));
    ExportFrom(*this, table, *ui_->lblProgress);
}

}  // namespace docbench
