#include "rename/renameref.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "frame/desccontrol.h"
#include "panes/celllistview.h"
#include "panes/listmenu.h"
#include "panes/searchprogress.h"
#include "rename/renamelist.h"
#include "rename/renamesearch.h"
#include "rename/renametransaction.h"
#include "services/dialogs.h"
#include "services/docaccess.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/filesystem.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"
#include "services/webdocument.h"
#include "shell/languagefonts.h"
#include "shell/openurlfrm.h"
#include "shell/pathdrop.h"
#include "shell/picturestore.h"
#include "shell/waitcursor.h"
#include "ui_renameref.h"

namespace docbench {
namespace {

constexpr int kLongestSelection = 1000;

QString Labelled(const QString& text) {
    return text + QStringLiteral(" :");
}

void Warn(const QString& text) {
    gSeams.dialogs->Box(text, Dialogs::Icon::Exclamation, gAppTitle);
}

}  // namespace

renameRef::renameRef(QWidget* parent) : Pane(parent), ui_(std::make_unique<Ui::renameRef>()) {
    LoadResources();
    ui_->setupUi(this);
    PrepareRenameList(ui_->lv->List());
    auto* menu = new ListMenu(
        "mnlistmenu", ui_->lv, [this] { OpenSelected(); }, [this] { ExportRows(); });
    menu->SetOpens(ListMenu::Opens::SelectedRow);
    SetCaptions();
    ApplyLanguageFonts(*this);
    ui_->Labelnon2000->hide();
    ConnectControls();
    SetPartName(QString(), QString(), QString(), false);
    ui_->newname->setEnabled(false);
}

renameRef::~renameRef() = default;

void renameRef::SetCaptions() {
    ui_->browse->setText(Tr(Text::Browse));
    ui_->whereused->setText(Tr(Text::DocumentsToUpdate));
    ui_->Findnow->setText(Tr(Text::FindNow));
    ui_->searchrule->setText(Tr(Text::MenuSearchScope));
    ui_->apply->setText(Tr(Text::Apply));
    ui_->reset->setText(Tr(Text::Reset));
    ui_->Picture1->setPixmap(
        PictureOf(QStringLiteral("REPLACE")).pixmap(QSize(16, 16), devicePixelRatioF()));
    ui_->lv->setToolTip(Tr(Text::HeaderTip));
    ui_->lv->setAccessibleName(Tr(Text::DocumentsToUpdate));
    ui_->DescControl1->text(Tr(Text::RenameHelp));
    ui_->DescControl1->icon(PictureOf(QStringLiteral("RENAME")));
    ui_->DescControl1->SetHelpFile(gHelpFile, HelpTopic());
}

void renameRef::ConnectControls() {
    ui_->newname->installEventFilter(this);
    connect(ui_->newname, &QLineEdit::textChanged, this, &renameRef::OnNewNameChanged);
    connect(new PathDrop(ui_->newname, PathDrop::Takes::Files), &PathDrop::Dropped, this,
            &renameRef::CheckDropped);
    connect(ui_->browse, &QPushButton::clicked, this, &renameRef::Browse);
    connect(ui_->whereused, &QCheckBox::toggled, ui_->Frame2, &QWidget::setVisible);
    connect(ui_->Findnow, &QPushButton::clicked, this, &renameRef::FindOrStop);
    connect(ui_->searchrule, &QPushButton::clicked, this, &renameRef::ChooseScope);
    connect(ui_->reset, &QPushButton::clicked, this, &renameRef::ResetList);
    connect(ui_->apply, &QPushButton::clicked, this, &renameRef::Apply);
    connect(&ui_->lv->List(), &CellList::TickedByUser, this, &renameRef::OnTicked);
    connect(ui_->lv, &CellListView::HeaderClicked, this, [this](int column) {
        if (column == kHolderColumn)
            ToggleHolderForm(ui_->lv->List());
    });
    connect(ui_->lv, &CellListView::Activated, this, &renameRef::OpenSelected);
}

QString renameRef::HelpTopic() const {
    return replaceMode ? QStringLiteral("replace") : QStringLiteral("rename");
}

void renameRef::ReleaseAll() {
    cancelSearch = true;
}

void renameRef::SetShowDesc(bool show) {
    ui_->DescControl1->setVisible(show);
}

void renameRef::SetPartName(const QString& displayName, const QString& fullName,
                            const QString& chain, bool isReplace) {
    cancelSearch = true;  // a search that is running is for another document
    ++loads_;
    partDisplayName = displayName;
    replaceMode = isReplace;
    // A drawing has no holder that could be given another one in its place.
    const bool blank = isReplace && DocTypeOf(fullName) == DocType::Drawing;
    subject_ = {.fullName = blank ? QString() : fullName,
                .folder = FolderOf(fullName),
                .ancestorChain = chain.isEmpty() ? QStringList() : chain.split(u';'),
                .replaces = isReplace};
    parentDocument.clear();
    ui_->lv->List().Clear();
    ui_->lblProgress->clear();
    ShowMode();
    whereUsedDone = isReplace;
    if (subject_.fullName.isEmpty())
        return Blank();
    ErrorState errors;
    if (errors.Run([this] { Load(); }))
        return;
    // The fields stay as they are, but what they show is not what would be renamed.
    subject_.fullName.clear();
    EnableCommands(false);
    ui_->newname->setEnabled(false);
    Warn(Format(Text::RenameLoadFailed, fullName, errors.Description()));
}

void renameRef::Blank() {
    subject_.fullName.clear();
    ui_->oldname->clear();
    ui_->newname->clear();
    ui_->newname->setEnabled(false);
    EnableCommands(false);
}

void renameRef::ShowMode() {
    ui_->Re->setText(Labelled(replaceMode ? Tr(Text::MenuReplace) : Tr(Text::MenuRename)));
    ui_->Label1->setText(Labelled(replaceMode ? Tr(Text::ReplaceWithLabel) : Tr(Text::NewName)));
    ui_->browse->setVisible(replaceMode);
    ui_->Picture1->setVisible(replaceMode);
    ui_->DescControl1->SetHelpFile(gHelpFile, HelpTopic());
}

void renameRef::Load() {
    parentDocument = subject_.ancestorChain.value(1);
    const bool refused = (!parentDocument.isEmpty() && !MayBeWritten(parentDocument)) ||
                         (!replaceMode && !MayBeWritten(subject_.fullName));
    if (refused) {
        ui_->whereused->hide();
        return Blank();
    }
    FillForm();
    if (replaceMode && parentDocument.isEmpty() && !IsWebPath(subject_.fullName))
        Browse();
}

void renameRef::FillForm() {
    ui_->editBox1->show();
    ui_->Labelnon2000->hide();
    ui_->oldname->setText(subject_.fullName);
    searchFolders = subject_.folder;
    ui_->newname->setEnabled(true);
    ui_->newname->setText(replaceMode ? subject_.fullName : FileNameOf(subject_.fullName));
    ui_->newname->setSelection(0, kLongestSelection);
    ui_->Findnow->setText(Tr(Text::FindNow));
    ui_->whereused->show();
    ui_->whereused->setChecked(true);
    ui_->Frame2->show();
    EnableCommands(true);
    ui_->reset->setEnabled(false);
}

void renameRef::EnableCommands(bool enabled) {
    for (QPushButton* button : {ui_->apply, ui_->reset, ui_->browse, ui_->Findnow, ui_->searchrule})
        button->setEnabled(enabled);
}

// All that could be pressed while the documents are written.
void renameRef::EnableInput(bool enabled) {
    EnableCommands(enabled);
    for (QWidget* control : std::initializer_list<QWidget*>{ui_->newname, ui_->whereused, ui_->lv})
        control->setEnabled(enabled);
}

void renameRef::OnNewNameChanged() {
    if (ui_->newname->text().isEmpty())
        ui_->apply->setEnabled(false);
    else if (!ui_->oldname->text().isEmpty())
        EnableApply();
}

// The name may be typed while a search runs; it can be applied once that has ended.
void renameRef::EnableApply() {
    ui_->apply->setEnabled(!IsSearching() && !subject_.fullName.isEmpty());
}

bool renameRef::IsSearching() const {
    return ui_->Findnow->text() == Tr(Text::Stop);
}

QString renameRef::Target() const {
    return replaceMode ? ui_->newname->text() : subject_.folder + ui_->newname->text();
}

void renameRef::AddExtension() {
    const QString name = ui_->newname->text();
    const QString whole = WithExtension(name, ui_->oldname->text());
    if (whole != name)
        ui_->newname->setText(whole);
}

bool renameRef::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->newname && event->type() == QEvent::FocusOut && !checking_ &&
        static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
        AddExtension();
    if (watched == ui_->newname && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape) {
            ui_->newname->clear();
            ui_->apply->setEnabled(false);
            return true;
        }
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            CheckEntered();
            return true;
        }
    }
    return Pane::eventFilter(watched, event);
}

