#include "search/srccontrol.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QPointer>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <algorithm>

#include "frame/desccontrol.h"
#include "panes/celllistview.h"
#include "panes/folderlistinput.h"
#include "panes/listmenu.h"
#include "panes/searchprogress.h"
#include "search/documentsearch.h"
#include "search/savedsearch.h"
#include "search/searchresults.h"
#include "search/searchrules.h"
#include "services/dialogs.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/localvalues.h"
#include "services/paths.h"
#include "services/seams.h"
#include "shell/languagefonts.h"
#include "shell/picturestore.h"
#include "ui_srccontrol.h"

namespace docbench {
namespace {

// Keeps the value from being empty while an operator is chosen that needs none.
const QString kNoValue = QStringLiteral("DB_Boolean_dummy");

constexpr qint64 kProgressEvery = 100;  // milliseconds

QString WithoutMnemonic(QString text) {
    return text.remove(u'&');
}

void ShowWaitPointer(bool waits) {
    if (waits == (QGuiApplication::overrideCursor() != nullptr))
        return;
    if (waits)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
}

// A field takes line ends with what is pasted into it, and shows them as blanks; no property has
// them, and a saved search has one rule a line.
QString OneLine(const QString& text) {
    static const QRegularExpression ends(QStringLiteral("[\\r\\n\\x{2028}\\x{2029}]+"));
    return text.split(ends, Qt::SkipEmptyParts).join(u' ');
}

}  // namespace

srcControl::srcControl(QWidget* parent) : Pane(parent), ui_(std::make_unique<Ui::srcControl>()) {
    LoadResources();
    ui_->setupUi(this);
    lookIn_ = new FolderListInput({ui_->srcLookin, ui_->wuDrop1, ui_->srcBrowser},
                                  FolderListInput::OnLeaving::Accepts, this,
                                  FolderListInput::Drops::Refuses);
    lookIn_->SetBrowseTitle(Format(Text::SearchFolderTitle, Tr(Text::LookInWhat)));
    new ListMenu(
        "mnlist", ui_->srcResultlist, [this] { OpenSelected(); }, [this] { ExportRows(); });
    mFileNameLabel = Tr(Text::FileName);
    SetCaptions();
    SetHeaders();
    ApplyLanguageFonts(*this);
    ui_->srcName->addItems(PropertyLabels());
    ui_->srcName->setCompleter(nullptr);  // the name of a custom property stays as it is typed
    ui_->srcName->setCurrentIndex(-1);
    ConnectControls();
    ConnectLists();
    FillOperators(true);
    for (QWidget* button : {ui_->srcAddToList, ui_->srcDelete, ui_->srcSave, ui_->srcStart})
        button->setEnabled(false);
}

srcControl::~srcControl() = default;

void srcControl::SetCaptions() {
    ui_->DescControl1->text(Tr(Text::SearchHelp));
    ui_->DescControl1->icon(PictureOf(QStringLiteral("PSRC")));
    ui_->DescControl1->SetHelpFile(gHelpFile, HelpTopic());
    ui_->Frame2->setTitle(Tr(Text::Rules));
    ui_->srcLabName->setText(Tr(Text::RuleProperty));
    ui_->srcLBcondition->setText(Tr(Text::RuleCondition));
    ui_->srcLBValue->setText(Tr(Text::RuleValue));
    ui_->srcAND->setText(Tr(Text::RuleAndOption));
    ui_->srcOR->setText(Tr(Text::RuleOrOption));
    ui_->srcAddToList->setText(Tr(Text::AddRule));
    ui_->srcDelete->setText(Tr(Text::DeleteRule));
    ui_->srcLoad->setText(Tr(Text::LoadSearch));
    ui_->srcSave->setText(Tr(Text::SaveSearch));
    ui_->srcNewSearch->setText(Tr(Text::NewSearch));
    ui_->Label1->setText(Tr(Text::LookIn));
    ui_->srcRecursive->setText(Tr(Text::WithSubfolders));
    ui_->srcStart->setText(Tr(Text::FindNow));
    ui_->searchlist->setAccessibleName(Tr(Text::Rules));
    ui_->srcResultlist->setAccessibleName(Tr(Text::Results));
    ui_->srcResultlist->setToolTip(Tr(Text::HeaderTip));
}

void srcControl::SetHeaders() {
    ui_->searchlist->List().SetHeaders({{.text = Tr(Text::RuleConnective)},
                                        {.text = Tr(Text::RulePropertyField)},
                                        {.text = Tr(Text::RuleConditionField)},
                                        {.text = Tr(Text::RuleValueField)},
                                        {}});
    ui_->searchlist->setColumnHidden(kRuleCode, true);
    results_ = std::make_unique<SearchResults>(ui_->srcResultlist->List());
    constexpr int kPathWidth = 320;
    ui_->srcResultlist->setColumnWidth(0, kPathWidth);
}

void srcControl::ConnectControls() {
    const auto chosen = [this] {
        FillOperators(ui_->srcName->currentText() != mFileNameLabel);
        EnableAdd();
    };
    connect(ui_->srcName, &QComboBox::editTextChanged, this, chosen);
    connect(ui_->srcName, &QComboBox::activated, this, chosen);
    connect(ui_->srcOP, &QComboBox::currentIndexChanged, this, &srcControl::OperatorChosen);
    connect(ui_->srcValue, &QLineEdit::textChanged, this, &srcControl::EnableAdd);
    connect(ui_->srcLookin, &QLineEdit::textChanged, this, &srcControl::UpdateStartEnabled);
    connect(ui_->srcAddToList, &QPushButton::clicked, this, &srcControl::AddRule);
    connect(ui_->srcDelete, &QPushButton::clicked, this, &srcControl::DeleteRules);
    connect(ui_->srcNewSearch, &QPushButton::clicked, this, &srcControl::NewSearch);
    connect(ui_->srcSave, &QPushButton::clicked, this, &srcControl::Save);
    connect(ui_->srcLoad, &QPushButton::clicked, this, &srcControl::Load);
    connect(ui_->srcStart, &QPushButton::clicked, this, &srcControl::StartOrStop);
    ui_->srcValue->installEventFilter(this);
    ui_->srcDelete->installEventFilter(this);
}

void srcControl::ConnectLists() {
    ui_->searchlist->installEventFilter(this);
    connect(ui_->searchlist, &CellListView::RowClicked, ui_->srcDelete,
            [this] { ui_->srcDelete->setEnabled(true); });
    // The keyboard clicks as well.
    connect(ui_->searchlist->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this](const QItemSelection& selected) {
                if (ui_->searchlist->hasFocus() && !selected.isEmpty())
                    ui_->srcDelete->setEnabled(true);
            });
    connect(ui_->srcResultlist, &CellListView::HeaderClicked, this, &srcControl::ToggleColumn);
}

