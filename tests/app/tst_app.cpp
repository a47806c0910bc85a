#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include "tests/support/apacheserver.h"
#include "tests/support/faultserver.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

class TestApp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void treePrintsEveryRowWithItsPath();
    void treePrintsJson();
    void aWebFolderPrintsTheSameTreeAsTheDisk();
    void aServerThatIsNotThereIsToldInWords();
    void thePasswordGoesToTheNamedServerAlone_data();
    void thePasswordGoesToTheNamedServerAlone();
    void aPasswordOnTheCommandLineIsRefused();
    void treeNeedsNoDisplay();
    void aRelativePathIsTakenFromTheWorkingFolder();
    void aMissingDocumentEndsWithThree();
    void aDocumentThatIsNoneEndsWithThree();
    void aChildThatCannotBeReadEndsWithOne();
    void aDryRunPrintsThePlanAndTouchesNothing();
    void renameMovesTheFileAndUpdatesItsHolders();
    void withNobodyToAskItNeedsYes();
    void aHolderThatIsLeftOutEndsWithOne();
    void replaceMovesNothing();
    void referencesListsBothTables();
    void whereUsedListsTheHoldersAndWritesThem();
    void lockAndUnlockReserveADocument();
    void listKeepsTheFolderLists();
    void everyCommandHasItsHelp();
    void wrongUsageEndsWithTwo_data();
    void wrongUsageEndsWithTwo();
    void helpAndVersionArePrinted();
    void anUnattendedWindowWithoutItsDocumentEndsWithThree();
    void theWindowOpensWithTheDocument_data();
    void theWindowOpensWithTheDocument();
};

namespace {

struct Run {
    explicit Run(const QStringList& arguments, const QString& folder = {},
                 const QString& platform = QStringLiteral("offscreen"),
                 const QMap<QString, QString>& variables = {}) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (auto variable = variables.begin(); variable != variables.end(); ++variable)
            environment.insert(variable.key(), variable.value());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
        process.setProcessEnvironment(environment);
        if (!folder.isEmpty())
            process.setWorkingDirectory(folder);
        process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/docbench"),
                      arguments);
        if (!process.waitForFinished(60000))
            qFatal("docbench does not end");
        code = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        out = QString::fromUtf8(process.readAllStandardOutput());
        err = QString::fromUtf8(process.readAllStandardError());
    }
    int code;
    QString out;
    QString err;
};

QString SmallAssembly(TestLibrary& library) {
    const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
    const QString bolt = library.Make(QStringLiteral("bo\"lt.tfmprt"));
    library.Lock(bolt, QStringLiteral("somebody"));
    const QString left = library.Make(QStringLiteral("left.tfmasm"),
                                      {{pin, 6}, {library.Path(QStringLiteral("top.tfmasm"))}});
    return library.Make(QStringLiteral("top.tfmasm"),
                        {{left}, {bolt}, {library.Path(QStringLiteral("lost.tfmprt"))}});
}

}  // namespace

void TestApp::treePrintsEveryRowWithItsPath() {
    TestLibrary library;
    const Run run({QStringLiteral("tree"), SmallAssembly(library)});
    QCOMPARE(run.code, 0);
    const QString f = library.Folder() + u'/';
    const QStringList lines = run.out.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 6);
    QCOMPARE(lines[0], QStringLiteral("top  ") + f + QStringLiteral("top.tfmasm"));
    QCOMPARE(lines[1], QStringLiteral("  left  ") + f + QStringLiteral("left.tfmasm"));
    QCOMPARE(lines[2], QStringLiteral("    pin  (6 x)  ") + f + QStringLiteral("pin.tfmprt"));
    QVERIFY(lines[3].contains(QLatin1String("[circular]")));
    QVERIFY(lines[4].contains(QLatin1String("[locked]")));
    QVERIFY(lines[5].startsWith(QLatin1String("  lost [missing]")));
    QVERIFY(lines[5].endsWith(f + QStringLiteral("lost.tfmprt")));
    QVERIFY(run.err.contains(QLatin1String("top.tfmasm")));  // the message about the cycle
}

