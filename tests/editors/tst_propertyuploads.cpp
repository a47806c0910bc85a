// The property pane on the documents of web folders: what reaches the server, and what is still to.

#include <QFile>
#include <cstring>

#include "services/webdocument.h"
#include "tests/editors/propertiesbench.h"
#include "tests/support/failingaccess.h"
#include "tests/support/fakewebclient.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

// "pin.tfmprt" on a server, and in the pane.
struct Bench : PropertiesBench {
    Bench() {
        web.server.files[url] = BytesOf(pin);
        gWebDocument = true;
        pane->SetPartName("pin", url);
    }
    ~Bench() { gWebDocument = false; }

    void ApplyRefused() {
        web.server.refusesUploads = true;
        dialogs.Expect("File save to server failed", Dialogs::Icon::None);
        Apply();
        web.server.refusesUploads = false;
    }
    QString GivenUp() {
        return Quoting(Text::PropertiesWriteError, "The local copy of " + url + " was given up");
    }
    qsizetype Uploads() { return web.server.calls.count("put " + url); }
    QByteArray OnServer() { return web.server.files[url]; }
    // From now on, what is read back is what the server has.
    void LookAtTheServer() {
        pin = library.Path("server.tfmprt");
        QFile copy(pin);
        if (!copy.open(QFile::WriteOnly) || copy.write(OnServer()) < 0)
            qFatal("no copy");
    }

    FakeWeb web;
    const QString url = "http://server/docs/pin.tfmprt";
};

// A server that notes the uploads among the calls to the document library.
struct NotingClient : FakeWebClient {
    NotingClient(FakeServer& server, QStringList& notes) : FakeWebClient(server), calls(notes) {}
    bool PutFile(const QString& localPath, const QString& address) override {
        calls.append("upload");
        return FakeWebClient::PutFile(localPath, address);
    }
    QStringList& calls;
};

// Counts the calls of one operation on documents.
struct Calls {
    explicit Calls(const char* operation)
        : access([this, operation](const char* called, const QString&) {
              count += int(std::strcmp(called, operation) == 0);
          }) {}
    int count = 0;
    FailingAccess access;
};

}  // namespace

