// The property pane: what it writes, in which order, and what stops it.

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>

#include "tests/editors/propertiesbench.h"
#include "tests/support/failingaccess.h"
#include "tests/support/filelockholder.h"
#include "tests/support/testenvironment.h"

using namespace docbench;
using docmodel::DocumentBuilder;

namespace {

// Notes the operations that write, in their order; may make one of them fail.
struct Writes {
    explicit Writes(OperationHook more = {})
        : access([this, more](const char* operation, const QString& path) {
              const QString name = QLatin1String(operation);
              if (name.startsWith("Set") || name.startsWith("Delete") || name == "Save" ||
                  name == "Open")
                  calls.append(name);
              if (more)
                  more(operation, path);
          }) {}
    QStringList calls;
    FailingAccess access;
};

void ChangeElsewhere(const QString& path, const std::function<void(DocumentBuilder&)>& change) {
    DocumentBuilder document = DocumentBuilder::Edit(path);
    change(document);
    document.Save();
}

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

class TestPropertyWrites : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theSummaryIsWrittenInItsOrder() {
        PropertiesBench bench;
        Writes writes;
        bench.Load();
        bench.Summary(1)->setText("Fasteners");
        bench.Comments()->setPlainText("three\nfour");
        writes.calls.clear();
        bench.Apply();
        QCOMPARE(writes.calls, QStringList({"Open", "SetAuthor", "SetComments", "SetKeywords",
                                            "SetSubject", "SetTitle", "Save"}));
        const auto record = bench.Record();
        QCOMPARE(record->GetSubject(), QString("Fasteners"));
        QCOMPARE(record->GetComments(), QString("three\nfour"));
        QCOMPARE(record->GetTitle(), QString("Pin"));
        QCOMPARE(bench.Fact("labLastsaved"), record->GetLastSaved());
    }

    void theDateOfTheLastSaveIsReadFromTheDocument() {
        PropertiesBench bench;
        ChangeElsewhere(bench.pin, [](DocumentBuilder& document) {
            document.SetCreated(QDateTime(QDate(2003, 12, 24), QTime(8, 5)));
            document.SetLastSaved(QDateTime(QDate(2004, 5, 31), QTime(14, 7)), "anna");
        });
        QLocale::setDefault(QLocale("de_DE"));
        bench.Load();
        QCOMPARE(bench.Fact("labCreated"), QString("24.12.03 08:05"));
        QCOMPARE(bench.Fact("labLastsaved"), QString("31.05.04 14:07"));
        QCOMPARE(bench.Fact("labLastSavedby"), QString("anna"));
        bench.Put(kCustomSet, "Owner", "Castings");
        QCOMPARE(bench.Fact("labLastsaved"), QString("31.05.04 14:07"));
        bench.Apply();
        const QString shown = bench.Fact("labLastsaved");
        QVERIFY(shown != "31.05.04 14:07");
        QCOMPARE(shown, bench.Record()->GetLastSaved());
        QCOMPARE(bench.Fact("labLastSavedby"), bench.Record()->GetLastSavedBy());
        QCOMPARE(bench.Fact("labCreated"), QString("24.12.03 08:05"));
        QLocale::setDefault(QLocale::system());
    }

    void everyRowIsWrittenBehindTheDeletions() {
        PropertiesBench bench;
        Writes writes;
        bench.Load();
        bench.Remove(kCustomSet, "Mass");
        bench.Remove(kCustomSet, "Released");
        bench.Put(kCustomSet, "Owner", "Castings");
        writes.calls.clear();
        bench.Apply();
        QCOMPARE(writes.calls.mid(6),
                 QStringList({"DeleteCustomProperty", "DeleteCustomProperty", "SetCustomProperty",
                              "SetCustomProperty", "SetCustomProperty", "Save"}));
        const auto record = bench.Record();
        QCOMPARE(record->GetCustomCount(), 3);
        QCOMPARE(record->GetCustomProperty(2).name, QString("Owner"));
    }