void TestApp::treePrintsJson() {
    TestLibrary library;
    const Run run({QStringLiteral("tree"), SmallAssembly(library), QStringLiteral("--json")});
    QCOMPARE(run.code, 0);
    QJsonParseError error;
    const QJsonObject all = QJsonDocument::fromJson(run.out.toUtf8(), &error).object();
    QCOMPARE(error.errorString(), QJsonParseError().errorString());
    QCOMPARE(all[QLatin1String("version")].toInt(), 1);
    const QJsonObject top = all[QLatin1String("tree")].toObject();
    QCOMPARE(top[QLatin1String("label")].toString(), QStringLiteral("top "));
    const QJsonArray children = top[QLatin1String("children")].toArray();
    QCOMPARE(children.size(), 3);
    QCOMPARE(children[0][QLatin1String("children")].toArray().size(), 2);
    QVERIFY(children[0][QLatin1String("children")][1][QLatin1String("circular")].toBool());
    QVERIFY(children[1][QLatin1String("locked")].toBool());
    QCOMPARE(children[1][QLatin1String("path")].toString(),
             library.Path(QStringLiteral("bo\"lt.tfmprt")));
    QVERIFY(children[2][QLatin1String("missing")].toBool());
    QVERIFY(!children[2][QLatin1String("circular")].toBool());
}

void TestApp::aWebFolderPrintsTheSameTreeAsTheDisk() {
    const ApacheServer server;
    TestLibrary library;
    SmallAssembly(library);
    for (const QString& name : QDir(library.Folder()).entryList(QDir::Files))
        QVERIFY(QFile::copy(library.Path(name), server.Path(name)));
    const Run disk({QStringLiteral("tree"), library.Path(QStringLiteral("top.tfmasm"))});
    const Run web({QStringLiteral("tree"), server.Url(QStringLiteral("top.tfmasm"))});
    QCOMPARE(web.code, disk.code);
    QString expected = disk.out;
    expected.replace(library.Folder() + u'/', server.Url());
    QCOMPARE(web.out, expected);
    QVERIFY(web.out.contains(server.Url(QStringLiteral("pin.tfmprt"))));
}

void TestApp::aServerThatIsNotThereIsToldInWords() {
    const Run run({QStringLiteral("tree"), QStringLiteral("http://127.0.0.1:1/top.tfmasm")});
    QCOMPARE(run.code, 3);
    QVERIFY(run.err.count(QLatin1String("127.0.0.1:1")) > 1);  // not found, and why
}

void TestApp::thePasswordGoesToTheNamedServerAlone_data() {
    QTest::addColumn<bool>("isRootLocal");
    QTest::addColumn<bool>("isOtherNamed");  // in the environment
    QTest::addColumn<bool>("isFirstTold");
    QTest::addColumn<bool>("isOtherTold");
    QTest::newRow("web document") << false << false << true << false;
    QTest::newRow("local document") << true << false << false << false;
    QTest::newRow("another server named") << false << true << false << false;
    QTest::newRow("local document, server named") << true << true << false << true;
}

void TestApp::thePasswordGoesToTheNamedServerAlone() {
    QFETCH(bool, isRootLocal);
    QFETCH(bool, isOtherNamed);
    QFETCH(bool, isFirstTold);
    QFETCH(bool, isOtherTold);
    QByteArray document;
    const auto guarded = [&](const FaultServer::Request& request) -> FaultServer::Reply {
        if (!request.headers.contains("authorization"))
            return {.status = 401, .headers = {{"WWW-Authenticate", "Basic realm=\"docs\""}}};
        return {.body = document};
    };
    const FaultServer first(guarded);
    const FaultServer other(guarded);
    TestLibrary library;
    const QString top =
        library.Make(QStringLiteral("top.tfmasm"), {{other.Url(QStringLiteral("evil.tfmprt"))}});
    QFile file(top);
    QVERIFY(file.open(QIODevice::ReadOnly));
    document = file.readAll();
    QMap<QString, QString> variables{
        {QStringLiteral("DOCBENCH_WEB_USER"), QStringLiteral("ann")},
        {QStringLiteral("DOCBENCH_WEB_PASSWORD"), QStringLiteral("x")}};
    if (isOtherNamed)
        variables.insert(QStringLiteral("DOCBENCH_WEB_SERVER"), other.Url());
    const QString root = isRootLocal ? top : first.Url(QStringLiteral("top.tfmasm"));
    const Run run({QStringLiteral("tree"), root}, {}, QStringLiteral("offscreen"), variables);
    const auto isTold = [](const FaultServer& server) {
        const QList<FaultServer::Request> requests = server.Requests();
        return std::any_of(requests.begin(), requests.end(), [](const auto& request) {
            return request.headers.contains("authorization");
        });
    };
    QCOMPARE(isTold(first), isFirstTold);
    QCOMPARE(isTold(other), isOtherTold);
    QCOMPARE(run.err.contains(QLatin1String("not the server that you named")), !isOtherTold);
}

