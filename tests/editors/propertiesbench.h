// The property pane on screen with a document of its own, for its tests.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <memory>

#include "docmodel/builder.h"
#include "docmodel/package.h"
#include "editors/propertiesbox.h"
#include "editors/propertyrows.h"
#include "panes/celllistview.h"
#include "services/language.h"
#include "services/scratch.h"
#include "services/seams.h"
#include "services/texts.h"
#include "tests/support/fakepane.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testlibrary.h"

namespace docbench {

// Sets of the pane, as its controls are numbered.
enum PropertySetIndex { kConfigurationSet = 1, kCustomSet = 2 };

// "pin.tfmprt" with a summary, four custom properties and two configurations.
struct PropertiesBench {
    PropertiesBench() {
        LoadResources();
        PrepareScratch();  // for local copies of web documents
        pin = library.Make(QStringLiteral("pin.tfmprt"));
        docmodel::DocumentBuilder document = docmodel::DocumentBuilder::Edit(pin);
        document.SetTitle(QStringLiteral("Pin"));
        document.SetAuthor(QStringLiteral("Eva"));
        document.SetComments(QStringLiteral("one\ntwo"));
        document.SetCustomProperty(QStringLiteral("Material"), QStringLiteral("steel"));
        document.SetCustomProperty(QStringLiteral("Checked"), QDate(2004, 5, 31).startOfDay());
        document.SetCustomProperty(QStringLiteral("Mass"), 1.5);
        document.SetCustomProperty(QStringLiteral("Released"), true);
        document.AddConfiguration(QStringLiteral("Short"), 0,
                                  {{QStringLiteral("Length"), 20.0, 2}});
        document.AddConfiguration(QStringLiteral("Long"), 0,
                                  {{QStringLiteral("Length"), 40.0, 2},
                                   {QStringLiteral("Finish"), QStringLiteral("zinc"), 0}});
        document.Save();
        pane = std::make_unique<PropertiesBox>();
        pane->SetStatusBarControl(&status);
        pane->resize(700, 600);
        pane->show();
        if (!QTest::qWaitForWindowActive(pane.get()))
            qFatal("no active window");
    }
    void Load() { pane->SetPartName(QStringLiteral("pin"), pin); }

    template <typename T>
    T* Child(const QString& name) {
        T* child = pane->findChild<T*>(name);
        if (!child)
            qFatal("no %s", qPrintable(name));
        return child;
    }
    template <typename T>
    T* Of(int set, const char* name) {
        return Child<T>(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(set));
    }
    QLineEdit* Summary(int index) {
        return Child<QLineEdit>(QStringLiteral("Summary(%1)").arg(index));
    }
    QPlainTextEdit* Comments() { return Child<QPlainTextEdit>(QStringLiteral("Summary(6)")); }
    QString Fact(const char* name) { return Child<QLabel>(QLatin1String(name))->text(); }
    CellListView* View(int set) { return Of<CellListView>(set, "lv1"); }
    CellList& Rows(int set) { return View(set)->List(); }
    QComboBox* Name(int set) { return Of<QComboBox>(set, "Name1"); }
    QComboBox* Type(int set) { return Of<QComboBox>(set, "type1"); }
    QLineEdit* Value(int set) { return Of<QLineEdit>(set, "Value1"); }
    QWidget* Frame(int set) { return Of<QWidget>(set, "Frame2"); }
    QPushButton* AddButton(int set) { return Of<QPushButton>(set, "Add1"); }
    QPushButton* RemoveButton(int set) { return Of<QPushButton>(set, "Remove1"); }
    QPushButton* ApplyButton() { return Child<QPushButton>(QStringLiteral("ApplyButton")); }
    QPushButton* ResetButton() { return Child<QPushButton>(QStringLiteral("resetbutton")); }
    QTabWidget* Tabs() { return Child<QTabWidget>(QStringLiteral("TabStrip1")); }
    QListWidget* Configurations() { return Child<QListWidget>(QStringLiteral("List1")); }

    // Of a row, its three texts.
    QString Row(int set, int row) {
        QStringList texts;
        for (const Cell& cell : Rows(set).At(row).cells)
            texts.append(cell.text);
        return texts.join(u'|');
    }
    void ShowTabOf(int set) { Tabs()->setCurrentIndex(set == kCustomSet ? 1 : 2); }
    void ClickRow(int set, int row) {
        ShowTabOf(set);
        const QRect where = View(set)->visualRect(Rows(set).index(row, 0));
        QTest::mouseClick(View(set)->viewport(), Qt::LeftButton, Qt::NoModifier, where.center());
    }
    void PickConfiguration(int index) {
        Tabs()->setCurrentIndex(2);
        const QRect where = Configurations()->visualItemRect(Configurations()->item(index));
        QTest::mouseClick(Configurations()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          where.center());
    }
    // Types a property and adds it, or changes it.
    void Put(int set, const QString& name, const QString& value, int type = 0) {
        ShowTabOf(set);
        Name(set)->setEditText(name);
        Type(set)->setCurrentIndex(type);
        Value(set)->setText(value);
        QTest::mouseClick(AddButton(set), Qt::LeftButton);
    }
    void Remove(int set, const QString& name) {
        ShowTabOf(set);
        Name(set)->setEditText(name);
        QTest::mouseClick(RemoveButton(set), Qt::LeftButton);
    }
    void Apply() { QTest::mouseClick(ApplyButton(), Qt::LeftButton); }
    // For a pane that goes away behind the click: a mouse would go on with its button.
    static void Click(QPushButton* button) { QMetaObject::invokeMethod(button, "click"); }

    // The names of a set's properties in the document on the disk, in their order.
    static QStringList NamesIn(DocumentInfo& info) {
        QStringList names;
        for (int index = 0; index < info.GetCustomCount(); ++index)
            names.append(info.GetCustomProperty(index).name);
        return names;
    }
    QStringList StoredNames() { return NamesIn(*Record()); }
    QStringList StoredNamesIn(int configuration) {
        const auto file = gSeams.documents->MakeDocumentFile();
        file->Open(pin);
        return NamesIn(*file->GetCustomProperties(configuration));
    }
    // The beginning of a box that quotes `reason` for an error, for TestDialogs::Expect.
    static QString Quoting(TextId<1> text, const QString& reason) {
        return gStrings[size_t(text.number)].section(QStringLiteral("%s"), 0, 0) + reason + u'*';
    }
    QString ChangedElsewhere() const {
        return QStringLiteral("The properties of %1 were changed by another program").arg(pin);
    }

    // What the document on the disk holds.
    std::unique_ptr<DocumentInfo> Record() {
        auto info = gSeams.documents->MakeDocumentInfo();
        if (!info->Open(pin))
            qFatal("no record");
        return info;
    }
    static QVariant ValueIn(DocumentInfo& info, const QString& name) {
        for (int index = 0; index < info.GetCustomCount(); ++index)
            if (info.GetCustomProperty(index).name == name)
                return info.GetCustomProperty(index).value;
        return {};
    }
    QVariant Stored(const QString& name) { return ValueIn(*Record(), name); }
    QVariant StoredIn(int configuration, const QString& name) {
        const auto file = gSeams.documents->MakeDocumentFile();
        file->Open(pin);
        return ValueIn(*file->GetCustomProperties(configuration), name);
    }

    TestLibrary library;
    TestDialogs dialogs;
    FakeStatusLine status;
    QString pin;
    std::unique_ptr<PropertiesBox> pane;
};

}  // namespace docbench