    void aRemovedNameThatIsAddedAgainSurvives() {
        PropertiesBench bench;
        bench.Load();
        bench.Remove(kCustomSet, "Mass");
        bench.Put(kCustomSet, "Mass", "heavy");
        bench.Apply();
        QCOMPARE(bench.Stored("Mass"), QVariant("heavy"));
    }

    void theButtonsStayOnAfterAWrite() {
        PropertiesBench bench;
        Writes writes;
        bench.Load();
        bench.Put(kCustomSet, "Owner", "Castings");
        bench.Apply();
        QVERIFY(bench.ApplyButton()->isEnabled() && bench.ResetButton()->isEnabled());
        writes.calls.clear();
        bench.Apply();
        QCOMPARE(writes.calls, QStringList());
        bench.Put(kCustomSet, "Owner", "Drives");
        bench.Apply();
        QCOMPARE(bench.Stored("Owner"), QVariant("Drives"));
    }

    void valuesAreStoredInTheirTypes() {
        PropertiesBench bench;
        bench.Load();
        bench.Put(kCustomSet, "Text", "7");
        bench.Put(kCustomSet, "Number", "7", 2);
        bench.Put(kCustomSet, "Date", "1 Feb 2004", 1);
        bench.Put(kCustomSet, "YesNo", "", 3);
        bench.Apply();
        QCOMPARE(bench.Stored("Text"), QVariant("7"));
        QCOMPARE(bench.Stored("Number"), QVariant(7.0));
        QCOMPARE(bench.Stored("Date").toDateTime(), QDate(2004, 2, 1).startOfDay());
        QCOMPARE(bench.Stored("YesNo"), QVariant(true));
    }

    void aYesOrNoOfNeitherWordIsNo() {
        LoadResources();
        const CellRow row{
            .cells = {{.text = "Tested"}, {.text = "perhaps"}, {.text = gStrings[167]}}};
        QCOMPARE(PropertyValueOf(row), QVariant(false));
    }

    void whatWasNotEditedStaysAsItIsStored() {
        PropertiesBench bench;
        const QDateTime moment(QDate(2004, 5, 31), QTime(1, 2, 3, 456), Qt::UTC);
        const QString author = QString::fromUtf8("no\u00a0break\u2028line\tand\u00adsoft");
        ChangeElsewhere(bench.pin, [&](DocumentBuilder& document) {
            document.SetCustomProperty("Moment", moment);
            document.SetCustomProperty("Third", 1.0 / 3);
            document.SetCustomProperty("Grouped", 1.234);  // more than a thousand in German
            document.SetCustomProperty("Lines", "one\ntwo\u00a0three");
            document.SetComments(author);
            document.SetKeywords(author);
        });
        const auto before = bench.Record();
        bench.Load();
        bench.Put(kCustomSet, "Owner", "Castings");
        bench.ClickRow(kCustomSet, 4);  // and changed to what it is
        bench.Name(kCustomSet)->setEditText("moment");
        QTest::mouseClick(bench.AddButton(kCustomSet), Qt::LeftButton);
        QLocale::setDefault(QLocale("de_DE"));
        bench.Apply();
        QLocale::setDefault(QLocale::system());
        const auto after = bench.Record();
        QCOMPARE(after->GetCustomCount(), before->GetCustomCount() + 1);
        for (int index = 0; index < before->GetCustomCount(); ++index) {
            QCOMPARE(after->GetCustomProperty(index).value, before->GetCustomProperty(index).value);
            QCOMPARE(after->GetCustomProperty(index).type, before->GetCustomProperty(index).type);
        }
        QCOMPARE(bench.Stored("Moment").toDateTime(), moment);
        QCOMPARE(after->GetComments(), author);
        QCOMPARE(after->GetKeywords(), author);
    }

