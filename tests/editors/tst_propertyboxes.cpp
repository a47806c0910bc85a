// The property pane behind its own boxes, a server's question for a password among them: meanwhile
// it may get another document, or go away.

#include <QFile>

#include "services/webdocument.h"
#include "tests/editors/propertiesbench.h"
#include "tests/support/failingaccess.h"
#include "tests/support/fakewebclient.h"
#include "tests/support/testenvironment.h"

using namespace docbench;
using docmodel::DocumentBuilder;

namespace {

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

// Something happens during the next transfer, as it may while a password is asked for.
struct AskingClient : FakeWebClient {
    using FakeWebClient::FakeWebClient;
    bool GetFile(const QString& url, const QString& localPath) override {
        Ask();
        return FakeWebClient::GetFile(url, localPath);
    }
    bool PutFile(const QString& localPath, const QString& url) override {
        Ask();
        return FakeWebClient::PutFile(localPath, url);
    }
    void Ask() {
        if (const auto action = std::exchange(meanwhile, {}))
            action();
    }
    std::function<void()> meanwhile;
};

// "pin.tfmprt" on a server too, and "other.tfmprt" with one configuration.
struct Bench : PropertiesBench {
    Bench() {
        web.server.files[url] = BytesOf(pin);
        auto made = std::make_unique<AskingClient>(web.server);
        client = made.get();
        gWebFolder = std::move(made);
        other = library.Make("other.tfmprt");
        DocumentBuilder document = DocumentBuilder::Edit(other);
        document.SetTitle("Other");
        document.SetCustomProperty("Place", "shelf");
        document.AddConfiguration("Only", 0, {{"Length", 7.0, 2}});
        document.Save();
        otherBytes = BytesOf(other);
    }
    ~Bench() { gWebDocument = false; }

    void LoadFromServer() {
        gWebDocument = true;
        pane->SetPartName("pin", url);
    }
    std::function<void()> HandOver() {
        return [this] { pane->SetPartName("other", other); };
    }
    // The pane is on the other document, clean, and works on it.
    void RequireOther() {
        QCOMPARE(Summary(0)->text(), QString("Other"));
        QCOMPARE(Rows(kCustomSet).Count(), 1);
        QCOMPARE(Configurations()->count(), 1);
        QVERIFY(Configurations()->selectedItems().isEmpty());
        QCOMPARE(status.caption, Format(Text::PropertiesOf, other));
        QVERIFY(!ApplyButton()->isEnabled());
        QCOMPARE(BytesOf(other), otherBytes);
        QVERIFY(!View(kConfigurationSet)->isEnabled());
        PickConfiguration(0);
        QCOMPARE(Row(kConfigurationSet, 0), "Length|7|" + gStrings[166]);
        Put(kConfigurationSet, "Length", "8", 2);
        Summary(1)->setText("Shelves");
        Apply();
        pin = other;
        QCOMPARE(StoredIn(0, "Length"), QVariant(8.0));
        QCOMPARE(Record()->GetSubject(), QString("Shelves"));
        QCOMPARE(Record()->GetTitle(), QString("Other"));
    }

    FakeWeb web;
    AskingClient* client = nullptr;
    const QString url = "http://server/docs/pin.tfmprt";
    QString other;
    QByteArray otherBytes;
};

}  // namespace

