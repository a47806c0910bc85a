// The configuration editor, through its widgets.

#include <QAction>
#include <QFile>

#include "editors/editconfig.h"
#include "services/documentlibrary.h"
#include "tests/editors/editorbench.h"
#include "tests/support/failingaccess.h"
#include "tests/support/filelockholder.h"
#include "tests/support/testenvironment.h"

using namespace docbench;
using docmodel::DocumentBuilder;

namespace {

struct Bench : EditorBench<editConfig> {
    Bench() : EditorBench("tvwconfig") { pin = library.Make("pin.tfmprt"); }

    // Names with a "*" in front can't be deleted, with a "!" are for internal use.
    void Load(const QStringList& names) {
        DocumentBuilder document = DocumentBuilder::Edit(pin);
        for (const QString& name : names) {
            const int kind = name.startsWith('*')   ? docmodel::kLastingConfiguration
                             : name.startsWith('!') ? docmodel::kInternalConfiguration
                                                    : docmodel::kOrdinaryConfiguration;
            document.AddConfiguration(kind == 0 ? name : name.mid(1), kind);
        }
        document.Save();
        pane->SetPartName("pin", pin);
    }
    QStringList Stored() {
        const auto file = Documents().MakeDocumentFile();
        file->Open(pin);
        QStringList names;
        for (int index = 0; index < file->GetConfigurationCount(); ++index)
            names.append(file->GetConfiguration(index));
        return names;
    }
    QString Image(int node) { return Node(node).image; }
    void ChangeElsewhere(const std::function<void(DocumentBuilder&)>& change) {
        DocumentBuilder document = DocumentBuilder::Edit(pin);
        change(document);
        document.Save();
    }
    // Opens the menu on a node, and gives its entry.
    QAction* Entry(int node, int number) {
        View()->setCurrentIndex(Tree().IndexOf(node));
        QTest::mouseClick(View()->viewport(), Qt::RightButton, {}, CentreOf(node));
        auto* menu = Child<QMenu>("mnuEdit");
        if (!menu->isVisible())
            qFatal("no menu");
        menu->hide();
        return Child<QAction>(QString("mnuEdit(%1)").arg(number));
    }

    QString pin;
};

QString Pending(const QString& from, const QString& to) {
    return from + gStrings[92] + to;
}

QString SaveErrorBeginning() {
    return gStrings[98].section("%s", 0, 0) + '*';
}

// Notes the new names in the order in which they are given.
struct NotingFile : FailingFile {
    NotingFile(std::unique_ptr<DocumentFile> real, const OperationHook& hook, QStringList& notes)
        : FailingFile(std::move(real), hook), names(notes) {}
    int RenameConfiguration(int id, const QString& newName) override {
        names.append(newName);
        return FailingFile::RenameConfiguration(id, newName);
    }
    QStringList& names;
};

struct NotingAccess : FailingAccess {
    explicit NotingAccess(QStringList& notes)
        : FailingAccess([](const char*, const QString&) {}), names(notes) {}
    std::unique_ptr<DocumentFile> MakeDocumentFile() override {
        return std::make_unique<NotingFile>(FailingAccess::MakeDocumentFile(), hook, names);
    }
    QStringList& names;
    OperationHook hook = [](const char*, const QString&) {};
};

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

class TestEditConfig : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void configurationsAreListedInAlphabeticalOrder() {
        Bench bench;
        bench.Load({"b", "*C", "!hidden", "a_1_x"});
        QCOMPARE(bench.Node(1).text, Format(Text::ConfigurationsOf, "pin"));
        QCOMPARE(bench.Node(1).tag, QString("ignore"));
        QCOMPARE(bench.Image(1), QString("picPart"));
        QCOMPARE(bench.Texts(), QStringList({"a_1_x", "b", "C"}));
        QCOMPARE(bench.Node(2).tag, QString("a_1_x_3"));
        QCOMPARE(bench.Image(2), QString("picConfigAct"));
        QCOMPARE(bench.Image(4), QString("picConfigMRR"));
        QCOMPARE(bench.status.caption, Format(Text::ConfigurationCount, "4"));
        QVERIFY(!bench.CanSave() && !bench.ResetButton()->isEnabled());
        QVERIFY(bench.View()->visualRect(bench.Tree().IndexOf(4)).isValid());
    }

    void anAssemblyHasItsPicture() {
        Bench bench;
        bench.pin = bench.library.Make("top.tfmasm");
        bench.Load({"a"});
        QCOMPARE(bench.Image(1), QString("picAsm"));
    }

