#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include "docmodel/builder.h"
#include "tests/support/apacheserver.h"
#include "tests/support/faultserver.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

class TestApp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void treePrintsJson();
    void aWebFolderPrintsTheSameTreeAsTheDisk();
    void aWebDocumentIsEditedWhereItIs();
    void copiesGoToAndComeFromWebFolders();
    void aServerThatIsNotThereIsToldInWords();
    void thePasswordGoesToTheNamedServerAlone_data();
    void thePasswordGoesToTheNamedServerAlone();
    void aPasswordOnTheCommandLineIsRefused();
    void treeNeedsNoDisplay();
    void everyCommandHasItsHelp();
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

void TestApp::aWebDocumentIsEditedWhereItIs() {
    const ApacheServer server;
    TestLibrary library;
    const QString pin = library.Make("pin.tfmprt");
    {
        auto part = docmodel::DocumentBuilder::Edit(pin);
        part.AddConfiguration("Long");
        part.AddHyperlink("a");
        part.Save();
    }
    QVERIFY(QFile::copy(pin, server.Path("pin.tfmprt")));
    const QString url = server.Url("pin.tfmprt");
    for (const QStringList& words :
         {QStringList{"properties", "--yes", "--set=Finish=zinc", url},
          QStringList{"configurations", "--yes", url, "rename", "Long", "Longer"},
          QStringList{"hyperlinks", "--yes", url, "change", "a", "b"}}) {
        const Run run(words);
        QVERIFY2(run.code == 0, qPrintable(run.err));
        QVERIFY(run.out.contains(url + "  updated"));
    }
    const QString stored = server.Path("pin.tfmprt");
    QVERIFY(Run({"properties", stored}).out.contains("Finish"));
    QCOMPARE(Run({"configurations", "-0", stored}).out, QString("Longer") + QChar('\0'));
    QCOMPARE(Run({"hyperlinks", "-0", stored}).out, QString("b") + QChar('\0'));
}

void TestApp::copiesGoToAndComeFromWebFolders() {
    const ApacheServer server;
    TestLibrary library;
    SmallAssembly(library);
    const QString left = library.Path("left.tfmasm");
    const QStringList up{"copy", "--to", server.Url("up"), left};
    QCOMPARE(Run(up + QStringList{"--dry-run"}).code, 0);
    QVERIFY(!QFile::exists(server.Path("up")));
    QCOMPARE(Run({"copy", "--yes", "--alone", "--to", server.Url("up"), library.Path("pin.tfmprt")})
                 .code,
             0);
    QVERIFY(QFile::exists(server.Path("up/pin.tfmprt")));
    const Run taken(
        {"copy", "--yes", "--alone", "--to", server.Url("up"), library.Path("pin.tfmprt")});
    QCOMPARE(taken.code, 1);
    QVERIFY(taken.err.contains("already there"));
    QCOMPARE(Run({"copy", "--yes", "--to", library.Path("down"), server.Url("up/pin.tfmprt")}).code,
             0);
    QVERIFY(QFile::exists(library.Path("down/pin.tfmprt")));
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

void TestApp::everyCommandHasItsHelp() {
    const QString list = Run({"--help"}).out;
    for (const char* name :
         {"tree", "references", "where-used", "search", "rename", "replace", "copy", "properties",
          "configurations", "hyperlinks", "lock", "unlock", "list"}) {
        QVERIFY2(list.contains(QString("\n  %1 ").arg(name)), name);
        const Run help({name, "--help"});
        QCOMPARE(help.code, 0);
        QVERIFY(help.out.startsWith(QString("Usage: docbench %1 [options]").arg(name)));
        QVERIFY2(help.out.contains(QString("\n  docbench %1").arg(name)), name);  // an example
        for (const QString& line : help.out.split(u'\n'))
            QVERIFY2(line.size() <= 100, qPrintable(line));
    }
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
