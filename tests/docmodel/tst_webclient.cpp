// The web folder client against a real server.

#include <sys/stat.h>

#include <QCoreApplication>
#include <QDir>
#include <QTest>
#include <memory>

#include "tests/docmodel/webtools.h"
#include "tests/support/apacheserver.h"
#include "tests/support/testenvironment.h"

using docbench::ApacheServer;
using docbench::WebFolderClient;
using docmodel::EntriesOf;
using docmodel::MakeClient;
using docmodel::Read;
using docmodel::Write;
using Presence = docbench::WebFolderClient::Presence;

namespace {

QString TypeOf(docbench::WebFolderListing& listing, const QString& url) {
    QString value;
    return listing.GetProperty(url, QStringLiteral("DAV:"), QStringLiteral("resourcetype"), value)
               ? value
               : QStringLiteral("(unknown)");
}

const QStringList& DifficultNames() {
    static const QStringList names{
        QStringLiteral("two words.tfmprt"),
        QString::fromUtf8("Geh\xC3\xA4use gr\xC3\xB6\xC3\x9F"
                          "er.tfmprt"),
        QStringLiteral("50% steel.tfmprt"),
        QStringLiteral("100%.tfmprt"),
        QStringLiteral("a%20b.tfmprt"),
        QStringLiteral("a%2520b.tfmprt"),
        QStringLiteral("part #3.tfmprt"),
        QStringLiteral("a+b.tfmprt"),
        QStringLiteral("what?.tfmprt"),
        QStringLiteral("x;y=1&z,(1)[2]'\"<>|^`{}~!$@:*.tfmprt"),
        QString::fromUtf8("\xE6\xAD\xAF\xE8\xBB\x8A\xF0\x9F\x94\xA9.tfmprt"),
    };
    return names;
}

// What the client makes of a name when it lists it: a "%" that looks like an escape stays escaped.
QString Listed(QString name) {
    name.replace(QStringLiteral("%2520"), QStringLiteral("%252520"));
    return name.replace(QStringLiteral("a%20"), QStringLiteral("a%2520"));
}

}  // namespace

class TestWebClient : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { server_ = std::make_unique<ApacheServer>(); }
    void cleanupTestCase() { server_.reset(); }
    void init() {
        local_ = std::make_unique<QTemporaryDir>();
        client_ = MakeClient();
        for (const QFileInfo& entry :
             QDir(server_->Path()).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot))
            entry.isDir() ? QDir(entry.filePath()).removeRecursively()
                          : QFile::remove(entry.filePath());
    }

    void aDownloadBringsTheBytesAndLeavesNothingElse();
    void aDownloadReplacesWhatWasThere();
    void aDownloadOfNothingLeavesTheFormerCopyAlone();
    void anEmptyFileIsDownloadedAndUploaded();
    void aBackslashIsSentAsASlash();
    void namesWithAnyCharacterGoRoundThroughTheListing();
    void anEscapeThatIsThereAlreadyStays();
    void anUploadOfANewFileMakesIt();
    void anUploadAfterADownloadReplaces();
    void uploadsAgainAndAgainNeedNoDownload();
    void anUploadOverSomebodysChangeIsRefused();
    void aChangeRightAfterOurUploadIsNotOverwritten();
    void anUploadOverARemovedFileIsRefused();
    void anUploadToATakenAddressIsRefusedUnlessAllowed();
    void anAllowanceHoldsForOneUpload();
    void aRefusedUploadCanBeTriedAgain();
    void anUploadIntoAMissingFolderFails();
    void anUploadOfAMissingFileFails();
    void withoutTagsTheDateAndTheLengthDecide();
    void aFolderIsMadeOnce();
    void aFolderIsNotMadeOverAFile();
    void aFolderIsNotMadeInAMissingOne();
    void aMoveTakesTheFileAndWhatIsKnownOfIt();
    void aMoveOverSomethingNeedsOverwrite();
    void aMoveOfAFolderTakesWhatIsKnownOfItsFiles();
    void aMoveOfNothingFails();
    void aMoveToAnotherServerIsRefused();
    void aFolderIsListedWithItsTypes();
    void aListingStartsAgainAfterReset();
    void anEmptyFolderHasAnEmptyListing();
    void aFileHasNoListing();
    void aMissingFolderHasNoListing();
    void entriesHaveTheFoldersAddressAsItWasWritten();
    void whetherSomethingIsThereIsAskedOfTheServer();
    void aRedirectWithinTheServerIsFollowed();
    void aTextThatIsNoAddressIsRefused();

