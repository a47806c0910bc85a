#include <QDirIterator>

#include "tests/support/installation.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

class TestInstall : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY2(install_.outcome.code == 0, qPrintable(install_.outcome.err)); }

    void theProgramFindsItsFolderThroughTheLinkOnTheSearchPath() {
        TestLibrary library;
        const QString bolt = library.Make(QStringLiteral("bolt.tfmprt"));
        const Outcome run = RunProgram(install_.Path(QStringLiteral("usr/bin/docbench")),
                                       {QStringLiteral("tree"), bolt});
        QVERIFY2(run.code == 0, qPrintable(run.err));
        QCOMPARE(run.out, QStringLiteral("bolt  %1\n").arg(bolt));
    }

    void itSpeaksTheLanguagesThatAreInstalledWithIt() {
        const auto complaint = [&](const char* locale) {
            return RunProgram(
                       install_.Path(QStringLiteral("usr/bin/docbench")),
                       {QStringLiteral("list"), QStringLiteral("--delete"), QStringLiteral("none")},
                       {{QStringLiteral("LC_ALL"), QString::fromLatin1(locale)}})
                .err;
        };
        const QString english = complaint("C.UTF-8");
        const QString german = complaint("de_DE.UTF-8");
        QVERIFY(english.contains(QLatin1String("none")));
        QVERIFY(german.contains(QLatin1String("none")));
        QVERIFY(english != german);
    }

    void thePrefixMayBeMoved() {
        Installation other;
        QVERIFY(QDir().rename(other.Path(QStringLiteral("usr")),
                              other.Path(QStringLiteral("moved to"))));
        const QString folder = other.Path(QStringLiteral("samples"));
        const QString bin = other.Path(QStringLiteral("moved to/bin/"));
        const Outcome made = RunProgram(bin + QStringLiteral("docbench-samples"), {folder});
        QVERIFY2(made.code == 0, qPrintable(made.err));
        const Outcome run = RunProgram(bin + QStringLiteral("docmodel"),
                                       {QStringLiteral("show"), made.out.trimmed()});
        QVERIFY2(run.code == 0, qPrintable(run.err));
    }

    void everyProgramIsOnTheSearchPath() {
        QStringList names = QDir(install_.Path(QStringLiteral("usr/bin"))).entryList(QDir::Files);
        names.sort();
        QCOMPARE(names,
                 QStringList({QStringLiteral("docbench"), QStringLiteral("docbench-samples"),
                              QStringLiteral("docbench-thumbnailer"), QStringLiteral("docmodel")}));
    }

    // Debug information may name it; what programs and loaders read may not.
    void nothingInstalledPointsIntoTheBuild() {
        const QByteArray build = BuildFolder().toLocal8Bit();
        int programs = 0;
        int texts = 0;
        for (QDirIterator files(install_.Path(QStringLiteral("usr")), QDir::Files,
                                QDirIterator::Subdirectories);
             files.hasNext();) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            QByteArray contents = file.readAll();
            const bool isProgram = contents.startsWith(
                "\x7F"
                "ELF");
            ++(isProgram ? programs : texts);
            if (isProgram)
                contents =
                    RunProgram(QStringLiteral("readelf"), {QStringLiteral("-d"), file.fileName()})
                        .out.toLocal8Bit();
            QVERIFY2(!contents.contains(build), qPrintable(file.fileName()));
        }
        QVERIFY(programs >= 7);
        QVERIFY(texts > 50);
    }

private:
    Installation install_;
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestInstall)

#include "tst_install.moc"
