// The tree editors on the documents of web folders: what reaches the server, and what is still to.

#include <QFile>

#include "editors/editconfig.h"
#include "editors/edithyperlink.h"
#include "services/documentlibrary.h"
#include "services/webdocument.h"
#include "tests/editors/editorbench.h"
#include "tests/support/fakewebclient.h"
#include "tests/support/testenvironment.h"

using namespace docbench;
using docmodel::DocumentBuilder;

namespace {

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

// What the tests need to know of an editor.
struct Configurations {
    using Pane = editConfig;
    static constexpr const char* kTree = "tvwconfig";
    static constexpr size_t kSaved = 97, kNotSaved = 96, kError = 98;
    static void Add(DocumentBuilder& document, const QString& text) {
        document.AddConfiguration(text);
    }
    static QString Read(const QString& path) {
        const auto file = Documents().MakeDocumentFile();
        file->Open(path);
        return file->GetConfiguration(0);
    }
};

struct Hyperlinks {
    using Pane = EditHyperLink;
    static constexpr const char* kTree = "tvwhlink";
    static constexpr size_t kSaved = 110, kNotSaved = 111, kError = 368;
    static void Add(DocumentBuilder& document, const QString& text) { document.AddHyperlink(text); }
    static QString Read(const QString& path) {
        const auto file = Documents().MakeDocumentFile();
        file->OpenHyperlinks(path);
        return file->GetHyperlink(0);
    }
};

// An editor on a document of a server, which holds one configuration or hyperlink "a".
template <typename Editor>
struct Bench : EditorBench<typename Editor::Pane> {
    Bench() : EditorBench<typename Editor::Pane>(Editor::kTree) {
        const QString local = this->library.Make("pin.tfmprt");
        DocumentBuilder document = DocumentBuilder::Edit(local);
        Editor::Add(document, "a");
        document.Save();
        web.server.files[url] = BytesOf(local);
        gWebDocument = true;
        Show();
    }
    ~Bench() { gWebDocument = false; }

    void Show() { this->pane->SetPartName("pin", url); }
    void SaveRefused() {
        web.server.refusesUploads = true;
        this->dialogs.Expect("File save to server failed", Dialogs::Icon::None);
        this->Save();
        web.server.refusesUploads = false;
    }
    QString Caption() { return this->status.caption; }
    QString OnServer() {
        QFile copy(this->library.Path("server.tfmprt"));
        if (!copy.open(QFile::WriteOnly) || copy.write(web.server.files[url]) < 0)
            qFatal("no copy");
        copy.close();
        return Editor::Read(copy.fileName());
    }
    qsizetype Uploads() { return web.server.calls.count("put " + url); }

