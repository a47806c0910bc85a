#include "editors/editconfig.h"

#include <QMenu>
#include <QPointer>

#include "editors/configurationtree.h"
#include "frame/desccontrol.h"
#include "services/dialogs.h"
#include "services/docaccess.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/language.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"
#include "shell/languagefonts.h"
#include "shell/picturestore.h"
#include "ui_editconfig.h"

namespace docbench {
namespace {

void Warn(const QString& text) {
    gSeams.dialogs->Box(text, Dialogs::Icon::Exclamation, gAppTitle);
}

}  // namespace

editConfig::editConfig(QWidget* parent) : Pane(parent), ui_(std::make_unique<Ui::editConfig>()) {
    LoadResources();
    ui_->setupUi(this);
    configurations_ = std::make_unique<ConfigurationTree>(ui_->tvwconfig->Tree());
    MakeMenu();
    SetCaptions();
    ApplyLanguageFonts(*this);
    ui_->Labelnon2000->hide();
    ConnectControls();
    UpdateButtons();
}

// An edit box that is still open is closed behind this, and nobody is there any more to be told.
editConfig::~editConfig() {
    ui_->tvwconfig->disconnect(this);
}

void editConfig::MakeMenu() {
    mnuEdit = new QMenu(this);
    mnuEdit->setObjectName(QStringLiteral("mnuEdit"));
    renameEntry_ = mnuEdit->addAction(Tr(Text::MenuRename), this, [this] {
        ui_->tvwconfig->BeginEdit(ui_->tvwconfig->SelectedNode());
    });
    renameEntry_->setObjectName(QStringLiteral("mnuEdit(0)"));
    deleteEntry_ = mnuEdit->addAction(QString(), this,
                                      [this] { ToggleDeletion(ui_->tvwconfig->SelectedNode()); });
    deleteEntry_->setObjectName(QStringLiteral("mnuEdit(1)"));
}

void editConfig::SetCaptions() {
    ui_->ecSave->setText(Tr(Text::SaveChanges));
    ui_->ecReset->setText(Tr(Text::Reset));
    ui_->tvwconfig->setAccessibleName(Tr(Text::Configurations));
    ui_->DescControl1->text(Tr(Text::ConfigurationsHelp));
    ui_->DescControl1->icon(PictureOf(QStringLiteral("ECON")));
    ui_->DescControl1->SetHelpFile(gHelpFile, HelpTopic());
}

void editConfig::ConnectControls() {
    ui_->tvwconfig->SetTextToEdit([this](int node) { return configurations_->NameToEdit(node); });
    connect(ui_->tvwconfig, &EditTree::EditEnded, this, &editConfig::EndRename);
    connect(ui_->tvwconfig, &EditTree::DeletePressed, this, &editConfig::ToggleDeletion);
    connect(ui_->tvwconfig, &EditTree::MenuRequested, this, &editConfig::ShowMenu);
    connect(ui_->ecSave, &QPushButton::clicked, this, &editConfig::Save);
    connect(ui_->ecReset, &QPushButton::clicked, this,
            [this] { SetPartName(partDisplayName, partfilename); });
}

QString editConfig::HelpTopic() const {
    return QStringLiteral("configurations");
}

void editConfig::SetShowDesc(bool show) {
    showDesc_ = show;
    ui_->DescControl1->setVisible(show);
}

void editConfig::Enable(bool enabled) {
    ui_->tvwconfig->setEnabled(enabled);
}

void editConfig::UpdateButtons() {
    const bool pending = configurations_->PendingChanges() > 0;
    ui_->ecSave->setEnabled(pending || IsUploadPending(partfilename));
    ui_->ecReset->setEnabled(pending);
}

void editConfig::SetPartName(const QString& displayName, const QString& path) {
    configurations_->Clear();
    partDisplayName = displayName;
    partfilename = path;
    UpdateButtons();
    if (path.isEmpty())
        return;
    ErrorState errors;
    if (errors.Run([this] { Load(); }))
        return;
    SetStatusText(Format(Text::ConfigurationsNotLoaded, path));
    Warn(Format(Text::ConfigurationLoadError, errors.Description()));
}

void editConfig::Load() {
    if (!configDocument)
        configDocument = Documents().MakeDocumentFile();
    ui_->Labelnon2000->hide();
    ui_->editBox1->show();
    const QPointer<editConfig> alive(this);
    const QString document = partfilename;
    const QString local = LocalCopyOf(document);
    if (!alive || partfilename != document)
        return;  // gone, or on another one, behind the question for a password
    localPath = local;
    configDocument->Open(localPath);
    if (!configDocument->IsCurrentFormat()) {
        ui_->editBox1->hide();
        ui_->Labelnon2000->setText(gOldFormatText);
        ui_->Labelnon2000->show();
        return SetStatusText(gOldFormatText);
    }
    configCount = configurations_->Load(*configDocument, partDisplayName, partfilename);
    ui_->tvwconfig->expandAll();
    SetStatusText(Format(Text::ConfigurationCount, configCount));
}

// Its messages come later: the edit box is closed in the midst of a change of focus or a drop.
void editConfig::EndRename(int node, const QString& typed) {
    const auto warnLater = [this](const QString& text) {
        QMetaObject::invokeMethod(
            this, [text] { Warn(text); }, Qt::QueuedConnection);
    };
    switch (configurations_->Rename(node, typed)) {
        case ConfigurationTree::Answer::NameEmpty:
            return warnLater(Tr(Text::ConfigurationNameEmpty));
        case ConfigurationTree::Answer::NameTaken:
            return warnLater(Tr(Text::ConfigurationNameTaken));
        default:
            UpdateButtons();
    }
}

void editConfig::ToggleDeletion(int node) {
    switch (configurations_->ToggleDeletion(node)) {
        case ConfigurationTree::Answer::Stays:
            return Warn(Tr(Text::ConfigurationStays));
        case ConfigurationTree::Answer::NameTaken:
            return Warn(Tr(Text::ConfigurationNameTaken));
        default:
            UpdateButtons();
    }
}

void editConfig::ShowMenu(QPoint globalPosition) {
    const int node = ui_->tvwconfig->SelectedNode();
    if (node == 0)
        return;
    const bool deleted = configurations_->IsDeleted(node);
    renameEntry_->setEnabled(!deleted);
    deleteEntry_->setText(deleted ? Tr(Text::MenuUndelete) : Tr(Text::MenuDelete));
    mnuEdit->popup(globalPosition);
}

// Behind each box the pane may be gone, or on another document.
void editConfig::Save() {
    const QPointer<editConfig> alive(this);
    const QString document = partfilename;
    const auto isOver = [&] { return !alive || partfilename != document; };
    ui_->ecSave->setFocus();  // takes what an open edit box holds: a mnemonic leaves it open
    if (isOver() || document.isEmpty())
        return;
    bool uploaded = false;
    ErrorState errors;
    errors.Run([&] { uploaded = Write(); });
    if (isOver())
        return;
    if (errors.Failed()) {
        SetStatusText(Tr(Text::ConfigurationsNotSaved));
        return Warn(Format(Text::ConfigurationSaveError, errors.Description()));
    }
    SetPartName(partDisplayName, partfilename);
    if (!isOver())
        SetStatusText(uploaded ? Tr(Text::ConfigurationsSaved) : Tr(Text::ConfigurationsNotSaved));
}

// Onto the document as it is now, so that an attempt that failed leaves nothing for the next one.
// False when the server has not taken the document, which the upload has told.
bool editConfig::Write() {
    const QString url = UrlToUpload(partfilename, localPath);
    const QList<ConfigurationEdit> edits = configurations_->Edits();
    if (!edits.isEmpty())
        SaveConfigurations(localPath, *configDocument, edits, partfilename);
    return (edits.isEmpty() && !IsUploadPending(partfilename)) || UploadIfWeb(url);
}

}  // namespace docbench