void TestApp::aPasswordOnTheCommandLineIsRefused() {
    const FaultServer server([](const FaultServer::Request&) { return FaultServer::Reply{}; });
    const QString url = server.Url(QStringLiteral("top.tfmasm"))
                            .replace(QStringLiteral("://"), QStringLiteral("://ann:secret@"));
    for (const QStringList& words :
         {QStringList{QStringLiteral("tree"), url},
          QStringList{QStringLiteral("rename"), QStringLiteral("/w/a.tfmprt"), url},
          QStringList{QStringLiteral("--quit-when-shown"), url}}) {
        const Run run(words);
        QCOMPARE(run.code, 2);
        QVERIFY2(run.err.contains(QStringLiteral("without the password")), qPrintable(run.err));
        QVERIFY(!run.err.contains(QStringLiteral("secret")));
    }
    QVERIFY(server.Requests().isEmpty());
}

void TestApp::treeNeedsNoDisplay() {
    TestLibrary library;
    const Run run({QStringLiteral("tree"), SmallAssembly(library)}, {}, QStringLiteral("xcb"));
    QCOMPARE(run.code, 0);
}

void TestApp::aRelativePathIsTakenFromTheWorkingFolder() {
    TestLibrary library;
    SmallAssembly(library);
    const Run run({QStringLiteral("tree"), QStringLiteral("pin.tfmprt")}, library.Folder());
    QCOMPARE(run.code, 0);
    QVERIFY(run.out.contains(library.Path(QStringLiteral("pin.tfmprt"))));
}

void TestApp::aMissingDocumentEndsWithThree() {
    TestLibrary library;
    const Run run({QStringLiteral("tree"), library.Path(QStringLiteral("none.tfmasm"))});
    QCOMPARE(run.code, 3);
    QVERIFY(run.err.contains(QLatin1String("none.tfmasm")));
    QVERIFY(run.out.isEmpty());
}

void TestApp::aDocumentThatIsNoneEndsWithThree() {
    TestLibrary library;
    const Run run({QStringLiteral("tree"), library.MakeBroken(QStringLiteral("broken.tfmasm"))});
    QCOMPARE(run.code, 3);
    QVERIFY(run.err.contains(QLatin1String("broken.tfmasm")));
}

void TestApp::aChildThatCannotBeReadEndsWithOne() {
    TestLibrary library;
    const QString broken = library.MakeBroken(QStringLiteral("broken.tfmasm"));
    const Run run({QStringLiteral("tree"), library.Make(QStringLiteral("top.tfmasm"), {{broken}})});
    QCOMPARE(run.code, 1);
    QVERIFY(run.out.contains(QLatin1String("broken.tfmasm")));
    QVERIFY(run.err.contains(QLatin1String("broken.tfmasm")));
}

void TestApp::aDryRunPrintsThePlanAndTouchesNothing() {
    TestLibrary library;
    SmallAssembly(library);
    const QString pin = library.Path("pin.tfmprt");
    const QString bolt = library.Path("nail.tfmprt");
    const Run run({"rename", "--dry-run", "--root", library.Path("top.tfmasm"), pin, "nail"});
    QCOMPARE(run.code, 0);
    const QStringList lines = run.out.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 4);  // headers, the move, the parent, the parent's row
    QCOMPARE(lines[1].simplified(), pin + " move " + bolt);
    QCOMPARE(lines[2].simplified(), library.Path("left.tfmasm") + " component 1 " + bolt);
    QCOMPARE(lines[3], lines[2]);
    QVERIFY(QFile::exists(pin) && !QFile::exists(bolt));
    const Run json({"rename", "--dry-run", "--json", pin, "nail"});
    const QJsonObject plan = QJsonDocument::fromJson(json.out.toUtf8()).object();
    QCOMPARE(plan["version"].toInt(), 1);
    QCOMPARE(plan["command"].toString(), QString("rename"));
    QCOMPARE(plan["changes"][0]["to"].toString(), bolt);
    const Run null({"rename", "--dry-run", "-0", pin, "nail"});
    QCOMPARE(null.out.split(QChar('\0')),
             QStringList({pin, library.Path("left.tfmasm"), QString()}));
}