    FakeWeb web;
    const QString url = "http://server/docs/pin.tfmprt";
};

template <typename Editor>
void WritesBack() {
    Bench<Editor> bench;
    bench.Type(2, "mine");
    bench.SaveRefused();
    QVERIFY(bench.dialogs.AllCame());
    QCOMPARE(bench.Caption(), gStrings[Editor::kNotSaved]);
    QCOMPARE(bench.Texts(), QStringList("mine"));
    QCOMPARE(bench.OnServer(), QString("a"));
    QVERIFY(bench.CanSave());
    const QByteArray written = BytesOf(gWebCopies.value(bench.url));
    bench.Save();
    QCOMPARE(bench.Caption(), gStrings[Editor::kSaved]);
    QVERIFY(!bench.CanSave());
    QCOMPARE(bench.Uploads(), 2);
    QCOMPARE(bench.OnServer(), QString("mine"));
    QCOMPARE(bench.web.server.files[bench.url], written);  // uploaded, and not written again
}

template <typename Editor>
void LeavesAGivenUpCopyAlone() {
    Bench<Editor> bench;
    bench.Type(2, "mine");
    const QString copy = gWebCopies.value(bench.url);
    const QByteArray before = BytesOf(copy);
    gWebCopies.clear();  // a local document was browsed to
    bench.dialogs.Expect(gStrings[Editor::kError].section("%s", 0, 0) + '*');
    bench.Save();
    QVERIFY(bench.dialogs.AllCame());
    QCOMPARE(bench.Caption(), gStrings[Editor::kNotSaved]);
    QCOMPARE(bench.Texts(), QStringList("a" + gStrings[92] + "mine"));  // still to be saved
    QVERIFY(bench.CanSave());
    QCOMPARE(BytesOf(copy), before);
    QCOMPARE(bench.web.server.calls, QStringList("get " + bench.url));
}

template <typename Editor>
void KeepsWhatIsToBeUploaded(bool byReset) {
    Bench<Editor> bench;
    bench.Type(2, "mine");
    bench.SaveRefused();
    bench.Type(2, "other");
    if (byReset) {
        bench.Reset();
    } else {
        bench.pane->SetPartName("other", bench.library.Make("other.tfmprt"));
        QVERIFY(!bench.CanSave());
        bench.Show();
    }
    QCOMPARE(bench.Texts(), QStringList("mine"));
    QVERIFY(bench.CanSave());
    bench.Save();
    QCOMPARE(bench.OnServer(), QString("mine"));
    QVERIFY(!bench.CanSave());
}

template <typename Editor>
void ForgetsTheUploadWithTheCopy() {
    Bench<Editor> bench;
    bench.Type(2, "mine");
    bench.SaveRefused();
    gWebCopies.clear();
    bench.Show();
    QCOMPARE(bench.Texts(), QStringList("a"));
    QVERIFY(!bench.CanSave());
}

template <typename Editor>
void KeepsTheUploadThroughARenaming() {
    Bench<Editor> bench;
    bench.Type(2, "mine");
    bench.SaveRefused();
    const QString bolt = "http://server/docs/bolt.tfmprt";
    QVERIFY(RenameWebCopy(bench.url, bolt));
    bench.pane->SetPartName("bolt", bolt);
    QCOMPARE(bench.Texts(), QStringList("mine"));
    QVERIFY(bench.CanSave());
    bench.Save();
    QCOMPARE(bench.web.server.calls.count("put " + bolt), 1);
    QVERIFY(!bench.CanSave());
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

template <typename Editor>
struct AskingBench : Bench<Editor> {
    AskingBench() {
        auto made = std::make_unique<AskingClient>(this->web.server);
        client = made.get();
        gWebFolder = std::move(made);
        other = this->library.Make("other.tfmprt");
        DocumentBuilder document = DocumentBuilder::Edit(other);
        Editor::Add(document, "theirs");
        document.Save();
    }
    AskingClient* client = nullptr;
    QString other;
};

// The pane gets another document while a password is asked for.
template <typename Editor>
void MayGetAnotherDocument(bool uploading) {
    AskingBench<Editor> bench;
    if (uploading)
        bench.Type(2, "mine");
    else
        gWebCopies.clear();
    bench.client->meanwhile = [&] { bench.pane->SetPartName("other", bench.other); };
    if (uploading)
        bench.Save();
    else
        bench.Show();
    QVERIFY(!bench.client->meanwhile);
    QCOMPARE(bench.Texts(), QStringList("theirs"));
    QVERIFY(bench.Caption().contains('1'));  // how many it has
    QCOMPARE(gWebCopies.keys(), QStringList(bench.url));
    bench.Type(2, "changed");
    bench.Save();
    QCOMPARE(Editor::Read(bench.other), QString("changed"));
    QCOMPARE(bench.OnServer(), QString(uploading ? "mine" : "a"));
}

template <typename Editor>
void MayGoAwayBehindAPassword(bool uploading) {
    AskingBench<Editor> bench;
    if (uploading)
        bench.Type(2, "mine");
    else
        gWebCopies.clear();
    bench.client->meanwhile = [&] { bench.pane.reset(); };
    if (uploading)
        QMetaObject::invokeMethod(bench.SaveButton(), "click");
    else
        bench.Show();
    QVERIFY(!bench.pane);
}

template <typename Editor>
void MayGoAwayBehindARefusal() {
    Bench<Editor> bench;
    bench.Type(2, "mine");
    bench.web.server.refusesUploads = true;
    bench.dialogs.Meanwhile([&] { bench.pane.reset(); });
    bench.dialogs.Expect("File save to server failed", Dialogs::Icon::None);
    QMetaObject::invokeMethod(bench.SaveButton(), "click");
    QVERIFY(bench.dialogs.AllCame());
    QVERIFY(!bench.pane);
}

template <typename Editor>
void ToldOfAnOldFormat() {
    Bench<Editor> bench;
    const QString old = MakeOldDocument(bench.library, "old.tfmprt");
    bench.web.server.files["http://server/docs/old.tfmprt"] = BytesOf(old);
    bench.pane->SetPartName("old", "http://server/docs/old.tfmprt");
    QVERIFY(bench.ShowsOldFormat());
    bench.Show();
    QVERIFY(!bench.ShowsOldFormat());
    QCOMPARE(bench.Texts(), QStringList("a"));
}

}  // namespace

class TestTreeUploads : public QObject {
    Q_OBJECT

