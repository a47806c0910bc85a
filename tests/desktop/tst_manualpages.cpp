#include <QDir>
#include <QRegularExpression>

#include "tests/support/installation.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

QString HelpOf(const QStringList& words) {
    return RunProgram(QCoreApplication::applicationDirPath() + u'/' + words[0],
                      words.mid(1) + QStringList(QStringLiteral("--help")))
        .out;
}

QStringList Matches(const QString& text, const char* pattern) {
    const QRegularExpression expression(QString::fromLatin1(pattern),
                                        QRegularExpression::MultilineOption);
    QStringList found;
    for (auto matches = expression.globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured(1));
    return found;
}

// The words behind "Commands" in a program's help.
QStringList CommandsOf(const QString& program) {
    const QString help = HelpOf({program});
    const qsizetype begin = help.indexOf(QLatin1String("\nCommands"));
    return begin < 0 ? QStringList() : Matches(help.mid(begin), "^  ([a-z][a-z-]*)  ");
}

}  // namespace

class TestManualPages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyCommandHasAPageWithAllItsOptions_data() {
        QTest::addColumn<QStringList>("words");
        for (const char* program :
             {"docbench", "docmodel", "docbench-samples", "docbench-thumbnailer"}) {
            QTest::newRow(program) << QStringList{program};
            for (const QString& command : CommandsOf(program))
                QTest::addRow("%s %s", program, qPrintable(command))
                    << QStringList{program, command};
        }
    }

    void everyCommandHasAPageWithAllItsOptions() {
        QFETCH(QStringList, words);
        const QString page = Rendered(words.join(u'-'));
        const QString help = HelpOf(words);
        const QStringList options = Matches(help, "(?:^  |, )(--?[a-z0-9][a-z-]*)");
        if (help.contains(QLatin1String("Options:")))
            QVERIFY(options.contains(QLatin1String("--help")));
        for (const QString& option : options)
            QVERIFY2(page.contains(QRegularExpression(QStringLiteral("(^ +|, )%1\\b").arg(option),
                                                      QRegularExpression::MultilineOption)),
                     qPrintable(option));
        const QString example = Matches(help, "^  (doc[a-z-]+ .*)$").value(0);
        QVERIFY2(page.contains(example), qPrintable(example));
        QVERIFY(page.contains(QLatin1String("EXIT STATUS")));
    }

    void theProgramsListTheirCommands() {
        QVERIFY(CommandsOf("docbench").contains(QLatin1String("tree")));
        QVERIFY(CommandsOf("docmodel").contains(QLatin1String("make-library")));
        const QString page = Rendered(QStringLiteral("docbench"));
        for (const QString& command : CommandsOf("docbench"))
            QVERIFY2(page.contains(QStringLiteral("docbench ") + command), qPrintable(command));
    }

    void noPageHasAWarning() {
        const QStringList pages = QDir(Folder()).entryList(QDir::Files);
        QVERIFY(pages.size() > 20);
        QStringList files;
        for (const QString& page : pages)
            files.append(Folder() + u'/' + page);
        const Outcome man =
            RunProgram(QStringLiteral("man"),
                       QStringList{"--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z"} + files);
        QCOMPARE(man.err, QString());
        QCOMPARE(man.code, 0);
        // What lists of manual pages are made with reads the names too.
        const Outcome names = RunProgram(QStringLiteral("lexgrog"), files);
        QVERIFY2(names.code == 0, qPrintable(names.out));
    }

private:
    static QString Folder() { return BuildFolder() + QStringLiteral("/manual/pages/man"); }
    static QString Rendered(const QString& page) {
        return RunProgram(QStringLiteral("man"),
                          {QStringLiteral("-P"), QStringLiteral("cat"), QStringLiteral("-E"),
                           QStringLiteral("UTF-8"), QStringLiteral("--no-hyphenation"),
                           QStringLiteral("-l"), QStringLiteral("%1/%2.1").arg(Folder(), page)},
                          {{QStringLiteral("MANWIDTH"), QStringLiteral("200")}})
            .out;
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestManualPages)

#include "tst_manualpages.moc"