QString srcControl::HelpTopic() const {
    return QStringLiteral("search");
}

void srcControl::SetShowDesc(bool show) {
    ui_->DescControl1->setVisible(show);
}

void srcControl::Putpartfilename(const QString& path) {
    if (path != partfilename_)
        mStopRequested = true;  // a search that is running belongs to the document before
    partfilename_ = path;
    if (ui_->srcLookin->text().isEmpty() && !path.isEmpty())
        ui_->srcLookin->setText(FolderOf(path));
    Q_EMIT partfilenameChanged();
}

void srcControl::ReleaseAll() {
    mStopRequested = true;
}

// --- The editors of one rule

void srcControl::FillOperators(bool withComparisons) {
    {
        const QSignalBlocker quiet(ui_->srcOP);
        ui_->srcOP->clear();
        ui_->srcOP->addItems(
            OperatorTexts(withComparisons ? Operators::All : Operators::OnTextsAlone));
        ui_->srcOP->setCurrentIndex(kIsExactly);
    }
    OperatorChosen();
}

QStringList srcControl::OperatorsOffered() const {
    QStringList texts;
    for (int i = 0; i < ui_->srcOP->count(); ++i)
        texts.append(ui_->srcOP->itemText(i));
    return texts;
}

void srcControl::OperatorChosen() {
    const int code = ui_->srcOP->currentIndex();
    const bool needsValue = code != kIsYes && code != kIsNo;
    ui_->srcValue->setVisible(needsValue);
    ui_->srcLBValue->setVisible(needsValue);
    if (!needsValue)
        return ui_->srcValue->setText(kNoValue);
    if (ui_->srcValue->text() == kNoValue)
        ui_->srcValue->clear();
    if (code > kContains && IsValueRefused() && TellNumberNeeded())
        ui_->srcOP->setFocus();
}

bool srcControl::IsValueRefused() const {
    const QString text = ui_->srcValue->text();
    return !text.isEmpty() && !NumberFromLocal(text);
}

// False when the pane went away behind the box.
bool srcControl::TellNumberNeeded() {
    const QPointer<srcControl> alive(this);
    isTelling_ = true;
    gSeams.dialogs->Box(Format(Text::NumberNeeded, ui_->srcOP->currentText()),
                        Dialogs::Icon::Exclamation, gAppTitle);
    if (alive)
        isTelling_ = false;
    return alive;
}