void TestApp::renameMovesTheFileAndUpdatesItsHolders() {
    TestLibrary library;
    SmallAssembly(library);
    const Run run({"rename", "--yes", "--json", "--", "pin.tfmprt", "nail"}, library.Folder());
    QCOMPARE(run.code, 0);
    QVERIFY(!QFile::exists(library.Path("pin.tfmprt")));
    const QJsonObject result = QJsonDocument::fromJson(run.out.toUtf8()).object();
    QCOMPARE(result["updated"].toInt(), 1);
    QCOMPARE(result["rows"][0]["status"].toString(), QString("updated"));
    const Run tree({"tree", library.Path("top.tfmasm")});
    QVERIFY(tree.out.contains("nail  (6 x)  " + library.Path("nail.tfmprt")));
}

void TestApp::withNobodyToAskItNeedsYes() {
    TestLibrary library;
    SmallAssembly(library);
    const Run run({"rename", library.Path("pin.tfmprt"), "nail"});
    QCOMPARE(run.code, 2);
    QVERIFY(run.err.contains("--yes"));
    QVERIFY(QFile::exists(library.Path("pin.tfmprt")));
}

void TestApp::aHolderThatIsLeftOutEndsWithOne() {
    TestLibrary library;
    SmallAssembly(library);
    const QString left = library.Path("left.tfmasm");
    QVERIFY(QFile::setPermissions(left, QFile::ReadOwner | QFile::ReadUser));
    const Run run({"rename", "--yes", library.Path("pin.tfmprt"), "nail"});
    QCOMPARE(run.code, 1);
    QVERIFY(run.out.contains("left out"));
    QVERIFY(QFile::exists(library.Path("nail.tfmprt")));
}

void TestApp::replaceMovesNothing() {
    TestLibrary library;
    SmallAssembly(library);
    const QString nail = library.Make("nail.tfmprt");
    const Run run({"replace", "--yes", library.Path("pin.tfmprt"), nail});
    QCOMPARE(run.code, 0);
    QVERIFY(QFile::exists(library.Path("pin.tfmprt")));
    QVERIFY(Run({"tree", library.Path("top.tfmasm")}).out.contains("nail  (6 x)"));
    const Run refused({"replace", "--yes", nail, library.Path("top.tfmasm")});
    QCOMPARE(refused.code, 1);  // of another type
}

void TestApp::referencesListsBothTables() {
    TestLibrary library;
    const QString pin = library.Make("pin.tfmprt");
    const QString lost = library.Path("lost.tfmprt");
    const QString top = library.Make("top.tfmasm", {{pin, 2}}, {{lost, "derived"}});
    const Run run({"references", top});
    QCOMPARE(run.code, 0);
    const QStringList lines = run.out.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[1].simplified(), pin + " component 1");
    QCOMPARE(lines[2].simplified(), lost + " external 1 missing");
    QCOMPARE(Run({"references", lost}).code, 3);
}

void TestApp::whereUsedListsTheHoldersAndWritesThem() {
    TestLibrary library;
    SmallAssembly(library);
    const QString file = library.Path("users.csv");
    const Run run({"where-used", "--json", "-o", file, library.Path("pin.tfmprt")});
    QCOMPARE(run.code, 0);
    const QJsonObject result = QJsonDocument::fromJson(run.out.toUtf8()).object();
    QCOMPARE(result["rows"].toArray().size(), 1);
    QCOMPARE(result["rows"][0]["document"].toString(), library.Path("left.tfmasm"));
    QFile csv(file);
    QVERIFY(csv.open(QIODevice::ReadOnly));
    QVERIFY(csv.readAll().contains("left.tfmasm"));
    const QString sheet = library.Path("users.xlsx");
    QCOMPARE(Run({"where-used", "-o", sheet, library.Path("pin.tfmprt")}).code, 0);
    QFile xlsx(sheet);
    QVERIFY(xlsx.open(QIODevice::ReadOnly));
    QVERIFY(xlsx.readAll().startsWith("PK"));
}

void TestApp::lockAndUnlockReserveADocument() {
    TestLibrary library;
    SmallAssembly(library);
    const QString pin = library.Path("pin.tfmprt");
    QCOMPARE(Run({"lock", "--dry-run", pin}).code, 0);
    QVERIFY(!library.IsLocked(pin));
    QCOMPARE(Run({"lock", "--yes", pin}).code, 0);
    QVERIFY(library.IsLocked(pin));
    QCOMPARE(Run({"unlock", "--yes", pin}).code, 0);
    QVERIFY(!library.IsLocked(pin));
    // Somebody else's stays locked.
    QCOMPARE(Run({"unlock", "--yes", library.Path("bo\"lt.tfmprt")}).code, 1);
}