    void editedCommentsKeepTheirSpecialBlanks() {
        PropertiesBench bench;
        ChangeElsewhere(bench.pin,
                        [](DocumentBuilder& document) { document.SetComments("5\u00a0mm\nlong"); });
        bench.Load();
        bench.Comments()->moveCursor(QTextCursor::End);
        QTest::keyClicks(bench.Comments(), "er");
        bench.Apply();
        QCOMPARE(bench.Record()->GetComments(), QString("5\u00a0mm\nlonger"));
    }

    void everyLineOfTheCommentsEndsAlike() {
        PropertiesBench bench;
        ChangeElsewhere(bench.pin, [](DocumentBuilder& document) {
            document.SetComments(QString::fromUtf8("kept\u2028as it is"));
        });
        bench.Load();
        bench.Put(kCustomSet, "Owner", "Castings");
        bench.Apply();
        QCOMPARE(bench.Record()->GetComments(), QString::fromUtf8("kept\u2028as it is"));
        bench.Tabs()->setCurrentIndex(0);
        bench.Comments()->clear();
        QTest::keyClicks(bench.Comments(), "one");
        QTest::keyClick(bench.Comments(), Qt::Key_Return, Qt::ShiftModifier);
        QTest::keyClicks(bench.Comments(), "two");
        QTest::keyClick(bench.Comments(), Qt::Key_Return);
        QGuiApplication::clipboard()->setText(QString::fromUtf8("three\u2028four\u2029five"));
        bench.Comments()->paste();
        bench.Apply();
        QCOMPARE(bench.Record()->GetComments(), QString("one\ntwo\nthree\nfour\nfive"));
    }

    void longTextsAreWrittenWhole() {
        PropertiesBench bench;
        const QString text = QString::fromUtf8("\u4f53 & <\U0001F529>")
                                 .repeated(12500);  // 100,000 characters and more
        bench.Load();
        bench.Summary(0)->setText(text);
        bench.Comments()->setPlainText(text);
        bench.Put(kCustomSet, "Long", text);
        bench.Put(kCustomSet, text, "long");
        bench.PickConfiguration(1);
        bench.Put(kConfigurationSet, "Long", text);
        bench.Apply();
        QCOMPARE(bench.Record()->GetTitle(), text);
        QCOMPARE(bench.Record()->GetComments(), text);
        QCOMPARE(bench.Stored("Long"), QVariant(text));
        QCOMPARE(bench.Stored(text), QVariant("long"));
        QCOMPARE(bench.StoredIn(1, "Long"), QVariant(text));
        bench.Load();
        bench.PickConfiguration(1);
        QCOMPARE(bench.Comments()->toPlainText(), text);
        QCOMPARE(bench.Rows(kCustomSet).At(5).cells[0].text, text);
        QCOMPARE(bench.Rows(kConfigurationSet).At(2).cells[1].text, text);
    }

    void aConfigurationAndTheRestAreTwoOpenings() {
        PropertiesBench bench;
        Writes writes;
        bench.Load();
        bench.PickConfiguration(0);
        bench.Put(kConfigurationSet, "Length", "21", 2);
        bench.Summary(0)->setText("Dowel");
        writes.calls.clear();
        bench.Apply();
        QCOMPARE(writes.calls,
                 QStringList({"Open", "SetCustomProperty", "Save", "Open", "SetAuthor",
                              "SetComments", "SetKeywords", "SetSubject", "SetTitle", "Save"}));
        QCOMPARE(bench.StoredIn(0, "Length"), QVariant(21.0));
        QCOMPARE(bench.StoredIn(1, "Length"), QVariant(40.0));
        QCOMPARE(bench.Record()->GetTitle(), QString("Dowel"));
    }