void renameRef::CheckEntered() {
    AddExtension();
    checking_ = true;
    const bool ok =
        ValidateTarget(subject_, Target(), [this](const QString& text) { SetStatusText(text); });
    checking_ = false;
    if (ok)
        EnableApply();
    else
        RefuseTarget();
}

void renameRef::RefuseTarget() {
    ui_->newname->setFocus();
    ui_->newname->setSelection(0, kLongestSelection);
    ui_->apply->setEnabled(false);
}

void renameRef::CheckDropped(const QString& path) {
    checking_ = true;
    const bool ok =
        ValidateTarget(subject_, path, [this](const QString& text) { SetStatusText(text); });
    checking_ = false;
    if (!ok)
        return RefuseTarget();
    ui_->newname->setText(path);
    EnableApply();
}

void renameRef::Browse() {
    const QString present = ui_->newname->text();
    QString name;
    if (IsWebPath(subject_.fullName)) {
        name = PickWebDocument(this);
    } else {
        const QString filter = DocTypeOf(present) == DocType::Assembly ? Tr(Text::AssemblyFilter)
                               : DocTypeOf(present) == DocType::Part   ? Tr(Text::PartFilter)
                                                                       : Tr(Text::DrawingFilter);
        name = gSeams.dialogs->OpenFile(Tr(Text::ChooseReplacement), filter, present);
    }
    const bool ok = !name.isEmpty() && ValidateTarget(subject_, name, [this](const QString& text) {
        SetStatusText(text);
    });
    if (!ok) {
        ui_->newname->setFocus();
        ui_->newname->setSelection(0, kLongestSelection);
        return;
    }
    ui_->newname->setText(name);
    ui_->apply->setEnabled(true);
}

