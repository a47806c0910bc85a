// The rules of the document search pane: their editors, their list, and saved searches.

#include <QClipboard>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

#include "tests/search/searchbench.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
}

void Put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

QString NumberNeeded(SearchBench& bench) {
    return sprintf(gStrings[305], {bench.Operator()->currentText()});
}

}  // namespace

class TestRuleEditor : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale("en_US")); }

    void ANewPaneHasNoRule() {
        SearchBench bench;
        QCOMPARE(bench.Operator()->count(), 11);
        QCOMPARE(bench.Operator()->currentIndex(), 0);
        QCOMPARE(bench.Name()->count(), 35);
        QCOMPARE(bench.Name()->itemText(0), gStrings[347]);
        QCOMPARE(bench.Name()->currentText(), QString());
        QVERIFY(bench.Child<QRadioButton>("srcAND")->isChecked());
        for (const char* name : {"srcAddToList", "srcDelete", "srcSave", "srcStart"})
            QVERIFY2(!bench.Button(name)->isEnabled(), name);
        QVERIFY(bench.Button("srcLoad")->isEnabled());
        QVERIFY(bench.Rules()->isColumnHidden(kRuleCode));
    }

    void ARuleNeedsNameAndValue() {
        SearchBench bench;
        QPushButton* add = bench.Button("srcAddToList");
        bench.Name()->setEditText("Title");
        QVERIFY(!add->isEnabled());
        bench.Value()->setText("gear");
        QVERIFY(add->isEnabled());
        bench.Name()->setEditText("");
        QVERIFY(!add->isEnabled());
        bench.Name()->setEditText("Title");
        bench.Value()->clear();
        QVERIFY(!add->isEnabled());
        add->setEnabled(true);
        bench.Click("srcAddToList");  // the test stands for itself
        QCOMPARE(bench.RuleTexts(), QStringList());
    }

    void AddedRulesKeepWhatTheEditorsHold() {
        SearchBench bench;
        bench.Add("Title", kContains, "gear");
        bench.Child<QRadioButton>("srcOR")->click();
        bench.Add("My own", kNotEqual, "12");
        QCOMPARE(bench.RuleTexts(),
                 QStringList({"|Title|" + gStrings[298] + "|gear|2",
                              gStrings[279] + "|My own|" + gStrings[299] + "|12|4"}));
        QCOMPARE(bench.Value()->text(), QString("12"));
        QCOMPARE(bench.Name()->currentText(), QString("My own"));
        QVERIFY(bench.Button("srcSave")->isEnabled());
        QVERIFY(!bench.Start()->isEnabled());
        bench.LookIn()->setText("/w");
        QVERIFY(bench.Start()->isEnabled());
    }

    void APastedLineEndIsNoPartOfARule() {
        SearchBench bench;
        QGuiApplication::clipboard()->setText("gear\r\nwheel\n");
        bench.Edit("Title", kContains, "");
        bench.Value()->paste();
        bench.Click("srcAddToList");
        QCOMPARE(bench.Rules()->List().At(0).cells[kRuleValue].text, QString("gear wheel"));
        QGuiApplication::clipboard()->setText("\n");
        bench.Value()->clear();
        bench.Value()->paste();
        bench.Click("srcAddToList");
        QCOMPARE(bench.Rules()->List().Count(), 1);
    }

    void YesAndNoNeedNoValue() {
        SearchBench bench;
        bench.Edit("Released", kIsYes, "");
        QVERIFY(bench.Value()->isHidden() && bench.Child<QLabel>("srcLBValue")->isHidden());
        QCOMPARE(bench.Value()->text(), QString("DB_Boolean_dummy"));
        QVERIFY(bench.Button("srcAddToList")->isEnabled());
        bench.Click("srcAddToList");
        bench.Operator()->setCurrentIndex(kIsNo);
        bench.Click("srcAddToList");
        QCOMPARE(bench.RuleTexts(), QStringList({"|Released|" + gStrings[300] + "||9",
                                                 "|Released|" + gStrings[301] + "||10"}));
        bench.Operator()->setCurrentIndex(kIsExactly);
        QVERIFY(!bench.Value()->isHidden() && !bench.Child<QLabel>("srcLBValue")->isHidden());
        QCOMPARE(bench.Value()->text(), QString());
    }

    void TheFileNameHasThreeOperators() {
        SearchBench bench;
        bench.Edit("Title", kLess, "5");
        bench.Name()->setCurrentIndex(0);
        QCOMPARE(bench.Operator()->count(), 3);
        QCOMPARE(bench.Operator()->currentIndex(), 0);
        bench.Name()->setEditText(gStrings[347] + ' ');
        QCOMPARE(bench.Operator()->count(), 11);
        bench.Operator()->setCurrentIndex(kContains);
        bench.Name()->setEditText("Title");  // any change starts with the first
        QCOMPARE(bench.Operator()->currentIndex(), 0);
    }

    void TypedNamesStayAsTheyAre() {
        SearchBench bench;
        bench.Name()->setFocus();
        QTest::keyClicks(bench.Name(), "sub");
        QTest::keyClick(bench.Name(), Qt::Key_Return);
        QCOMPARE(bench.Name()->currentText(), QString("sub"));
        QCOMPARE(bench.Name()->count(), 35);
    }

    void ChoosingAComparisonWantsANumber() {
        SearchBench bench;
        bench.Edit("Weight", kIsExactly, "heavy");
        for (const int code : {3, 4, 5, 6, 7, 8}) {
            bench.dialogs.Expect(sprintf(gStrings[305], {bench.Operator()->itemText(code)}));
            bench.Operator()->setCurrentIndex(code);
            QVERIFY(bench.dialogs.AllCame());
            QCOMPARE(bench.dialogs.LastTitle(), gStrings[122]);
            QVERIFY(bench.Operator()->hasFocus());
            bench.Operator()->setCurrentIndex(kContains);
        }
        bench.Value()->setText("1/2/2004");  // a date is none
        bench.dialogs.Expect("*");
        bench.Operator()->setCurrentIndex(kLess);
        QVERIFY(bench.dialogs.AllCame());
    }

    void NumbersAreThoseOfTheLocale() {
        QLocale::setDefault(QLocale("de_DE"));
        SearchBench bench;
        bench.Edit("Weight", kIsExactly, "1.234,5");
        bench.Operator()->setCurrentIndex(kLess);
        bench.Operator()->setCurrentIndex(kIsExactly);
        bench.Value()->setText("1,2,3");
        bench.dialogs.Expect("*");
        bench.Operator()->setCurrentIndex(kLess);
        QVERIFY(bench.dialogs.AllCame());
    }

    void LeavingTheValueOfAComparisonWantsANumber() {
        SearchBench bench;
        for (const int code : {5, 6, 7, 8}) {
            bench.Edit("Weight", code, "heavy");
            bench.Value()->setFocus();
            bench.dialogs.Expect(NumberNeeded(bench));
            bench.LookIn()->setFocus();
            QVERIFY(bench.dialogs.AllCame());
            QVERIFY(bench.Value()->hasFocus());
            QCOMPARE(bench.Value()->selectedText(), QString("heavy"));
            bench.Value()->setText("5");
            bench.LookIn()->setFocus();
            QVERIFY(bench.LookIn()->hasFocus());
        }
    }

    void LeavingTheValueOfAnyOtherOperatorTakesAnyText() {
        SearchBench bench;
        for (const int code : {0, 1, 2, 3, 4}) {
            bench.Edit("Weight", code, "heavy");
            bench.Value()->setFocus();
            bench.LookIn()->setFocus();
            QVERIFY(bench.LookIn()->hasFocus());
            bench.Value()->clear();
        }
        bench.Edit("Weight", kLess, "");
        bench.Value()->setFocus();
        bench.LookIn()->setFocus();
        QVERIFY(bench.LookIn()->hasFocus());
    }

    void SelectedRulesAreDeleted() {
        SearchBench bench;
        for (const char* value : {"a", "b", "c", "d"})
            bench.Add("P", kIsExactly, value);
        bench.ClickRule(1);
        bench.ClickRule(2, Qt::ShiftModifier);  // two that are neighbours
        QVERIFY(bench.Button("srcDelete")->isEnabled());
        bench.Click("srcDelete");
        const QString is = gStrings[296];
        QCOMPARE(bench.RuleTexts(), QStringList({"|P|" + is + "|a|0", "|P|" + is + "|d|0"}));
        QVERIFY(!bench.Button("srcDelete")->isEnabled());
        QVERIFY(bench.Button("srcSave")->isEnabled());
    }

    void RulesThatAreNoNeighboursAreDeletedAlone() {
        SearchBench bench;
        for (const char* value : {"a", "b", "c", "d", "e", "f"})
            bench.Add("Title", kContains, value);
        bench.ClickRule(0);
        for (const int row : {2, 3, 5})
            bench.ClickRule(row, Qt::ControlModifier);
        bench.Click("srcDelete");
        QCOMPARE(bench.Rules()->List().Count(), 2);
        QCOMPARE(bench.Rules()->List().At(0).cells[kRuleValue].text, QString("b"));
        QCOMPARE(bench.Rules()->List().At(1).cells[kRuleValue].text, QString("e"));
    }

    void DeletingSomeDisablesTheButtonThoughRowsAreSelected() {
        SearchBench bench;
        for (const char* value : {"a", "b", "c"})
            bench.Add("P", kIsExactly, value);
        bench.ClickRule(0);
        bench.Click("srcDelete");
        bench.Rules()->SelectRow(1);
        QVERIFY(!bench.Button("srcDelete")->isEnabled());
        QCOMPARE(bench.Rules()->SelectedRows(), QList<int>{1});
    }

    void WithoutASelectionNothingIsDeleted() {
        SearchBench bench;
        bench.Add("P", kIsExactly, "a");
        bench.Rules()->clearSelection();
        bench.Button("srcDelete")->setEnabled(true);
        bench.Click("srcDelete");
        QCOMPARE(bench.RuleTexts().size(), 1);
        QVERIFY(bench.Button("srcDelete")->isEnabled());
    }

    void DeletingTheLastRuleLeavesNothingToStart() {
        SearchBench bench;
        bench.LookIn()->setText("/w");
        bench.Add("P", kIsExactly, "a");
        QVERIFY(bench.Start()->isEnabled());
        bench.ClickRule(0);
        bench.Click("srcDelete");
        QVERIFY(!bench.Start()->isEnabled() && !bench.Button("srcSave")->isEnabled());
    }

    void LeavingTheListDisablesTheButtonExceptOnTheWayToIt() {
        SearchBench bench;
        bench.Add("P", kIsExactly, "a");
        bench.ClickRule(0);
        bench.Button("srcDelete")->setFocus();
        QVERIFY(bench.Button("srcDelete")->isEnabled());
        bench.LookIn()->setFocus();
        QVERIFY(!bench.Button("srcDelete")->isEnabled());
        bench.ClickRule(0);
        QVERIFY(bench.Button("srcDelete")->isEnabled());
        bench.LookIn()->setFocus();
        QVERIFY(!bench.Button("srcDelete")->isEnabled());
    }

    void TheKeyboardSelectsRulesAsWell() {
        SearchBench bench;
        bench.Add("P", kIsExactly, "a");
        bench.Add("P", kIsExactly, "b");
        bench.Rules()->setFocus();
        QTest::keyClick(bench.Rules(), Qt::Key_Down);
        QVERIFY(bench.Button("srcDelete")->isEnabled());
    }

    void ASearchIsSavedAndLoadedAgain() {
        SearchBench bench;
        bench.Add("Title", kContains, "gear");
        bench.Child<QRadioButton>("srcOR")->click();
        bench.Add("Weight", kLess, "5");
        bench.Add("Released", kIsYes, "");
        const QStringList rules = bench.RuleTexts();
        const QString path = bench.root + "/mine";
        bench.dialogs.ExpectSaveFile(path);
        bench.Click("srcSave");
        QCOMPARE(bench.dialogs.LastFilter(), gStrings[287]);
        QVERIFY(QFile::exists(path + '.' + gStrings[288]));
        bench.Click("srcNewSearch");
        bench.LookIn()->setText("/w");
        bench.dialogs.ExpectOpenFile(path + '.' + gStrings[288]);
        bench.Click("srcLoad");
        QCOMPARE(bench.RuleTexts(), rules);
        QCOMPARE(bench.dialogs.LastFilter(), gStrings[287]);
        QVERIFY(bench.Button("srcSave")->isEnabled() && bench.Start()->isEnabled());
    }

    void AFileThatIsThereIsReplacedOnlyOnRequest() {
        SearchBench bench;
        bench.Add("P", kIsExactly, "a");
        const QString path = bench.root + "/old.tdbs";
        Put(path, "old");
        bench.dialogs.ExpectSaveFile(path);
        bench.dialogs.Expect(gStrings[290], Dialogs::Icon::Exclamation, Dialogs::Answer::Cancel);
        bench.Click("srcSave");
        QCOMPARE(bench.dialogs.LastButtons(), Dialogs::Buttons::OkCancel);
        QCOMPARE(BytesOf(path), QByteArray("old"));
        bench.dialogs.ExpectSaveFile(path);
        bench.dialogs.Expect(gStrings[290]);
        bench.Click("srcSave");
        QVERIFY(BytesOf(path).startsWith("\"P\" "));
    }

    void CancelsChangeNothing() {
        SearchBench bench;
        bench.Add("P", kIsExactly, "a");
        bench.dialogs.ExpectSaveFile({});
        bench.Click("srcSave");
        bench.dialogs.ExpectOpenFile({});
        bench.Click("srcLoad");
        QCOMPARE(bench.RuleTexts().size(), 1);
    }

    void ASaveThatFailsIsTold() {
        SearchBench bench;
        bench.Add("P", kIsExactly, "a");
        bench.dialogs.ExpectSaveFile(bench.root + "/no/such/folder.tdbs");
        bench.dialogs.Expect("The saved search *");
        bench.Click("srcSave");
    }

    void ALoadThatFailsIsTold() {
        SearchBench bench;
        bench.Add("P", kIsExactly, "a");
        bench.LookIn()->setText("/w");
        bench.dialogs.ExpectOpenFile(bench.root);  // a folder
        bench.dialogs.Expect(gStrings[289]);
        bench.Click("srcLoad");
        QCOMPARE(bench.dialogs.LastTitle(), gStrings[122]);
        QVERIFY(bench.dialogs.LastDetail().contains(bench.root));
        QCOMPARE(bench.RuleTexts(), QStringList());
        QVERIFY(!bench.Start()->isEnabled());
    }

    void AFileThatIsGoneEmptiesTheList() {
        SearchBench bench;
        bench.Add("P", kIsExactly, "a");
        bench.dialogs.ExpectOpenFile(bench.root + "/gone.tdbs");
        bench.Click("srcLoad");
        QCOMPARE(bench.RuleTexts(), QStringList());
    }

    // By the operators that are offered at the moment: three of them for the file name.
    void LoadedCodesAreThePositionsOfTheOperatorsOffered() {
        SearchBench bench;
        const QString path = bench.root + "/mine.tdbs";
        Put(path, "\"Weight\" \"<\" \"5\"\n\"Title\" \"" + gStrings[298].toUtf8() + "\" \"x\"\n");
        bench.Name()->setCurrentIndex(0);
        bench.dialogs.ExpectOpenFile(path);
        bench.Click("srcLoad");
        QCOMPARE(bench.RuleTexts(),
                 QStringList({"|Weight|<|5|0", "|Title|" + gStrings[298] + "|x|2"}));
        bench.Name()->setEditText("Title");
        bench.dialogs.ExpectOpenFile(path);
        bench.Click("srcLoad");
        QCOMPARE(bench.RuleTexts(),
                 QStringList({"|Weight|<|5|5", "|Title|" + gStrings[298] + "|x|2"}));
    }

    void NewSearchEmptiesThePane() {
        SearchBench bench;
        bench.File("a.prt");
        bench.Add("Title", kContains, "x");
        bench.Search();
        bench.ClickRule(0);
        bench.Click("srcNewSearch");
        QCOMPARE(bench.RuleTexts(), QStringList());
        QCOMPARE(bench.Results()->List().Count(), 0);
        QCOMPARE(bench.Name()->currentText() + bench.Value()->text() + bench.LookIn()->text(),
                 QString());
        QCOMPARE(bench.Operator()->currentIndex(), 0);
        QCOMPARE(bench.status.caption, QString());
        QCOMPARE(bench.Child<QLabel>("srcProgress")->text(), QString());
        for (const char* name : {"srcStart", "srcSave", "srcDelete", "srcAddToList"})
            QVERIFY2(!bench.Button(name)->isEnabled(), name);
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestRuleEditor)
#include "tst_ruleeditor.moc"
