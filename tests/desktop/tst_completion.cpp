#include <QDir>

#include "tests/support/installation.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

class TestCompletion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        library_.Make(QStringLiteral("bolt.tfmprt"));
        library_.Make(QStringLiteral("Box with lid.TFMASM"));
        QVERIFY(QDir(library_.Folder()).mkdir(QStringLiteral("bolts")));
        for (const char* name : {"bolt.txt", "bolt", "tfmprt"}) {
            QFile other(library_.Path(QLatin1String(name)));
            QVERIFY(other.open(QIODevice::WriteOnly));
        }
    }

    void bashOffersEveryCommand() {
        const QStringList offers = Bash({QStringLiteral("docbench"), QString()});
        const QString help =
            RunProgram(QCoreApplication::applicationDirPath() + QStringLiteral("/docbench"),
                       {QStringLiteral("--help")})
                .out;
        const QStringList lines = help.mid(help.indexOf(QLatin1String("\nCommands"))).split(u'\n');
        int count = 0;
        for (const QString& line : lines) {
            if (!line.startsWith(QLatin1String("  ")))
                continue;
            ++count;
            const QString command = line.trimmed().section(u' ', 0, 0);
            QVERIFY2(offers.contains(command), qPrintable(command));
        }
        QVERIFY(count >= 10);
        QVERIFY(offers.contains(QLatin1String("bolt.tfmprt")));  // a document opens the window
        QCOMPARE(Bash({QStringLiteral("docbench"), QStringLiteral("ren")}),
                 QStringList(QStringLiteral("rename")));
    }

    void bashOffersTheOptionsOfTheCommand() {
        const QStringList offers = Bash({"docbench", "rename", "--"});
        for (const char* option : {"--help", "--json", "--in", "--dry-run", "--yes", "--root"})
            QVERIFY2(offers.contains(QLatin1String(option)), option);
        QVERIFY(!offers.contains(QLatin1String("--delete")));
        QVERIFY(Bash({"docbench", "list", "--"}).contains(QLatin1String("--delete")));
        QVERIFY(Bash({"docbench", "--"}).contains(QLatin1String("--theme")));
        QVERIFY(Bash({"docmodel", "lock", "--"}).contains(QLatin1String("--references")));
        // Behind "--" there are no options.
        QCOMPARE(Bash({"docbench", "rename", "--", "--"}), QStringList());
    }

    void bashOffersDocumentsWhereACommandTakesOne() {
        QCOMPARE(Bash({"docbench", "tree", "bo"}), QStringList({"bolt.tfmprt", "bolts"}));
        QCOMPARE(Bash({"docbench", "rename", "--json", "bo"}),
                 QStringList({"bolt.tfmprt", "bolts"}));
        QCOMPARE(Bash({"docbench", "replace", "bolt.tfmprt", "bo"}),
                 QStringList({"bolt.tfmprt", "bolts"}));
        QCOMPARE(Bash({"docmodel", "check", "a.tfmprt", "b.tfmprt", "Box\\ w"}),
                 QStringList({"Box with lid.TFMASM"}));
        QCOMPARE(Bash({"docbench", "tree", "'Box w"}), QStringList({"Box with lid.TFMASM"}));
        // Words that are typed as they stand.
        QCOMPARE(Bash({"docbench", "configurations", "bolt.tfmprt", ""}),
                 QStringList({"delete", "rename"}));
        QCOMPARE(Bash({"docbench", "hyperlinks", "bolt.tfmprt", ""}), QStringList("change"));
        QCOMPARE(Bash({"docbench", "configurations", "bolt.tfmprt", "delete", "bo"}),
                 QStringList());
        // The new name is nowhere yet, and a tree takes one document.
        QCOMPARE(Bash({"docbench", "rename", "bolt.tfmprt", "bo"}), QStringList());
        QCOMPARE(Bash({"docbench", "tree", "bolt.tfmprt", "bo"}), QStringList());
    }

    void bashOffersTheValuesOfOptions() {
        QCOMPARE(Bash({"docbench", "where-used", "--in", "bo"}), QStringList("bolts"));
        QCOMPARE(Bash({"docbench", "where-used", "--in", "=", "bo"}), QStringList("bolts"));
        QCOMPARE(Bash({"docbench", "where-used", "--in", "=", "bolts", "bo"}),
                 QStringList({"bolt.tfmprt", "bolts"}));
        QCOMPARE(Bash({"docbench", "rename", "--root", "Bo"}),
                 QStringList({"Box with lid.TFMASM"}));
        QCOMPARE(Bash({"docmodel", "lock", "--references", ""}), QStringList({"off", "on"}));
        // Any file: left to the shell.
        QCOMPARE(Bash({"docbench", "where-used", "-o", "bo"}), QStringList());
    }

    void theBashScriptsAreCleanShell() {
        for (const QString& script : QDir(Scripts("bash")).entryList(QDir::Files)) {
            const Outcome run = RunProgram(QStringLiteral("bash"),
                                           {QStringLiteral("-n"), Scripts("bash") + u'/' + script});
            QCOMPARE(run.err, QString());
        }
    }

    void zshOffersTheSame_data() {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("offer");
        QTest::addColumn<QString>("no");
        QTest::newRow("command") << "docbench ren"
                                 << "rename"
                                 << "tree";
        QTest::newRow("options") << "docbench rename --"
                                 << "--dry-run"
                                 << "--delete";
        QTest::newRow("document") << "docbench tree bo"
                                  << "bolt.tfmprt"
                                  << "bolt.txt";
        QTest::newRow("folder") << "docbench where-used --in bo"
                                << "bolts"
                                << "bolt.tfmprt";
        QTest::newRow("word") << "docbench configurations bolt.tfmprt re"
                              << "rename"
                              << "bolts";
        QTest::newRow("other program") << "docmodel lock --references "
                                       << "on"
                                       << "bolts";
        QTest::newRow("without commands") << "docbench-thumbnailer --s"
                                          << "--size"
                                          << "--help";
    }

    void zshOffersTheSame() {
        QFETCH(QString, line);
        QFETCH(QString, offer);
        QFETCH(QString, no);
        const QStringList offers = Zsh(line);
        QVERIFY2(offers.contains(offer), qPrintable(offers.join(u'|')));
        QVERIFY2(!offers.contains(no), qPrintable(offers.join(u'|')));
    }