// The button is its own stop.
void renameRef::FindOrStop() {
    if (IsSearching())
        cancelSearch = true;
    else
        Search();
}

void renameRef::Search() {
    EnableCommands(false);
    cancelSearch = false;
    ui_->Findnow->setText(Tr(Text::Stop));
    ui_->Findnow->setEnabled(true);
    CellList& list = ui_->lv->List();
    list.Clear();
    const QPointer<renameRef> alive(this);
    const int load = loads_;
    const auto gone = [alive, load] { return !alive || alive->loads_ != load; };
    const RenameSearch search{
        .document = subject_.fullName,
        .parent = parentDocument,
        .kinds = {.references = scope_.references,
                  .inContext = scope_.inContext,
                  .mirrored = scope_.mirrored},
        .subfolders = scope_.subfolders,
        .status = [this](const QString& text) { SetStatusText(text); },
        .yield = [] { QCoreApplication::processEvents(); },
        .cancelled = [alive, gone] { return gone() || alive->cancelSearch; },
        .progress = [this](const SearchCounts& counts,
                           int rows) { ShowSearchProgress(*ui_->lblProgress, counts, rows); }};
    ErrorState errors;
    RowBatch rows = RenameRows(list);
    bool searched = false;
    errors.Assign(searched, [&] { return SearchHolders(search, searchFolders, rows); });
    if (gone())
        return;
    rows.Flush();
    if (errors.Failed())
        Warn(Format(Text::SearchError, errors.Description()));
    SetStatusText(Format(Text::HoldersFound, QString::number(list.Count())));
    ui_->lv->FitColumns();
    whereUsedDone = searched || whereUsedDone;
    EnableCommands(true);
    if (ui_->newname->text().isEmpty())
        ui_->apply->setEnabled(false);
    ui_->Findnow->setText(Tr(Text::FindAgain));
}

void renameRef::ChooseScope() {
    scope_.Lookin.clear();
    SearchDialog dialog(scope_, window());
    dialog.init(searchFolders, scope_.subfolders, scope_.inContext, scope_.references,
                scope_.mirrored);
    dialog.exec();
    if (!scope_.Lookin.isEmpty())
        searchFolders = scope_.Lookin;
}

