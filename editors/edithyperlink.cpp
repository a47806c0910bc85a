#include "editors/edithyperlink.h"

#include <QPointer>

#include "editors/hyperlinktree.h"
#include "frame/desccontrol.h"
#include "services/dialogs.h"
#include "services/docaccess.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/language.h"
#include "services/openexternal.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"
#include "shell/languagefonts.h"
#include "shell/picturestore.h"
#include "ui_edithyperlink.h"

namespace docbench {
namespace {

void Warn(const QString& text) {
    gSeams.dialogs->Box(text, Dialogs::Icon::Exclamation, gAppTitle);
}

}  // namespace

EditHyperLink::EditHyperLink(QWidget* parent)
    : Pane(parent), ui_(std::make_unique<Ui::EditHyperLink>()) {
    LoadResources();
    ui_->setupUi(this);
    hyperlinks_ = std::make_unique<HyperlinkTree>(ui_->tvwhlink->Tree());
    SetCaptions();
    ApplyLanguageFonts(*this);
    ui_->Labelnon2000->hide();
    ConnectControls();
    UpdateButtons();
}

// An edit box that is still open is closed behind this, and nobody is there any more to be told.
EditHyperLink::~EditHyperLink() {
    ui_->tvwhlink->disconnect(this);
}

void EditHyperLink::SetCaptions() {
    ui_->ecSave->setText(Tr(Text::SaveChanges));
    ui_->ecReset->setText(Tr(Text::Reset));
    ui_->tvwhlink->setAccessibleName(Tr(Text::Hyperlinks));
    ui_->DescControl1->text(Tr(Text::HyperlinksHelp));
    ui_->DescControl1->icon(PictureOf(QStringLiteral("ELIK")));
    ui_->DescControl1->SetHelpFile(gHelpFile, HelpTopic());
}

void EditHyperLink::ConnectControls() {
    ui_->tvwhlink->SetTextToEdit([this](int node) { return hyperlinks_->TextToEdit(node); });
    connect(ui_->tvwhlink, &EditTree::EditEnded, this, [this](int node, const QString& typed) {
        hyperlinks_->Edit(node, typed);
        UpdateButtons();
    });
    connect(ui_->tvwhlink, &EditTree::Opened, this, &EditHyperLink::OpenTarget);
    connect(ui_->ecSave, &QPushButton::clicked, this, &EditHyperLink::Save);
    connect(ui_->ecReset, &QPushButton::clicked, this,
            [this] { SetPartName(partDisplayName, partfilename); });
}

QString EditHyperLink::HelpTopic() const {
    return QStringLiteral("hyperlinks");
}

void EditHyperLink::SetShowDesc(bool show) {
    showDesc_ = show;
    ui_->DescControl1->setVisible(show);
}

void EditHyperLink::Enable(bool enabled) {
    ui_->tvwhlink->setEnabled(enabled);
}

void EditHyperLink::UpdateButtons() {
    const bool pending = hyperlinks_->PendingChanges() > 0;
    ui_->ecSave->setEnabled(pending || IsUploadPending(partfilename));
    ui_->ecReset->setEnabled(pending);
}

void EditHyperLink::SetPartName(const QString& displayName, const QString& path) {
    hyperlinks_->Clear();
    partDisplayName = displayName;
    partfilename = path;
    UpdateButtons();
    if (path.isEmpty())
        return;
    ErrorState errors;
    if (errors.Run([this] { Load(); }))
        return;
    SetStatusText(Format(Text::HyperlinksNotLoaded, path));
    Warn(Format(Text::HyperlinkLoadError, errors.Description()));
}

void EditHyperLink::Load() {
    if (!hyperlinkDocument)
        hyperlinkDocument = Documents().MakeDocumentFile();
    ui_->Labelnon2000->hide();
    ui_->editBox1->show();
    const QPointer<EditHyperLink> alive(this);
    const QString document = partfilename;
    const QString local = LocalCopyOf(document);
    if (!alive || partfilename != document)
        return;  // gone, or on another one, behind the question for a password
    localPath = local;
    hyperlinkDocument->OpenHyperlinks(localPath);
    if (!hyperlinkDocument->IsCurrentFormat()) {
        ui_->editBox1->hide();
        ui_->Labelnon2000->setText(gOldFormatText);
        ui_->Labelnon2000->show();
        return SetStatusText(gOldFormatText);
    }
    hyperlinkCount = hyperlinks_->Load(*hyperlinkDocument, partDisplayName, partfilename);
    ui_->tvwhlink->expandAll();
    SetStatusText(Format(Text::HyperlinkCount, hyperlinkCount));
}

void EditHyperLink::OpenTarget(int node) {
    if (const std::optional<QString> target = hyperlinks_->Target(node))
        OpenDocumentExternally(QStringLiteral("Open"), *target, QStringLiteral("0"),
                               QStringLiteral("0"), 1);
}

// Behind each box the pane may be gone, or on another document.
void EditHyperLink::Save() {
    const QPointer<EditHyperLink> alive(this);
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
        SetStatusText(Tr(Text::HyperlinksNotSaved));
        return Warn(Format(Text::HyperlinkSaveError, errors.Description()));
    }
    SetPartName(partDisplayName, partfilename);
    if (!isOver())
        SetStatusText(uploaded ? Tr(Text::HyperlinksSaved) : Tr(Text::HyperlinksNotSaved));
}

// Onto the document as it is now, so that an attempt that failed leaves nothing for the next one.
// False when the server has not taken the document, which the upload has told.
bool EditHyperLink::Write() {
    const QString url = UrlToUpload(partfilename, localPath);
    const bool changed = hyperlinks_->Save(localPath, *hyperlinkDocument, partfilename);
    return (!changed && !IsUploadPending(partfilename)) || UploadIfWeb(url);
}

}  // namespace docbench
