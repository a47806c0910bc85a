#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include "tests/app/transcript.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

// The commands as their users see them: each file of the folder cli/ is a transcript.
class TestCli : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aTranscriptPrintsWhatItSays_data();
    void aTranscriptPrintsWhatItSays();
    void theExamplesOfTheManualAreTrue();
    void theExamplesOfTheGuideAreTrue();
};

namespace {

QString ReadText(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("can't read %s", qPrintable(path));
    return QString::fromUtf8(file.readAll());
}

// With DOCBENCH_WRITE_TRANSCRIPTS set, the file gets what the commands print: to be looked at line
// by line before it is kept.
void WriteTranscript(const QString& path, const std::vector<Step>& steps,
                     const TranscriptRunner& runner) {
    QString written;
    for (const Step& step : steps) {
        if (!step.comment.isEmpty())
            written += (written.isEmpty() ? QString() : QStringLiteral("\n")) +
                       step.comment.join(u'\n') + u'\n';
        written += QStringLiteral("$ ") +
                   QString(step.command).replace(u'\n', QLatin1String("\n> ")) + u'\n';
        const QStringList printed = runner.Run(step);
        const bool agrees = TranscriptRunner::Agree(step.expected, printed);
        for (const QString& line : agrees ? step.expected : printed)
            written += line + u'\n';
    }
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(written.toUtf8()) < 0)
        qFatal("can't write %s", qPrintable(path));
}

void Check(const QString& path, const QString& token, bool isMarkdown) {
    const QTemporaryDir folder;
    const TranscriptRunner runner(folder.path(), token);
    const std::vector<Step> steps = ReadTranscript(ReadText(path), isMarkdown);
    QVERIFY(!steps.empty());
    if (qEnvironmentVariableIsSet("DOCBENCH_WRITE_TRANSCRIPTS") && !isMarkdown)
        return WriteTranscript(path, steps, runner);
    for (const Step& step : steps) {
        const QStringList printed = runner.Run(step);
        if (TranscriptRunner::Agree(step.expected, printed))
            continue;
        const QString message =
            QStringLiteral("%1:%2: %3\nexpected:\n%4\nprinted:\n%5")
                .arg(path)
                .arg(step.line)
                .arg(step.command, step.expected.join(u'\n'), printed.join(u'\n'));
        QFAIL(qPrintable(message));
    }
}

}  // namespace

void TestCli::aTranscriptPrintsWhatItSays_data() {
    QTest::addColumn<QString>("path");
    const QDir folder(QStringLiteral(DOCBENCH_TRANSCRIPTS));
    const QStringList names = folder.entryList({QStringLiteral("*.txt")}, QDir::Files);
    QVERIFY(!names.isEmpty());
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << folder.filePath(name);
}

void TestCli::aTranscriptPrintsWhatItSays() {
    QFETCH(QString, path);
    Check(path, QStringLiteral("DIR"), false);
}

void TestCli::theExamplesOfTheManualAreTrue() {
    Check(QStringLiteral(DOCBENCH_MANUAL), QStringLiteral("/work/gearbox"), true);
}

void TestCli::theExamplesOfTheGuideAreTrue() {
    Check(QStringLiteral(DOCBENCH_GUIDE), QStringLiteral("/home/ann/gearbox"), true);
}

DOCBENCH_TEST_MAIN(QCoreApplication, TestCli)
#include "tst_cli.moc"
