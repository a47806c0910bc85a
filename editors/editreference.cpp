#include "editors/editreference.h"

#include <QHeaderView>
#include <QPointer>
#include <algorithm>

#include "editors/referencelist.h"
#include "frame/desccontrol.h"
#include "panes/celllistview.h"
#include "panes/listmenu.h"
#include "services/dialogs.h"
#include "services/errorstate.h"
#include "services/language.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"
#include "shell/languagefonts.h"
#include "shell/picturestore.h"
#include "shell/twips.h"
#include "shell/waitcursor.h"
#include "ui_editreference.h"

namespace docbench {
namespace {

constexpr int kWideEnough = TwipsToPixels(5000);  // for whole paths

void Warn(const QString& text) {
    gSeams.dialogs->Box(text, Dialogs::Icon::Exclamation, gAppTitle);
}

bool IsMissing(const CellRow& row) {
    return row.cells[kReferencePath].foreColor == kColorRed;
}

}  // namespace

editReference::editReference(QWidget* parent)
    : Pane(parent), ui_(std::make_unique<Ui::editReference>()) {
    LoadResources();
    ui_->setupUi(this);
    PrepareReferenceList(ui_->lv->List());
    auto* menu = new ListMenu(
        "mnlistmenu", ui_->lv, [this] { OpenSelected(); }, [this] { ExportRows(); });
    menu->SetOpens(ListMenu::Opens::SelectedRow);
    menu->SetCanOpen([this](int row) { return !IsMissing(ui_->lv->List().At(row)); });
    SetCaptions();
    ApplyLanguageFonts(*this);
    connect(ui_->lv, &CellListView::HeaderClicked, this, [this](int column) {
        if (column == kReferencePath)
            ToggleForm(ui_->lv->List(), ReferencePathColumn());
    });
    connect(ui_->lv, &CellListView::Activated, this, &editReference::OpenSelected);
}

editReference::~editReference() = default;

void editReference::SetCaptions() {
    ui_->lv->setToolTip(Tr(Text::HeaderTip));
    ui_->lv->setAccessibleName(Tr(Text::References));
    ui_->DescControl1->text(Tr(Text::ReferencesHelp));
    ui_->DescControl1->icon(PictureOf(QStringLiteral("EREF")));
    ui_->DescControl1->SetHelpFile(gHelpFile, HelpTopic());
}

QString editReference::HelpTopic() const {
    return QStringLiteral("references");
}

void editReference::SetShowDesc(bool show) {
    showDesc_ = show;
    ui_->DescControl1->setVisible(show);
    Layout();
}

void editReference::resizeEvent(QResizeEvent* event) {
    Pane::resizeEvent(event);
    Layout();
}

// In a wide pane the header says that the paths are whole. Rows in sight change at a click on it.
void editReference::Layout() {
    if (width() >= kWideEnough)
        ui_->lv->List().SetHeader(kReferencePath, {.text = ReferencePathColumn().longCaption,
                                                   .tag = QStringLiteral("L")});
    MakeRoom();
}

void editReference::SetPartName(const QString& displayName, const QString& path) {
    if (path.isEmpty())
        return;
    const QPointer<editReference> alive(this);
    const QString document = path;
    // Behind a box, a password's among them.
    const auto isOver = [&] { return !alive || partfilename != document; };
    partDisplayName = displayName;
    partfilename = document;
    ui_->editBox1->show();
    ui_->lblProgress->clear();
    ui_->lv->List().Clear();
    const WaitCursor wait;
    const QString local = LocalCopyOf(document);
    if (isOver())
        return;
    ErrorState errors;
    errors.Run([&] { ListReferences(ui_->lv->List(), document, local); });
    if (isOver())
        return;
    ui_->lv->FitColumns();
    MakeRoom();
    if (errors.Failed())
        Warn(Format(Text::ReferenceListError, errors.Description()));
}

// Long paths give way, so that the facts behind them are in sight.
void editReference::MakeRoom() {
    constexpr int kLeast = 160;
    QHeaderView& header = *ui_->lv->header();
    const int last = header.count() - 1;
    header.resizeSection(last, header.sectionSizeHint(last));  // at least; it takes what is left
    const int others = header.sectionPosition(last) - header.sectionSize(kReferencePath) +
                       header.sectionSizeHint(last);
    const int room = std::max(ui_->lv->viewport()->width() - others, kLeast);
    if (header.sectionSize(kReferencePath) > room)
        ui_->lv->setColumnWidth(kReferencePath, room);
}

// By the shown text: in the short form that is the bare file name.
void editReference::OpenSelected() {
    const int row = ui_->lv->SelectedRow();
    if (row < 0)
        return;
    const CellRow& selected = ui_->lv->List().At(row);
    if (IsMissing(selected))
        return Warn(Tr(Text::RowMissing));
    OpenDocumentInCad(selected.cells[kReferencePath].text);
}

void editReference::ExportRows() {
    ExportFrom(*this, ListToTable(ui_->lv->List()), *ui_->lblProgress);
}

}  // namespace docbench