    void noConfigurationsGiveAnEmptyTree() {
        Bench bench;
        bench.Load({});
        QCOMPARE(bench.Tree().Count(), 0);
        QCOMPARE(bench.status.caption, Format(Text::ConfigurationCount, "0"));
        QTest::keyClick(bench.View(), Qt::Key_Delete);
    }

    void noPathEmptiesThePane() {
        Bench bench;
        bench.Load({"a"});
        bench.PressDelete(2);
        bench.pane->SetPartName("", "");
        QCOMPARE(bench.Tree().Count(), 0);
        QVERIFY(!bench.CanSave());
    }

    void anOldFormatIsToldInsteadOfTheTree() {
        Bench bench;
        const QString old = MakeOldDocument(bench.library, "old.tfmprt");
        bench.pane->SetPartName("old", old);
        QVERIFY(bench.ShowsOldFormat());
        QCOMPARE(bench.status.caption, gStrings[146]);
        bench.Load({"a"});
        QVERIFY(!bench.ShowsOldFormat() && bench.View()->isVisible());
    }

    void aDocumentThatCantBeReadIsTold() {
        Bench bench;
        const QString broken = bench.library.MakeBroken("broken.tfmprt");
        bench.dialogs.Expect(gStrings[367].section("%s", 0, 0) + '*');
        bench.pane->SetPartName("broken", broken);
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.status.caption, Format(Text::ConfigurationsNotLoaded, broken));
        QCOMPARE(bench.Tree().Count(), 0);
    }

    void renamingShowsBothNames() {
        Bench bench;
        bench.Load({"a_1", "b"});
        QCOMPARE(bench.BeginEdit(2)->text(), QString("a_1"));
        QTest::keyClick(bench.EditBox(), Qt::Key_Escape);
        bench.Settle();
        QCOMPARE(bench.Texts(), QStringList({"a_1", "b"}));
        bench.Type(2, "long");
        QCOMPARE(bench.Node(2).text, Pending("a_1", "long"));
        QCOMPARE(bench.Node(2).tag, QString("a_1_0"));
        QVERIFY(bench.CanSave() && bench.ResetButton()->isEnabled());
        QCOMPARE(bench.BeginEdit(2)->text(), QString("a_1"));  // and not the pending text
        QCOMPARE(bench.EditBox()->selectedText(), QString("a_1"));
        QTest::keyClick(bench.EditBox(), Qt::Key_Escape);
        bench.Settle();
        QCOMPARE(bench.Node(2).text, Pending("a_1", "long"));
        QCOMPARE(bench.Stored(), QStringList({"a_1", "b"}));
    }

    void theOldNameInAnyCaseIsNoChange() {
        Bench bench;
        bench.Load({"Long"});
        bench.Type(2, "LONG");
        QVERIFY(!bench.CanSave());
        bench.Type(2, "short");
        QVERIFY(bench.CanSave());
        bench.Type(2, "shorter");
        bench.Type(2, "long");
        QVERIFY(!bench.CanSave());
        QCOMPARE(bench.Node(2).text, QString("Long"));
    }

    void namesAreFreeByWhatTheOthersStandFor() {
        Bench bench;
        bench.Load({"A", "B", "C"});
        bench.dialogs.Expect(gStrings[94]);
        bench.Type(2, "b");
        QCOMPARE(bench.Node(2).text, QString("A"));
        bench.Type(2, "D");
        bench.dialogs.Expect(gStrings[94]);
        bench.Type(3, "d");
        bench.Type(4, "A");
        bench.dialogs.Expect(gStrings[93]);
        bench.Type(3, "");
        QVERIFY(bench.dialogs.AllCame());
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList({"D", "B", "A"}));
        QCOMPARE(bench.status.caption, gStrings[97]);
        QVERIFY(!bench.CanSave());
    }

    void leavingTheEditBoxTakesTheName() {
        Bench bench;
        bench.Load({"A", "B"});
        bench.dialogs.Expect(gStrings[94]);
        bench.BeginEdit(2)->setText("B");
        bench.SaveButton()->setEnabled(true);
        bench.SaveButton()->setFocus();
        QVERIFY(!bench.dialogs.AllCame());  // not in the midst of the change of focus
        bench.Settle();                     // one message, though it takes the focus once more
        QVERIFY(bench.dialogs.AllCame());
        bench.BeginEdit(2)->setText("C");
        bench.ResetButton()->setEnabled(true);
        bench.ResetButton()->setFocus();
        QCOMPARE(bench.Node(2).text, Pending("A", "C"));
    }

    void theRootIsLeftAlone() {
        Bench bench;
        bench.Load({"A"});
        QVERIFY(!bench.BeginEdit(1));
        bench.PressDelete(1);
        QVERIFY(!bench.CanSave());
        bench.Entry(1, 0)->trigger();
        QVERIFY(!bench.EditBox());
        bench.Entry(1, 1)->trigger();
        QVERIFY(!bench.CanSave());
    }

    void deletingIsAMarkThatCanBeTakenBack() {
        Bench bench;
        bench.Load({"A", "B"});
        bench.PressDelete(2);
        QCOMPARE(bench.Image(2), QString("picConfigDel"));
        QVERIFY(bench.CanSave());
        QVERIFY(!bench.BeginEdit(2));
        bench.PressDelete(2);
        QCOMPARE(bench.Image(2), QString("picConfigAct"));
        QVERIFY(!bench.CanSave());
        QCOMPARE(bench.Stored(), QStringList({"A", "B"}));
    }

    void deletingDropsAPendingNameAndCountsOnce() {
        Bench bench;
        bench.Load({"A", "B"});
        bench.Type(2, "C");
        bench.PressDelete(2);
        QCOMPARE(bench.Node(2).text, QString("A"));
        QVERIFY(bench.CanSave());
        bench.PressDelete(2);
        QVERIFY(!bench.CanSave());
    }

    void aDeletedNameIsFreeAndBlocksTheUndo() {
        Bench bench;
        bench.Load({"A", "B"});
        bench.PressDelete(2);
        bench.Type(3, "a");
        bench.dialogs.Expect(gStrings[94]);
        bench.PressDelete(2);
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.Image(2), QString("picConfigDel"));
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList("a"));
    }

    void aLastingConfigurationIsRenamedAndNotDeleted() {
        Bench bench;
        bench.Load({"*Default"});
        bench.dialogs.Expect(gStrings[95]);
        bench.PressDelete(2);
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(!bench.CanSave());
        bench.Type(2, "Base");
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList("Base"));
    }

    void theMenuRenamesAndDeletes() {
        Bench bench;
        bench.Load({"A"});
        QAction* rename = bench.Entry(2, 0);
        QCOMPARE(rename->text(), gStrings[207]);
        QVERIFY(rename->isEnabled());
        QCOMPARE(bench.Child<QAction>("mnuEdit(1)")->text(), gStrings[247]);
        rename->trigger();
        QVERIFY(bench.EditBox());
        QTest::keyClick(bench.EditBox(), Qt::Key_Escape);
        bench.Settle();
        bench.Entry(2, 1)->trigger();
        QCOMPARE(bench.Image(2), QString("picConfigDel"));
        QVERIFY(!bench.Entry(2, 0)->isEnabled());
        QCOMPARE(bench.Child<QAction>("mnuEdit(1)")->text(), gStrings[376]);
        bench.Entry(2, 1)->trigger();
        QCOMPARE(bench.Image(2), QString("picConfigAct"));
    }

    void withNothingSelectedThereIsNoMenu() {
        Bench bench;
        bench.Load({"A"});
        bench.View()->clearSelection();
        bench.View()->setCurrentIndex({});
        QTest::mouseClick(bench.View()->viewport(), Qt::RightButton, {},
                          bench.View()->viewport()->rect().bottomRight() - QPoint(5, 5));
        QVERIFY(!bench.Child<QMenu>("mnuEdit")->isVisible());
    }

    void aDroppedFileOpensTheEditBoxWithItsPath() {
        Bench bench;
        bench.Load({"A", "B"});
        bench.Drop(3, {"/docs/one.txt", "/docs/two.txt"});
        QCOMPARE(bench.View()->SelectedNode(), 3);
        QVERIFY(bench.EditBox());
        QCOMPARE(bench.EditBox()->text(), QString("/docs/one.txt"));
        QTest::keyClick(bench.EditBox(), Qt::Key_Return);
        bench.Settle();
        QCOMPARE(bench.Node(3).text, Pending("B", "/docs/one.txt"));
        bench.Drop(1, {"/docs/one.txt"});
        QVERIFY(!bench.EditBox());
    }

    void aLockedDocumentsTreeIsDisabled() {
        Bench bench;
        bench.Load({"A"});
        bench.pane->Enable(false);
        QVERIFY(!bench.View()->isEnabled());
        bench.pane->Enable(true);
        QVERIFY(bench.View()->isEnabled());
        bench.pane->showCombo();
        bench.pane->GridEdit(1);
    }

    void resetDropsEverything() {
        Bench bench;
        bench.Load({"A", "B"});
        bench.Type(2, "C");
        bench.PressDelete(3);
        bench.Reset();
        QCOMPARE(bench.Texts(), QStringList({"A", "B"}));
        QCOMPARE(bench.Image(3), QString("picConfigAct"));
        QVERIFY(!bench.CanSave() && !bench.ResetButton()->isEnabled());
    }

    void namesMayMoveInARing() {
        Bench bench;
        bench.Load({"A", "B", "C", "D"});
        bench.Type(4, "x");
        bench.Type(3, "C");
        bench.Type(2, "B");
        bench.Type(4, "A");
        bench.PressDelete(5);
        QCOMPARE(bench.Texts(),
                 QStringList({Pending("A", "B"), Pending("B", "C"), Pending("C", "A"), "D"}));
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList({"B", "C", "A"}));
    }

    void renamesAreWrittenInTheOrderOfTheTree() {
        Bench bench;
        bench.Load({"C", "A"});
        bench.Type(2, "B");
        bench.Type(3, "A");
        QStringList names;
        {
            NotingAccess access(names);
            bench.Save();
        }
        QCOMPARE(names, QStringList({"B", "A"}));
        QCOMPARE(bench.Stored(), QStringList({"A", "B"}));
    }

    // Each new name is still another one's when its turn comes; what hangs on a configuration stays
    // with it.
    void namesMayMoveUpInAChain() {
        Bench bench;
        const QString screw = bench.library.Make("screw.tfmprt");
        bench.pin = bench.library.Make("top.tfmasm", {{screw, 3}}, {{screw, "x"}});
        bench.Load({"A", "B", "C"});
        for (const char* name : {"A", "B", "C"})
            bench.ChangeElsewhere([&](DocumentBuilder& document) {
                document.SetConfigurationProperty(name, "Was", name);
            });
        bench.pane->SetPartName("top", bench.pin);
        bench.Type(4, "D");
        bench.Type(3, "C");
        bench.Type(2, "B");
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList({"B", "C", "D"}));
        const auto file = Documents().MakeDocumentFile();
        file->Open(bench.pin);
        for (int index = 0; index < 3; ++index) {
            const auto set = file->GetCustomProperties(index);
            QCOMPARE(set->GetCustomCount(), 1);
            QCOMPARE(set->GetCustomProperty(0).value, QVariant(QString(QChar(u'A' + index))));
        }
        QCOMPARE(file->GetComponentCount(), 1);
        QCOMPARE(file->GetComponent(0, QString()).path, screw);
        QCOMPARE(file->GetComponent(0, QString()).count, 3);
        QCOMPARE(file->GetExternalReference(0, QString()).path, screw);
    }

    void aNameOfAnInternalConfigurationIsRefusedAtTheSave() {
        Bench bench;
        bench.Load({"A", "!secret"});
        bench.Type(2, "Secret");
        bench.dialogs.Expect(SaveErrorBeginning());
        bench.Save();
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.status.caption, gStrings[96]);
        QCOMPARE(bench.Node(2).text, Pending("A", "Secret"));
        QCOMPARE(bench.Stored(), QStringList({"A", "secret"}));
        bench.Type(2, "B");
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList({"B", "secret"}));
    }

    void aThousandAreRenamedAndDeletedInOneSave() {
        Bench bench;
        QStringList names, expected;
        for (int number = 0; number < 1000; ++number)
            names.append(QString("c%1").arg(number, 4, 10, QLatin1Char('0')));
        bench.Load(names);
        for (int node = 2; node <= 1001; ++node) {
            if (node % 2 == 0)
                bench.PressDelete(node);
            else
                bench.Type(node, bench.Node(node).text + " new");
        }
        for (int number = 1; number < 1000; number += 2)
            expected.append(names[number] + " new");
        int saves = 0;
        {
            FailingAccess access([&saves](const char* operation, const QString&) {
                saves += int(operation == QLatin1String("Save"));
            });
            bench.Save();
        }
        QCOMPARE(saves, 1);
        QCOMPARE(bench.Stored(), expected);
        QCOMPARE(bench.Texts(), expected);
    }

    // Whatever fails on the way, nothing is written, the marks stay, and the next try does it all.
    void aSaveThatFailsLeavesFileAndMarks() {
        int all = 0;  // operations of a save; counted by the first one, which goes well
        for (int failing = 0; failing <= all; ++failing) {
            Bench bench;
            bench.Load({"A", "B", "C", "D"});
            bench.Type(2, "X");
            bench.Type(3, "A");
            bench.PressDelete(4);
            bench.PressDelete(5);
            const QStringList marks = bench.Texts();
            const QByteArray before = BytesOf(bench.pin);
            int operations = 0;
            bool saved = false;
            {
                FailingAccess access([&](const char* operation, const QString&) {
                    if (!saved && ++operations == failing)
                        throw DocumentError("Not now.");
                    saved = saved || operation == QLatin1String("Save");
                });
                if (failing > 0)
                    bench.dialogs.Expect(Format(Text::ConfigurationSaveError, "Not now."));
                bench.Save();
            }
            QVERIFY(bench.dialogs.AllCame());
            if (failing > 0) {
                QCOMPARE(BytesOf(bench.pin), before);
                QCOMPARE(bench.Texts(), marks);
                QCOMPARE(bench.Image(4), QString("picConfigDel"));
                QCOMPARE(bench.status.caption, gStrings[96]);
                QVERIFY(bench.CanSave());
                bench.Save();
            }
            QCOMPARE(bench.Stored(), QStringList({"X", "A"}));
            QVERIFY(!bench.CanSave());
            all = std::max(all, operations);
        }
        QVERIFY(all >= 6);
    }

    // The save is done then, and nothing is left to be tried again.
    void aDocumentThatCantBeReadBehindItsSaveIsTold() {
        Bench bench;
        bool saved = false;
        {
            FailingAccess access([&](const char* operation, const QString&) {
                if (saved)
                    throw DocumentError("Gone.");
                saved = operation == QLatin1String("Save");
            });
            bench.Load({"A", "B"});
            bench.Type(2, "X");
            bench.dialogs.Expect(Format(Text::ConfigurationLoadError, "Gone."));
            bench.Save();
            QVERIFY(bench.dialogs.AllCame());
            QCOMPARE(bench.Tree().Count(), 0);
            QVERIFY(!bench.CanSave() && !bench.ResetButton()->isEnabled());
            bench.pane.reset();  // with the objects of this library
        }
        QCOMPARE(bench.Stored(), QStringList({"X", "B"}));
    }

    // What was tried and taken back is not written by a later save.
    void aFailedAttemptLeavesNothingBehind() {
        Bench bench;
        bench.Load({"A", "B"});
        bench.Type(2, "X");
        {
            const FileLockHolder other(bench.pin);
            bench.dialogs.Expect(SaveErrorBeginning());
            bench.Save();
        }
        bench.Type(2, "A");
        bench.Type(3, "Y");
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList({"A", "Y"}));
    }

    void changesOfOthersAreNotOverwritten_data() {
        QTest::addColumn<bool>("deletes");
        QTest::newRow("names") << false;
        QTest::newRow("properties of a deleted one") << true;
    }
    void changesOfOthersAreNotOverwritten() {
        QFETCH(bool, deletes);
        Bench bench;
        bench.Load({"A", "B"});
        if (deletes)
            bench.PressDelete(2);
        else
            bench.Type(2, "Mine");
        bench.ChangeElsewhere([&](DocumentBuilder& document) {
            if (deletes)
                document.SetConfigurationProperty("A", "Length", 1.0);
            else
                document.AddConfiguration("C");
        });
        const QByteArray before = BytesOf(bench.pin);
        bench.dialogs.Expect(SaveErrorBeginning());
        bench.Save();
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(BytesOf(bench.pin), before);
        QVERIFY(bench.CanSave());
        bench.Reset();
        QCOMPARE(bench.Texts().size(), deletes ? 2 : 3);
    }

    void otherTablesMayChangeMeanwhile() {
        Bench bench;
        bench.Load({"A"});
        bench.Type(2, "Mine");
        bench.ChangeElsewhere(
            [](DocumentBuilder& document) { document.AddHyperlink("http://server/"); });
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList("Mine"));
    }

    void aReadOnlyAndAVanishedDocumentAreTold() {
        Bench bench;
        bench.Load({"A"});
        bench.Type(2, "Mine");
        QVERIFY(QFile::setPermissions(bench.pin, QFile::ReadOwner | QFile::ReadUser));
        bench.dialogs.Expect(SaveErrorBeginning());
        bench.Save();
        QVERIFY(QFile::setPermissions(bench.pin, QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(QFile::rename(bench.pin, bench.pin + ".away"));
        bench.dialogs.Expect(SaveErrorBeginning());
        bench.Save();
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(QFile::rename(bench.pin + ".away", bench.pin));
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList("Mine"));
    }

    void anOpenEditBoxGoesWithThePane() {
        Bench bench;
        bench.Load({"A"});
        bench.BeginEdit(2)->setText("B");
        bench.pane.reset();
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestEditConfig)
#include "tst_editconfig.moc"