class TestPropertyUploads : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aWebDocumentIsWrittenBack() {
        Bench bench;
        QCOMPARE(bench.Summary(0)->text(), QString("Pin"));
        bench.PickConfiguration(0);
        bench.Put(kConfigurationSet, "Length", "21", 2);
        bench.Put(kCustomSet, "Owner", "Mine");
        bench.Apply();
        QCOMPARE(bench.web.server.calls,
                 QStringList({"get " + bench.url, "put " + bench.url, "put " + bench.url}));
        bench.LookAtTheServer();
        QCOMPARE(bench.Stored("Owner"), QVariant("Mine"));
        QCOMPARE(bench.StoredIn(0, "Length"), QVariant(21.0));
    }

    // Edits of all kinds in one save, each opening, deletion, write, save and upload at its place.
    void aSaveKeepsItsOrder() {
        Bench bench;
        QStringList calls;
        FailingAccess access([&calls](const char* operation, const QString&) {
            const QString name = QLatin1String(operation);
            if (name != "GetStamp" && (!name.startsWith("Get") || name == "GetLastSaved" ||
                                       name == "GetCustomProperties"))
                calls.append(name);
        });
        gWebFolder = std::make_unique<NotingClient>(bench.web.server, calls);
        bench.PickConfiguration(1);
        bench.Remove(kConfigurationSet, "Length");
        bench.Put(kConfigurationSet, "Finish", "chrome");
        bench.Put(kConfigurationSet, "Coating", "thick");
        bench.Remove(kCustomSet, "Released");
        bench.Remove(kCustomSet, "Material");
        bench.Put(kCustomSet, "Mass", "2", 2);
        bench.Put(kCustomSet, "Owner", "Castings");
        bench.Summary(5)->setText("fastener");
        calls.clear();
        bench.Apply();
        const QString configuration =
            "Open GetCustomProperties DeleteCustomProperty SetCustomProperty SetCustomProperty "
            "Save upload";
        const QString rest =
            "Open SetAuthor SetComments SetKeywords SetSubject SetTitle DeleteCustomProperty "
            "DeleteCustomProperty SetCustomProperty SetCustomProperty SetCustomProperty "
            "Save upload GetLastSaved";
        QCOMPARE(calls.join(' '), configuration + ' ' + rest);
        bench.LookAtTheServer();
        const auto record = bench.Record();
        QStringList names;
        for (int index = 0; index < record->GetCustomCount(); ++index)
            names.append(record->GetCustomProperty(index).name);
        QCOMPARE(names, QStringList({"Checked", "Mass", "Owner"}));  // as the list has them
        QCOMPARE(bench.StoredIn(1, "Coating"), QVariant("thick"));
        QVERIFY(!bench.StoredIn(1, "Length").isValid());
    }

    void aRefusedUploadCanBeTriedAgain() {
        Bench bench;
        Calls saves("Save");
        const QByteArray before = bench.OnServer();
        bench.Remove(kCustomSet, "Mass");
        bench.Summary(0)->setText("Dowel");
        bench.ApplyRefused();
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(bench.dialogs.LastDetail().startsWith(bench.web.server.error));
        QCOMPARE(bench.OnServer(), before);
        QCOMPARE(saves.count, 1);
        bench.Apply();
        QCOMPARE(bench.Uploads(), 2);
        QCOMPARE(saves.count, 1);  // it was written already
        QCOMPARE(bench.OnServer(), BytesOf(gWebCopies.value(bench.url)));
        bench.LookAtTheServer();
        QCOMPARE(bench.Record()->GetTitle(), QString("Dowel"));
        QVERIFY(!bench.Stored("Mass").isValid());
        bench.Apply();
        QCOMPARE(bench.Uploads(), 2);
    }

    void resetKeepsWhatIsStillToBeUploaded() {
        Bench bench;
        bench.Summary(0)->setText("Dowel");
        bench.ApplyRefused();
        bench.Summary(0)->setText("Rivet");
        QTest::mouseClick(bench.ResetButton(), Qt::LeftButton);
        QCOMPARE(bench.Summary(0)->text(), QString("Dowel"));
        QVERIFY(bench.ApplyButton()->isEnabled());
        bench.Apply();
        bench.LookAtTheServer();
        QCOMPARE(bench.Record()->GetTitle(), QString("Dowel"));
        bench.pane->SetPartName("pin", bench.url);
        QVERIFY(!bench.ApplyButton()->isEnabled());
    }

    // Its edits are in the document, so leaving it asks for nothing and drops nothing.
    void aRefusedConfigurationIsWrittenAndCanBeLeft() {
        Bench bench;
        Calls sets("SetCustomProperty");
        bench.PickConfiguration(0);
        bench.Put(kConfigurationSet, "Length", "21", 2);
        bench.ApplyRefused();
        QCOMPARE(sets.count, 1);
        bench.PickConfiguration(1);  // with no question
        QCOMPARE(bench.Row(kConfigurationSet, 0), "Length|40|" + gStrings[166]);
        bench.Apply();
        QCOMPARE(sets.count, 1);
        bench.LookAtTheServer();
        QCOMPARE(bench.StoredIn(0, "Length"), QVariant(21.0));
    }

    void aRefusalAtThePromptIsStillToBeUploaded_data() {
        QTest::addColumn<Dialogs::Answer>("next");
        QTest::newRow("then No") << Dialogs::Answer::No;
        QTest::newRow("then Yes") << Dialogs::Answer::Yes;
    }
    void aRefusalAtThePromptIsStillToBeUploaded() {
        QFETCH(Dialogs::Answer, next);
        Bench bench;
        bench.Summary(0)->setText("Dowel");
        bench.Apply();
        bench.PickConfiguration(0);
        bench.Put(kConfigurationSet, "Length", "21", 2);
        bench.web.server.refusesUploads = true;
        bench.dialogs.Expect(gStrings[171], Dialogs::Icon::None, Dialogs::Answer::Yes);
        bench.dialogs.Expect("File save to server failed", Dialogs::Icon::None);
        bench.PickConfiguration(1);
        QCOMPARE(bench.Row(kConfigurationSet, 0), "Length|40|" + gStrings[166]);
        bench.Put(kConfigurationSet, "Length", "41", 2);
        bench.web.server.refusesUploads = false;
        bench.dialogs.Expect(gStrings[171], Dialogs::Icon::None, next);
        bench.PickConfiguration(0);
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.Row(kConfigurationSet, 0), "Length|21|" + gStrings[166]);
        bench.Apply();
        QCOMPARE(bench.Uploads(), 3);  // the title, the refused one, and one that was taken
        bench.LookAtTheServer();
        QCOMPARE(bench.StoredIn(0, "Length"), QVariant(21.0));
        QCOMPARE(bench.StoredIn(1, "Length"), QVariant(next == Dialogs::Answer::Yes ? 41.0 : 40.0));
    }

    // What comes behind a refused upload is not lost: it is still to be written.
    void theRestWaitsBehindARefusedConfiguration() {
        Bench bench;
        Calls saves("Save");
        bench.PickConfiguration(0);
        bench.Put(kConfigurationSet, "Length", "21", 2);
        bench.Summary(0)->setText("Dowel");
        bench.ApplyRefused();
        QVERIFY(bench.dialogs.AllCame());
        bench.Apply();
        QCOMPARE(saves.count, 2);
        bench.LookAtTheServer();
        QCOMPARE(bench.StoredIn(0, "Length"), QVariant(21.0));
        QCOMPARE(bench.Record()->GetTitle(), QString("Dowel"));
    }

    void aCopyThatWasGivenUpIsTold() {
        Bench bench;
        const QByteArray before = bench.OnServer();
        bench.Summary(0)->setText("Dowel");
        bench.ApplyRefused();
        gWebCopies.clear();  // a local document was browsed to
        bench.dialogs.Expect(bench.GivenUp());
        bench.Apply();
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.OnServer(), before);
        QTest::mouseClick(bench.ResetButton(), Qt::LeftButton);
        QCOMPARE(bench.Summary(0)->text(), QString("Pin"));
        QVERIFY(!bench.ApplyButton()->isEnabled());
    }

    // The edit would go onto the document as the server has it, and what was saved before be gone.
    void anEditBehindAGivenUpCopyIsNotWritten_data() {
        QTest::addColumn<bool>("fetchedAnew");
        QTest::addColumn<QString>("edit");
        for (const char* edit : {"custom", "configuration", "leaving"}) {
            QTest::addRow("%s", edit) << false << edit;
            QTest::addRow("%s, and fetched anew by another", edit) << true << edit;
        }
    }
    void anEditBehindAGivenUpCopyIsNotWritten() {
        QFETCH(bool, fetchedAnew);
        QFETCH(QString, edit);
        Bench bench;
        const QByteArray before = bench.OnServer();
        bench.PickConfiguration(0);
        bench.Summary(0)->setText("Dowel");
        bench.ApplyRefused();
        gWebCopies.clear();
        if (fetchedAnew)
            LocalCopyOf(bench.url);
        bench.Put(edit == "custom" ? kCustomSet : kConfigurationSet, "Owner", "Mine");
        if (edit == "leaving") {
            bench.dialogs.Expect(gStrings[171], Dialogs::Icon::None, Dialogs::Answer::Yes);
            bench.dialogs.Expect(bench.GivenUp());
            bench.PickConfiguration(1);
        }
        bench.dialogs.Expect(bench.GivenUp());
        bench.Apply();
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.OnServer(), before);
        QCOMPARE(bench.Uploads(), 1);
        if (fetchedAnew)
            QCOMPARE(BytesOf(gWebCopies.value(bench.url)), before);
        bench.Click(bench.ResetButton());
        QVERIFY(!bench.ApplyButton()->isEnabled());
        bench.Put(kCustomSet, "Owner", "Mine");
        bench.Apply();
        bench.LookAtTheServer();
        QCOMPARE(bench.Stored("Owner"), QVariant("Mine"));
    }

    void aDocumentThatWasOpenedAsItsLocalCopyIsWrittenBack() {
        Bench bench;
        bench.pane->SetPartName("pin", gWebCopies.value(bench.url));
        bench.PickConfiguration(0);
        bench.Put(kConfigurationSet, "Length", "21", 2);
        bench.Put(kCustomSet, "Owner", "Mine");
        bench.Apply();
        QCOMPARE(bench.Uploads(), 2);
        bench.LookAtTheServer();
        QCOMPARE(bench.Stored("Owner"), QVariant("Mine"));
        QCOMPARE(bench.StoredIn(0, "Length"), QVariant(21.0));
    }

    // The copy is one, whatever it was opened as.
    void whatIsPendingIsUploadedUnderEitherName() {
        Bench bench;
        bench.Summary(0)->setText("Dowel");
        bench.ApplyRefused();
        bench.pane->SetPartName("pin", gWebCopies.value(bench.url));
        QVERIFY(bench.ApplyButton()->isEnabled());
        bench.Summary(0)->setText("Rivet");
        bench.ApplyRefused();
        bench.pane->SetPartName("pin", bench.url);
        QVERIFY(bench.ApplyButton()->isEnabled());
        bench.Apply();
        bench.LookAtTheServer();
        QCOMPARE(bench.Record()->GetTitle(), QString("Rivet"));
        bench.pane->SetPartName("pin", gWebCopies.value(bench.url));
        QVERIFY(!bench.ApplyButton()->isEnabled());
    }

    void aRenamedDocumentKeepsWhatIsPending() {
        Bench bench;
        bench.Summary(0)->setText("Dowel");
        bench.ApplyRefused();
        const QString bolt = "http://server/docs/bolt.tfmprt";
        QVERIFY(RenameWebCopy(bench.url, bolt));
        bench.pane->SetPartName("bolt", bolt);
        QCOMPARE(bench.Summary(0)->text(), QString("Dowel"));
        QVERIFY(bench.ApplyButton()->isEnabled());
        bench.Apply();
        QCOMPARE(bench.web.server.calls.count("put " + bolt), 1);
        bench.pane->SetPartName("bolt", bolt);
        QVERIFY(!bench.ApplyButton()->isEnabled());
    }

    void anotherDocumentHasNothingToUploadAndKeepsWhatIs() {
        Bench bench;
        bench.Summary(0)->setText("Dowel");
        bench.ApplyRefused();
        bench.pane->SetPartName("other", bench.library.Make("other.tfmprt"));
        QVERIFY(!bench.ApplyButton()->isEnabled());
        bench.pane->SetPartName("pin", bench.url);
        bench.Apply();
        bench.LookAtTheServer();
        QCOMPARE(bench.Record()->GetTitle(), QString("Dowel"));
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestPropertyUploads)
#include "tst_propertyuploads.moc"