void renameRef::ResetList() {
    ui_->lv->List().Clear();
    whereUsedDone = false;
    ui_->reset->setEnabled(false);
}

void renameRef::OnTicked(int row) {
    CellList& list = ui_->lv->List();
    const CellRow& ticked = list.At(row);
    const QString holder = ticked.cells[kHolderColumn].tag;
    if (!ticked.ticked) {
        if (ticked.cells[kRelationColumn].tag != QLatin1String("M"))
            return;
        Tick(row, true);
        return Warn(Tr(Text::TickStays));
    }
    if (IsWebPath(holder))
        return;
    if (IsReadOnlyFile(holder)) {
        Warn(Tr(Text::TickStays));
        list.Change(row, [&](CellRow& changed) { MarkReadOnly(list, changed); });
        Tick(row, false);
    } else if (ticked.cells[kHolderColumn].foreColor == kColorRed) {
        list.Change(row, [&](CellRow& changed) { ClearReadOnly(list, changed); });
    }
}

void renameRef::Tick(int row, bool ticked) {
    ui_->lv->List().Change(row, [ticked](CellRow& changed) { changed.ticked = ticked; });
}

bool renameRef::PrepareApply() {
    if (!whereUsedDone && !AskForSearch())
        return false;
    AddExtension();
    checking_ = true;
    const bool valid =
        ValidateTarget(subject_, Target(), [this](const QString& text) { SetStatusText(text); });
    checking_ = false;
    if (!valid) {
        ui_->newname->setFocus();
        ui_->newname->setSelection(0, kLongestSelection);
        return false;
    }
    if (!CheckHolders(ui_->lv->List(), subject_, ui_->newname->text(),
                      [this](int row) { ui_->lv->SelectRow(row); }))
        return false;
    if (!parentDocument.isEmpty() && !IsWebPath(parentDocument) && !MayBeWritten(parentDocument)) {
        EnableCommands(false);
        return false;
    }
    return true;
}

bool renameRef::AskForSearch() {
    const Dialogs::Answer answer =
        gSeams.dialogs->Box(Tr(Text::SearchFirstQuestion), Dialogs::Icon::Exclamation, gAppTitle,
                            Dialogs::Buttons::YesNoCancel);
    if (answer == Dialogs::Answer::Yes) {
        Search();  // the user sees the list, and applies again
        return false;
    }
    whereUsedDone = answer == Dialogs::Answer::No;
    ui_->reset->setEnabled(whereUsedDone);
    return whereUsedDone;
}

void renameRef::Apply() {
    if (!PrepareApply())
        return;
    const RenamePlan plan{.oldPath = subject_.fullName,
                          .newPath = Target(),
                          .parent = parentDocument,
                          .replaces = replaceMode};
    EnableInput(false);
    RenameResult result;
    {
        const WaitCursor wait;
        result = RunRename(
            ui_->lv->List(), plan,
            {.status = [this](const QString& text) { SetStatusText(text); },
             .holders =
                 [this](int done, int all) {
                     ui_->lblProgress->setText(QStringLiteral("%1 / %2").arg(done).arg(all));
                     ui_->lblProgress->repaint();
                 }});
    }
    EnableInput(true);
    if (!result.moved)
        return SetStatusText(Tr(Text::NothingChanged));
    SetStatusText(
        Format(Text::RenameDone, QString::number(result.updated), QString::number(result.failed)));
    EnableCommands(false);
    ui_->newname->setEnabled(false);
    ui_->whereused->setFocus();
    Q_EMIT FileUpdated(plan.newPath);
}

void renameRef::PackSafeArray(TextTable& table) const {
    if (const auto packed = PackRenameList(ui_->lv->List()))
        table = *packed;
}

void renameRef::OpenSelected() {
    const int row = ui_->lv->SelectedRow();
    if (row >= 0)
        OpenDocumentInCad(ui_->lv->List().At(row).cells[kHolderColumn].tag);
}

void renameRef::ExportRows() {
    const std::optional<TextTable> table = PackRenameList(ui_->lv->List());
    if (!table)
        return Warn(Tr(Text::ExportEmpty));
    ExportFrom(*this, table, *ui_->lblProgress);
}

}  // namespace docbench
