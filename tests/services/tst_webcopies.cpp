#include <QDir>
#include <QTest>

#include "services/credentials.h"
#include "services/keyring.h"
#include "services/scratch.h"
#include "services/seams.h"
#include "services/webcopies.h"
#include "tests/support/fakewebclient.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

const QString kPin = QStringLiteral("http://s/w/pin.tfmprt");
const QString kOtherPin = QStringLiteral("http://s/x/pin.tfmprt");

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A listing that does not know what one of its entries is.
class KindlessListing : public FakeListing {
public:
    KindlessListing(const QMap<QString, QString>& entries, QString kindless)
        : FakeListing(entries), kindless_(std::move(kindless)) {}
    bool GetProperty(const QString& url, const QString& nameSpace, const QString& name,
                     QString& value) override {
        return url != kindless_ && FakeListing::GetProperty(url, nameSpace, name, value);
    }

private:
    QString kindless_;
};

// Lists pins 0 to 2 of a folder; one of them can't be had, of one the listing doesn't say what it
// is.
class PinsClient : public FakeWebClient {
public:
    using FakeWebClient::FakeWebClient;
    static QString Pin(int number) { return QStringLiteral("http://s/p/pin%1.prt").arg(number); }
    bool GetFile(const QString& url, const QString& localPath) override {
        return url != missing && FakeWebClient::GetFile(url, localPath);
    }
    std::unique_ptr<WebFolderListing> ListFolder(const QString&) override {
        const QString file = QStringLiteral("File");
        return std::make_unique<KindlessListing>(
            QMap<QString, QString>{{Pin(0), file}, {Pin(1), file}, {Pin(2), file}}, kindless);
    }

    QString missing;
    QString kindless;
};

struct PinsWeb : FakeWeb {
    PinsWeb() {
        auto made = std::make_unique<PinsClient>(server);
        client = made.get();
        gWebFolder = std::move(made);
        for (int i = 0; i < 3; ++i)
            server.files[PinsClient::Pin(i)] = "x";
    }
    static QStringList Mirrored(const QString& folder) {
        return QDir(folder).entryList(QDir::Files, QDir::Name);
    }

    PinsClient* client = nullptr;
};

// A pin whose server has refused its copy.
struct PendingPin {
    PendingPin() {
        web.server.files[kPin] = "one";
        LocalCopyOf(kPin);
        web.server.refusesUploads = true;
        dialogs.Expect("File save to server failed", Dialogs::Icon::None);
        UploadIfWeb(kPin);
        web.server.refusesUploads = false;
    }

    FakeWeb web;
    TestDialogs dialogs;
};

class FakeKeyRing : public KeyRing {
public:
    FakeKeyRing() { gSeams.keyring = this; }
    ~FakeKeyRing() override { gSeams.keyring = nullptr; }
    std::optional<QString> Read(const QString& entry) override {
        QCoreApplication::processEvents();  // a real one waits in an event loop of its own
        return secrets.contains(entry) ? std::optional(secrets[entry]) : std::nullopt;
    }
    bool Write(const QString& entry, const QString& secret) override {
        if (!locked)
            secrets[entry] = secret;
        return !locked;
    }
    void Delete(const QString& entry) override {
        QCoreApplication::processEvents();
        secrets.remove(entry);
    }

    QMap<QString, QString> secrets;
    bool locked = false;  // takes nothing
};

}  // namespace

