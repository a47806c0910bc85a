// The property pane: loading and editing, through its widgets.

#include <QClipboard>
#include <QGuiApplication>
#include <QLocale>

#include "services/documentlibrary.h"
#include "tests/editors/propertiesbench.h"
#include "tests/support/failingaccess.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

constexpr int kSets[] = {kConfigurationSet, kCustomSet};

void AddRowsForBothSets() {
    QTest::addColumn<int>("set");
    QTest::newRow("configuration") << int(kConfigurationSet);
    QTest::newRow("custom") << int(kCustomSet);
}

}  // namespace

class TestPropertiesBox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothingIsShownWithoutADocument() {
        PropertiesBench bench;
        bench.pane->SetPartName("pin", "");
        QCOMPARE(bench.Summary(0)->text(), QString());
        QVERIFY(!bench.ApplyButton()->isEnabled() && !bench.ResetButton()->isEnabled());
        QCOMPARE(bench.status.caption, QString());
        bench.Summary(0)->setText("typed");
        QVERIFY(!bench.ApplyButton()->isEnabled());
    }

    void aDocumentFillsTheThreeTabs() {
        PropertiesBench bench;
        bench.library.Lock(bench.pin, "anna");
        docmodel::DocumentBuilder document = docmodel::DocumentBuilder::Edit(bench.pin);
        document.SetCustomProperty("Tested", false);
        document.Save();
        bench.Load();
        QCOMPARE(bench.Summary(0)->text(), QString("Pin"));
        QCOMPARE(bench.Summary(1)->text(), QString());
        QCOMPARE(bench.Summary(2)->text(), QString("Eva"));
        QCOMPARE(bench.Summary(5)->text(), QString());
        QCOMPARE(bench.Comments()->toPlainText(), QString("one\ntwo"));
        const auto record = bench.Record();
        QCOMPARE(bench.Fact("labCreated"), record->GetCreated());
        QCOMPARE(bench.Fact("labLastSavedby"), record->GetLastSavedBy());
        QCOMPARE(bench.Fact("labLastsaved"), record->GetLastSaved());
        QCOMPARE(bench.Fact("labLockedBy"), QString("anna"));
        QCOMPARE(bench.Rows(kCustomSet).Count(), 5);
        QCOMPARE(bench.Row(kCustomSet, 0), "Material|steel|" + gStrings[164]);
        QCOMPARE(bench.Row(kCustomSet, 1), "Checked|31 May 2004|" + gStrings[165]);
        QCOMPARE(bench.Row(kCustomSet, 2), "Mass|1.5|" + gStrings[166]);
        QCOMPARE(bench.Row(kCustomSet, 3), "Released|" + gStrings[339] + '|' + gStrings[167]);
        QCOMPARE(bench.Row(kCustomSet, 4), "Tested|" + gStrings[340] + '|' + gStrings[167]);
        QCOMPARE(bench.Configurations()->count(), 2);
        QCOMPARE(bench.Configurations()->item(0)->text(), QString("Short"));
        QVERIFY(bench.Configurations()->selectedItems().isEmpty());
        QCOMPARE(bench.Rows(kConfigurationSet).Count(), 0);
        QCOMPARE(bench.status.caption, Format(Text::PropertiesOf, bench.pin));
        QVERIFY(!bench.ApplyButton()->isEnabled() && !bench.ResetButton()->isEnabled());
    }

    void theTabsAndTheListHaveTheirCaptions() {
        PropertiesBench bench;
        for (int tab = 0; tab < 3; ++tab)
            QCOMPARE(bench.Tabs()->tabText(tab), gStrings[size_t(152 + tab)]);
        for (const int set : kSets) {
            const std::vector<CellHeader>& headers = bench.Rows(set).Headers();
            QCOMPARE(headers[0].text + headers[1].text + headers[2].text,
                     gStrings[81] + gStrings[82] + gStrings[117]);
            QCOMPARE(bench.Type(set)->count(), 4);
            QCOMPARE(bench.Type(set)->itemText(3), gStrings[167]);
        }
    }

    void theNamesAreSuggestedInTheirOrder() {
        PropertiesBench bench;
        for (const int set : kSets) {
            QCOMPARE(bench.Name(set)->count(), 27);
            QCOMPARE(bench.Name(set)->itemText(0), gStrings[179]);
            QCOMPARE(bench.Name(set)->itemText(23), gStrings[202]);
            QCOMPARE(bench.Name(set)->itemText(24), gStrings[44]);
            QCOMPARE(bench.Name(set)->itemText(25), gStrings[203]);
            QCOMPARE(bench.Name(set)->itemText(26), gStrings[204]);
        }
    }

    void aPropertyWithAnEmptyValueIsLeftOutAndStays() {
        PropertiesBench bench;
        docmodel::DocumentBuilder document = docmodel::DocumentBuilder::Edit(bench.pin);
        document.SetCustomProperty("Empty", QString());
        document.Save();
        bench.Load();
        QCOMPARE(bench.Rows(kCustomSet).Count(), 4);
        bench.Put(kCustomSet, "Owner", "Castings");
        bench.Apply();
        QCOMPARE(bench.Stored("Empty"), QVariant(QString()));
        QCOMPARE(bench.Stored("Owner"), QVariant("Castings"));
    }

    void aFileWithoutARecordEmptiesThePane() {
        PropertiesBench bench;
        bench.Load();
        const QString broken = bench.library.MakeBroken("broken.tfmprt");
        bench.dialogs.Expect(gStrings[175]);
        bench.pane->SetPartName("broken", broken);
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.status.caption, Format(Text::NoPropertiesOf, broken));
        QCOMPARE(bench.Summary(0)->text() + bench.Comments()->toPlainText(), QString());
        QCOMPARE(bench.Rows(kCustomSet).Count(), 0);
        QCOMPARE(bench.Configurations()->count(), 0);
        bench.Summary(0)->setText("typed");
        QVERIFY(!bench.ApplyButton()->isEnabled());
    }

    void anErrorWhileLoadingIsQuoted() {
        PropertiesBench bench;
        FailingAccess access([](const char* operation, const QString&) {
            if (operation == QLatin1String("GetConfigurationCount"))
                throw DocumentError("Torn.");
        });
        bench.dialogs.Expect(Format(Text::PropertiesLoadError, "Torn."));
        bench.Load();
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.Summary(0)->text(), QString("Pin"));
        bench.Put(kCustomSet, "Owner", "Castings");
        QVERIFY(!bench.ApplyButton()->isEnabled());
    }

    void clickingARowFillsTheFields() {
        PropertiesBench bench;
        bench.Load();
        bench.ClickRow(kCustomSet, 2);
        QCOMPARE(bench.Name(kCustomSet)->currentText(), QString("Mass"));
        QCOMPARE(bench.Type(kCustomSet)->currentIndex(), 2);
        QCOMPARE(bench.Value(kCustomSet)->text(), QString("1.5"));
        QCOMPARE(bench.AddButton(kCustomSet)->text(), gStrings[163]);
        QVERIFY(!bench.AddButton(kCustomSet)->isEnabled());
        QVERIFY(bench.RemoveButton(kCustomSet)->isEnabled());
        QTest::keyClick(bench.View(kCustomSet), Qt::Key_Down);
        QCOMPARE(bench.Name(kCustomSet)->currentText(), QString("Released"));
        QVERIFY(bench.Value(kCustomSet)->isHidden());
        QVERIFY(!bench.Frame(kCustomSet)->isHidden());
        QVERIFY(bench.Of<QRadioButton>(kCustomSet, "OptionYes")->isChecked());
        QVERIFY(!bench.AddButton(kCustomSet)->isEnabled());
    }

    void typingANameTellsWhetherItIsNew_data() { AddRowsForBothSets(); }
    void typingANameTellsWhetherItIsNew() {
        QFETCH(int, set);
        PropertiesBench bench;
        bench.Load();
        bench.PickConfiguration(0);
        bench.ShowTabOf(set);
        const QString known = bench.Rows(set).At(0).cells[0].text;
        bench.Name(set)->setFocus();
        QTest::keyClicks(bench.Name(set), "Own");
        QCOMPARE(bench.Name(set)->currentText(), QString("Own"));
        QCOMPARE(bench.AddButton(set)->text(), gStrings[337]);
        QVERIFY(!bench.AddButton(set)->isEnabled());
        bench.Value(set)->setText("x");
        QVERIFY(bench.AddButton(set)->isEnabled() && !bench.RemoveButton(set)->isEnabled());
        bench.Name(set)->setEditText("");
        QVERIFY(!bench.AddButton(set)->isEnabled());
        bench.Name(set)->setEditText(known.toUpper());
        QCOMPARE(bench.AddButton(set)->text(), gStrings[163]);
        QVERIFY(bench.AddButton(set)->isEnabled() && bench.RemoveButton(set)->isEnabled());
        bench.Value(set)->setText("");
        QVERIFY(!bench.AddButton(set)->isEnabled());
        bench.Name(set)->setEditText("");
        QCOMPARE(bench.AddButton(set)->text(), gStrings[337]);
        QVERIFY(!bench.RemoveButton(set)->isEnabled());
    }

    void pickingANameOfARowFillsTheFields() {
        PropertiesBench bench;
        bench.Load();
        bench.Put(kCustomSet, gStrings[182], "Castings");
        QComboBox* names = bench.Name(kCustomSet);
        names->setFocus();
        names->setCurrentIndex(2);
        QTest::keyClick(names, Qt::Key_Down);
        QCOMPARE(names->currentText(), gStrings[182]);
        QCOMPARE(bench.Value(kCustomSet)->text(), QString("Castings"));
        QVERIFY(!bench.AddButton(kCustomSet)->isEnabled());
        QTest::keyClick(names, Qt::Key_Down);
        QCOMPARE(bench.AddButton(kCustomSet)->text(), gStrings[337]);
        QVERIFY(bench.AddButton(kCustomSet)->isEnabled());
    }

    void yesOrNoIsChosenAndNotTyped() {
        PropertiesBench bench;
        bench.Load();
        bench.ShowTabOf(kCustomSet);
        bench.Name(kCustomSet)->setEditText("Tested");
        bench.Type(kCustomSet)->setCurrentIndex(3);
        QVERIFY(bench.Value(kCustomSet)->isHidden() && bench.Frame(kCustomSet)->isVisible());
        QVERIFY(bench.AddButton(kCustomSet)->isEnabled());
        QTest::mouseClick(bench.Of<QRadioButton>(kCustomSet, "OptionNo"), Qt::LeftButton, {},
                          QPoint(5, 8));
        QTest::mouseClick(bench.AddButton(kCustomSet), Qt::LeftButton);
        QCOMPARE(bench.Row(kCustomSet, 4), "Tested|" + gStrings[340] + '|' + gStrings[167]);
        QVERIFY(bench.Value(kCustomSet)->isVisible() && bench.Frame(kCustomSet)->isHidden());
        bench.Type(kCustomSet)->setCurrentIndex(1);
        QVERIFY(bench.Value(kCustomSet)->isVisible());
    }

    void theTypeAloneCanBeChanged() {
        PropertiesBench bench;
        bench.Load();
        bench.ClickRow(kCustomSet, 2);
        bench.Type(kCustomSet)->setCurrentIndex(0);
        QTest::mouseClick(bench.AddButton(kCustomSet), Qt::LeftButton);
        QCOMPARE(bench.Row(kCustomSet, 2), "Mass|1.5|" + gStrings[164]);
        bench.ClickRow(kCustomSet, 3);
        QTest::mouseClick(bench.Of<QRadioButton>(kCustomSet, "OptionNo"), Qt::LeftButton, {},
                          QPoint(5, 8));
        QTest::mouseClick(bench.AddButton(kCustomSet), Qt::LeftButton);
        QCOMPARE(bench.Row(kCustomSet, 3), "Released|" + gStrings[340] + '|' + gStrings[167]);
        bench.Apply();
        QCOMPARE(bench.Stored("Mass"), QVariant("1.5"));
        QCOMPARE(bench.Stored("Released"), QVariant(false));
    }

    void aValueThatDoesNotFitItsTypeIsRefused_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("value");
        QTest::newRow("date") << 1 << "31.31.2004";
        QTest::newRow("number") << 2 << "1,5";
        QTest::newRow("text that no document holds") << 0 << QString("a") + QChar(1);
    }
    void aValueThatDoesNotFitItsTypeIsRefused() {
        QFETCH(int, type);
        QFETCH(QString, value);
        PropertiesBench bench;
        bench.Load();
        bench.dialogs.Expect(gStrings[168]);
        bench.Put(kCustomSet, "Weight", value, type);
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.Rows(kCustomSet).Count(), 4);
        QVERIFY(bench.Value(kCustomSet)->hasFocus());
        QCOMPARE(bench.Value(kCustomSet)->selectedText(), value);
        QCOMPARE(bench.Name(kCustomSet)->currentText(), QString("Weight"));
        QVERIFY(!bench.ApplyButton()->isEnabled());
    }

    void addingClearsTheFieldsAndEnablesTheButtons_data() { AddRowsForBothSets(); }
    void addingClearsTheFieldsAndEnablesTheButtons() {
        QFETCH(int, set);
        PropertiesBench bench;
        bench.Load();
        bench.PickConfiguration(1);
        const int before = bench.Rows(set).Count();
        bench.Put(set, "Weight", "7", 2);
        QCOMPARE(bench.Rows(set).Count(), before + 1);
        QCOMPARE(bench.Row(set, before), "Weight|7|" + gStrings[166]);
        QCOMPARE(bench.Name(set)->currentText() + bench.Value(set)->text(), QString());
        QCOMPARE(bench.Type(set)->currentIndex(), 0);
        QVERIFY(!bench.AddButton(set)->isEnabled() && !bench.RemoveButton(set)->isEnabled());
        QVERIFY(bench.ApplyButton()->isEnabled() && bench.ResetButton()->isEnabled());
        bench.Put(set, "weight", "8", 2);
        QCOMPARE(bench.Rows(set).Count(), before + 1);
        QCOMPARE(bench.Row(set, before), "Weight|8|" + gStrings[166]);
    }

    void enterInTheValueAdds() {
        PropertiesBench bench;
        bench.Load();
        bench.ShowTabOf(kCustomSet);
        bench.Name(kCustomSet)->setEditText("Owner");
        bench.Value(kCustomSet)->setText("Castings");
        QTest::keyClick(bench.Value(kCustomSet), Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(bench.Rows(kCustomSet).Count(), 5);
    }

    void aPropertyNeedsAName() {
        PropertiesBench bench;
        bench.Load();
        bench.ShowTabOf(kCustomSet);
        bench.Type(kCustomSet)->setCurrentIndex(3);
        QTest::mouseClick(bench.AddButton(kCustomSet), Qt::LeftButton);
        QCOMPARE(bench.Rows(kCustomSet).Count(), 4);
        QVERIFY(!bench.ApplyButton()->isEnabled());
    }

    // Or it would be passed over when the set is written.
    void aNameThatNoDocumentHoldsCantBeEntered() {
        PropertiesBench bench;
        bench.Load();
        bench.ShowTabOf(kCustomSet);
        bench.Name(kCustomSet)->setFocus();
        QTest::keyClicks(bench.Name(kCustomSet), "Owner");
        for (const char16_t bad : {u'\x01', u'\n', u'\xFFFE', u'\xFFFF', u'\xD800', u'\xDC00'}) {
            QGuiApplication::clipboard()->setText(QString("x") + QChar(bad));
            bench.Name(kCustomSet)->lineEdit()->paste();
            QCOMPARE(bench.Name(kCustomSet)->currentText(), QString("Owner"));
        }
        QGuiApplication::clipboard()->setText(QString::fromUtf8(" \U0001F529"));
        bench.Name(kCustomSet)->lineEdit()->paste();
        bench.Value(kCustomSet)->setText("Castings");
        QTest::mouseClick(bench.AddButton(kCustomSet), Qt::LeftButton);
        bench.Apply();
        QCOMPARE(bench.Stored(QString::fromUtf8("Owner \U0001F529")), QVariant("Castings"));
    }

    void resetGivesTheFocusByTheTab() {
        PropertiesBench bench;
        bench.Load();
        QWidget* const focused[] = {bench.Summary(2), bench.Name(kCustomSet),
                                    bench.Configurations()};
        for (int tab = 0; tab < 3; ++tab) {
            bench.Tabs()->setCurrentIndex(tab);
            bench.Summary(0)->setText(QString::number(tab));
            QTest::mouseClick(bench.ResetButton(), Qt::LeftButton);
            QVERIFY(focused[tab]->hasFocus());
            QCOMPARE(bench.Summary(0)->text(), QString("Pin"));
        }
    }

    void resetBringsARemovedPropertyBack() {
        PropertiesBench bench;
        bench.Load();
        bench.Remove(kCustomSet, "Mass");
        QCOMPARE(bench.Rows(kCustomSet).Count(), 3);
        QVERIFY(bench.ApplyButton()->isEnabled());
        QTest::mouseClick(bench.ResetButton(), Qt::LeftButton);
        QCOMPARE(bench.Rows(kCustomSet).Count(), 4);
        QVERIFY(!bench.ApplyButton()->isEnabled() && !bench.ResetButton()->isEnabled());
        bench.Put(kCustomSet, "Owner", "Castings");
        bench.Apply();
        QCOMPARE(bench.Stored("Mass"), QVariant(1.5));
        // And at its place: a removal that comes with the next write would put it at the end.
        QCOMPARE(bench.StoredNames(),
                 QStringList({"Material", "Checked", "Mass", "Released", "Owner"}));
    }

    void typingInTheSummaryEnablesTheButtons() {
        PropertiesBench bench;
        bench.Load();
        bench.Comments()->setFocus();
        QTest::keyClicks(bench.Comments(), "x");
        QVERIFY(bench.ApplyButton()->isEnabled() && bench.ResetButton()->isEnabled());
        QTest::mouseClick(bench.ResetButton(), Qt::LeftButton);
        QCOMPARE(bench.Comments()->toPlainText(), QString("one\ntwo"));
        QVERIFY(bench.Summary(2)->hasFocus());
    }

    void theFocusAndTheHelpFollowTheTab() {
        PropertiesBench bench;
        bench.Load();
        QCOMPARE(bench.pane->HelpTopic(), QString("properties#summary"));
        bench.Tabs()->setCurrentIndex(1);
        QVERIFY(bench.Name(kCustomSet)->hasFocus());
        QCOMPARE(bench.pane->HelpTopic(), QString("properties#custom"));
        bench.Tabs()->setCurrentIndex(2);
        QVERIFY(bench.Configurations()->hasFocus());
        QCOMPARE(bench.pane->HelpTopic(), QString("properties#configuration"));
        QVERIFY(bench.Configurations()->selectedItems().isEmpty());
        bench.Tabs()->setCurrentIndex(0);
        QVERIFY(bench.Summary(2)->hasFocus());
    }

    void pickingAConfigurationShowsItsProperties() {
        PropertiesBench bench;
        bench.Load();
        bench.PickConfiguration(1);
        QCOMPARE(bench.Rows(kConfigurationSet).Count(), 2);
        QCOMPARE(bench.Row(kConfigurationSet, 1), "Finish|zinc|" + gStrings[164]);
        QTest::keyClick(bench.Configurations(), Qt::Key_Up);
        QCOMPARE(bench.Rows(kConfigurationSet).Count(), 1);
        QCOMPARE(bench.Row(kConfigurationSet, 0), "Length|20|" + gStrings[166]);
        QVERIFY(!bench.ApplyButton()->isEnabled());
    }

    void aPickedConfigurationStaysPicked() {
        PropertiesBench bench;
        bench.Load();
        bench.PickConfiguration(1);
        const QRect where = bench.Configurations()->visualItemRect(bench.Configurations()->item(1));
        QTest::mouseClick(bench.Configurations()->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          where.center());
        QVERIFY(bench.Configurations()->item(1)->isSelected());
    }

    void leavingTheNameIsNoPicking() {
        PropertiesBench bench;
        bench.Load();
        bench.PickConfiguration(0);
        bench.ShowTabOf(kConfigurationSet);
        QComboBox* name = bench.Name(kConfigurationSet);
        const QString known = bench.Rows(kConfigurationSet).At(0).cells[0].text;
        name->addItem(known);  // as a suggestion of the same name is
        name->setFocus();
        name->lineEdit()->clear();
        QTest::keyClicks(name, known);
        bench.Value(kConfigurationSet)->setText("33");
        bench.Value(kConfigurationSet)->setFocus();
        QCOMPARE(bench.Value(kConfigurationSet)->text(), QString("33"));
    }

    void theRowsOfAConfigurationStayUntilAnotherIsPicked() {
        PropertiesBench bench;
        bench.Load();
        bench.PickConfiguration(1);
        bench.Load();
        QCOMPARE(bench.Rows(kConfigurationSet).Count(), 2);
        QVERIFY(!bench.AddButton(kConfigurationSet)->isEnabled());
        QVERIFY(!bench.View(kConfigurationSet)->isEnabled());
        bench.PickConfiguration(0);
        QCOMPARE(bench.Rows(kConfigurationSet).Count(), 1);
        QVERIFY(bench.View(kConfigurationSet)->isEnabled());
    }

    void leavingAChangedConfigurationAsksOnce() {
        PropertiesBench bench;
        bench.Load();
        bench.PickConfiguration(0);
        bench.Put(kConfigurationSet, "Length", "21", 2);
        bench.PickConfiguration(0);
        bench.dialogs.Expect(gStrings[171], Dialogs::Icon::None, Dialogs::Answer::No);
        bench.PickConfiguration(1);
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.dialogs.LastButtons(), Dialogs::Buttons::YesNo);
        QCOMPARE(bench.StoredIn(0, "Length"), QVariant(20.0));
        bench.PickConfiguration(0);
        QCOMPARE(bench.Row(kConfigurationSet, 0), "Length|20|" + gStrings[166]);
    }

    void aRemovalThatIsDroppedIsNotMadeElsewhere() {
        PropertiesBench bench;
        bench.Load();
        bench.PickConfiguration(0);
        bench.Remove(kConfigurationSet, "Length");
        bench.dialogs.Expect(gStrings[171], Dialogs::Icon::None, Dialogs::Answer::No);
        bench.PickConfiguration(1);
        QVERIFY(bench.dialogs.AllCame());
        bench.Put(kConfigurationSet, "Owner", "Castings");
        bench.Apply();
        QCOMPARE(bench.StoredNamesIn(0), QStringList("Length"));
        QCOMPARE(bench.StoredNamesIn(1), QStringList({"Length", "Finish", "Owner"}));
    }

    void aConfigurationWithoutASetIsTold() {
        PropertiesBench bench;
        bench.Load();
        bench.PickConfiguration(1);
        const auto file = Documents().MakeDocumentFile();
        file->Open(bench.pin);
        file->DeleteConfiguration(0, 2);
        file->DeleteConfiguration(1, 2);
        file->Save();
        bench.dialogs.Expect(gStrings[172]);
        bench.PickConfiguration(0);
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.Rows(kConfigurationSet).Count(), 2);
        QVERIFY(!bench.View(kConfigurationSet)->isEnabled());
    }

    void aConfigurationThatCantBeReadIsTold() {
        PropertiesBench bench;
        bench.Load();
        QVERIFY(QFile::remove(bench.pin));
        bench.dialogs.Expect(
            bench.Quoting(Text::ConfigurationPropertiesError, "The document " + bench.pin));
        bench.PickConfiguration(0);
        QVERIFY(bench.dialogs.AllCame());
    }

    void aConfigurationThatStandsElsewhereNowIsTold() {
        PropertiesBench bench;
        bench.Load();
        const auto file = Documents().MakeDocumentFile();
        file->Open(bench.pin);
        file->DeleteConfiguration(0, 2);
        file->Save();
        bench.dialogs.Expect(
            bench.Quoting(Text::ConfigurationPropertiesError,
                          QString("The configurations of %1 were changed since").arg(bench.pin)));
        bench.PickConfiguration(0);
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.Rows(kConfigurationSet).Count(), 0);
    }

    void theDescriptionCanBeHidden() {
        PropertiesBench bench;
        QVERIFY(bench.pane->ShowDesc());
        bench.pane->SetShowDesc(false);
        QVERIFY(!bench.pane->ShowDesc());
        QVERIFY(bench.Child<QWidget>("DescControl1")->isHidden());
    }

    void numbersFollowTheLocale() {
        PropertiesBench bench;
        QLocale::setDefault(QLocale("de_DE"));
        bench.Load();
        QCOMPARE(bench.Row(kCustomSet, 2), "Mass|1,5|" + gStrings[166]);
        bench.Put(kCustomSet, "Weight", "2,50", 2);
        QCOMPARE(bench.Row(kCustomSet, 4), "Weight|2,50|" + gStrings[166]);
        bench.Put(kCustomSet, "Due", "1.2.2004", 1);
        bench.Apply();
        QCOMPARE(bench.Stored("Weight"), QVariant(2.5));
        QCOMPARE(bench.Stored("Due").toDateTime(), QDate(2004, 2, 1).startOfDay());
        QLocale::setDefault(QLocale::system());
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestPropertiesBox)
#include "tst_propertiesbox.moc"
