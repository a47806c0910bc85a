#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTest>

#include "docmodel/builder.h"
#include "tests/app/terminal.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

// What the commands do differently where somebody watches and can answer.
class TestTerminal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatChangesFilesAsksOnceBehindItsPlan_data();
    void whatChangesFilesAsksOnceBehindItsPlan();
    void anyAnswerButYesChangesNothing_data();
    void anyAnswerButYesChangesNothing();
    void whatIsAskedStaysOutOfTheJson();
    void whatSomebodyElseChangesMeanwhileIsNotWrittenOver_data();
    void whatSomebodyElseChangesMeanwhileIsNotWrittenOver();
    void progressIsShownToWhoWatches_data();
    void progressIsShownToWhoWatches();
    void headersAreBoldUnlessColoursAreUnwanted();
};

namespace {

struct Watched {
    enum Streams { kInput = 1, kOutput = 2, kError = 4 };

    Watched(const QStringList& arguments, const QString& folder, int streams,
            const QString& noColor = {}) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("NO_COLOR"));
        if (!noColor.isEmpty())
            environment.insert(QStringLiteral("NO_COLOR"), noColor);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder);
        if (streams & kInput)
            process.setStandardInputFile(terminal.Device());
        if (streams & kOutput)
            process.setStandardOutputFile(terminal.Device());
        if (streams & kError)
            process.setStandardErrorFile(terminal.Device());
        process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/docbench"),
                      arguments);
    }

    int End() {
        constexpr int kLongest = 60'000;  // a command that hangs
        if (!process.waitForFinished(kLongest))
            qFatal("docbench does not end");
        out = process.readAllStandardOutput();
        err = process.readAllStandardError();
        return process.exitCode();
    }

    Terminal terminal;
    QProcess process;
    QByteArray out;
    QByteArray err;
};

constexpr char kQuestion[] = "Write this? [y/N] ";
constexpr int kAsking = Watched::kInput | Watched::kError;

// A part with a property, a configuration and a hyperlink, and its assembly.
void MakeAssembly(TestLibrary& library) {
    const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
    docmodel::DocumentBuilder part = docmodel::DocumentBuilder::Edit(pin);
    part.SetCustomProperty(QStringLiteral("Finish"), QStringLiteral("raw"));
    part.AddConfiguration(QStringLiteral("Long"));
    part.AddHyperlink(QStringLiteral("a"));
    part.Save();
    library.Make(QStringLiteral("nail.tfmprt"));
    library.Make(QStringLiteral("top.tfmasm"), {{pin}});
}

QByteArray BytesOf(const TestLibrary& library, const QString& name) {
    QFile file(library.Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void AddChangingCommands() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("planned");  // a line of the plan ends so
    const auto row = [](const char* words, const char* planned) {
        QTest::newRow(words) << QString::fromLatin1(words).split(u' ')
                             << QString::fromLatin1(planned);
    };
    row("rename pin.tfmprt bolt", "bolt.tfmprt");
    row("replace pin.tfmprt nail.tfmprt", "nail.tfmprt");
    row("copy --to new top.tfmasm", "new/pin.tfmprt");
    row("lock pin.tfmprt", "lock");
    row("properties --set Finish=zinc pin.tfmprt", "set Finish  zinc");
    row("configurations pin.tfmprt delete Long", "delete Long");
    row("hyperlinks pin.tfmprt change a b", "hyperlink 1  b");
}

}  // namespace

void TestTerminal::whatChangesFilesAsksOnceBehindItsPlan_data() {
    AddChangingCommands();
}

void TestTerminal::whatChangesFilesAsksOnceBehindItsPlan() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, planned);
    TestLibrary library;
    MakeAssembly(library);
    const QByteArray part = BytesOf(library, QStringLiteral("pin.tfmprt"));
    const QByteArray assembly = BytesOf(library, QStringLiteral("top.tfmasm"));
    Watched run(arguments, library.Folder(), kAsking);
    const QByteArray shown = run.terminal.ReadUntil(kQuestion);
    QVERIFY2(shown.contains(planned.toUtf8() + '\n'), shown.constData());
    QCOMPARE(BytesOf(library, QStringLiteral("pin.tfmprt")), part);
    QCOMPARE(BytesOf(library, QStringLiteral("top.tfmasm")), assembly);
    run.terminal.Type("y\n");
    QCOMPARE(run.End(), 0);
    QVERIFY(!run.terminal.ReadAll().contains(kQuestion));
    QVERIFY(BytesOf(library, QStringLiteral("pin.tfmprt")) != part ||
            BytesOf(library, QStringLiteral("top.tfmasm")) != assembly ||
            QFile::exists(library.Path(QStringLiteral("new/top.tfmasm"))));
}

void TestTerminal::anyAnswerButYesChangesNothing_data() {
    AddChangingCommands();
}

