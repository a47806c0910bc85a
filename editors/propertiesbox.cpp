#include "editors/propertiesbox.h"

#include <QSignalBlocker>
#include <limits>

#include "editors/propertyrows.h"
#include "editors/propertysave.h"
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
#include "ui_propertiesbox.h"

namespace docbench {
namespace {

enum Tab { kSummaryTab = 0, kCustomTab = 1, kConfigurationTab = 2 };

void Warn(const QString& text) {
    gSeams.dialogs->Box(text, Dialogs::Icon::Exclamation, gAppTitle);
}

void SetFieldName(QWidget* field, int index) {
    field->setObjectName(QStringLiteral("Summary(%1)").arg(index));
}

}  // namespace

PropertiesBox::PropertiesBox(QWidget* parent)
    : Pane(parent), ui_(std::make_unique<Ui::PropertiesBox>()) {
    LoadResources();
    ui_->setupUi(this);
    SetFieldName(ui_->Summary_0, 0);
    SetFieldName(ui_->Summary_1, 1);
    SetFieldName(ui_->Summary_2, 2);
    SetFieldName(ui_->Summary_5, 5);
    SetFieldName(ui_->Summary_6, 6);
    for (QLineEdit* field : {ui_->Summary_0, ui_->Summary_1, ui_->Summary_2, ui_->Summary_5})
        field->setMaxLength(std::numeric_limits<int>::max());
    ui_->configSet->SetIndex(1);
    ui_->customSet->SetIndex(2);
    ui_->configSet->setEnabled(false);
    ui_->ApplyButton->setEnabled(false);
    ui_->resetbutton->setEnabled(false);
    SetCaptions();
    ApplyLanguageFonts(*this);
    ConnectControls();
}

PropertiesBox::~PropertiesBox() = default;

void PropertiesBox::SetCaptions() {
    const std::pair<QLabel*, TextId<0>> labels[] = {{ui_->labSummary_0, Text::Title},
                                                    {ui_->labSummary_1, Text::Subject},
                                                    {ui_->labSummary_2, Text::Author},
                                                    {ui_->labSummary_5, Text::Keywords},
                                                    {ui_->labSummary_6, Text::Comments},
                                                    {ui_->labCreatedCaption, Text::Created},
                                                    {ui_->labLastSavedbyCaption, Text::LastSavedBy},
                                                    {ui_->labLastsavedCaption, Text::LastSaved},
                                                    {ui_->labLockedByCaption, Text::LockedBy}};
    for (const auto& [label, text] : labels)
        label->setText(Tr(text));
    ui_->labList1->setText(Tr(Text::Configuration));
    ui_->TabStrip1->setTabText(kSummaryTab, Tr(Text::SummaryTab));
    ui_->TabStrip1->setTabText(kCustomTab, Tr(Text::CustomTab));
    ui_->TabStrip1->setTabText(kConfigurationTab, Tr(Text::ConfigurationTab));
    ui_->TabStrip1->setCurrentIndex(kSummaryTab);
    ui_->ApplyButton->setText(Tr(Text::SaveChanges));
    ui_->resetbutton->setText(Tr(Text::Reset));
    ui_->DescControl1->text(Tr(Text::PropertiesHelp));
    ui_->DescControl1->icon(PictureOf(QStringLiteral("PROP")));
    ui_->DescControl1->SetHelpFile(gHelpFile, HelpTopic());
}

void PropertiesBox::ConnectControls() {
    for (QLineEdit* field : {ui_->Summary_0, ui_->Summary_1, ui_->Summary_2, ui_->Summary_5})
        connect(field, &QLineEdit::textChanged, this, &PropertiesBox::OnSummaryChanged);
    connect(ui_->Summary_6, &QPlainTextEdit::textChanged, this, &PropertiesBox::OnSummaryChanged);
    connect(ui_->customSet, &PropertySetBox::Removed, this,
            [this](const QString& name) { deletedCustomNames.append(name); });
    connect(ui_->customSet, &PropertySetBox::Edited, this, [this] {
        customDirty = true;
        EnableButtons();
    });
    connect(ui_->configSet, &PropertySetBox::Removed, this,
            [this](const QString& name) { deletedConfigNames.append(name); });
    connect(ui_->configSet, &PropertySetBox::Edited, this, [this] {
        configDirty = true;
        EnableButtons();
    });
    // The selection and not the current item, which the list gets with the focus alone.
    connect(ui_->List1, &QListWidget::itemSelectionChanged, this,
            &PropertiesBox::OnConfigurationPicked);
    connect(ui_->TabStrip1, &QTabWidget::currentChanged, this, &PropertiesBox::OnTabChanged);
    connect(ui_->ApplyButton, &QPushButton::clicked, this, &PropertiesBox::Apply);
    connect(ui_->resetbutton, &QPushButton::clicked, this, [this] {
        const QPointer<PropertiesBox> self = this;
        populateSummary(partfilename);
        if (self)
            FocusByTab();
    });
}

void PropertiesBox::SetShowDesc(bool show) {
    showDesc_ = show;
    ui_->DescControl1->setVisible(show);
}

QString PropertiesBox::HelpTopic() const {
    switch (ui_->TabStrip1->currentIndex()) {
        case kCustomTab:
            return QStringLiteral("properties#custom");
        case kConfigurationTab:
            return QStringLiteral("properties#configuration");
        default:
            return QStringLiteral("properties#summary");
    }
}

void PropertiesBox::OnTabChanged() {
    ui_->DescControl1->SetHelpFile(gHelpFile, HelpTopic());
    FocusByTab();
}

void PropertiesBox::FocusByTab() {
    switch (ui_->TabStrip1->currentIndex()) {
        case kCustomTab:
            return ui_->customSet->FocusName();
        case kConfigurationTab:
            return ui_->List1->setFocus();
        default:
            return ui_->Summary_2->setFocus();
    }
}

void PropertiesBox::EnableButtons() {
    if (!populated)
        return;
    ui_->ApplyButton->setEnabled(true);
    ui_->resetbutton->setEnabled(true);
}

void PropertiesBox::OnSummaryChanged() {
    summaryDirty = true;
    EnableButtons();
}

void PropertiesBox::SetPartName(const QString& displayName, const QString& path) {
    if (path.isEmpty())
        return;
    partDisplayName = displayName;
    ErrorState errors;
    if (!errors.Run([&] { populateSummary(path); }))
        Warn(Format(Text::PropertiesShowError, errors.Description()));
}

void PropertiesBox::populateSummary(const QString& path) {
    ErrorState errors;
    if (!errors.Run([&] { Load(path); }))
        Warn(Format(Text::PropertiesLoadError, errors.Description()));
}

// The path is a text of its own, as `partfilename` may become another's behind a password box.
void PropertiesBox::Load(QString path) {
    ++loads_;
    const Loaded loaded(this);
    lostUploads_ = LostUploads(path);
    partfilename = path;
    Blank();
    const QString local = LocalCopyOf(path);
    if (loaded.IsOver())
        return;
    const auto info = Documents().MakeDocumentInfo();
    if (!info->Open(local)) {
        SetStatusText(Format(Text::NoPropertiesOf, path));
        return Warn(Tr(Text::NoProperties));
    }
    FillSummary(*info);
    ui_->customSet->Load(*info, path);
    customStamp_ = info->GetStamp(PropertyGroup::Custom);
    ListConfigurations(local);
    populated = true;
    if (IsUploadPending(path))
        EnableButtons();
    SetStatusText(Format(Text::PropertiesOf, path));
}

// The rows of the former configuration stay in sight until one is picked, but can't be changed.
void PropertiesBox::Blank() {
    populated = false;
    ui_->ApplyButton->setEnabled(false);
    ui_->resetbutton->setEnabled(false);
    for (QLineEdit* field : {ui_->Summary_0, ui_->Summary_1, ui_->Summary_2, ui_->Summary_5})
        field->clear();
    ui_->Summary_6->clear();
    for (QLabel* fact : {ui_->labCreated, ui_->labLastSavedby, ui_->labLastsaved, ui_->labLockedBy})
        fact->clear();
    ui_->customSet->List().Clear();
    ui_->customSet->ClearInput();
    deletedCustomNames.clear();
    const QSignalBlocker blocker(ui_->List1);
    ui_->List1->clear();
    currentConfiguration = -1;
    ui_->configSet->ClearInput();
    ui_->configSet->setEnabled(false);
    deletedConfigNames.clear();
    summaryDirty = customDirty = configDirty = false;
}

void PropertiesBox::FillSummary(DocumentInfo& info) {
    ui_->Summary_0->setText(ReadSummaryField(info, SummaryField::Title));
    ui_->Summary_2->setText(ReadSummaryField(info, SummaryField::Author));
    ui_->Summary_1->setText(ReadSummaryField(info, SummaryField::Subject));
    ui_->Summary_5->setText(ReadSummaryField(info, SummaryField::Keywords));
    ui_->Summary_6->setPlainText(ReadSummaryField(info, SummaryField::Comments));
    ui_->labCreated->setText(info.GetCreated());
    ui_->labLockedBy->setText(info.GetLocked() ? info.GetLockedBy() : Tr(Text::NotLocked));
    ShowLastSave(info);
    summaryStamp_ = info.GetStamp(PropertyGroup::Summary);
    for (int field = 0; field < kSummaryFields; ++field)
        untouched_[size_t(field)] = TextOf(SummaryField(field));
}

void PropertiesBox::ShowLastSave(DocumentInfo& info) {
    ui_->labLastSavedby->setText(info.GetLastSavedBy());
    ui_->labLastsaved->setText(info.GetLastSaved());
}

void PropertiesBox::ListConfigurations(const QString& local) {
    const auto file = Documents().MakeDocumentFile();
    file->Open(local);
    const QSignalBlocker blocker(ui_->List1);
    const int count = file->GetConfigurationCount();
    for (int index = 0; index < count; ++index)
        ui_->List1->addItem(file->GetConfiguration(index));
}

int PropertiesBox::PickedConfiguration() const {
    const QList<QListWidgetItem*> picked = ui_->List1->selectedItems();
    return picked.isEmpty() ? -1 : ui_->List1->row(picked.first());
}

void PropertiesBox::OnConfigurationPicked() {
    const int index = PickedConfiguration();
    if (index < 0 && currentConfiguration >= 0) {
        // A click with Ctrl: the rows in sight stay those of the configuration, so it stays picked.
        const QSignalBlocker blocker(ui_->List1);
        ui_->List1->setCurrentRow(currentConfiguration, QItemSelectionModel::ClearAndSelect);
        return;
    }
    if (index < 0 || index == currentConfiguration)
        return;
    const Loaded loaded(this);
    const bool stays = currentConfiguration >= 0 && configDirty && !LeaveConfiguration();
    if (loaded.IsOver())
        return;
    if (stays) {
        const QSignalBlocker blocker(ui_->List1);
        ui_->List1->setCurrentRow(currentConfiguration);
        return;
    }
    currentConfiguration = index;
    ui_->configSet->setEnabled(false);
    ErrorState errors;
    if (!errors.Run([&] { ShowConfiguration(index); }))
        Warn(Format(Text::ConfigurationPropertiesError, errors.Description()));
}

// False when the edits could not be written: they stay with their configuration. No word of it when
// the document is another's by then.
bool PropertiesBox::LeaveConfiguration() {
    const Loaded loaded(this);
    const Dialogs::Answer answer = gSeams.dialogs->Box(
        Tr(Text::LeaveConfiguration), Dialogs::Icon::None, gAppTitle, Dialogs::Buttons::YesNo);
    if (loaded.IsOver())
        return false;
    if (answer != Dialogs::Answer::Yes) {
        configDirty = false;
        return true;
    }
    ErrorState errors;
    if (errors.Run([this] { WriteConfiguration(currentConfiguration); }))
        return true;
    Warn(Format(Text::PropertiesWriteError, errors.Description()));
    return false;
}

std::unique_ptr<DocumentInfo> PropertiesBox::OpenConfiguration(int index) const {
    const QString path = partfilename;  // a text of its own, as in Load
    return OpenConfigurationSet(path, index, ui_->List1->item(index)->text());
}

void PropertiesBox::ShowConfiguration(int index) {
    const Loaded loaded(this);
    const auto set = OpenConfiguration(index);
    if (loaded.IsOver())
        return;
    if (!set)
        return Warn(Tr(Text::NoConfigurationProperties));
    ui_->configSet->Load(*set, partfilename);
    configStamp_ = set->GetStamp(PropertyGroup::Custom);
    configDirty = false;
    deletedConfigNames.clear();
    ui_->configSet->ClearInput();
    ui_->configSet->setEnabled(true);
}

void PropertiesBox::Apply() {
    if (!populated)
        return;
    ErrorState errors;
    if (!errors.Run([this] { WriteEdits(); }))
        Warn(Format(Text::PropertiesWriteError, errors.Description()));
}

void PropertiesBox::WriteEdits() {
    RequireNoLostUploads(partfilename, lostUploads_);
    const Loaded loaded(this);
    const int configuration = PickedConfiguration();
    if (configDirty && configuration >= 0 && !WriteConfiguration(configuration))
        return;
    if (loaded.IsOver())
        return;
    if (summaryDirty || customDirty)
        WriteDocument();
    else if (IsUploadPending(partfilename))
        Upload();
}

// The flags are cleared when all is on the disk, so that whatever fails can be tried again. False
// when the server has not taken the document, which the upload has told.
bool PropertiesBox::WriteConfiguration(int index) {
    RequireNoLostUploads(partfilename, lostUploads_);
    const Loaded loaded(this);
    const auto set = OpenConfiguration(index);
    if (loaded.IsOver())
        return false;
    if (!set)
        throw DocumentError(QStringLiteral("The configuration %1 is no longer in %2. Load the "
                                           "document again.")
                                .arg(ui_->List1->item(index)->text(), partfilename));
    SaveConfigurationSet(*set, {ui_->configSet->List(), deletedConfigNames, configStamp_},
                         partfilename);
    configStamp_ = set->GetStamp(PropertyGroup::Custom);
    ui_->configSet->TakeNames(*set);
    deletedConfigNames.clear();
    configDirty = false;
    return Upload();
}

void PropertiesBox::WriteDocument() {
    const Loaded loaded(this);
    const QString local = LocalCopyOf(partfilename);
    if (loaded.IsOver())
        return;
    const auto info = Documents().MakeDocumentInfo();
    if (!info->Open(local))
        return Warn(Format(Text::PropertiesNotOpened, partfilename));
    const SummaryEdits typed = TypedSummary();
    DocumentEdits edits{.summaryStamp = summaryStamp_};
    if (summaryDirty)
        edits.summary = typed;
    if (customDirty)
        edits.custom.emplace(SetEdits{ui_->customSet->List(), deletedCustomNames, customStamp_});
    SaveDocumentProperties(*info, edits, partfilename);
    TakeAsRead(*info, HasEdits(typed));
    summaryDirty = customDirty = false;
    Upload();
    if (!loaded.IsOver())
        ShowLastSave(*info);
}

// False when the server has not taken what is saved. A document may have been opened as the local
// copy itself.
bool PropertiesBox::Upload() {
    return UploadIfWeb(UrlToUpload(partfilename, gWebCopies.value(partfilename, partfilename)));
}

// What was not written keeps its stamp: the pane still shows it as it was read.
void PropertiesBox::TakeAsRead(DocumentInfo& saved, bool summaryTyped) {
    if (summaryTyped)
        summaryStamp_ = saved.GetStamp(PropertyGroup::Summary);
    if (customDirty) {
        customStamp_ = saved.GetStamp(PropertyGroup::Custom);
        ui_->customSet->TakeNames(saved);
    }
    for (int field = 0; field < kSummaryFields; ++field)
        untouched_[size_t(field)] = TextOf(SummaryField(field));
    deletedCustomNames.clear();
}

SummaryEdits PropertiesBox::TypedSummary() const {
    SummaryEdits typed;
    for (size_t field = 0; field < kSummaryFields; ++field) {
        const QString text = TextOf(SummaryField(field));
        if (text != untouched_[field])
            typed[field] = text;
    }
    return typed;
}

QString PropertiesBox::TextOf(SummaryField field) const {
    switch (field) {
        case SummaryField::Title:
            return ui_->Summary_0->text();
        case SummaryField::Subject:
            return ui_->Summary_1->text();
        case SummaryField::Author:
            return ui_->Summary_2->text();
        case SummaryField::Keywords:
            return ui_->Summary_5->text();
        case SummaryField::Comments:
            break;
    }
    // Not as plain text, which would turn every no-break space into a common one. Shift+Enter makes
    // a line separator, which is a line's end like any other.
    return ui_->Summary_6->document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n');
}

}  // namespace docbench
