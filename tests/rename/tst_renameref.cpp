// The rename and replace pane, through its widgets.

#include "tests/rename/renamebench.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

using Bench = RenameBench;

// Does something once while the pane searches a subfolder.
class WhenSearching {
public:
    WhenSearching(Bench& bench, const QString& subfolder, const std::function<void()>& what) {
        const QString status = Format(Text::SearchingHolders, bench.library.Path(subfolder));
        timer_.setInterval(0);
        QObject::connect(&timer_, &QTimer::timeout, [this, &bench, status, what] {
            if (bench.status.caption != status)
                return;
            timer_.stop();
            what();
        });
        timer_.start();
    }

private:
    QTimer timer_;
};

void SetReadOnly(const QString& path, bool readOnly) {
    const QFile::Permissions write = QFile::WriteOwner | QFile::WriteUser;
    const QFile::Permissions read = QFile::ReadOwner | QFile::ReadUser;
    QVERIFY(QFile::setPermissions(path, readOnly ? read : read | write));
}

}  // namespace

class TestRenameRef : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anEmptyNameBlanksThePane() {
        Bench bench;
        bench.pane->SetPartName("", "", "", false);
        for (const char* name : {"apply", "reset", "browse", "Findnow", "searchrule"})
            QVERIFY2(!bench.Button(name)->isEnabled(), name);
        QCOMPARE(bench.NewName()->text(), QString());
    }

    void aDocumentFillsTheForm() {
        Bench bench;
        bench.Load();
        QCOMPARE(bench.Child<QLineEdit>("oldname")->text(), bench.pin);
        QCOMPARE(bench.NewName()->text(), QString("pin.tfmprt"));
        QCOMPARE(bench.NewName()->selectedText(), QString("pin.tfmprt"));
        QCOMPARE(bench.Child<QLabel>("Re")->text(), gStrings[207] + " :");
        QCOMPARE(bench.Child<QLabel>("Label1")->text(), gStrings[14] + " :");
        QVERIFY(bench.Button("apply")->isEnabled() && !bench.Button("reset")->isEnabled());
        QVERIFY(bench.Button("browse")->isHidden());
        QVERIFY(bench.Child<QCheckBox>("whereused")->isChecked());
        bench.Child<QCheckBox>("whereused")->click();
        QVERIFY(bench.Child("Frame2")->isHidden());
    }

    void aDocumentInUseIsRefused() {
        Bench bench;
        const FileLockHolder holder(bench.pin);
        bench.dialogs.Expect(Format(Text::AccessInUse, bench.pin));
        bench.Load();
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(!bench.Button("apply")->isEnabled());
        QVERIFY(bench.Child<QCheckBox>("whereused")->isHidden());
    }

    void aRefusedDocumentLeavesNothingToApply() {
        Bench bench;
        bench.Load();
        const FileLockHolder holder(bench.right);
        bench.dialogs.Expect(Format(Text::AccessInUse, bench.right));
        bench.pane->SetPartName("right", bench.right, bench.right, false);
        bench.Type("other.tfmasm");
        QVERIFY(!bench.Button("apply")->isEnabled());
        QVERIFY(!bench.NewName()->isEnabled());
        bench.Load();
        QVERIFY(bench.NewName()->isEnabled() && bench.Button("apply")->isEnabled());
    }

    void anErrorWhileLoadingIsTold() {
        Bench bench;
        bench.Load();
        {
            const FailingAccess failing([](const char* operation, const QString&) {
                if (QLatin1String(operation) == QLatin1String("GetAccessState"))
                    throw DocumentError("no such luck");
            });
            bench.dialogs.Expect(Format(Text::RenameLoadFailed, bench.right, "no such luck"));
            bench.pane->SetPartName("right", bench.right, bench.right, false);
        }
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.NewName()->text(), QString("pin.tfmprt"));  // as it stood
        bench.Type("other.tfmprt");
        QVERIFY(!bench.Button("apply")->isEnabled());  // whose name would that be?
    }

    void aReadOnlyParentIsRefused() {
        Bench bench;
        SetReadOnly(bench.left, true);
        bench.dialogs.Expect(Format(Text::AccessReadOnly, bench.left));
        bench.Load();
        QVERIFY(!bench.Button("Findnow")->isEnabled());
        SetReadOnly(bench.left, false);
    }

    void anEmptyNewNameDisablesApply() {
        Bench bench;
        bench.Load();
        bench.Type("");
        QVERIFY(!bench.Button("apply")->isEnabled());
        bench.Type("x");
        QVERIFY(bench.Button("apply")->isEnabled());
        QTest::keyClick(bench.NewName(), Qt::Key_Escape);
        QCOMPARE(bench.NewName()->text(), QString());
        QVERIFY(!bench.Button("apply")->isEnabled());
    }

    void leavingTheNameAddsTheExtension() {
        Bench bench;
        bench.Load();
        bench.NewName()->setFocus();
        bench.Type("bolt");
        bench.Button("apply")->setFocus();
        QCOMPARE(bench.NewName()->text(), QString("bolt.tfmprt"));
    }

    void enterChecksTheNameAndStartsNothing() {
        Bench bench;
        bench.Load();
        bench.Type("bolt");
        QTest::keyClick(bench.NewName(), Qt::Key_Return);
        QCOMPARE(bench.NewName()->text(), QString("bolt.tfmprt"));
        QVERIFY(bench.Button("apply")->isEnabled());
        QVERIFY(QFile::exists(bench.pin));
    }

    void wrongNamesAreRefused_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("text");
        LoadResources();
        QTest::newRow("its own") << "pin.tfmprt" << Format(Text::TargetCollides, "pin");
        QTest::newRow("an ancestor's, whatever its case")
            << "TOP.TFMASM" << Format(Text::TargetCollides, "TOP");
        QTest::newRow("another type") << "bolt.tfmasm" << QString(gStrings[216]);
        QTest::newRow("taken") << "taken.tfmprt" << QString(gStrings[219]);
        QTest::newRow("with a folder") << "sub/bolt.tfmprt" << QString(gStrings[220]);
        QTest::newRow("with a folder, as elsewhere")
            << "sub\\bolt.tfmprt" << QString(gStrings[220]);
    }
    void wrongNamesAreRefused() {
        QFETCH(QString, name);
        QFETCH(QString, text);
        Bench bench;
        bench.library.Make("taken.tfmprt");
        bench.Load();
        bench.Type(name);
        bench.dialogs.Expect(text);
        QTest::keyClick(bench.NewName(), Qt::Key_Return);
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(!bench.Button("apply")->isEnabled());
        QCOMPARE(bench.NewName()->selectedText(), bench.NewName()->text());
    }

    void aDroppedPathIsCheckedWholeAndRefusedAtApply() {
        Bench bench;
        bench.Load();
        const QString path = bench.library.Path("bolt.tfmprt");
        DropFiles(bench.NewName(), {path});
        QCOMPARE(bench.NewName()->text(), path);
        QVERIFY(bench.Button("apply")->isEnabled());
        bench.dialogs.Expect(gStrings[360], Dialogs::Icon::Exclamation, Dialogs::Answer::No);
        bench.dialogs.Expect(gStrings[220]);
        bench.Apply();
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(QFile::exists(bench.pin));
    }

    void theSearchListsTheHolders() {
        Bench bench;
        bench.Load();
        bench.Find();
        QCOMPARE(bench.List()->List().Count(), 2);
        QCOMPARE(bench.Row(0).cells[kHolderColumn].tag, bench.left);
        QCOMPARE(bench.Row(0).cells[kHolderColumn].text, QString("left.tfmasm"));
        QCOMPARE(bench.Row(0).cells[kRelationColumn].tag, QString("M"));
        QCOMPARE(bench.Row(1).cells[kRelationColumn].tag, QString());
        QCOMPARE(bench.Row(1).cells[kRelationColumn].text, gRelationDefault);
        QCOMPARE(bench.Row(1).cells[kIndexColumn].text, QString("0"));
        QCOMPARE(bench.Row(1).cells[kTableColumn].text, QString("0"));
        QVERIFY(bench.Row(0).ticked && bench.Row(1).ticked);
        QCOMPARE(bench.status.caption, Format(Text::HoldersFound, "2"));
        QCOMPARE(bench.Button("Findnow")->text(), gStrings[17]);
    }

    void theParentsTickStays() {
        Bench bench;
        bench.Load();
        bench.Find();
        bench.dialogs.Expect(gStrings[361]);
        bench.ClickTick(0);
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(bench.Row(0).ticked);
        bench.ClickTick(1);
        QVERIFY(!bench.Row(1).ticked);
    }

    void aReadOnlyHolderCanBeTickedOnceItIsWritable() {
        Bench bench;
        SetReadOnly(bench.right, true);
        bench.Load();
        bench.Find();
        QVERIFY(!bench.Row(1).ticked);
        QCOMPARE(bench.Row(1).cells[kHolderColumn].foreColor, kColorRed);
        QCOMPARE(bench.Row(1).cells[kHolderColumn].text, gStrings[78] + "right.tfmasm");
        QCOMPARE(bench.Row(1).cells[kRelationColumn].tag, QString("R"));
        bench.dialogs.Expect(gStrings[361]);
        bench.ClickTick(1);
        QVERIFY(!bench.Row(1).ticked);
        SetReadOnly(bench.right, false);
        bench.ClickTick(1);
        QVERIFY(bench.Row(1).ticked);
        QCOMPARE(bench.Row(1).cells[kHolderColumn].foreColor, kColorNormal);
        QCOMPARE(bench.Row(1).cells[kHolderColumn].text, QString("right.tfmasm"));
    }

    void theHeaderTogglesAndKeepsTheMark() {
        Bench bench;
        SetReadOnly(bench.right, true);
        bench.Load();
        bench.Find();
        Q_EMIT bench.List()->header()->sectionClicked(kHolderColumn);
        QCOMPARE(bench.Row(0).cells[kHolderColumn].text, bench.left);
        QCOMPARE(bench.Row(1).cells[kHolderColumn].text, gStrings[78] + bench.right);
        QCOMPARE(bench.List()->List().Headers()[kHolderColumn].text, gStrings[208]);
        Q_EMIT bench.List()->header()->sectionClicked(kRelationColumn);
        QCOMPARE(bench.Row(0).cells[kHolderColumn].text, bench.left);
        SetReadOnly(bench.right, false);
    }

    void applyRenamesAndUpdatesEveryHolder() {
        Bench bench;
        bench.Load();
        bench.Find();
        bench.Type("bolt");
        QSignalSpy updated(bench.pane.get(), &Pane::FileUpdated);
        bench.Apply();
        const QString bolt = bench.library.Path("bolt.tfmprt");
        QVERIFY(QFile::exists(bolt) && !QFile::exists(bench.pin));
        QCOMPARE(bench.PathIn(bench.left), bolt);
        QCOMPARE(bench.PathIn(bench.right), bolt);
        QCOMPARE(bench.status.caption, Format(Text::RenameDone, "3", "0"));
        QCOMPARE(updated.count(), 1);
        QCOMPARE(updated[0][0].toString(), bolt);
        QVERIFY(!bench.Button("apply")->isEnabled() && !bench.NewName()->isEnabled());
        QCOMPARE(bench.Row(1).cells[kHolderColumn].foreColor, kColorBlue);
    }

    void withoutASearchTheUserIsAsked() {
        Bench bench;
        bench.Load();
        bench.Type("bolt.tfmprt");
        bench.dialogs.Expect(gStrings[360], Dialogs::Icon::Exclamation, Dialogs::Answer::Cancel);
        bench.Apply();
        QVERIFY(QFile::exists(bench.pin));
        QCOMPARE(bench.dialogs.LastButtons(), Dialogs::Buttons::YesNoCancel);
        bench.dialogs.Expect(gStrings[360], Dialogs::Icon::Exclamation, Dialogs::Answer::Yes);
        bench.Apply();
        QVERIFY(QFile::exists(bench.pin));
        QCOMPARE(bench.List()->List().Count(), 2);
        QTest::mouseClick(bench.Button("reset"), Qt::LeftButton);
        QCOMPARE(bench.List()->List().Count(), 0);
        QVERIFY(!bench.Button("reset")->isEnabled());
        bench.dialogs.Expect(gStrings[360], Dialogs::Icon::Exclamation, Dialogs::Answer::No);
        bench.Apply();
        QVERIFY(!QFile::exists(bench.pin));
        QCOMPARE(bench.status.caption, Format(Text::RenameDone, "1", "0"));  // the parent
        QCOMPARE(bench.PathIn(bench.right), bench.pin);
    }

    void aRootHasNoParentToUpdate() {
        Bench bench;
        bench.pane->SetPartName("top", bench.top, bench.top, false);
        bench.Find();
        bench.Type("engine.tfmasm");
        bench.Apply();
        QVERIFY(QFile::exists(bench.library.Path("engine.tfmasm")));
        QCOMPARE(bench.status.caption, Format(Text::RenameDone, "0", "0"));
    }

    void aHolderNamedLikeTheNewNameStopsApplyOnce() {
        Bench bench;
        const QString twin = bench.library.Make("sub/bolt.tfmprt", {{bench.pin}});
        bench.Load();
        bench.Find();
        QCOMPARE(bench.List()->List().Count(), 3);
        bench.Type("bolt.tfmprt");
        bench.dialogs.Expect(Format(Text::HolderHasNewName, twin, "bolt.tfmprt"));
        bench.Apply();
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(QFile::exists(bench.pin));
        QCOMPARE(bench.Row(2).cells[kHolderColumn].foreColor, kColorRed);
        QVERIFY(!bench.Row(2).ticked);
        bench.Apply();
        QVERIFY(!QFile::exists(bench.pin));
    }

    void aHolderInUseStopsApplyOnce() {
        Bench bench;
        bench.Load();
        bench.Find();
        bench.Type("bolt.tfmprt");
        const FileLockHolder holder(bench.right);
        bench.dialogs.Expect(Format(Text::AccessInUse, bench.right));
        bench.Apply();
        QVERIFY(QFile::exists(bench.pin));
        QVERIFY(!bench.Row(1).ticked);
        bench.Apply();
        QVERIFY(!QFile::exists(bench.pin));
    }

    void theExportTellsHowTheRowsWent() {
        Bench bench;
        FakeSpreadsheet sheet;
        bench.Load();
        bench.dialogs.Expect(gStrings[43]);
        bench.Child<QAction>("mnexport")->trigger();
        bench.Find();
        bench.ClickTick(1);
        bench.Type("bolt.tfmprt");
        bench.Apply();
        bench.Child<QAction>("mnexport")->trigger();
        QCOMPARE(sheet.shown.size(), size_t(3));
        QCOMPARE(sheet.shown[0],
                 std::vector<QString>({gStrings[31], gStrings[117], gStrings[19], gStrings[44]}));
        QCOMPARE(sheet.shown[1],
                 std::vector<QString>({bench.left, gRelationDefault, gStrings[45], gStrings[233]}));
        QCOMPARE(sheet.shown[2],
                 std::vector<QString>({bench.right, gRelationDefault, gStrings[235], ""}));
        QCOMPARE(bench.status.caption, Format(Text::ExportDone, "2"));
    }

    void thePaneMayGoAwayBehindTheBoxOfAFailedExport() {
        Bench bench;
        bench.Load();
        bench.Find();
        FakeSpreadsheet spreadsheet;
        spreadsheet.fails = true;
        bench.dialogs.Expect("*", Dialogs::Icon::None);
        bench.dialogs.Meanwhile([&] { bench.pane.reset(); });
        QMetaObject::invokeMethod(bench.pane->findChild<QAction*>("mnexport"), "trigger");
        QVERIFY(!bench.pane);
    }

    void theSearchStopsByItsOwnButton() {
        Bench bench;
        bench.library.Make("a/one.tfmasm", {{bench.pin}});
        bench.library.Make("b/two.tfmasm", {{bench.pin}});
        bench.Load();
        QTimer::singleShot(0, bench.pane.get(), [&] {
            QCOMPARE(bench.Button("Findnow")->text(), gStrings[53]);
            QVERIFY(!bench.Button("apply")->isEnabled());
            bench.Type("bolt.tfmprt");  // the name may be typed, but not applied before the end
            QVERIFY(!bench.Button("apply")->isEnabled());
            bench.Find();
        });
        bench.Find();
        QVERIFY(bench.List()->List().Count() < 4);
        QCOMPARE(bench.Button("Findnow")->text(), gStrings[17]);
        QVERIFY(bench.Button("apply")->isEnabled());
        bench.Type("bolt.tfmprt");
        bench.Apply();  // nobody asks: the search counts as done
        QVERIFY(!QFile::exists(bench.pin));
    }

    void aStoppedSearchKeepsItsRows() {
        Bench bench;
        bench.library.Make("a/one.tfmasm", {{bench.pin}});
        bench.library.Make("b/two.tfmasm", {{bench.pin}});
        bench.Load();
        const WhenSearching stop(bench, "a", [&] { bench.Find(); });
        bench.Find();
        QCOMPARE(bench.List()->List().Count(), 2);
        QCOMPARE(bench.Row(1).cells[kHolderColumn].tag, bench.right);
    }

    void anotherDocumentEndsTheSearch() {
        Bench bench;
        bench.library.Make("a/one.tfmasm", {{bench.pin}});
        bench.library.Make("b/two.tfmasm", {{bench.pin}});
        bench.Load();
        const WhenSearching hand(bench, "a", [&] {
            bench.pane->SetPartName("left", bench.left, bench.left, false);
            bench.status.caption = "handed on";
        });
        bench.Find();
        QCOMPARE(bench.status.caption, QString("handed on"));
        QCOMPARE(bench.List()->List().Count(), 0);
        QCOMPARE(bench.NewName()->text(), QString("left.tfmasm"));
        QVERIFY(bench.Button("Findnow")->isEnabled());
        QCOMPARE(bench.Button("Findnow")->text(), Tr(Text::FindNow));
    }

    void thePaneMayGoAwayDuringASearch() {
        Bench bench;
        bench.library.Make("a/one.tfmasm", {{bench.pin}});
        bench.library.Make("b/two.tfmasm", {{bench.pin}});
        bench.Load();
        const WhenSearching remove(bench, "a", [&] {
            bench.status.caption = "gone";
            bench.pane.reset();
        });
        bench.Button("Findnow")->click();
        QVERIFY(!bench.pane);
        QCOMPARE(bench.status.caption, QString("gone"));
    }

    void withNothingToLookInTheSearchDoesNotCount() {
        Bench bench;
        bench.Load();
        QTimer::singleShot(0, [] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            dialog->findChild<QLineEdit*>("wuLookin")->setText(" a list without folders");
            dialog->findChild<QPushButton*>("OKButton")->click();
        });
        QTest::mouseClick(bench.Button("searchrule"), Qt::LeftButton);
        bench.Find();
        bench.Type("bolt");
        bench.dialogs.Expect(gStrings[360], Dialogs::Icon::Exclamation, Dialogs::Answer::Cancel);
        bench.Apply();
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(QFile::exists(bench.pin));
    }

    void aParentThatIsRefusedWhenApplyingStopsIt() {
        Bench bench;
        bench.Load();
        bench.Type("bolt");
        SetReadOnly(bench.left, true);
        bench.dialogs.Expect(gStrings[360], Dialogs::Icon::Exclamation, Dialogs::Answer::No);
        bench.dialogs.Expect(Format(Text::AccessReadOnly, bench.left));
        bench.Apply();
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(QFile::exists(bench.pin));
        QVERIFY(!bench.Button("Findnow")->isEnabled());
        SetReadOnly(bench.left, false);
    }

    void hiddenRowsTakePart() {
        Bench bench;
        bench.Load();
        bench.Find();
        bench.Child<QCheckBox>("whereused")->click();
        QVERIFY(bench.Row(0).ticked && bench.Row(1).ticked);
        bench.Type("bolt");
        bench.Apply();
        QCOMPARE(bench.PathIn(bench.right), bench.library.Path("bolt.tfmprt"));
    }

    void withNoRowTickedTheFileIsStillMoved() {
        Bench bench;
        bench.pane->SetPartName("pin", bench.pin, bench.pin, false);  // a root
        bench.Find();
        bench.ClickTick(0);
        bench.ClickTick(1);
        bench.Type("bolt");
        bench.Apply();
        QVERIFY(QFile::exists(bench.library.Path("bolt.tfmprt")));
        QCOMPARE(bench.status.caption, Format(Text::RenameDone, "0", "0"));
    }

    void everyHolderNamedLikeTheNewNameStopsApplyOnce() {
        Bench bench;
        const QString one = bench.library.Make("a/other.tfmprt", {}, {{bench.pin, "derived"}});
        const QString two = bench.library.Make("b/other.tfmprt", {}, {{bench.pin, "derived"}});
        bench.Load();
        bench.Find();
        bench.Type("other.tfmprt");
        for (const QString& twin : {one, two}) {
            bench.dialogs.Expect(Format(Text::HolderHasNewName, twin, "other.tfmprt"));
            bench.Apply();
            QVERIFY(bench.dialogs.AllCame());
            QVERIFY(QFile::exists(bench.pin));
        }
        bench.Apply();
        QVERIFY(!QFile::exists(bench.pin));
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestRenameRef)
#include "tst_renameref.moc"