void TestTerminal::anyAnswerButYesChangesNothing() {
    QFETCH(QStringList, arguments);
    TestLibrary library;
    MakeAssembly(library);
    const QByteArray part = BytesOf(library, QStringLiteral("pin.tfmprt"));
    const QByteArray assembly = BytesOf(library, QStringLiteral("top.tfmasm"));
    Watched run(arguments, library.Folder(), kAsking);
    run.terminal.ReadUntil(kQuestion);
    run.terminal.Type("\n");
    QCOMPARE(run.End(), 1);
    QVERIFY(run.terminal.ReadAll().contains("Nothing was changed."));
    QCOMPARE(BytesOf(library, QStringLiteral("pin.tfmprt")), part);
    QCOMPARE(BytesOf(library, QStringLiteral("top.tfmasm")), assembly);
    QVERIFY(!QFile::exists(library.Path(QStringLiteral("new"))));
}

void TestTerminal::whatIsAskedStaysOutOfTheJson() {
    TestLibrary library;
    MakeAssembly(library);
    Watched run({QStringLiteral("rename"), QStringLiteral("--json"), QStringLiteral("pin.tfmprt"),
                 QStringLiteral("bolt")},
                library.Folder(), kAsking);
    QVERIFY(run.terminal.ReadUntil(kQuestion).contains("move"));
    run.terminal.Type("y\n");
    QCOMPARE(run.End(), 0);
    QCOMPARE(QJsonDocument::fromJson(run.out).object()[QLatin1String("updated")].toInt(), 1);
}

void TestTerminal::whatSomebodyElseChangesMeanwhileIsNotWrittenOver_data() {
    QTest::addColumn<QStringList>("arguments");
    const QString pin = QStringLiteral("pin.tfmprt");
    QTest::newRow("properties") << QStringList{QStringLiteral("properties"),
                                               QStringLiteral("--set=Finish=zinc"), pin};
    QTest::newRow("configurations")
        << QStringList{QStringLiteral("configurations"), pin, QStringLiteral("rename"),
                       QStringLiteral("Long"), QStringLiteral("Short")};
    QTest::newRow("hyperlinks") << QStringList{QStringLiteral("hyperlinks"), pin,
                                               QStringLiteral("change"), QStringLiteral("a"),
                                               QStringLiteral("b")};
}

void TestTerminal::whatSomebodyElseChangesMeanwhileIsNotWrittenOver() {
    QFETCH(QStringList, arguments);
    TestLibrary library;
    MakeAssembly(library);
    Watched run(arguments, library.Folder(), kAsking);
    run.terminal.ReadUntil(kQuestion);
    {
        auto part = docmodel::DocumentBuilder::Edit(library.Path(QStringLiteral("pin.tfmprt")));
        part.SetCustomProperty(QStringLiteral("Finish"), QStringLiteral("black"));
        part.AddConfiguration(QStringLiteral("Other"));
        part.AddHyperlink(QStringLiteral("c"));
        part.Save();
    }
    const QByteArray theirs = BytesOf(library, QStringLiteral("pin.tfmprt"));
    run.terminal.Type("y\n");
    QCOMPARE(run.End(), 1);
    QVERIFY(run.terminal.ReadAll().contains("by another program"));
    QCOMPARE(BytesOf(library, QStringLiteral("pin.tfmprt")), theirs);
}

void TestTerminal::progressIsShownToWhoWatches_data() {
    QTest::addColumn<QStringList>("arguments");
    for (const char* words :
         {"where-used pin.tfmprt", "search --rule Mass>1", "rename --dry-run pin.tfmprt bolt",
          "replace --dry-run pin.tfmprt nail.tfmprt", "copy --dry-run --to new top.tfmasm",
          "copy --dry-run --alone --users --to new pin.tfmprt"})
        QTest::newRow(words) << QString::fromLatin1(words).split(u' ');
}

void TestTerminal::progressIsShownToWhoWatches() {
    QFETCH(QStringList, arguments);
    TestLibrary library;
    MakeAssembly(library);
    Watched watched(arguments, library.Folder(), Watched::kError);
    QCOMPARE(watched.End(), 0);
    const QByteArray shown = watched.terminal.ReadAll();
    QVERIFY(shown.contains("\r\x1b[K"));
    QVERIFY(shown.endsWith("\r\x1b[K"));  // nothing of it is left
    Watched unwatched(arguments, library.Folder(), 0);
    QCOMPARE(unwatched.End(), 0);
    QCOMPARE(unwatched.err, QByteArray());
    QCOMPARE(unwatched.out, watched.out);
}

void TestTerminal::headersAreBoldUnlessColoursAreUnwanted() {
    TestLibrary library;
    MakeAssembly(library);
    const QStringList arguments{QStringLiteral("references"), QStringLiteral("top.tfmasm")};
    Watched bold(arguments, library.Folder(), Watched::kOutput);
    QCOMPARE(bold.End(), 0);
    QVERIFY(bold.terminal.ReadAll().startsWith("\x1b[1mDocument"));
    Watched plain(arguments, library.Folder(), Watched::kOutput, QStringLiteral("1"));
    QCOMPARE(plain.End(), 0);
    QVERIFY(plain.terminal.ReadAll().startsWith("Document"));
}

DOCBENCH_TEST_MAIN(QCoreApplication, TestTerminal)
#include "tst_terminal.moc"