    void twoConfigurationsAreWrittenOneAtATime() {
        PropertiesBench bench;
        Writes writes;
        bench.Load();
        bench.PickConfiguration(0);
        bench.Put(kConfigurationSet, "Length", "21", 2);
        bench.Remove(kConfigurationSet, "nothing");
        writes.calls.clear();
        bench.dialogs.Expect(gStrings[171], Dialogs::Icon::None, Dialogs::Answer::Yes);
        bench.PickConfiguration(1);
        QCOMPARE(writes.calls, QStringList({"Open", "SetCustomProperty", "Save", "Open"}));
        QCOMPARE(bench.StoredIn(0, "Length"), QVariant(21.0));
        bench.Remove(kConfigurationSet, "Finish");
        bench.dialogs.Expect(gStrings[171], Dialogs::Icon::None, Dialogs::Answer::Yes);
        bench.PickConfiguration(0);
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.Row(kConfigurationSet, 0), "Length|21|" + gStrings[166]);
        QVERIFY(!bench.StoredIn(1, "Finish").isValid());
        QCOMPARE(bench.StoredIn(1, "Length"), QVariant(40.0));
    }

    void aConfigurationThatCantBeWrittenIsNotLeft() {
        PropertiesBench bench;
        bench.Load();
        bench.PickConfiguration(0);
        bench.Put(kConfigurationSet, "Length", "21", 2);
        {
            const FileLockHolder other(bench.pin);
            bench.dialogs.Expect(gStrings[171], Dialogs::Icon::None, Dialogs::Answer::Yes);
            bench.dialogs.Expect(
                bench.Quoting(Text::PropertiesWriteError, "The document " + bench.pin));
            bench.PickConfiguration(1);
        }
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.Configurations()->currentRow(), 0);
        QCOMPARE(bench.Row(kConfigurationSet, 0), "Length|21|" + gStrings[166]);
        bench.Apply();
        QCOMPARE(bench.StoredIn(0, "Length"), QVariant(21.0));
    }

    void aPropertyThatFailsIsPassedOver() {
        PropertiesBench bench;
        int sets = 0;
        Writes writes([&sets](const char* operation, const QString&) {
            if (operation == QLatin1String("DeleteCustomProperty") ||
                (operation == QLatin1String("SetCustomProperty") && ++sets == 1))
                throw DocumentError("No.");
        });
        bench.Load();
        bench.Remove(kCustomSet, "Mass");
        bench.Put(kCustomSet, "Owner", "Castings");
        bench.Apply();
        QCOMPARE(bench.Stored("Owner"), QVariant("Castings"));
        QCOMPARE(bench.Stored("Mass"), QVariant(1.5));
    }

    void propertiesChangedMeanwhileAreNotOverwritten_data() {
        QTest::addColumn<QString>("what");
        for (const char* what : {"summary", "custom", "configuration"})
            QTest::newRow(what) << what;
    }
    void propertiesChangedMeanwhileAreNotOverwritten() {
        QFETCH(QString, what);
        PropertiesBench bench;
        bench.Load();
        bench.PickConfiguration(0);
        if (what == "summary")
            bench.Summary(0)->setText("Mine");
        else
            bench.Put(what == "custom" ? kCustomSet : kConfigurationSet, "Owner", "Mine");
        ChangeElsewhere(bench.pin, [&](DocumentBuilder& document) {
            document.SetTitle("Theirs");
            document.SetCustomProperty("Owner", "Theirs");
            document.SetConfigurationProperty("Short", "Owner", "Theirs");
        });
        const QByteArray before = BytesOf(bench.pin);
        for (int attempt = 0; attempt < 2; ++attempt) {
            bench.dialogs.Expect(
                bench.Quoting(Text::PropertiesWriteError, bench.ChangedElsewhere()));
            bench.Apply();
            QVERIFY(bench.dialogs.AllCame());
        }
        QCOMPARE(BytesOf(bench.pin), before);
        if (what == "summary")
            QCOMPARE(bench.Summary(0)->text(), QString("Mine"));
        else
            QVERIFY(bench
                        .Row(what == "custom" ? kCustomSet : kConfigurationSet,
                             what == "custom" ? 4 : 1)
                        .startsWith("Owner|Mine|"));
        QTest::mouseClick(bench.ResetButton(), Qt::LeftButton);
        QCOMPARE(bench.Summary(0)->text(), QString("Theirs"));
    }

    void whoChangesSomethingElseIsNotInTheWay() {
        PropertiesBench bench;
        bench.Load();
        bench.Put(kCustomSet, "Owner", "Mine");
        ChangeElsewhere(bench.pin, [](DocumentBuilder& document) {
            document.SetTitle("Theirs");
            document.SetConfigurationProperty("Short", "Owner", "Theirs");
        });
        bench.Apply();
        QCOMPARE(bench.Stored("Owner"), QVariant("Mine"));
        QCOMPARE(bench.Record()->GetTitle(), QString("Theirs"));
        bench.Summary(0)->setText("Mine");  // typed over a title that is not the pane's
        bench.dialogs.Expect(bench.Quoting(Text::PropertiesWriteError, bench.ChangedElsewhere()));
        bench.Apply();
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.Record()->GetTitle(), QString("Theirs"));
    }

    void onesOwnWritesAreNobodyElses() {
        PropertiesBench bench;
        bench.Load();
        bench.PickConfiguration(0);
        for (const char* value : {"1", "2", "3"}) {
            bench.Put(kConfigurationSet, "Length", value, 2);
            bench.Put(kCustomSet, "Mass", value, 2);
            bench.Summary(0)->setText(value);
            bench.Apply();
        }
        QCOMPARE(bench.StoredIn(0, "Length"), QVariant(3.0));
        QCOMPARE(bench.Stored("Mass"), QVariant(3.0));
        QCOMPARE(bench.Record()->GetTitle(), QString("3"));
    }

    void aReadOnlyDocumentIsToldAndTheEditsStay() {
        PropertiesBench bench;
        bench.Load();
        bench.Put(kCustomSet, "Owner", "Mine");
        const QByteArray before = BytesOf(bench.pin);
        QVERIFY(QFile::setPermissions(bench.pin, QFile::ReadOwner | QFile::ReadUser));
        bench.dialogs.Expect(
            bench.Quoting(Text::PropertiesWriteError, "The document " + bench.pin));
        bench.Apply();
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(BytesOf(bench.pin), before);
        QVERIFY(QFile::setPermissions(bench.pin, QFile::ReadOwner | QFile::WriteOwner));
        bench.Apply();
        QCOMPARE(bench.Stored("Owner"), QVariant("Mine"));
    }

    void aDocumentInUseIsToldAndCanBeTriedAgain() {
        PropertiesBench bench;
        bench.Load();
        bench.Remove(kCustomSet, "Mass");
        bench.Summary(2)->setText("Mine");
        {
            const FileLockHolder other(bench.pin);
            bench.dialogs.Expect(
                bench.Quoting(Text::PropertiesWriteError, "The document " + bench.pin));
            bench.Apply();
        }
        QVERIFY(bench.dialogs.AllCame());
        bench.Apply();
        QVERIFY(!bench.Stored("Mass").isValid());
        QCOMPARE(bench.Record()->GetAuthor(), QString("Mine"));
    }

    void aVanishedDocumentIsToldAndTheEditsStay() {
        PropertiesBench bench;
        bench.Load();
        bench.Put(kCustomSet, "Owner", "Mine");
        QVERIFY(QFile::rename(bench.pin, bench.pin + ".away"));
        bench.dialogs.Expect(Format(Text::PropertiesNotOpened, bench.pin));
        bench.Apply();
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(QFile::rename(bench.pin + ".away", bench.pin));
        bench.Apply();
        QCOMPARE(bench.Stored("Owner"), QVariant("Mine"));
    }

    void anErrorInOneStepLeavesTheStepsBeforeItDone() {
        PropertiesBench bench;
        bool fails = true;
        Writes writes([&fails](const char* operation, const QString&) {
            if (fails && operation == QLatin1String("SetSubject"))
                throw DocumentError("No.");
        });
        bench.Load();
        bench.PickConfiguration(0);
        bench.Put(kConfigurationSet, "Length", "21", 2);
        bench.Summary(0)->setText("Dowel");
        bench.dialogs.Expect(Format(Text::PropertiesWriteError, "No."));
        bench.Apply();
        QCOMPARE(bench.StoredIn(0, "Length"), QVariant(21.0));
        QCOMPARE(bench.Record()->GetTitle(), QString("Pin"));
        fails = false;
        writes.calls.clear();
        bench.Apply();
        QCOMPARE(writes.calls.count("Open"), 1);
        QCOMPARE(bench.Record()->GetTitle(), QString("Dowel"));
    }

    void aTextThatNoDocumentShouldHoldIsNotInTheWay() {
        PropertiesBench bench;
        const QString foreign = QString("odd") + QChar(0xFFFE);
        docmodel::PackageWriter::Create(
            bench.pin,
            {{"docProps/core.xml",
              "<coreProperties xmlns='http://schemas.openxmlformats.org/package/2006/metadata/"
              "core-properties' xmlns:dc='http://purl.org/dc/elements/1.1/'><dc:description>" +
                  foreign.toUtf8() + "</dc:description></coreProperties>"}},
            true);
        bench.Load();
        bench.Put(kCustomSet, "Owner", "Castings");
        bench.Summary(0)->setText("Dowel");
        bench.Apply();
        QCOMPARE(bench.Stored("Owner"), QVariant("Castings"));
        QCOMPARE(bench.Record()->GetTitle(), QString("Dowel"));
        QCOMPARE(bench.Record()->GetComments(), foreign);
    }

    // The text control itself takes U+FDD0 and U+FDD1 for its own marks, so that an edit of the
    // comments loses them.
    void rareCharactersOfTheCommentsSurviveAnEditElsewhere() {
        PropertiesBench bench;
        QString rare = QString::fromUtf8("a\uFDD0b\uFFFCc\u2028d");
        for (char16_t one = 0x80; one <= 0x9F; ++one)
            rare += QChar(one);
        ChangeElsewhere(bench.pin, [&](DocumentBuilder& document) { document.SetComments(rare); });
        bench.Load();
        bench.Summary(0)->setText("Dowel");
        bench.Put(kCustomSet, "Owner", "Castings");
        bench.Apply();
        QCOMPARE(bench.Record()->GetTitle(), QString("Dowel"));
        QCOMPARE(bench.Record()->GetComments(), rare);
    }

    void theValuesOfAConfigurationAreStoredInTheirTypes() {
        PropertiesBench bench;
        bench.Load();
        bench.PickConfiguration(0);
        bench.Put(kConfigurationSet, "Due", "1 Feb 2004", 1);
        bench.ShowTabOf(kConfigurationSet);
        bench.Name(kConfigurationSet)->setEditText("Tested");
        bench.Type(kConfigurationSet)->setCurrentIndex(3);
        bench.Of<QRadioButton>(kConfigurationSet, "OptionNo")->click();
        bench.Click(bench.AddButton(kConfigurationSet));
        bench.Apply();
        QCOMPARE(bench.StoredIn(0, "Due").toDateTime(), QDate(2004, 2, 1).startOfDay());
        QCOMPARE(bench.StoredIn(0, "Tested"), QVariant(false));
        bench.Load();
        bench.PickConfiguration(0);
        QCOMPARE(bench.Row(kConfigurationSet, 1), "Due|1 Feb 2004|" + gStrings[165]);
        QCOMPARE(bench.Row(kConfigurationSet, 2), "Tested|" + gStrings[340] + '|' + gStrings[167]);
    }

    // A lock taken in the tree shows the record of that document here.
    void theDocumentThatIsShownIsTheOneThatIsWritten() {
        PropertiesBench bench;
        bench.Load();
        const QString other = bench.library.Make("other.tfmprt");
        bench.pane->ReloadProperties(other);
        QCOMPARE(bench.Summary(0)->text(), QString());
        bench.Summary(0)->setText("Other");
        bench.Apply();
        QCOMPARE(bench.Record()->GetTitle(), QString("Pin"));
        bench.Load();
        QCOMPARE(bench.Summary(0)->text(), QString("Pin"));
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestPropertyWrites)
#include "tst_propertywrites.moc"