private:
    static QString Scripts(const char* shell) {
        return BuildFolder() + QStringLiteral("/manual/pages/") + QLatin1String(shell);
    }

    // What bash offers for the last word, which may be empty, in the folder of the documents.
    QStringList Bash(const QStringList& words) const {
        const QString script = QStringLiteral(
            "source \"$1/$2\" || exit; cd \"$3\" || exit; shift 3\n"
            "COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1))\n"
            "function=$(complete -p \"$1\"); function=${function##*-F }\n"
            "${function%% *}\n"
            "((${#COMPREPLY[@]})) && printf '%s\\n' \"${COMPREPLY[@]}\"\n"
            "exit 0");
        const Outcome run = RunProgram(
            QStringLiteral("bash"),
            QStringList{"-c", script, "bash", Scripts("bash"), words[0], library_.Folder()} +
                words);
        if (run.code != 0 || !run.err.isEmpty())
            qFatal("bash: %s", qPrintable(run.err));
        QStringList offers = run.out.split(u'\n', Qt::SkipEmptyParts);
        offers.sort();
        return offers;
    }

    QStringList Zsh(const QString& line) const {
        QFile capture(QStringLiteral(":/capture.zsh"));
        if (!capture.open(QIODevice::ReadOnly))
            qFatal("no capture.zsh");
        const QString script =
            QStringLiteral("cd \"$3\" || exit\n") + QString::fromUtf8(capture.readAll());
        return RunProgram(QStringLiteral("zsh"),
                          {QStringLiteral("-f"), QStringLiteral("-c"), script,
                           QStringLiteral("capture"), Scripts("zsh"), line, library_.Folder()},
                          {{QStringLiteral("TERM"), QStringLiteral("dumb")}})
            .out.split(u'\n', Qt::SkipEmptyParts);
    }

    TestLibrary library_;
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestCompletion)

#include "tst_completion.moc"