private:
    QString Local(const QString& name = QStringLiteral("copy")) const {
        return local_->filePath(name);
    }
    void Serve(const QString& name, const QByteArray& bytes) {
        Write(server_->Path(name), bytes);
        chmod(QFile::encodeName(server_->Path(name)).constData(), 0666);
    }

    std::unique_ptr<ApacheServer> server_;
    std::unique_ptr<QTemporaryDir> local_;
    std::unique_ptr<WebFolderClient> client_;
};

void TestWebClient::aDownloadBringsTheBytesAndLeavesNothingElse() {
    QByteArray bytes;
    for (int i = 0; i < 300'000; ++i)
        bytes += QByteArray::number(i);
    Serve(QStringLiteral("a.tfmprt"), bytes);
    QVERIFY2(client_->GetFile(server_->Url(QStringLiteral("a.tfmprt")), Local()),
             qPrintable(client_->LastError()));
    QCOMPARE(Read(Local()), bytes);
    QCOMPARE(QDir(local_->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
             QStringList{QStringLiteral("copy")});
}

void TestWebClient::aDownloadReplacesWhatWasThere() {
    Serve(QStringLiteral("a.tfmprt"), "new");
    Write(Local(), "a longer old text");
    QVERIFY(client_->GetFile(server_->Url(QStringLiteral("a.tfmprt")), Local()));
    QCOMPARE(Read(Local()), QByteArray("new"));
}

void TestWebClient::aDownloadOfNothingLeavesTheFormerCopyAlone() {
    Write(Local(), "old");
    const QString url = server_->Url(QStringLiteral("none.tfmprt"));
    QVERIFY(!client_->GetFile(url, Local()));
    QCOMPARE(Read(Local()), QByteArray("old"));
    QVERIFY2(client_->LastError().startsWith(url), qPrintable(client_->LastError()));
    QVERIFY2(client_->LastError().contains(QStringLiteral("nothing of this name")),
             qPrintable(client_->LastError()));
    QCOMPARE(QDir(local_->path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void TestWebClient::anEmptyFileIsDownloadedAndUploaded() {
    Serve(QStringLiteral("a.tfmprt"), "");
    QVERIFY(client_->GetFile(server_->Url(QStringLiteral("a.tfmprt")), Local()));
    QCOMPARE(Read(Local()), QByteArray());
    QVERIFY(client_->PutFile(Local(), server_->Url(QStringLiteral("b.tfmprt"))));
    QCOMPARE(Read(server_->Path(QStringLiteral("b.tfmprt"))), QByteArray());
}

void TestWebClient::aBackslashIsSentAsASlash() {
    QDir(server_->Path()).mkdir(QStringLiteral("sub"));
    Serve(QStringLiteral("sub/a.tfmprt"), "text");
    QVERIFY(client_->GetFile(server_->Url(QStringLiteral("sub/a.tfmprt")).replace(u'/', u'\\'),
                             Local()));
    QCOMPARE(Read(Local()), QByteArray("text"));
}

void TestWebClient::namesWithAnyCharacterGoRoundThroughTheListing() {
    QStringList expected;
    for (const QString& name : DifficultNames()) {
        Serve(name, name.toUtf8());
        expected.append(server_->Url(Listed(name)));
    }
    expected.sort();
    const auto listing = client_->ListFolder(server_->Url());
    QVERIFY2(listing, qPrintable(client_->LastError()));
    QCOMPARE(EntriesOf(*listing), expected);
    QStringList found;
    for (const QString& url : EntriesOf(*listing)) {
        QVERIFY2(client_->GetFile(url, Local()), qPrintable(client_->LastError()));
        found.append(QString::fromUtf8(Read(Local())));
        Write(Local(), "changed");
        QVERIFY2(client_->PutFile(Local(), url), qPrintable(client_->LastError()));
    }
    for (const QString& name : DifficultNames()) {
        QVERIFY2(found.contains(name), qPrintable(name));
        QCOMPARE(Read(server_->Path(name)), QByteArray("changed"));
    }
    QCOMPARE(QDir(server_->Path()).entryList(QDir::Files).size(), DifficultNames().size());
}

void TestWebClient::anEscapeThatIsThereAlreadyStays() {
    Serve(QStringLiteral("two words.tfmprt"), "text");
    QVERIFY(client_->GetFile(server_->Url(QStringLiteral("two%20words.tfmprt")), Local()));
    // Both ways of writing are one address: what is known of one holds for the other.
    Write(Local(), "changed");
    QVERIFY2(client_->PutFile(Local(), server_->Url(QStringLiteral("two words.tfmprt"))),
             qPrintable(client_->LastError()));
    QCOMPARE(Read(server_->Path(QStringLiteral("two words.tfmprt"))), QByteArray("changed"));
}

void TestWebClient::anUploadOfANewFileMakesIt() {
    Write(Local(), "text");
    QVERIFY2(client_->PutFile(Local(), server_->Url(QStringLiteral("a.tfmprt"))),
             qPrintable(client_->LastError()));
    QCOMPARE(Read(server_->Path(QStringLiteral("a.tfmprt"))), QByteArray("text"));
}

void TestWebClient::anUploadAfterADownloadReplaces() {
    Serve(QStringLiteral("a.tfmprt"), "first");
    const QString url = server_->Url(QStringLiteral("a.tfmprt"));
    QVERIFY(client_->GetFile(url, Local()));
    Write(Local(), "second");
    QVERIFY2(client_->PutFile(Local(), url), qPrintable(client_->LastError()));
    QCOMPARE(Read(server_->Path(QStringLiteral("a.tfmprt"))), QByteArray("second"));
}

void TestWebClient::uploadsAgainAndAgainNeedNoDownload() {
    const QString url = server_->Url(QStringLiteral("a.tfmprt"));
    for (int i = 0; i < 5; ++i) {
        Write(Local(), "text " + QByteArray::number(i));
        QVERIFY2(client_->PutFile(Local(), url), qPrintable(client_->LastError()));
    }
    QCOMPARE(Read(server_->Path(QStringLiteral("a.tfmprt"))), QByteArray("text 4"));
}

void TestWebClient::anUploadOverSomebodysChangeIsRefused() {
    Serve(QStringLiteral("a.tfmprt"), "first");
    const QString url = server_->Url(QStringLiteral("a.tfmprt"));
    QVERIFY(client_->GetFile(url, Local()));
    Serve(QStringLiteral("a.tfmprt"), "somebody's work");
    Write(Local(), "ours");
    QVERIFY(!client_->PutFile(Local(), url));
    QCOMPARE(Read(server_->Path(QStringLiteral("a.tfmprt"))), QByteArray("somebody's work"));
    QCOMPARE(Read(Local()), QByteArray("ours"));
    QVERIFY2(client_->LastError().contains(
                 QStringLiteral("was changed on the server since it was downloaded")),
             qPrintable(client_->LastError()));
}

void TestWebClient::aChangeRightAfterOurUploadIsNotOverwritten() {
    const QString url = server_->Url(QStringLiteral("a.tfmprt"));
    Write(Local(), "ours");
    QVERIFY(client_->PutFile(Local(), url));
    Serve(QStringLiteral("a.tfmprt"), "them");  // as long, and in the same second
    QVERIFY(!client_->PutFile(Local(), url));
    QCOMPARE(Read(server_->Path(QStringLiteral("a.tfmprt"))), QByteArray("them"));
}

void TestWebClient::anUploadOverARemovedFileIsRefused() {
    Serve(QStringLiteral("a.tfmprt"), "first");
    const QString url = server_->Url(QStringLiteral("a.tfmprt"));
    QVERIFY(client_->GetFile(url, Local()));
    QFile::remove(server_->Path(QStringLiteral("a.tfmprt")));
    QVERIFY(!client_->PutFile(Local(), url));
    QVERIFY(!QFile::exists(server_->Path(QStringLiteral("a.tfmprt"))));
    QVERIFY2(client_->LastError().contains(QStringLiteral("was removed from the server")),
             qPrintable(client_->LastError()));
}

void TestWebClient::anUploadToATakenAddressIsRefusedUnlessAllowed() {
    Serve(QStringLiteral("a.tfmprt"), "somebody's work");
    const QString url = server_->Url(QStringLiteral("a.tfmprt"));
    Write(Local(), "ours");
    QVERIFY(!client_->PutFile(Local(), url));
    QCOMPARE(Read(server_->Path(QStringLiteral("a.tfmprt"))), QByteArray("somebody's work"));
    QVERIFY2(client_->LastError().contains(QStringLiteral("there is such a file")),
             qPrintable(client_->LastError()));
    client_->AllowOverwrite(url);
    QVERIFY2(client_->PutFile(Local(), url), qPrintable(client_->LastError()));
    QCOMPARE(Read(server_->Path(QStringLiteral("a.tfmprt"))), QByteArray("ours"));
}

void TestWebClient::anAllowanceHoldsForOneUpload() {
    const QString url = server_->Url(QStringLiteral("a.tfmprt"));
    Serve(QStringLiteral("a.tfmprt"), "old");
    Write(Local(), "ours");
    client_->AllowOverwrite(url);
    QVERIFY(client_->PutFile(Local(), url));
    Serve(QStringLiteral("a.tfmprt"), "somebody's later work");
    QVERIFY(!client_->PutFile(Local(), url));
    QCOMPARE(Read(server_->Path(QStringLiteral("a.tfmprt"))), QByteArray("somebody's later work"));
}

void TestWebClient::aRefusedUploadCanBeTriedAgain() {
    const QString url = server_->Url(QStringLiteral("sub/a.tfmprt"));
    Write(Local(), "ours");
    QVERIFY(!client_->PutFile(Local(), url));
    QVERIFY(client_->MakeFolder(server_->Url(QStringLiteral("sub"))));
    QVERIFY2(client_->PutFile(Local(), url), qPrintable(client_->LastError()));
    QCOMPARE(Read(server_->Path(QStringLiteral("sub/a.tfmprt"))), QByteArray("ours"));
}

void TestWebClient::anUploadIntoAMissingFolderFails() {
    Write(Local(), "ours");
    QVERIFY(!client_->PutFile(Local(), server_->Url(QStringLiteral("none/a.tfmprt"))));
    QVERIFY2(!client_->LastError().isEmpty(), qPrintable(client_->LastError()));
}

void TestWebClient::anUploadOfAMissingFileFails() {
    QVERIFY(!client_->PutFile(Local(), server_->Url(QStringLiteral("a.tfmprt"))));
    QVERIFY2(client_->LastError().contains(Local()), qPrintable(client_->LastError()));
    QVERIFY(!QFile::exists(server_->Path(QStringLiteral("a.tfmprt"))));
}

void TestWebClient::withoutTagsTheDateAndTheLengthDecide() {
    const ApacheServer server({.extra = "FileETag None\n"});
    const QString path = server.Path(QStringLiteral("a.tfmprt"));
    const QString url = server.Url(QStringLiteral("a.tfmprt"));
    Write(path, "first");
    QVERIFY(client_->GetFile(url, Local()));
    Write(Local(), "second");
    QVERIFY2(client_->PutFile(Local(), url), qPrintable(client_->LastError()));
    Write(Local(), "third");
    QVERIFY2(client_->PutFile(Local(), url), qPrintable(client_->LastError()));
    Write(path, "somebody's work");
    QVERIFY(!client_->PutFile(Local(), url));
    QCOMPARE(Read(path), QByteArray("somebody's work"));
    QVERIFY2(client_->LastError().contains(QStringLiteral("was changed on the server")),
             qPrintable(client_->LastError()));
}

void TestWebClient::aFolderIsMadeOnce() {
    const QString url = server_->Url(QString::fromUtf8("new \xC3\xB6 #1"));
    QVERIFY2(client_->MakeFolder(url), qPrintable(client_->LastError()));
    QVERIFY(QFileInfo(server_->Path(QString::fromUtf8("new \xC3\xB6 #1"))).isDir());
    QVERIFY2(client_->MakeFolder(url), qPrintable(client_->LastError()));
}

void TestWebClient::aFolderIsNotMadeOverAFile() {
    Serve(QStringLiteral("a"), "text");
    QVERIFY(!client_->MakeFolder(server_->Url(QStringLiteral("a"))));
    QCOMPARE(Read(server_->Path(QStringLiteral("a"))), QByteArray("text"));
}

void TestWebClient::aFolderIsNotMadeInAMissingOne() {
    QVERIFY(!client_->MakeFolder(server_->Url(QStringLiteral("none/a"))));
    QVERIFY2(client_->LastError().contains(QStringLiteral("Make that folder first")),
             qPrintable(client_->LastError()));
}

void TestWebClient::aMoveTakesTheFileAndWhatIsKnownOfIt() {
    Serve(QStringLiteral("a.tfmprt"), "first");
    const QString to = server_->Url(QStringLiteral("b #2.tfmprt"));
    QVERIFY(client_->GetFile(server_->Url(QStringLiteral("a.tfmprt")), Local()));
    QVERIFY2(client_->MoveResource(server_->Url(QStringLiteral("a.tfmprt")), to, 0),
             qPrintable(client_->LastError()));
    QVERIFY(!QFile::exists(server_->Path(QStringLiteral("a.tfmprt"))));
    Write(Local(), "second");
    QVERIFY2(client_->PutFile(Local(), to), qPrintable(client_->LastError()));
    QCOMPARE(Read(server_->Path(QStringLiteral("b #2.tfmprt"))), QByteArray("second"));
    // The old address is unknown again, and free.
    QVERIFY2(client_->PutFile(Local(), server_->Url(QStringLiteral("a.tfmprt"))),
             qPrintable(client_->LastError()));
}

void TestWebClient::aMoveOverSomethingNeedsOverwrite() {
    Serve(QStringLiteral("a.tfmprt"), "a");
    Serve(QStringLiteral("b.tfmprt"), "b");
    const QString from = server_->Url(QStringLiteral("a.tfmprt"));
    const QString to = server_->Url(QStringLiteral("b.tfmprt"));
    QVERIFY(!client_->MoveResource(from, to, 0));
    QVERIFY2(client_->LastError().contains(QStringLiteral("something of that name")),
             qPrintable(client_->LastError()));
    QCOMPARE(Read(server_->Path(QStringLiteral("b.tfmprt"))), QByteArray("b"));
    QVERIFY2(client_->MoveResource(from, to, 1), qPrintable(client_->LastError()));
    QCOMPARE(Read(server_->Path(QStringLiteral("b.tfmprt"))), QByteArray("a"));
}

void TestWebClient::aMoveOfAFolderTakesWhatIsKnownOfItsFiles() {
    QVERIFY(client_->MakeFolder(server_->Url(QStringLiteral("old"))));
    Write(Local(), "first");
    QVERIFY(client_->PutFile(Local(), server_->Url(QStringLiteral("old/a.tfmprt"))));
    QVERIFY2(client_->MoveResource(server_->Url(QStringLiteral("old")),
                                   server_->Url(QStringLiteral("new")), 0),
             qPrintable(client_->LastError()));
    Write(Local(), "second");
    QVERIFY2(client_->PutFile(Local(), server_->Url(QStringLiteral("new/a.tfmprt"))),
             qPrintable(client_->LastError()));
    QCOMPARE(Read(server_->Path(QStringLiteral("new/a.tfmprt"))), QByteArray("second"));
}

void TestWebClient::aMoveOfNothingFails() {
    QVERIFY(!client_->MoveResource(server_->Url(QStringLiteral("none")),
                                   server_->Url(QStringLiteral("b")), 1));
    QVERIFY2(client_->LastError().contains(QStringLiteral("/dav/b")),
             qPrintable(client_->LastError()));
}

void TestWebClient::aMoveToAnotherServerIsRefused() {
    Serve(QStringLiteral("a.tfmprt"), "a");
    QVERIFY(!client_->MoveResource(server_->Url(QStringLiteral("a.tfmprt")),
                                   QStringLiteral("http://127.0.0.1:1/dav/a.tfmprt"), 1));
    QVERIFY(QFile::exists(server_->Path(QStringLiteral("a.tfmprt"))));
}

void TestWebClient::aFolderIsListedWithItsTypes() {
    QDir(server_->Path()).mkpath(QStringLiteral("sub/deeper"));
    Serve(QStringLiteral("a.tfmprt"), "a");
    const auto listing = client_->ListFolder(server_->Url());
    QVERIFY2(listing, qPrintable(client_->LastError()));
    const QString file = server_->Url(QStringLiteral("a.tfmprt"));
    const QString folder = server_->Url(QStringLiteral("sub"));
    QCOMPARE(EntriesOf(*listing), (QStringList{file, folder}));
    QCOMPARE(TypeOf(*listing, file), QStringLiteral("File"));
    QCOMPARE(TypeOf(*listing, folder), QStringLiteral("Folder"));
    QCOMPARE(TypeOf(*listing, server_->Url(QStringLiteral("none"))), QStringLiteral("(unknown)"));
    const auto inner = client_->ListFolder(folder);
    QVERIFY(inner);
    QCOMPARE(EntriesOf(*inner), QStringList{folder + QStringLiteral("/deeper")});
}

void TestWebClient::aListingStartsAgainAfterReset() {
    Serve(QStringLiteral("a.tfmprt"), "a");
    const auto listing = client_->ListFolder(server_->Url());
    QVERIFY(listing);
    QString url;
    QVERIFY(listing->NextEntry(url));
    QVERIFY(!listing->NextEntry(url));
    QVERIFY(url.isEmpty());
    QVERIFY(listing->Reset());
    QVERIFY(listing->NextEntry(url));
    QCOMPARE(url, server_->Url(QStringLiteral("a.tfmprt")));
}

void TestWebClient::anEmptyFolderHasAnEmptyListing() {
    const auto listing = client_->ListFolder(server_->Url());
    QVERIFY(listing);
    QVERIFY(EntriesOf(*listing).isEmpty());
}

void TestWebClient::aFileHasNoListing() {
    Serve(QStringLiteral("a.tfmprt"), "a");
    QVERIFY(!client_->ListFolder(server_->Url(QStringLiteral("a.tfmprt"))));
    QVERIFY(!client_->LastError().isEmpty());
}

void TestWebClient::aMissingFolderHasNoListing() {
    QVERIFY(!client_->ListFolder(server_->Url(QStringLiteral("none"))));
    QVERIFY2(client_->LastError().contains(QStringLiteral("404")),
             qPrintable(client_->LastError()));
}

void TestWebClient::entriesHaveTheFoldersAddressAsItWasWritten() {
    QDir(server_->Path()).mkdir(QStringLiteral("my folder"));
    Serve(QStringLiteral("my folder/a b.tfmprt"), "a");
    const auto written = client_->ListFolder(server_->Url(QStringLiteral("my%20folder")));
    QVERIFY2(written, qPrintable(client_->LastError()));
    QCOMPARE(EntriesOf(*written),
             QStringList{server_->Url(QStringLiteral("my%20folder/a b.tfmprt"))});
    const auto slashed =
        client_->ListFolder(server_->Url(QStringLiteral("my folder/")).replace(u'/', u'\\'));
    QVERIFY2(slashed, qPrintable(client_->LastError()));
    QVERIFY(EntriesOf(*slashed).first().endsWith(QStringLiteral("\\my folder/a b.tfmprt")));
    QVERIFY(client_->GetFile(EntriesOf(*slashed).first(), Local()));
}

void TestWebClient::whetherSomethingIsThereIsAskedOfTheServer() {
    const QString url = server_->Url(QStringLiteral("a.tfmprt"));
    QCOMPARE(client_->Exists(url), Presence::Absent);
    Serve(QStringLiteral("a.tfmprt"), "a");
    QCOMPARE(client_->Exists(url), Presence::Present);
    QCOMPARE(client_->Exists(server_->Url()), Presence::Present);
    QCOMPARE(client_->Exists(QStringLiteral("http://127.0.0.1:1/a")), Presence::Unknown);
    QVERIFY(!client_->LastError().isEmpty());
}

void TestWebClient::aRedirectWithinTheServerIsFollowed() {
    const ApacheServer server({.extra = "RedirectMatch 307 ^/old/(.*) /dav/$1\n"});
    const QString url = server.Server() + QStringLiteral("/old/a b.tfmprt");
    Write(server.Path(QStringLiteral("a b.tfmprt")), "first");
    QVERIFY2(client_->GetFile(url, Local()), qPrintable(client_->LastError()));
    QCOMPARE(Read(Local()), QByteArray("first"));
    Write(Local(), "second");
    QVERIFY2(client_->PutFile(Local(), url), qPrintable(client_->LastError()));
    QCOMPARE(Read(server.Path(QStringLiteral("a b.tfmprt"))), QByteArray("second"));
}

void TestWebClient::aTextThatIsNoAddressIsRefused() {
    for (const char* text : {"", "a.tfmprt", "/dav/a", "ftp://127.0.0.1/a", "http:/x/a", "http://",
                             "http://:80/a", "http://127.0.0.1:99999/a", "http://127.0.0.1:x/a",
                             "http://a b/c", "http://[::1/a", "C:\\http\\a.tfmprt"}) {
        QVERIFY2(!client_->GetFile(QString::fromLatin1(text), Local()), text);
        QVERIFY2(client_->LastError().contains(QStringLiteral("no address")),
                 qPrintable(client_->LastError()));
    }
    QVERIFY(!QFile::exists(Local()));
}

DOCBENCH_TEST_MAIN(QCoreApplication, TestWebClient)
#include "tst_webclient.moc"
