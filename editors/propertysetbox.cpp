#include "editors/propertysetbox.h"

#include <QLineEdit>
#include <QPointer>
#include <QRegularExpressionValidator>
#include <limits>

#include "panes/celllistview.h"
#include "services/dialogs.h"
#include "services/language.h"
#include "services/seams.h"
#include "services/texts.h"
#include "ui_propertysetbox.h"

namespace docbench {
namespace {

constexpr int kLongestSelection = 1000;
constexpr int kNoLimit = std::numeric_limits<int>::max();

QStringList SuggestedNames() {
    constexpr int kFirst = 179;
    constexpr int kLastOfBlock = 202;
    QStringList names;
    for (int number = kFirst; number <= kLastOfBlock; ++number)
        names.append(gStrings[size_t(number)]);
    return names << Tr(Text::Status) << Tr(Text::PropertyTelephoneNumber)
                 << Tr(Text::PropertyTypist);
}

}  // namespace

PropertySetBox::PropertySetBox(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::PropertySetBox>()) {
    LoadResources();
    ui_->setupUi(this);
    PreparePropertyList(ui_->lv1->List());
    ui_->Name1->addItems(SuggestedNames());
    ui_->Name1->setCompleter(nullptr);  // what is typed stays what it is
    ui_->Name1->lineEdit()->setMaxLength(kNoLimit);
    ui_->Name1->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[^\\x00-\\x1F\\x{FFFE}\\x{FFFF}]*")), ui_->Name1));
    ui_->type1->addItems(PropertyTypeLabels());
    ui_->Value1->setMaxLength(kNoLimit);
    SetCaptions();
    ConnectControls();
    ClearInput();
}

PropertySetBox::~PropertySetBox() = default;

void PropertySetBox::SetCaptions() {
    ui_->labName->setText(Tr(Text::NameField));
    ui_->labType->setText(Tr(Text::TypeField));
    ui_->labValue->setText(Tr(Text::ValueField));
    ui_->OptionYes->setText(Tr(Text::ValueYes));
    ui_->OptionNo->setText(Tr(Text::ValueNo));
    ui_->Remove1->setText(Tr(Text::RemoveProperty));
    ui_->lv1->setAccessibleName(Tr(Text::Properties));
}

void PropertySetBox::SetIndex(int index) {
    for (QWidget* control :
         std::initializer_list<QWidget*>{ui_->lv1, ui_->Name1, ui_->type1, ui_->Value1, ui_->Frame2,
                                         ui_->OptionYes, ui_->OptionNo, ui_->Add1, ui_->Remove1})
        control->setObjectName(QStringLiteral("%1(%2)").arg(control->objectName()).arg(index));
}

void PropertySetBox::ConnectControls() {
    // Leaving the field is no picking, though the combo takes it for one.
    disconnect(ui_->Name1->lineEdit(), &QLineEdit::editingFinished, ui_->Name1, nullptr);
    connect(ui_->lv1, &CellListView::RowClicked, this, &PropertySetBox::ShowRow);
    connect(ui_->lv1, &CellListView::PickedByKey, this, &PropertySetBox::ShowRow);
    connect(ui_->Name1, &QComboBox::editTextChanged, this, &PropertySetBox::OnNameChanged);
    connect(ui_->Name1, &QComboBox::activated, this, &PropertySetBox::OnNamePicked);
    connect(ui_->type1, &QComboBox::currentIndexChanged, this, &PropertySetBox::OnTypePicked);
    connect(ui_->Value1, &QLineEdit::textChanged, this, &PropertySetBox::UpdateAdd);
    // Later, as the field must not go away in the midst of its key behind a box of Add1.
    connect(ui_->Value1, &QLineEdit::returnPressed, ui_->Add1, &QPushButton::click,
            Qt::QueuedConnection);
    for (QRadioButton* option : {ui_->OptionYes, ui_->OptionNo})
        connect(option, &QRadioButton::clicked, this, &PropertySetBox::UpdateAdd);
    connect(ui_->Add1, &QPushButton::clicked, this, &PropertySetBox::Add);
    connect(ui_->Remove1, &QPushButton::clicked, this, &PropertySetBox::Remove);
}

CellList& PropertySetBox::List() {
    return ui_->lv1->List();
}

void PropertySetBox::Load(DocumentInfo& set, const QString& document) {
    LoadPropertyRows(List(), set);
    TakeNames(set);
    document_ = document;
    ui_->lv1->FitColumns();
}

void PropertySetBox::TakeNames(DocumentInfo& saved) {
    stored_ = PropertyNames(saved);
}

void PropertySetBox::FocusName() {
    ui_->Name1->setFocus();
}

PropertyType PropertySetBox::Type() const {
    return TypeOfLabel(ui_->type1->currentText());
}

// One of the two answers is always a value.
bool PropertySetBox::HasValue() const {
    return Type() == kYesNoProperty || !ui_->Value1->text().isEmpty();
}

void PropertySetBox::UpdateAdd() {
    ui_->Add1->setEnabled(!ui_->Name1->currentText().isEmpty() && HasValue());
}

void PropertySetBox::OnNameChanged() {
    const bool known = FindProperty(List(), ui_->Name1->currentText()) >= 0;
    ui_->Add1->setText(known ? Tr(Text::Change) : Tr(Text::AddProperty));
    ui_->Remove1->setEnabled(known);
    UpdateAdd();
}

void PropertySetBox::OnNamePicked() {
    const int row = FindProperty(List(), ui_->Name1->currentText());
    if (row >= 0)
        ShowRow(row);
}

void PropertySetBox::OnTypePicked() {
    ShowValueOf(Type());
    if (Type() == kYesNoProperty)
        ui_->Add1->setEnabled(true);
    else
        UpdateAdd();
}

void PropertySetBox::ShowValueOf(PropertyType type) {
    ui_->Value1->setVisible(type != kYesNoProperty);
    ui_->Frame2->setVisible(type == kYesNoProperty);
}

void PropertySetBox::ShowRow(int row) {
    const CellRow shown = List().At(row);
    const QString& value = shown.cells[kPropertyValue].text;
    ui_->Name1->setEditText(shown.cells[kPropertyName].text);
    ui_->type1->setCurrentIndex(TypeOfLabel(shown.cells[kPropertyType].text));
    ui_->Value1->setText(value);
    ui_->OptionYes->setChecked(value == Tr(Text::ValueYes));
    ui_->OptionNo->setChecked(value != Tr(Text::ValueYes));
    ui_->Add1->setText(Tr(Text::Change));
    ui_->Add1->setEnabled(false);  // until something is changed
    ui_->Remove1->setEnabled(true);
}

void PropertySetBox::ClearInput() {
    ui_->Name1->clearEditText();
    ui_->Value1->clear();
    ui_->type1->setCurrentIndex(kTextProperty);
    ui_->OptionYes->setChecked(true);
    OnNameChanged();
    ShowValueOf(kTextProperty);
}

// Tells the user why, if not.
bool PropertySetBox::CanEdit(const QString& name) const {
    if (!IsAmbiguous(stored_, name))
        return true;
    gSeams.dialogs->Box(Format(Text::PropertiesWriteError, AmbiguityReason(document_, name)),
                        Dialogs::Icon::Exclamation, gAppTitle);
    return false;
}

void PropertySetBox::Add() {
    const QString name = ui_->Name1->currentText();
    if (name.isEmpty())
        return FocusName();
    if (!CanEdit(name))
        return;
    if (!FitsType(ui_->Value1->text(), Type())) {
        const QPointer<QLineEdit> value = ui_->Value1;  // it may go away behind the box
        gSeams.dialogs->Box(Tr(Text::ValueOfOtherType), Dialogs::Icon::Exclamation, gAppTitle);
        if (!value)
            return;
        value->setFocus();
        value->setSelection(0, kLongestSelection);
        return;
    }
    if (ui_->Value1->isHidden())
        ui_->Value1->setText(ui_->OptionYes->isChecked() ? Tr(Text::ValueYes) : Tr(Text::ValueNo));
    const int row = ui_->Add1->text() == Tr(Text::Change) ? FindProperty(List(), name) : -1;
    PutProperty(List(), row, name, ui_->Value1->text(), Type());
    ClearInput();
    Q_EMIT Edited();
}

void PropertySetBox::Remove() {
    const int row = FindProperty(List(), ui_->Name1->currentText());
    if (row < 0 || !CanEdit(ui_->Name1->currentText()))
        return;
    const QString name = List().At(row).cells[kPropertyName].text;
    List().Remove(row);
    ui_->lv1->clearSelection();
    ClearInput();
    Q_EMIT Removed(name);
    Q_EMIT Edited();
}

}  // namespace docbench