void TestApp::listKeepsTheFolderLists() {
    TestLibrary library;
    SmallAssembly(library);
    QCOMPARE(Run({"list", "Parts", library.Folder()}).code, 0);
    const Run shown({"list", "-0", "Parts"});
    QCOMPARE(shown.out, library.Folder() + QChar('\0'));
    const Run used({"where-used", "-0", "--in", " Parts", "pin.tfmprt"});
    QCOMPARE(used.out, library.Path("left.tfmasm") + QChar('\0'));
    QCOMPARE(Run({"list", "two words", library.Folder()}).code, 1);
    QCOMPARE(Run({"list", "--delete", "Parts"}).code, 0);
    QCOMPARE(Run({"list", "Parts"}).code, 1);
}

void TestApp::everyCommandHasItsHelp() {
    const QString list = Run({"--help"}).out;
    for (const char* name : {"tree", "references", "where-used", "rename", "replace",
                             "configurations", "hyperlinks", "lock", "unlock", "list"}) {
        QVERIFY2(list.contains(QString("\n  %1 ").arg(name)), name);
        const Run help({name, "--help"});
        QCOMPARE(help.code, 0);
        QVERIFY(help.out.startsWith(QString("Usage: docbench %1 [options] ").arg(name)));
    }
}

void TestApp::wrongUsageEndsWithTwo_data() {
    QTest::addColumn<QStringList>("arguments");
    const auto row = [](const char* name, const QStringList& arguments) {
        QTest::newRow(name) << arguments;
    };
    row("no file", {QStringLiteral("tree")});
    row("two files", {QStringLiteral("tree"), QStringLiteral("a"), QStringLiteral("b")});
    row("unknown option", {QStringLiteral("--nonsense")});
    row("json without tree", {QStringLiteral("a.tfmprt"), QStringLiteral("--json")});
    row("window option with tree",
        {QStringLiteral("tree"), QStringLiteral("a.tfmprt"), QStringLiteral("--quit-when-shown")});
    row("unknown theme", {QStringLiteral("--theme"), QStringLiteral("plaid")});
}

void TestApp::wrongUsageEndsWithTwo() {
    QFETCH(QStringList, arguments);
    const Run run(arguments);
    QCOMPARE(run.code, 2);
    QVERIFY(run.err.contains(QLatin1String("--help")));
}

void TestApp::helpAndVersionArePrinted() {
    const Run help({QStringLiteral("--help")});
    QCOMPARE(help.code, 0);
    QVERIFY(help.out.contains(QLatin1String("\n  tree ")));
    const Run version({QStringLiteral("--version")});
    QCOMPARE(version.code, 0);
    QVERIFY(version.out.startsWith(QLatin1String("docbench ")));
}

void TestApp::anUnattendedWindowWithoutItsDocumentEndsWithThree() {
    TestLibrary library;
    const QString quit = QStringLiteral("--quit-when-shown");
    QCOMPARE(Run({quit, library.Path(QStringLiteral("none.tfmasm"))}).code, 3);
    QCOMPARE(Run({quit, library.MakeBroken(QStringLiteral("broken.tfmasm"))}).code, 3);
    QCOMPARE(Run({quit, SmallAssembly(library)}).code, 0);  // with a cycle, of which a box tells
}

void TestApp::theWindowOpensWithTheDocument_data() {
    QTest::addColumn<QString>("theme");
    QTest::newRow("light") << "light";
    QTest::newRow("dark") << "dark";
}

void TestApp::theWindowOpensWithTheDocument() {
    QFETCH(QString, theme);
    TestLibrary library;
    const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
    const QString picture = library.Path(QStringLiteral("window.png"));
    const Run run({QStringLiteral("--screenshot"), picture, QStringLiteral("--theme"), theme,
                   library.Make(QStringLiteral("top.tfmasm"), {{pin}})});
    QCOMPARE(run.code, 0);
    const QImage window(picture);
    QVERIFY(window.width() >= 640);
    // The empty area of the tree, in the lower left, is dark or light as was asked for.
    const QColor background = window.pixelColor(window.width() / 4, window.height() * 3 / 4);
    QCOMPARE(background.lightness() < 128, theme == QLatin1String("dark"));
}

DOCBENCH_TEST_MAIN(QCoreApplication, TestApp)
#include "tst_app.moc"