    static void Transfers() {
        QTest::addColumn<bool>("uploading");
        QTest::newRow("loading") << false;
        QTest::newRow("saving") << true;
    }

private Q_SLOTS:
    void aWebDocumentsConfigurationsAreWrittenBack() { WritesBack<Configurations>(); }
    void aWebDocumentsHyperlinksAreWrittenBack() { WritesBack<Hyperlinks>(); }

    void configurationsAreNotWrittenToACopyThatWasGivenUp() {
        LeavesAGivenUpCopyAlone<Configurations>();
    }
    void hyperlinksAreNotWrittenToACopyThatWasGivenUp() { LeavesAGivenUpCopyAlone<Hyperlinks>(); }

    void resetKeepsConfigurationsThatAreToBeUploaded() {
        KeepsWhatIsToBeUploaded<Configurations>(true);
    }
    void resetKeepsHyperlinksThatAreToBeUploaded() { KeepsWhatIsToBeUploaded<Hyperlinks>(true); }
    void anotherDocumentInBetweenKeepsConfigurationsThatAreToBeUploaded() {
        KeepsWhatIsToBeUploaded<Configurations>(false);
    }
    void anotherDocumentInBetweenKeepsHyperlinksThatAreToBeUploaded() {
        KeepsWhatIsToBeUploaded<Hyperlinks>(false);
    }

    // The copy is one, whoever writes to it.
    void whatOneEditorSavedAnotherUploads() {
        Bench<Hyperlinks> bench;
        bench.Type(2, "mine");
        bench.SaveRefused();
        editConfig other;
        other.SetPartName("pin", bench.url);
        auto* save = other.findChild<QPushButton*>("ecSave");
        QVERIFY(save->isEnabled());
        save->click();
        QCOMPARE(bench.OnServer(), QString("mine"));
        QVERIFY(!save->isEnabled());
        bench.Show();
        QVERIFY(!bench.CanSave());
    }

    void whatWasToBeUploadedGoesWithItsCopy() {
        ForgetsTheUploadWithTheCopy<Configurations>();
        ForgetsTheUploadWithTheCopy<Hyperlinks>();
    }

    void anotherDocumentMayComeBehindAPassword_data() { Transfers(); }
    void anotherDocumentMayComeBehindAPassword() {
        QFETCH(bool, uploading);
        MayGetAnotherDocument<Configurations>(uploading);
        MayGetAnotherDocument<Hyperlinks>(uploading);
    }

    void thePaneMayGoAwayBehindAPassword_data() { Transfers(); }
    void thePaneMayGoAwayBehindAPassword() {
        QFETCH(bool, uploading);
        MayGoAwayBehindAPassword<Configurations>(uploading);
        MayGoAwayBehindAPassword<Hyperlinks>(uploading);
    }

    void thePaneMayGoAwayBehindARefusedUpload() {
        MayGoAwayBehindARefusal<Configurations>();
        MayGoAwayBehindARefusal<Hyperlinks>();
    }

    void anOldFormatIsToldOfAWebDocument() {
        ToldOfAnOldFormat<Configurations>();
        ToldOfAnOldFormat<Hyperlinks>();
    }

    void aRenamedDocumentKeepsWhatIsToBeUploaded() {
        KeepsTheUploadThroughARenaming<Configurations>();
        KeepsTheUploadThroughARenaming<Hyperlinks>();
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestTreeUploads)
#include "tst_treeuploads.moc"