bool srcControl::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        const bool leaves = reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
        if (leaves && watched == ui_->srcValue) {
            watched->event(event);  // what the field does on its own must not come behind ours
            LeaveValue();
            return true;
        }
        if (leaves)
            LeaveRules();
    }
    return Pane::eventFilter(watched, event);
}

// "=" and "not =" take any text here.
void srcControl::LeaveValue() {
    const int code = ui_->srcOP->currentIndex();
    if (isTelling_ || !ui_->srcValue->isVisible() || !ui_->srcValue->isEnabled() || code < kLess ||
        code > kAtLeast || !IsValueRefused())
        return;
    if (!TellNumberNeeded())
        return;
    ui_->srcValue->setFocus();
    ui_->srcValue->selectAll();
}

// On the way from the list to its button, the button must stay.
void srcControl::LeaveRules() {
    if (!ui_->searchlist->hasFocus() && !ui_->srcDelete->hasFocus())
        ui_->srcDelete->setEnabled(false);
}

void srcControl::EnableAdd() {
    ui_->srcAddToList->setEnabled(!ui_->srcName->currentText().isEmpty() &&
                                  !ui_->srcValue->text().isEmpty());
}

// --- The list of rules

void srcControl::AddRule() {
    const QString name = OneLine(ui_->srcName->currentText());
    const QString value = OneLine(ui_->srcValue->text());
    if (name.isEmpty() || value.isEmpty())
        return;
    const int code = ui_->srcOP->currentIndex();
    const bool hasValue = code != kIsYes && code != kIsNo;
    ui_->searchlist->List().Append(MakeRule(ui_->srcOR->isChecked() ? Tr(Text::RuleOr) : QString(),
                                            name, ui_->srcOP->currentText(),
                                            hasValue ? value : QString(), code));
    UpdateStartEnabled();
    ui_->srcSave->setEnabled(true);
}

void srcControl::DeleteRules() {
    QList<int> rows = ui_->searchlist->SelectedRows();
    if (rows.isEmpty())
        return;
    CellList& rules = ui_->searchlist->List();
    // From the end, a run of neighbours at a time.
    for (qsizetype last = rows.size(); last > 0;) {
        qsizetype first = last - 1;
        while (first > 0 && rows[first - 1] == rows[first] - 1)
            --first;
        rules.Remove(rows[first], int(last - first));
        last = first;
    }
    if (rules.Count() == 0) {
        UpdateStartEnabled();
        ui_->srcSave->setEnabled(false);
    }
    ui_->srcDelete->setEnabled(false);
}

void srcControl::NewSearch() {
    ui_->searchlist->List().Clear();
    results_->Clear();
    ui_->srcName->setCurrentIndex(-1);
    ui_->srcName->clearEditText();
    ui_->srcValue->clear();
    ui_->srcLookin->clear();
    ui_->srcOP->setCurrentIndex(kIsExactly);
    for (QWidget* button : {ui_->srcStart, ui_->srcSave, ui_->srcDelete, ui_->srcAddToList})
        button->setEnabled(false);
    ui_->srcProgress->clear();
    SetStatusText(QString());
}

void srcControl::Save() {
    const QPointer<srcControl> alive(this);
    QString path = gSeams.dialogs->SaveFile(WithoutMnemonic(Tr(Text::SaveSearch)),
                                            Tr(Text::SavedSearchFilter), QString());
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += u'.' + Tr(Text::SavedSearchExtension);
    if (QFileInfo::exists(path) &&
        gSeams.dialogs->Box(Tr(Text::SavedSearchExists), Dialogs::Icon::Exclamation, gAppTitle,
                            Dialogs::Buttons::OkCancel) != Dialogs::Answer::Ok)
        return;
    if (!alive)
        return;
    ErrorState errors;
    if (!errors.Run([&] { WriteSavedSearch(path, ui_->searchlist->List()); }))
        gSeams.dialogs->Box(errors.Description(), Dialogs::Icon::Exclamation, gAppTitle);
}

void srcControl::Load() {
    const QPointer<srcControl> alive(this);
    const QString path = gSeams.dialogs->OpenFile(WithoutMnemonic(Tr(Text::LoadSearch)),
                                                  Tr(Text::SavedSearchFilter));
    if (!alive || path.isEmpty())
        return;
    CellList& rules = ui_->searchlist->List();
    rules.Clear();
    ErrorState errors;
    if (QFileInfo::exists(path) &&
        !errors.Run([&] { ReadSavedSearch(path, OperatorsOffered(), rules); }))
        gSeams.dialogs->Box(Tr(Text::SavedSearchError), Dialogs::Icon::Exclamation, gAppTitle,
                            Dialogs::Buttons::Ok, errors.Description());
    if (!alive)
        return;
    UpdateStartEnabled();
    if (rules.Count() > 0)
        ui_->srcSave->setEnabled(true);
}

