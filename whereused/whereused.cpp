#include "whereused/whereused.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>

#include "frame/desccontrol.h"
#include "panes/celllistview.h"
#include "panes/folderlistinput.h"
#include "panes/folderwalk.h"
#include "panes/listmenu.h"
#include "panes/pathcolumn.h"
#include "panes/rowbatch.h"
#include "panes/searchprogress.h"
#include "panes/usekindboxes.h"
#include "services/dialogs.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/folderlists.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/relationlabel.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"
#include "services/webdocument.h"
#include "shell/languagefonts.h"
#include "shell/picturestore.h"
#include "ui_whereused.h"

namespace docbench {
namespace {

constexpr int kDocument = 0;
constexpr int kRelation = 1;
constexpr int kReference = 2;

PathColumn DocumentColumn() {
    return {kDocument, Tr(Text::HolderName), Tr(Text::HolderPath)};
}

PathColumn ReferenceColumn() {
    return {kReference, Tr(Text::ReferenceName), Tr(Text::ReferencePath)};
}

QString PictureOfRow(const QString& document, bool inContext) {
    if (inContext)
        return QStringLiteral("inctx");
    switch (DocTypeOf(document)) {
        case DocType::Assembly:
            return QStringLiteral("assem");
        case DocType::Part:
            return QStringLiteral("part");
        default:
            return QStringLiteral("draw");
    }
}

QString RowKey(const QString& document, const QString& relation, const QString& reference) {
    return document + u'\0' + relation + u'\0' + reference;
}

QString TrimmedRight(QString text) {
    while (text.endsWith(u' '))
        text.chop(1);
    return text;
}

}  // namespace

whereUsed::whereUsed(QWidget* parent) : Pane(parent), ui_(std::make_unique<Ui::whereUsed>()) {
    LoadResources();
    ui_->setupUi(this);
    lookIn_ = new FolderListInput({ui_->wuLookin, ui_->wuDrop1, ui_->wuBrowse},
                                  FolderListInput::OnLeaving::TestsFolders, this);
    kinds_ = new UseKindBoxes(ui_->wuFindRef, ui_->wuFindInCtx, ui_->wifindMirrored, this);
    new ListMenu(
        "mnlist", ui_->whereList, [this] { OpenSelected(); }, [this] { ExportRows(); });
    SetCaptions();
    ApplyLanguageFonts(*this);
    ui_->wuSubfloder->setChecked(true);
    ui_->wuStop->setEnabled(false);
    ui_->wuFindNow->setEnabled(false);
    ui_->Animation1->hide();
    ConnectControls();
}

whereUsed::~whereUsed() = default;

void whereUsed::SetCaptions() {
    ui_->wuLBName->setText(Tr(Text::DocumentToFind));
    ui_->wuLBlookin->setText(Tr(Text::LookIn));
    ui_->wuName->setToolTip(Tr(Text::DocumentToFindTip));
    ui_->wuSubfloder->setText(Tr(Text::WithSubfolders));
    ui_->wuFindNow->setText(Tr(Text::FindNow));
    ui_->wuStop->setText(Tr(Text::Stop));
    ui_->wuNewsearch->setText(Tr(Text::NewSearch));
    ui_->whereList->setToolTip(Tr(Text::HeaderTip));
    ui_->whereList->setAccessibleName(Tr(Text::UsedBy));
    ui_->DescControl1->text(Tr(Text::WhereUsedHelp));
    ui_->DescControl1->icon(PictureOf(QStringLiteral("WUSE")));
    ui_->DescControl1->SetHelpFile(gHelpFile, HelpTopic());
    CellList& list = ui_->whereList->List();
    list.SetHeaders({{}, {.text = Tr(Text::Relation)}, {}});
    SetLongForm(list, DocumentColumn(), true);
    SetLongForm(list, ReferenceColumn(), true);
    ui_->whereList->setColumnWidth(kDocument, 320);
}

void whereUsed::ConnectControls() {
    for (QLineEdit* field : {ui_->wuName, ui_->wuLookin}) {
        connect(field, &QLineEdit::textChanged, this, &whereUsed::EnableFindNow);
        // Behind the key: the pane may go away during the search, and the field with it.
        connect(field, &QLineEdit::returnPressed, this, &whereUsed::Findnow, Qt::QueuedConnection);
    }
    connect(ui_->wuFindNow, &QPushButton::clicked, this, &whereUsed::Findnow);
    connect(ui_->wuNewsearch, &QPushButton::clicked, this, &whereUsed::NewSearch);
    connect(ui_->wuStop, &QPushButton::clicked, this, [this] {
        mStopRequested = true;
        ui_->wuStop->setEnabled(false);
    });
    connect(ui_->whereList, &CellListView::HeaderClicked, this, &whereUsed::ToggleColumn);
    // The text and not the path, by its long standing: in short form that is a bare file name.
    connect(ui_->whereList, &CellListView::Activated, this, [this](int row) {
        OpenDocumentInCad(ui_->whereList->List().At(row).cells[kDocument].text);
    });
}

QString whereUsed::HelpTopic() const {
    return QStringLiteral("where-used");
}

void whereUsed::SetShowDesc(bool show) {
    ui_->DescControl1->setVisible(show);
}

void whereUsed::SetPartNameToSearch(const QString& path, const QString&) {
    mStopRequested = true;  // a search that is running is for another document
    if (DocTypeOf(path) != DocType::Drawing)
        ui_->wuName->setText(BaseNameOf(TrimmedRight(path)));
    if (ui_->wuLookin->text().isEmpty())
        ui_->wuLookin->setText(gWebDocument ? UrlFolder(path) : FolderOf(path));
    SetStatusText(QString());
}

void whereUsed::Findnow() {
    const QPointer<whereUsed> alive(this);
    if (ui_->wuLookin->hasFocus())
        ui_->wuFindNow->setFocus();
    lookIn_->TestIfLeft();  // before anything else
    if (alive && ui_->wuFindNow->isEnabled())
        Search();
}

void whereUsed::ReleaseAll() {
    mStopRequested = true;
}

// A search that runs can be handed another document, but not be joined by a second search.
void whereUsed::EnableFindNow() {
    ui_->wuFindNow->setEnabled(!searching_ && !ui_->wuName->text().isEmpty() &&
                               !ui_->wuLookin->text().isEmpty());
}

void whereUsed::EnableSearchControls(bool enabled) {
    QWidget* const controls[] = {ui_->wuLookin,    ui_->wuName,      ui_->wuFindNow,
                                 ui_->wuBrowse,    ui_->wuDrop1,     ui_->wuLBlookin,
                                 ui_->wuLBName,    ui_->wuSubfloder, ui_->wuFindRef,
                                 ui_->wuFindInCtx, ui_->wuNewsearch, ui_->wifindMirrored};
    for (QWidget* control : controls)
        control->setEnabled(enabled);
}

void whereUsed::NewSearch() {
    ui_->wuName->clear();
    ui_->wuLookin->clear();
    ui_->wuSubfloder->setChecked(true);
    ui_->wuFindRef->setChecked(true);
    ui_->wuFindInCtx->setChecked(true);
    ui_->wuStop->setEnabled(false);
    ui_->whereList->List().Clear();
    listed_.clear();
    ui_->wuProgress->clear();
    SetStatusText(QString());
}

void whereUsed::Search() {
    EnableSearchControls(false);
    ui_->wuStop->setEnabled(true);
    ui_->wuStop->setFocus();
    ui_->Animation1->setRange(0, 0);
    ui_->Animation1->show();
    ui_->whereList->List().Clear();
    listed_.clear();
    counted_ = {};
    ui_->wuProgress->clear();
    if (ui_->wuLookin->text().isEmpty())
        return;
    mStopRequested = false;
    searching_ = true;
    rows_ =
        std::make_unique<RowBatch>(ui_->whereList->List(), [this](CellRow& row) { ShowRow(row); });
    const QPointer<whereUsed> alive(this);
    try {
        SearchPlaces();
    } catch (const std::exception& error) {
        gSeams.dialogs->Box(Format(Text::SearchError, DescriptionOf(error)),
                            Dialogs::Icon::Exclamation, gAppTitle);
        if (alive)
            EndSearch();
        return;
    }
    if (!alive)
        return;
    EndSearch();
    SetStatusText(Format(Text::DocumentsFound, QString::number(ui_->whereList->List().Count())));
}

void whereUsed::EndSearch() {
    searching_ = false;
    rows_->Flush();
    EnableSearchControls(true);
    EnableFindNow();
    ui_->Animation1->hide();
    ui_->wuStop->setEnabled(false);
    ui_->wuName->setFocus();
    ui_->whereList->FitColumns();
}

void whereUsed::SearchPlaces() {
    const QPointer<whereUsed> alive(this);
    const QString expanded = ExpandFolderList(ui_->wuLookin->text());
    QStringList entries = expanded.split(u';');
    entries = RemoveDuplicates(entries);
    target_ = ParseSearchName(ui_->wuName->text());
    if (entries.isEmpty())
        return;
    if (IsWebPath(expanded))
        return SearchWeb(expanded);
    for (const QString& entry : entries) {
        if (alive)
            SearchLocal(entry);
    }
}

void whereUsed::SearchLocal(const QString& folder) {
    const QFileInfo place(folder);
    if (place.isDir())
        SearchFolders(QDir::cleanPath(place.absoluteFilePath()), QString());
    else if (FileExists(folder))
        throw DocumentError(QStringLiteral("%1 is a file. Enter folders to look in.").arg(folder));
}

void whereUsed::SearchWeb(const QString& url) {
    const QPointer<whereUsed> alive(this);
    QString folder;
    if (!MirrorWebFolder(url, folder) || !alive || mStopRequested)
        return;  // the server may have asked for a password meanwhile
    gWebDocument = true;
    SearchFolders(QDir::cleanPath(folder), url);
}

void whereUsed::SearchFolders(const QString& folder, const QString& urlPrefix) {
    const QPointer<whereUsed> alive(this);
    const auto finder = Documents().MakeFolderSearcher();
    const FolderWalk walk{
        .yields = WalkYields::AtSubfolders,
        .yield = [] { QCoreApplication::processEvents(); },
        .stopped = [alive] { return !alive || alive->mStopRequested; },
        .entering = {},
        .visit =
            [this, &finder, urlPrefix](const QString& visited) {
                SearchFolder(*finder, visited, urlPrefix);
                QStringList subfolders;
                for (int i = 0; ui_->wuSubfloder->isChecked() && i < finder->GetSubfolderCount();
                     ++i)
                    subfolders.append(finder->GetSubfolder(i));
                finder->ClearResults();
                return subfolders;
            }};
    walk.Run(folder);
    if (!alive)
        return;
    const SearchCounts counts = finder->GetSearchCounts();
    counted_.documents += counts.documents;
    counted_.unread += counts.unread;
}

void whereUsed::SearchFolder(FolderSearcher& finder, const QString& folder,
                             const QString& urlPrefix) {
    SetStatusText(folder);
    finder.FindReferences({.pattern = folder + QStringLiteral("/*.*"),
                           .fullPathFlag = target_.FullPathFlag(),
                           .baseName = target_.baseName,
                           .extension = target_.extension,
                           .fullPath = target_.fullPath,
                           .mask = kinds_->Kinds().Mask()});
    const int count = finder.GetResultCount();
    for (int i = 0; i < count; ++i)
        AcceptRow(finder.GetResult(i), urlPrefix);
    rows_->Offer();
    ShowProgress(finder.GetSearchCounts());
}

void whereUsed::ShowRow(CellRow& row) const {
    const CellList& list = ui_->whereList->List();
    for (const int column : {kDocument, kReference})
        row.cells[size_t(column)].text = ShownPath(list, column, PathOf(row, column));
}

void whereUsed::AcceptRow(const FoundReference& found, const QString& urlPrefix) {
    QString document = found.document;
    QString reference = found.reference;
    QString relation = RelationLabel(document, reference);
    if (!urlPrefix.isEmpty()) {
        // Prefixed like the paths, the relation is no label: every row of a web folder passes.
        for (QString* text : {&document, &relation, &reference})
            *text = urlPrefix + FileNameOf(*text);
    }
    if (RowExists(document, relation, reference) || kinds_->Kinds().Drops(relation))
        return;
    const QString shownRelation =
        found.inContext ? RelationLabel(document, found.reference) : gRelationDefault;
    rows_->Add({.cells = {{.text = {}, .toolTip = document},
                          {.text = shownRelation},
                          {.text = {}, .tag = reference, .toolTip = reference}},
                .tag = document,
                .image = PictureOfRow(document, found.inContext)});
    listed_.insert(RowKey(document, shownRelation, reference));
}

bool whereUsed::RowExists(const QString& document, const QString& relation,
                          const QString& reference) const {
    return listed_.contains(RowKey(document, relation, reference));
}

void whereUsed::ShowProgress(const SearchCounts& counts) {
    ShowSearchProgress(*ui_->wuProgress,
                       {.documents = counted_.documents + counts.documents,
                        .unread = counted_.unread + counts.unread},
                       rows_->Count());
}

void whereUsed::ToggleColumn(int column) {
    if (column == kDocument)
        ToggleForm(ui_->whereList->List(), DocumentColumn());
    else if (column == kReference)
        ToggleForm(ui_->whereList->List(), ReferenceColumn());
}

void whereUsed::OpenSelected() {
    const int row = ui_->whereList->SelectedRow();
    if (row >= 0)
        OpenDocumentInCad(ui_->whereList->List().At(row).tag);
}

void whereUsed::ExportRows() {
    ExportFrom(*this, ListToTable(ui_->whereList->List()), *ui_->wuProgress);
}

}  // namespace docbench
