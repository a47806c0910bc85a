#include <QImageReader>
#include <QMimeDatabase>
#include <QSettings>

#include "tests/support/installation.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

const QString kId = QStringLiteral("org.tessaforma.Docbench");

// The value of a key in a desktop file, as a list.
QStringList ListIn(const QString& file, const QString& key) {
    QFile text(file);
    if (!text.open(QIODevice::ReadOnly))
        return {};
    for (const QByteArray& line : text.readAll().split('\n'))
        if (line.startsWith(key.toLatin1() + '='))
            return QString::fromUtf8(line.mid(key.size() + 1)).split(u';', Qt::SkipEmptyParts);
    return {};
}

}  // namespace

class TestDesktopFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY2(install_.outcome.code == 0, qPrintable(install_.outcome.err));
        const Outcome run = RunProgram(QStringLiteral("update-mime-database"),
                                       {install_.Data(QStringLiteral("mime"))});
        QVERIFY2(run.code == 0, qPrintable(run.err));
        // Before anything asks for a type.
        qputenv("XDG_DATA_DIRS",
                (install_.Path(QStringLiteral("usr/share")) + QStringLiteral(":/usr/share"))
                    .toLocal8Bit());
    }

    void theDesktopEntryIsValid() {
        const Outcome run = RunProgram(QStringLiteral("desktop-file-validate"), {Entry()});
        QVERIFY2(run.code == 0 && run.out.isEmpty(), qPrintable(run.out + run.err));
    }

    void theEntryStartsAProgramThatIsInstalled() {
        for (const QString& file : {Entry(), Thumbnailer()}) {
            const QString program =
                ListIn(file, QStringLiteral("Exec")).value(0).section(u' ', 0, 0);
            QCOMPARE(ListIn(file, QStringLiteral("TryExec")).value(0), program);
            QVERIFY(QFileInfo(install_.Path(QStringLiteral("usr/bin/") + program)).isExecutable());
        }
    }

    void theSoftwareCentreTakesTheDescription() {
        const Outcome run =
            RunProgram(QStringLiteral("appstreamcli"),
                       {QStringLiteral("validate"), QStringLiteral("--no-net"),
                        install_.Data(QStringLiteral("metainfo/%1.metainfo.xml").arg(kId))});
        QVERIFY2(run.code == 0, qPrintable(run.out + run.err));
    }

    void theDescriptionTellsOfTheVersionThatIsInstalled() {
        QFile file(install_.Data(QStringLiteral("metainfo/%1.metainfo.xml").arg(kId)));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        const QString version = RunProgram(install_.Path(QStringLiteral("usr/bin/docbench")),
                                           {QStringLiteral("--version")})
                                    .out.trimmed()
                                    .section(u' ', -1);
        const qsizetype newest = text.indexOf(QLatin1String("<release "));
        QVERIFY(newest > 0);
        QVERIFY(
            text.mid(newest).startsWith(QStringLiteral("<release version=\"%1\"").arg(version)));
    }

    void theDocumentTypesAreWellFormed() {
        const Outcome run =
            RunProgram(QStringLiteral("xmllint"),
                       {QStringLiteral("--noout"),
                        install_.Data(QStringLiteral("mime/packages/%1.xml").arg(kId))});
        QVERIFY2(run.code == 0, qPrintable(run.err));
    }

    void everyExtensionHasItsType_data() {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("type");
        for (const char* extension : {"tfmprt", "prt", "PRT"})
            QTest::newRow(extension) << extension << "application/vnd.tessaforma.part";
        for (const char* extension : {"tfmasm", "asm"})
            QTest::newRow(extension) << extension << "application/vnd.tessaforma.assembly";
        for (const char* extension : {"tfmdrw", "drw"})
            QTest::newRow(extension) << extension << "application/vnd.tessaforma.drawing";
    }

    void everyExtensionHasItsType() {
        QFETCH(QString, extension);
        QFETCH(QString, type);
        TestLibrary library;
        const QString file = library.Make(QStringLiteral("bolt.") + extension);
        const QMimeType found = QMimeDatabase().mimeTypeForFile(file);
        QCOMPARE(found.name(), type);
        QVERIFY(found.inherits(QStringLiteral("application/zip")));
        QVERIFY(!found.comment().isEmpty());
        QVERIFY(ListIn(Entry(), QStringLiteral("MimeType")).contains(type));
        QVERIFY(ListIn(Thumbnailer(), QStringLiteral("MimeType")).contains(type));
        QVERIFY(IsPicture(QStringLiteral("mimetypes/") + found.iconName()));
    }

    void anAssemblerSourceIsNoAssembly() {
        const QTemporaryDir folder;
        const QString path = folder.filePath("boot.asm");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("; boots\n\tmov ax, 1\n") > 0);
        file.close();
        QCOMPARE(QMimeDatabase().mimeTypeForFile(path).name(), QStringLiteral("text/x-asm"));
    }

    void thePackageOfAnotherProgramIsNotTaken() {
        QCOMPARE(QMimeDatabase().mimeTypeForData(QByteArray("PK\x03\x04", 4)).name(),
                 QStringLiteral("application/zip"));
    }

    void theProgramHasItsIcon() {
        QCOMPARE(ListIn(Entry(), QStringLiteral("Icon")), QStringList(kId));
        QVERIFY(IsPicture(QStringLiteral("apps/") + kId));
    }

private:
    QString Entry() const {
        return install_.Data(QStringLiteral("applications/%1.desktop").arg(kId));
    }
    QString Thumbnailer() const {
        return install_.Data(QStringLiteral("thumbnailers/docbench.thumbnailer"));
    }
    bool IsPicture(const QString& name) const {
        return !QImageReader(
                    install_.Data(QStringLiteral("icons/hicolor/scalable/%1.svg").arg(name)))
                    .read()
                    .isNull();
    }

    Installation install_;
};

DOCBENCH_TEST_MAIN(QGuiApplication, TestDesktopFiles)

#include "tst_desktopfiles.moc"