void srcControl::UpdateStartEnabled() {
    ui_->srcStart->setEnabled(!ui_->srcLookin->text().isEmpty() &&
                              ui_->searchlist->List().Count() > 0);
}

void srcControl::EnableSearchControls(bool enabled) {
    QWidget* const controls[] = {
        ui_->srcLoad,    ui_->srcSave,    ui_->srcNewSearch,   ui_->srcAddToList, ui_->srcLookin,
        ui_->searchlist, ui_->Frame2,     ui_->srcName,        ui_->srcOP,        ui_->srcValue,
        ui_->srcAND,     ui_->srcOR,      ui_->wuDrop1,        ui_->srcBrowser,   ui_->srcRecursive,
        ui_->Label1,     ui_->srcLabName, ui_->srcLBcondition, ui_->srcLBValue};
    for (QWidget* control : controls)
        control->setEnabled(enabled);
}

// --- The search

void srcControl::StartOrStop() {
    if (ui_->srcStart->text() == Tr(Text::Stop))
        mStopRequested = true;
    else
        Search();
}

// Where it ends early, the pointer stays as it is: only a search that was under way gives it back.
void srcControl::Search() {
    ShowWaitPointer(true);
    if (ui_->searchlist->List().Count() == 0)
        return;
    results_->Clear();
    counts_ = {};
    found_ = 0;
    ErrorState errors;
    std::unique_ptr<PropertyQuery> query;
    errors.Run([&] {
        query = Documents().MakePropertyQuery(
            {.fileName = mFileNameLabel, .yes = Tr(Text::ValueYes), .no = Tr(Text::ValueNo)});
        AddRules(ui_->searchlist->List(), *query);
    });
    const QStringList places = SearchEntries(ui_->srcLookin->text());
    if (places.isEmpty())
        return;
    ui_->srcStart->setText(Tr(Text::Stop));
    EnableSearchControls(false);
    mStopRequested = false;
    const QPointer<srcControl> alive(this);
    if (query)
        errors.Run([&] { SearchPlaces(places, *query); });
    ShowWaitPointer(false);
    if (!alive)
        return;
    results_->ShowAll();
    SetStatusText(Format(Text::DocumentsFound, found_));
    ui_->srcStart->setText(Tr(Text::FindAgain));
    EnableSearchControls(true);
    ui_->srcResultlist->FitColumns();
}

void srcControl::SearchPlaces(const QStringList& places, PropertyQuery& query) {
    const QPointer<srcControl> alive(this);
    DocumentSearch search(
        query, {.yield =
                    [this] {
                        results_->ShowSome();
                        QCoreApplication::processEvents();
                    },
                .stopped = [alive] { return !alive || alive->mStopRequested; },
                .descends = [this] { return ui_->srcRecursive->isChecked(); },
                .entering =
                    [this](const QString& folder) {
                        SetStatusText(Format(Text::SearchingFolder, folder));
                    },
                .isListed = [this](const QString& path) { return results_->Lists(path); },
                .found =
                    [this](const QString& path) {
                        results_->Add(path);
                        ++found_;
                    },
                .progress =
                    [this](const SearchCounts& counts) {
                        counts_ = counts;
                        if (!progressShown_.isValid() || progressShown_.hasExpired(kProgressEvery))
                            ShowProgress();
                    }});
    progressShown_.invalidate();
    search.Run(places);
    if (alive)
        ShowProgress();
}

// Not after each document: drawing takes longer than looking at one.
void srcControl::ShowProgress() {
    ShowSearchProgress(*ui_->srcProgress, counts_, found_, Text::DocumentsFound);
    progressShown_.start();
}

// --- The result list

void srcControl::ToggleColumn(int column) {
    if (column == ResultColumn().column)
        ToggleForm(ui_->srcResultlist->List(), ResultColumn());
}

void srcControl::OpenSelected() {
    const int row = ui_->srcResultlist->SelectedRow();
    if (row >= 0)
        OpenDocumentInCad(ui_->srcResultlist->List().At(row).tag);
}

void srcControl::ExportRows() {
    ExportFrom(*this, ListToTable(ui_->srcResultlist->List()), *ui_->srcProgress);
}

}  // namespace docbench