class tst_WebCopies : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        PrepareScratch();
        DeleteScratch();
    }

    void addressesAreTakenApartAtTheLastSlash() {
        QCOMPARE(UrlFileName(kPin), QString("pin.tfmprt"));
        QCOMPARE(UrlFileName("pin"), QString("pin"));
        QCOMPARE(UrlFolder(kPin), QString("http://s/w/"));
        QCOMPARE(UrlFolder("pin"), QString());
    }

    void aLocalPathIsItsOwnCopy() {
        const FakeWeb web;
        QString local;
        QVERIFY(GetLocalCopy("/w/pin.tfmprt", local));
        QCOMPARE(local, QString("/w/pin.tfmprt"));
        QVERIFY(web.server.calls.isEmpty());
        QVERIFY(gWebCopies.isEmpty());
    }

    void theSecondRequestDoesNotDownload() {
        FakeWeb web;
        web.server.files[kPin] = "one";
        QString local;
        QVERIFY(GetLocalCopy(kPin, local));
        QCOMPARE(local, gTempFolder + "tessaformadocbench/pin.tfmprt");
        QCOMPARE(BytesOf(local), QByteArray("one"));
        web.server.files[kPin] = "two";
        QVERIFY(GetLocalCopy(kPin, local));
        QCOMPARE(BytesOf(local), QByteArray("one"));
        QCOMPARE(web.server.calls, QStringList("get " + kPin));
    }

    void equalNamesGetCopiesOfTheirOwn() {
        FakeWeb web;
        web.server.files = {{kPin, "one"}, {kOtherPin, "two"}, {"http://s/y/pin.tfmprt", "three"}};
        QCOMPARE(LocalCopyOf(kPin), gTempFolder + "tessaformadocbench/pin.tfmprt");
        QCOMPARE(LocalCopyOf(kOtherPin), gTempFolder + "tessaformadocbench/1pin.tfmprt");
        QCOMPARE(LocalCopyOf("http://s/y/pin.tfmprt"),
                 gTempFolder + "tessaformadocbench/2pin.tfmprt");
        QCOMPARE(BytesOf(LocalCopyOf(kPin)), QByteArray("one"));
        QCOMPARE(BytesOf(LocalCopyOf(kOtherPin)), QByteArray("two"));
    }

    void aFileThatIsNobodysCopyIsWrittenOver() {
        FakeWeb web;
        web.server.files[kPin] = "new";
        QVERIFY(QDir().mkpath(gTempFolder + "tessaformadocbench"));
        QFile stale(gTempFolder + "tessaformadocbench/pin.tfmprt");
        QVERIFY(stale.open(QIODevice::WriteOnly));
        stale.write("stale");
        stale.close();
        QCOMPARE(LocalCopyOf(kPin), stale.fileName());
        QCOMPARE(BytesOf(stale.fileName()), QByteArray("new"));
    }

    void onlyDocumentsAreFetched_data() {
        QTest::addColumn<bool>("fetched");
        for (const char* name : {"a.prt", "a.ASM", "a.drw", "a.tfmasm", "a.tfmprt", "a.TfmDrw"})
            QTest::newRow(name) << true;
        for (const char* name : {"a.txt", "a", "a.tfm", "a.prt/"})
            QTest::newRow(name) << false;
    }
    void onlyDocumentsAreFetched() {
        QFETCH(bool, fetched);
        FakeWeb web;
        const QString url = QString("http://s/w/") + QTest::currentDataTag();
        web.server.files[url] = "x";
        QString local = "before";
        QCOMPARE(GetLocalCopy(url, local), fetched);
        QCOMPARE(!local.isEmpty(), fetched);
    }

    void aDownloadThatFailsAddsNothing() {
        const FakeWeb web;
        QString local = "before";
        QVERIFY(!GetLocalCopy(kPin, local));
        QCOMPARE(local, QString());
        QVERIFY(gWebCopies.isEmpty());
    }

    void withoutAClientNothingIsFetched() {
        QString local = "before";
        QVERIFY(!GetLocalCopy(kPin, local));
        QCOMPARE(local, QString());
    }

    void aChangedCopyIsWrittenBack() {
        FakeWeb web;
        web.server.files[kPin] = "one";
        QFile copy(LocalCopyOf(kPin));
        QVERIFY(copy.open(QIODevice::WriteOnly));
        copy.write("changed");
        copy.close();
        QVERIFY(UploadIfWeb(kPin));
        QCOMPARE(web.server.files[kPin], QByteArray("changed"));
    }

    void whatIsNoWebCopyIsNotWrittenBack() {
        const FakeWeb web;
        QVERIFY(UploadIfWeb("/w/pin.tfmprt"));
        QVERIFY(UploadIfWeb(kPin));  // never fetched
        QVERIFY(web.server.calls.isEmpty());
    }

    void aRefusedUploadTellsWhyAndCanBeTriedAgain() {
        FakeWeb web;
        TestDialogs dialogs;
        web.server.files[kPin] = "one";
        const QString copy = LocalCopyOf(kPin);
        web.server.refusesUploads = true;
        dialogs.Expect("File save to server failed", Dialogs::Icon::None);
        QVERIFY(!UploadIfWeb(kPin));
        QVERIFY(dialogs.AllCame());
        QVERIFY(dialogs.LastDetail().startsWith(web.server.error));
        QVERIFY(dialogs.LastDetail().contains("Your copy is " + copy + ". It is deleted when"));
        QCOMPARE(BytesOf(copy), QByteArray("one"));
        web.server.refusesUploads = false;
        QVERIFY(UploadIfWeb(kPin));
    }

    void anUploadWithoutAClientIsToldInTheSameBox() {
        TestDialogs dialogs;
        gWebCopies = {{kPin, "/w/pin.tfmprt"}};
        dialogs.Expect("File save to server failed", Dialogs::Icon::None);
        QVERIFY(!UploadIfWeb(kPin));
        gWebCopies.clear();
        QVERIFY(dialogs.AllCame());
        QCOMPARE(dialogs.LastTitle(), QString());
        QCOMPARE(dialogs.LastDetail(), QString());
    }

    void theAddressOfACopyIsFoundByItsCleanedPath() {
        FakeWeb web;
        web.server.files[kPin] = "one";
        LocalCopyOf(kPin);
        QString url;
        QVERIFY(FindUrlOfCopy(gTempFolder + "/tessaformadocbench/./pin.tfmprt", url));
        QCOMPARE(url, kPin);
        QVERIFY(!FindUrlOfCopy("/w/pin.tfmprt", url));
    }

    void aFolderIsMirroredWithItsDocuments() {
        FakeWeb web;
        web.server.folders = {"http://s/w/", "http://s/w/sub/"};
        web.server.files = {{kPin, "one"}, {"http://s/w/notes.txt", "x"}, {kOtherPin, "far"}};
        QString folder;
        int unfetched = 0;
        QVERIFY(MirrorWebFolder("http://s/w/", folder, &unfetched));
        QCOMPARE(unfetched, 0);
        QCOMPARE(folder, gTempFolder + "/tessaformadocbench/");
        QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList("pin.tfmprt"));
    }

    void aFolderWithOnlySubfoldersMirrorsToNothing() {
        FakeWeb web;
        web.server.folders = {"http://s/w/", "http://s/w/sub/"};
        QString folder;
        QVERIFY(!MirrorWebFolder("http://s/w/", folder));
        QVERIFY(!MirrorWebFolder("http://s/nowhere/", folder));
    }

    void oneDocumentThatFailsDoesNotSpoilTheMirror_data() {
        QTest::addColumn<int>("missing");
        for (int i = 0; i < 3; ++i)
            QTest::addRow("%d", i) << i;
    }
    void oneDocumentThatFailsDoesNotSpoilTheMirror() {
        QFETCH(int, missing);
        PinsWeb web;
        web.client->missing = PinsClient::Pin(missing);
        QString folder;
        int unfetched = 0;
        QVERIFY(MirrorWebFolder("http://s/p/", folder, &unfetched));
        QCOMPARE(unfetched, 1);
        QCOMPARE(PinsWeb::Mirrored(folder).size(), 2);
        QVERIFY(!gWebCopies.contains(web.client->missing));
    }

    void whatTheServerDoesNotCallAFileIsNotMirrored() {
        PinsWeb web;
        web.client->kindless = PinsClient::Pin(1);
        QString folder;
        QVERIFY(MirrorWebFolder("http://s/p/", folder));
        QCOMPARE(PinsWeb::Mirrored(folder), QStringList({"pin0.prt", "pin2.prt"}));
    }

    void aFolderThatIsMirroredAgainIsNotFetchedAgain() {
        PinsWeb web;
        QString folder;
        QVERIFY(MirrorWebFolder("http://s/p/", folder));
        const QStringList calls = web.server.calls;
        QCOMPARE(calls.size(), 3);
        QVERIFY(MirrorWebFolder("http://s/p/", folder));
        QCOMPARE(web.server.calls, calls);
        QCOMPARE(PinsWeb::Mirrored(folder).size(), 3);
    }

    void aRenamedDocumentTakesItsCopyAlong() {
        FakeWeb web;
        web.server.files[kPin] = "one";
        const QString copy = LocalCopyOf(kPin);
        QVERIFY(RenameWebCopy(kPin, "http://s/w/bolt.tfmprt"));
        QCOMPARE(LocalCopyOf("http://s/w/bolt.tfmprt"),
                 gTempFolder + "tessaformadocbench/bolt.tfmprt");
        QCOMPARE(BytesOf(LocalCopyOf("http://s/w/bolt.tfmprt")), QByteArray("one"));
        QVERIFY(!QFile::exists(copy));
        QVERIFY(!gWebCopies.contains(kPin));
        QCOMPARE(web.server.calls, QStringList("get " + kPin));
        QCOMPARE(web.server.localMoves,
                 QStringList(copy + " " + gTempFolder + "tessaformadocbench/bolt.tfmprt"));
    }

    void anotherCopyInTheWayOfARenamedOneIsForgotten() {
        FakeWeb web;
        web.server.files = {{kPin, "one"}, {"http://s/x/bolt.tfmprt", "two"}};
        LocalCopyOf(kPin);
        LocalCopyOf("http://s/x/bolt.tfmprt");
        QVERIFY(RenameWebCopy(kPin, "http://s/w/bolt.tfmprt"));
        QVERIFY(!gWebCopies.contains("http://s/x/bolt.tfmprt"));
        QCOMPARE(BytesOf(LocalCopyOf("http://s/w/bolt.tfmprt")), QByteArray("one"));
    }

    void aDocumentThatMovesToAnotherFolderKeepsItsCopy() {
        FakeWeb web;
        web.server.files[kPin] = "one";
        const QString copy = LocalCopyOf(kPin);
        QVERIFY(RenameWebCopy(kPin, kOtherPin));
        QCOMPARE(gWebCopies, (QHash<QString, QString>{{kOtherPin, copy}}));
        QCOMPARE(BytesOf(copy), QByteArray("one"));
    }

    void aCopyThatCantBeMovedStaysWithItsAddress() {
        FakeWeb web;
        web.server.files[kPin] = "one";
        const QString copy = LocalCopyOf(kPin);
        QVERIFY(QDir().mkpath(gTempFolder + "tessaformadocbench/bolt.tfmprt"));
        QVERIFY(!RenameWebCopy(kPin, "http://s/w/bolt.tfmprt"));
        QCOMPARE(gWebCopies, (QHash<QString, QString>{{kPin, copy}}));
        QCOMPARE(BytesOf(copy), QByteArray("one"));
    }

    void aMoveThatFailsLeavesTheCopyInItsWay() {
        FakeWeb web;
        web.server.files = {{kPin, "one"}, {"http://s/x/bolt.tfmprt", "two"}};
        const QString bolt = LocalCopyOf("http://s/x/bolt.tfmprt");
        QVERIFY(QFile::remove(LocalCopyOf(kPin)));
        QVERIFY(!RenameWebCopy(kPin, "http://s/w/bolt.tfmprt"));
        QCOMPARE(gWebCopies.value("http://s/x/bolt.tfmprt"), bolt);
        QCOMPARE(BytesOf(bolt), QByteArray("two"));
    }

    void aNewAddressWithACopyOfItsOwnGetsTheMovedOne() {
        FakeWeb web;
        const QString bolt = "http://s/w/bolt.tfmprt";
        web.server.files = {{kPin, "one"}, {"http://s/x/bolt.tfmprt", "two"}, {bolt, "three"}};
        LocalCopyOf(kPin);
        LocalCopyOf("http://s/x/bolt.tfmprt");
        QCOMPARE(LocalCopyOf(bolt), gTempFolder + "tessaformadocbench/1bolt.tfmprt");
        QVERIFY(RenameWebCopy(kPin, bolt));
        QCOMPARE(gWebCopies,
                 (QHash<QString, QString>{{bolt, gTempFolder + "tessaformadocbench/bolt.tfmprt"}}));
        QCOMPARE(BytesOf(LocalCopyOf(bolt)), QByteArray("one"));
    }

    void whatWasNotFetchedYetIsFetchedForItsRenaming() {
        FakeWeb web;
        web.server.files[kPin] = "one";
        QVERIFY(RenameWebCopy(kPin, "http://s/w/bolt.tfmprt"));
        QCOMPARE(web.server.calls, QStringList("get " + kPin));
        QCOMPARE(BytesOf(LocalCopyOf("http://s/w/bolt.tfmprt")), QByteArray("one"));
        QVERIFY(!gWebCopies.contains(kPin));
    }

    void whatAServerRefusesIsPendingUntilItIsTaken() {
        FakeWeb web;
        TestDialogs dialogs;
        web.server.files = {{kPin, "one"}, {kOtherPin, "two"}};
        const QString copy = LocalCopyOf(kPin);
        LocalCopyOf(kOtherPin);
        QVERIFY(!IsUploadPending(kPin));
        const int lost = LostUploads(kPin);
        web.server.refusesUploads = true;
        dialogs.Expect("File save to server failed", Dialogs::Icon::None);
        UploadIfWeb(kPin);
        QVERIFY(IsUploadPending(kPin) && IsUploadPending(copy));
        QVERIFY(!IsUploadPending(kOtherPin) && !IsUploadPending("/w/pin.tfmprt"));
        web.server.refusesUploads = false;
        QVERIFY(UploadIfWeb(kPin));
        QVERIFY(!IsUploadPending(kPin) && !IsUploadPending(copy));
        QCOMPARE(LostUploads(kPin), lost);
    }

    void whatIsPendingGoesWithItsCopy() {
        PendingPin bench;
        const QString copy = LocalCopyOf(kPin);
        const int atLoad = LostUploads(kPin);
        const int atLoadOfCopy = LostUploads(copy);
        RequireNoLostUploads(kPin, atLoad);
        UseWebFolders();
        gWebFolder = std::make_unique<FakeWebClient>(bench.web.server);
        QVERIFY(!IsUploadPending(kPin));
        LocalCopyOf(kPin);
        QVERIFY(!IsUploadPending(kPin));
        QCOMPARE(LostUploads(kPin), atLoad + 1);
        QCOMPARE(LostUploads(copy), atLoadOfCopy + 1);
        QVERIFY_THROWS_EXCEPTION(DocumentError, RequireNoLostUploads(kPin, atLoad));
    }

    void whatIsPendingIsRenamedWithItsDocument() {
        PendingPin bench;
        const int lost = LostUploads(kPin);
        const QString bolt = "http://s/w/bolt.tfmprt";
        QVERIFY(RenameWebCopy(kPin, bolt));
        QVERIFY(!IsUploadPending(kPin));
        QVERIFY(IsUploadPending(bolt) && IsUploadPending(LocalCopyOf(bolt)));
        QCOMPARE(LostUploads(kPin), lost);
        QVERIFY(RenameWebCopy(bolt, bolt));
        QVERIFY(IsUploadPending(bolt));
    }

    void whatIsPendingOfACopyUnderAnotherNameIsLostToo() {
        FakeWeb web;
        TestDialogs dialogs;
        const QString bolt = "http://s/w/bolt.tfmprt";
        web.server.files = {{kPin, "one"}, {"http://s/x/bolt.tfmprt", "two"}, {bolt, "three"}};
        LocalCopyOf("http://s/x/bolt.tfmprt");
        LocalCopyOf(bolt);
        web.server.refusesUploads = true;
        dialogs.Expect("File save to server failed", Dialogs::Icon::None);
        UploadIfWeb(bolt);
        QVERIFY(IsUploadPending(bolt));
        QVERIFY(RenameWebCopy(kPin, bolt));
        QVERIFY(!IsUploadPending(bolt));
    }

    // While a password is asked for, the pane whose text it is may get another document.
    void theAddressMayChangeBehindAPassword() {
        QString address = kPin;
        struct Asking : FakeWebClient {
            Asking(FakeServer& server, QString& text) : FakeWebClient(server), address(text) {}
            bool GetFile(const QString& url, const QString& localPath) override {
                const QString asked = url;
                address = kOtherPin;
                return FakeWebClient::GetFile(asked, localPath);
            }
            bool PutFile(const QString& localPath, const QString& url) override {
                const QString asked = url;
                address = kOtherPin;
                return FakeWebClient::PutFile(localPath, asked);
            }
            QString& address;
        };
        FakeWeb web;
        web.server.files = {{kPin, "one"}, {kOtherPin, "two"}};
        gWebFolder = std::make_unique<Asking>(web.server, address);
        LocalCopyOf(address);
        QCOMPARE(address, kOtherPin);
        QCOMPARE(gWebCopies.keys(), QStringList(kPin));
        address = kPin;
        QVERIFY(UploadIfWeb(address));
        QVERIFY(!IsUploadPending(kPin));
    }

    void whatIsPendingOfAnOverwrittenDocumentIsLost() {
        PendingPin bench;
        bench.web.server.files[kOtherPin] = "two";
        const int lost = LostUploads(kPin);
        QVERIFY(RenameWebCopy(kOtherPin, kPin));
        QVERIFY(!IsUploadPending(kPin));
        QCOMPARE(LostUploads(kPin), lost + 1);
    }

    void whatHasNoCopyIsNotRenamed() {
        const FakeWeb web;
        QVERIFY(!RenameWebCopy(kPin, "http://s/w/bolt.tfmprt"));
        QVERIFY(!gWebCopies.contains("http://s/w/bolt.tfmprt"));
    }

    void aPasswordIsAskedForAndKeptOnlyWhenItWasRight() {
        FakeKeyRing keyring;
        TestDialogs dialogs;
        CredentialSource& source = WebCredentials();
        dialogs.ExpectPassword(Dialogs::Password{"ann", "secret\nline", true});
        const auto answer = source.Ask("https://s:443", "docs", 0);
        QCOMPARE(answer->user, QString("ann"));
        QVERIFY(keyring.secrets.isEmpty());
        source.Accepted("https://s:443", "docs", *answer);
        const auto kept = source.Ask("https://s:443", "docs", 0);  // no dialog
        QCOMPARE(kept->user, QString("ann"));
        QCOMPARE(kept->password, QString("secret\nline"));
    }

    void aKeptPasswordThatIsRefusedIsForgottenAndAskedFor() {
        FakeKeyRing keyring;
        TestDialogs dialogs;
        keyring.secrets["https://s:443 docs"] = "ann\nold";
        CredentialSource& source = WebCredentials();
        QCOMPARE(source.Ask("https://s:443", "docs", 0)->password, QString("old"));
        dialogs.ExpectPassword(std::nullopt);
        QVERIFY(!source.Ask("https://s:443", "docs", 1));
        QVERIFY(keyring.secrets.isEmpty());
    }

    void aCancelHoldsUntilTheUserDoesSomethingElse() {
        FakeKeyRing keyring;
        TestDialogs dialogs;
        dialogs.ExpectPassword(std::nullopt);
        QVERIFY(!WebCredentials().Ask("https://u:443", "docs", 0));
        QVERIFY(!WebCredentials().Ask("https://u:443", "docs", 0));  // not asked again
        dialogs.ExpectPassword(std::nullopt);
        QVERIFY(!WebCredentials().Ask("https://v:443", "docs", 0));  // another server
        QVERIFY(!WebCredentials().Ask("https://u:443", "docs", 1));
        QVERIFY(!WebCredentials().Ask("https://v:443", "docs", 0));
        QVERIFY(dialogs.AllCame());
        QCoreApplication::processEvents();
        dialogs.ExpectPassword(Dialogs::Password{"ann", "secret", false});
        QVERIFY(WebCredentials().Ask("https://u:443", "docs", 0));
    }

    void aPasswordThatCouldNotBeKeptIsTold() {
        FakeKeyRing keyring;
        TestDialogs dialogs;
        keyring.locked = true;
        dialogs.ExpectPassword(Dialogs::Password{"ann", "secret", true});
        const auto answer = WebCredentials().Ask("https://l:443", "docs", 0);
        dialogs.Expect("The password for https://l:443 could not be kept*");
        WebCredentials().Accepted("https://l:443", "docs", *answer);
        QVERIFY(dialogs.AllCame());
    }

    void aTickIsForItsOwnAnswerAlone() {
        FakeKeyRing keyring;
        TestDialogs dialogs;
        CredentialSource& source = WebCredentials();
        dialogs.ExpectPassword(Dialogs::Password{"ann", "wrong", true});
        QVERIFY(source.Ask("https://r:443", "docs", 0));
        dialogs.ExpectPassword(std::nullopt);
        QVERIFY(!source.Ask("https://r:443", "docs", 1));
        source.Accepted("https://r:443", "docs", Credentials{"bob", "other"});  // not asked for
        QVERIFY(keyring.secrets.isEmpty());
        QCoreApplication::processEvents();  // something else is done
        dialogs.ExpectPassword(Dialogs::Password{"ann", "secret", false});
        const auto answer = source.Ask("https://r:443", "docs", 0);
        source.Accepted("https://r:443", "docs", *answer);
        QVERIFY(keyring.secrets.isEmpty());
    }

    void aSecretThatIsNoneOfOursLeadsToAsking() {
        FakeKeyRing keyring;
        TestDialogs dialogs;
        keyring.secrets["https://m:443 docs"] = "no line break";
        dialogs.ExpectPassword(Dialogs::Password{"ann", "secret", false});
        const auto answer = WebCredentials().Ask("https://m:443", "docs", 0);
        QVERIFY(answer);
        QCOMPARE(answer->password, QString("secret"));
        QVERIFY(dialogs.AllCame());
    }

    void withoutTheTickNothingIsKept() {
        FakeKeyRing keyring;
        TestDialogs dialogs;
        dialogs.ExpectPassword(Dialogs::Password{"ann", "secret", false});
        const auto answer = WebCredentials().Ask("https://t:443", "docs", 0);
        WebCredentials().Accepted("https://t:443", "docs", *answer);
        QVERIFY(keyring.secrets.isEmpty());
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, tst_WebCopies)
#include "tst_webcopies.moc"
