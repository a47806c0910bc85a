#include "setup/setup.h"

#include <QPointer>
#include <QShowEvent>
#include <algorithm>

#include "frame/desccontrol.h"
#include "services/dialogs.h"
#include "services/language.h"
#include "services/languagechoice.h"
#include "services/openexternal.h"
#include "services/programfolder.h"
#include "services/seams.h"
#include "services/texts.h"
#include "setup/folderlisteditor.h"
#include "shell/languagefonts.h"
#include "shell/picturestore.h"
#include "shell/viewer.h"
#include "ui_setup.h"

namespace docbench {

setup::setup(QWidget* parent) : Pane(parent), ui_(std::make_unique<Ui::setup>()) {
    LoadResources();
    ui_->setupUi(this);
    SetCaptions();
    ApplyLanguageFonts(*this);
    lists_ = new FolderListEditor(
        {.wuNameDir = ui_->wuNameDir,
         .DirList = ui_->DirList,
         .wuKey = ui_->wuKey,
         .wuApply = ui_->wuApply,
         .wuDelKey = ui_->wuDelKey,
         .wuAddNewDir = ui_->wuAddNewDir,
         .wuDeleteDir = ui_->wuDeleteDir,
         .wumoveup = ui_->wumoveup,
         .wumovedown = ui_->wumovedown,
         .wuReset = ui_->wuReset},
        [this](const QString& text) { SetStatusText(text); }, this);
    lists_->setObjectName(QStringLiteral("lists"));
    lists_->ClearEditor();
    lists_->ReloadNames();
    if (const auto shown = ReadOption(Option::ShowDescription))
        ApplyShowDesc(*shown);
    TakeUseViewer();
    ConnectControls();
    FillLanguages();
    const bool hosted = IsHostedByCad();
    ui_->Frame4->setHidden(hosted);
    ui_->chkLogging->setHidden(hosted);
}

setup::~setup() = default;

void setup::SetCaptions() {
    ui_->Frame4->setTitle(Tr(Text::LoggingFrame));
    ui_->chkLogging->setText(Tr(Text::UseLogging));
    ui_->Frame3->setTitle(Tr(Text::OpeningFrame));
    ui_->chkOpenFile->setText(Tr(Text::UseSearchRules));
    ui_->Frame2->setTitle(Tr(Text::DisplayFrame));
    ui_->chkShowDesc->setText(Tr(Text::ShowDescription));
    ui_->Frame1->setTitle(Tr(Text::FolderListsFrame));
    ui_->chkUse3dView->setText(Tr(Text::UseViewer));
    ui_->labNames->setText(Tr(Text::FolderListNames));
    ui_->labKey->setText(Tr(Text::FolderListName));
    ui_->labFolders->setText(Tr(Text::FolderListFolders));
    ui_->wuNameDir->setToolTip(Tr(Text::FolderListsTip));
    ui_->wuDelKey->setText(Tr(Text::DeleteFolderList));
    ui_->wuAddNewDir->setText(Tr(Text::AddFolder));
    ui_->wuDeleteDir->setText(Tr(Text::RemoveFolder));
    ui_->wumoveup->setText(Tr(Text::MoveUp));
    ui_->wumovedown->setText(Tr(Text::MoveDown));
    ui_->wuReset->setText(Tr(Text::ClearFolders));
    ui_->labLanguage->setText(Tr(Text::PropertyLanguage));
    ui_->DescControl1->text(Tr(Text::SetupHelp));
    ui_->DescControl1->icon(PictureOf(QStringLiteral("SETU")));
    ui_->DescControl1->SetHelpFile(gHelpFile, HelpTopic());
}

void setup::ConnectControls() {
    connect(ui_->chkShowDesc, &QCheckBox::stateChanged, this, [this](int state) {
        ApplyShowDesc(state != Qt::Unchecked);
        Store(Option::ShowDescription, *ui_->chkShowDesc);
    });
    connect(ui_->chkUse3dView, &QCheckBox::stateChanged, this, [this](int state) {
        if (!mLoading)
            UseViewer = state != Qt::Unchecked;
        Store(Option::UseViewer, *ui_->chkUse3dView);
    });
    connect(ui_->chkOpenFile, &QCheckBox::stateChanged, this, [this] {
        if (!mLoading)
            ui_->chkOpenFile->setTristate(false);  // the user has decided
        Store(Option::UseSearchRules, *ui_->chkOpenFile);
    });
    connect(ui_->chkLogging, &QCheckBox::stateChanged, this,
            [this] { Store(Option::Logging, *ui_->chkLogging); });
    connect(ui_->cmbLanguage, &QComboBox::activated, this, &setup::TakeLanguage);
}

void setup::FillLanguages() {
    ui_->cmbLanguage->addItem(tr("As the desktop"), QString());
    for (const OfferedLanguage& language : OfferedLanguages(ProgramFolder()))
        ui_->cmbLanguage->addItem(language.name, language.folder);
}

void setup::ShowLanguage() {
    const int chosen = ui_->cmbLanguage->findData(ChosenLanguage());
    ui_->cmbLanguage->setCurrentIndex(std::max(chosen, 0));
}

void setup::TakeLanguage() {
    const QPointer<setup> alive(this);
    if (ChooseLanguage(ui_->cmbLanguage->currentData().toString()))
        SetStatusText(tr("The language changes when the program starts again."));
    else
        gSeams.dialogs->Box(Tr(Text::OptionNotSaved), Dialogs::Icon::Exclamation, gAppTitle);
    if (alive)
        ShowLanguage();
}

QString setup::HelpTopic() const {
    return QStringLiteral("setup");
}

void setup::showEvent(QShowEvent* event) {
    Pane::showEvent(event);
    if (!event->spontaneous())
        ReadOptions();
}

void setup::ReadOptions() {
    mLoading = true;
    const auto show = [](QCheckBox& box, std::optional<bool> value) {
        if (value)
            box.setCheckState(*value ? Qt::Checked : Qt::Unchecked);
    };
    const std::optional<bool> rules = ReadOption(Option::UseSearchRules);
    ui_->chkOpenFile->setCheckState(Qt::PartiallyChecked);
    ui_->chkOpenFile->setTristate(!rules);
    show(*ui_->chkOpenFile, rules);
    // Nothing stored means shown.
    ui_->chkShowDesc->setChecked(mShowDesc);
    show(*ui_->chkShowDesc, ReadOption(Option::ShowDescription));
    ApplyShowDesc(ui_->chkShowDesc->isChecked());
    TakeUseViewer();
    show(*ui_->chkLogging, ReadOption(Option::Logging));
    ShowLanguage();
    mLoading = false;
}

void setup::TakeUseViewer() {
    const bool available = IsViewerAvailable();
    ui_->chkUse3dView->setVisible(available);
    if (!available)
        return;
    UseViewer = ReadOption(Option::UseViewer).value_or(true);
    ui_->chkUse3dView->setChecked(UseViewer);
}

void setup::ApplyShowDesc(bool value) {
    mShowDesc = value;
    ui_->DescControl1->setVisible(value);
}

void setup::Store(Option option, const QCheckBox& box) {
    if (mLoading)
        return;
    switch (StoreOption(option, box.checkState() != Qt::Unchecked)) {
        case Stored::Yes:
            Q_EMIT SetupChanged(QStringLiteral("FO"), 0);
            break;
        case Stored::Failed:
            gSeams.dialogs->Box(Tr(Text::OptionNotSaved), Dialogs::Icon::Exclamation, gAppTitle);
            break;
        case Stored::NotOpened:
            break;
    }
}

}  // namespace docbench