class TestPropertyBoxes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anotherDocumentMayComeBehindTheQuestion_data() {
        QTest::addColumn<Dialogs::Answer>("answer");
        QTest::newRow("Yes") << Dialogs::Answer::Yes;
        QTest::newRow("No") << Dialogs::Answer::No;
    }
    void anotherDocumentMayComeBehindTheQuestion() {
        QFETCH(Dialogs::Answer, answer);
        Bench bench;
        bench.Load();
        const QByteArray before = BytesOf(bench.pin);
        const QString pin = bench.pin;
        bench.PickConfiguration(0);
        bench.Put(kConfigurationSet, "Length", "21", 2);
        bench.dialogs.Meanwhile(bench.HandOver());
        bench.dialogs.Expect(gStrings[171], Dialogs::Icon::None, answer);
        bench.PickConfiguration(1);
        QVERIFY(bench.dialogs.AllCame());
        bench.RequireOther();
        QCOMPARE(BytesOf(pin), before);
    }

    void anotherDocumentMayComeBehindAFailure() {
        Bench bench;
        bench.dialogs.Meanwhile(bench.HandOver());
        bench.dialogs.Expect(gStrings[175]);
        bench.pane->SetPartName("broken", bench.library.MakeBroken("broken.tfmprt"));
        QVERIFY(bench.dialogs.AllCame());
        bench.RequireOther();
    }

    void anotherDocumentMayComeBehindAPassword_data() {
        QTest::addColumn<QString>("when");
        for (const char* when :
             {"loading", "reset", "showing a configuration", "leaving a configuration",
              "writing a configuration", "writing the document", "uploading a configuration",
              "uploading the document", "uploading a configuration that is left"})
            QTest::newRow(when) << when;
    }
    void anotherDocumentMayComeBehindAPassword() {
        QFETCH(QString, when);
        Bench bench;
        const QByteArray before = bench.web.server.files[bench.url];
        const bool uploads = when.startsWith("uploading");
        if (when != "loading")
            bench.LoadFromServer();
        if (when.contains("configuration")) {
            bench.PickConfiguration(0);
            bench.Put(kConfigurationSet, "Length", "21", 2);
        }
        if (when.contains("document") || when == "reset" || when == "writing a configuration")
            bench.Summary(0)->setText("Dowel");
        if (!uploads)
            gWebCopies.clear();  // so that it is fetched again
        const bool leaves = when.startsWith("leaving") || when.endsWith("is left");
        if (leaves)
            bench.dialogs.Expect(gStrings[171], Dialogs::Icon::None, Dialogs::Answer::Yes);
        if (when == "showing a configuration")
            bench.dialogs.Expect(gStrings[171], Dialogs::Icon::None, Dialogs::Answer::No);
        bench.client->meanwhile = bench.HandOver();
        if (when == "loading")
            bench.LoadFromServer();
        else if (when == "reset")
            bench.Click(bench.ResetButton());
        else if (leaves || when == "showing a configuration")
            bench.PickConfiguration(1);
        else
            bench.Apply();
        QVERIFY(!bench.client->meanwhile);
        QVERIFY(bench.dialogs.AllCame());
        bench.RequireOther();
        QCOMPARE(gWebCopies.keys(), QStringList(bench.url));
        QCOMPARE(bench.web.server.files[bench.url] != before, uploads);
        QCOMPARE(BytesOf(gWebCopies.value(bench.url)), bench.web.server.files[bench.url]);
    }

    void thePaneMayGoAwayBehindABox_data() {
        QTest::addColumn<QString>("which");
        for (const char* which :
             {"a file without a record", "reset without a record", "an error while loading",
              "a value that does not fit", "a value that does not fit, by Enter",
              "a write that fails", "a refused upload", "a refused configuration",
              "a vanished document"})
            QTest::newRow(which) << which;
    }
    void thePaneMayGoAwayBehindABox() {
        QFETCH(QString, which);
        Bench bench;
        const auto leave = [&] { bench.dialogs.Meanwhile([&] { bench.pane.reset(); }); };
        if (which == "a file without a record") {
            leave();
            bench.dialogs.Expect(gStrings[175]);
            bench.pane->SetPartName("broken", bench.library.MakeBroken("broken.tfmprt"));
        } else if (which == "reset without a record") {
            bench.Load();
            bench.Summary(0)->setText("Dowel");
            bench.library.MakeBroken("pin.tfmprt");
            leave();
            bench.dialogs.Expect(gStrings[175]);
            bench.Click(bench.ResetButton());
        } else if (which == "an error while loading") {
            FailingAccess access([](const char* operation, const QString&) {
                if (operation == QLatin1String("GetConfigurationCount"))
                    throw DocumentError("Torn.");
            });
            leave();
            bench.dialogs.Expect(Format(Text::PropertiesLoadError, "Torn."));
            bench.Load();
        } else if (which.startsWith("a value")) {
            bench.Load();
            bench.ShowTabOf(kCustomSet);
            bench.Name(kCustomSet)->setEditText("Weight");
            bench.Type(kCustomSet)->setCurrentIndex(2);
            bench.Value(kCustomSet)->setText("heavy");
            leave();
            bench.dialogs.Expect(gStrings[168]);
            if (which.endsWith("Enter"))
                QTest::keyClick(bench.Value(kCustomSet), Qt::Key_Return);
            else
                bench.Click(bench.AddButton(kCustomSet));
            QCoreApplication::processEvents();
        } else if (which.startsWith("a refused")) {
            bench.LoadFromServer();
            bench.PickConfiguration(0);
            if (which == "a refused configuration")
                bench.Put(kConfigurationSet, "Length", "21", 2);
            bench.Summary(0)->setText("Dowel");
            bench.web.server.refusesUploads = true;
            leave();
            bench.dialogs.Expect("File save to server failed", Dialogs::Icon::None);
            bench.Click(bench.ApplyButton());
        } else {
            bench.Load();
            bench.Summary(0)->setText("Dowel");
            if (which == "a vanished document") {
                QVERIFY(QFile::remove(bench.pin));
                bench.dialogs.Expect(Format(Text::PropertiesNotOpened, bench.pin));
            } else {
                DocumentBuilder document = DocumentBuilder::Edit(bench.pin);
                document.SetTitle("Theirs");
                document.Save();
                bench.dialogs.Expect(
                    bench.Quoting(Text::PropertiesWriteError, bench.ChangedElsewhere()));
            }
            leave();
            bench.Click(bench.ApplyButton());
        }
        QVERIFY(!bench.pane);
        QVERIFY(bench.dialogs.AllCame());
    }

    void thePaneMayGoAwayBehindAPassword_data() {
        QTest::addColumn<QString>("when");
        for (const char* when : {"loading", "reset", "writing", "uploading"})
            QTest::newRow(when) << when;
    }
    void thePaneMayGoAwayBehindAPassword() {
        QFETCH(QString, when);
        Bench bench;
        bench.client->meanwhile = [&] { bench.pane.reset(); };
        if (when == "loading") {
            bench.LoadFromServer();
        } else {
            const auto leave = std::exchange(bench.client->meanwhile, {});
            bench.LoadFromServer();
            bench.Summary(0)->setText("Dowel");
            if (when != "uploading")
                gWebCopies.clear();
            bench.client->meanwhile = leave;
            bench.Click(when == "reset" ? bench.ResetButton() : bench.ApplyButton());
        }
        QVERIFY(!bench.pane);
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestPropertyBoxes)
#include "tst_propertyboxes.moc"
