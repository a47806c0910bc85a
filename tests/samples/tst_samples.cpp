#include <QDirIterator>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "docmodel/access.h"
#include "services/paths.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

struct Run {
    explicit Run(const QStringList& arguments) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(name);  // it does without a display of its own accord
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationDirPath() + "/docbench-samples", arguments);
        if (!process.waitForFinished(120000))
            qFatal("docbench-samples does not end");
        code = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        out = QString::fromUtf8(process.readAllStandardOutput());
        err = QString::fromUtf8(process.readAllStandardError());
    }
    int code;
    QString out;
    QString err;
};

QStringList FilesBelow(const QString& folder) {
    QStringList files;
    QDirIterator iterator(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (iterator.hasNext())
        files.append(iterator.next());
    files.sort();
    return files;
}

docmodel::Access& Library() {
    static docmodel::Access library;
    return library;
}

std::unique_ptr<DocumentFile> Opened(const QString& path) {
    auto file = Library().MakeDocumentFile();
    file->Open(path);
    return file;
}

std::unique_ptr<DocumentInfo> InfoOf(const QString& path) {
    auto info = Library().MakeDocumentInfo();
    if (!info->Open(path))
        qFatal("no summary in %s", qPrintable(path));
    return info;
}

QList<ComponentRow> ComponentsOf(const QString& path) {
    const auto file = Opened(path);
    QList<ComponentRow> rows;
    for (int index = 0; index < file->GetComponentCount(); ++index)
        rows.append(file->GetComponent(index, QString()));
    return rows;
}

QList<ExternalRow> ExternalsOf(const QString& path) {
    const auto file = Opened(path);
    QList<ExternalRow> rows;
    for (int index = 0; index < file->GetExternalReferenceCount(); ++index)
        rows.append(file->GetExternalReference(index, QString()));
    return rows;
}

QMap<QString, QVariant> PropertiesOf(DocumentInfo& info) {
    QMap<QString, QVariant> properties;
    for (int index = 0; index < info.GetCustomCount(); ++index) {
        const CustomProperty property = info.GetCustomProperty(index);
        properties.insert(property.name, property.value);
    }
    return properties;
}

// How many assemblies stand above one another at most, the one at `path` included.
int LevelsOf(const QString& path) {
    int below = 0;
    for (const ComponentRow& row : ComponentsOf(path))
        if (DocTypeOf(row.path) == DocType::Assembly)
            below = qMax(below, LevelsOf(row.path));
    return below + 1;
}

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QByteArray PreviewOf(const QString& document) {
    const QTemporaryDir scratch;
    const QString bitmap = scratch.filePath("preview.bmp");
    return Library().MakePreviewExtractor()->ExtractPreview(document, bitmap) == 0 ? BytesOf(bitmap)
                                                                                   : QByteArray();
}

}  // namespace

class tst_Samples : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void TheLastLineIsThePathOfTheMainAssembly();
    void TheGearboxHasAboutFortyDocumentsInSubfolders();
    void TheGearboxHasThreeLevelsOfAssemblies();
    void EveryReferenceExistsButTheOneThatIsMeantToBeMissing();
    void TwoAssembliesHoldEachOther();
    void NoOtherDocumentHoldsItself();
    void AScrewIsUsedManyTimesByManyAssemblies();
    void ExternalReferencesAreOfEveryKind();
    void DrawingsHoldWhatTheyShow();
    void ConfigurationsOfScrewsHaveTheirProperties();
    void PartsAndAssembliesHaveAConfiguration();
    void EveryDocumentHasItsProperties();
    void HyperlinksPointToReservedNamesOnly();
    void OneDocumentIsLockedAndOneHasItsReferencesLocked();
    void EveryDocumentHasAPreviewOfItsOwnKind();
    void ASecondRunReplacesItsOwnDocumentsAlone();
    void AForeignFileInTheWayIsLeftAloneAndNothingIsWritten();
    void AFolderThatCannotBeMadeIsAFailure();
    void WrongUsageEndsWithTwo_data();
    void WrongUsageEndsWithTwo();

private:
    QString Path(const QString& name) const { return folder_.filePath("lib/" + name); }
    QStringList Documents() const { return FilesBelow(Path("")); }

    QTemporaryDir folder_;
    QString out_;
};

void tst_Samples::initTestCase() {
    const Run run({Path("")});
    QVERIFY2(run.code == 0, qPrintable(run.err));
    out_ = run.out;
}

void tst_Samples::TheLastLineIsThePathOfTheMainAssembly() {
    QCOMPARE(out_.trimmed().split('\n').last(), Path("gearbox.tfmasm"));
}

void tst_Samples::TheGearboxHasAboutFortyDocumentsInSubfolders() {
    const QStringList documents = Documents();
    QVERIFY2(documents.size() >= 40 && documents.size() <= 50,
             qPrintable(QString::number(documents.size())));
    QSet<QString> folders;
    for (const QString& document : documents) {
        QVERIFY2(DocTypeOf(document) != DocType::None, qPrintable(document));
        folders.insert(FolderOf(document));
    }
    QVERIFY(folders.size() >= 6);
    QVERIFY(QFileInfo::exists(Path("fasteners/hex screw M6.tfmprt")));
}

void tst_Samples::TheGearboxHasThreeLevelsOfAssemblies() {
    QCOMPARE(LevelsOf(Path("gearbox.tfmasm")), 3);
}

void tst_Samples::EveryReferenceExistsButTheOneThatIsMeantToBeMissing() {
    QStringList missing;
    for (const QString& document : Documents()) {
        for (const ComponentRow& row : ComponentsOf(document))
            if (!QFileInfo::exists(row.path))
                missing.append(document + " -> " + row.path);
        for (const ExternalRow& row : ExternalsOf(document))
            if (!QFileInfo::exists(row.path))
                missing.append(document + " -> " + row.path);
    }
    QCOMPARE(missing,
             QStringList{Path("missing.tfmasm") + " -> " + Path("cover/lost bearing cap.tfmprt")});
}

void tst_Samples::TwoAssembliesHoldEachOther() {
    QCOMPARE(ComponentsOf(Path("circular-a.tfmasm")).first().path, Path("circular-b.tfmasm"));
    QCOMPARE(ComponentsOf(Path("circular-b.tfmasm")).first().path, Path("circular-a.tfmasm"));
}

// Rows of both tables lead from document to document; taking away those whose rows all lead to
// documents already taken away leaves the ones on a cycle.
void tst_Samples::NoOtherDocumentHoldsItself() {
    QMap<QString, QStringList> holds;
    for (const QString& document : Documents()) {
        QStringList& rows = holds[document];
        for (const ComponentRow& row : ComponentsOf(document))
            rows.append(row.path);
        for (const ExternalRow& row : ExternalsOf(document))
            rows.append(row.path);
    }
    for (bool changed = true; changed;) {
        changed = false;
        for (const QString& document : holds.keys()) {
            const QStringList rows = holds.value(document);
            if (std::any_of(rows.begin(), rows.end(),
                            [&](const QString& row) { return holds.contains(row); }))
                continue;
            holds.remove(document);
            changed = true;
        }
    }
    QCOMPARE(holds.keys(), (QStringList{Path("circular-a.tfmasm"), Path("circular-b.tfmasm")}));
}

void tst_Samples::AScrewIsUsedManyTimesByManyAssemblies() {
    int holders = 0;
    QSet<int> counts;
    for (const QString& document : Documents()) {
        const int before = holders;
        for (const ComponentRow& row : ComponentsOf(document))
            if (row.name.contains("screw")) {
                holders = before + 1;
                counts.insert(row.count);
            }
    }
    QVERIFY(holders >= 3);
    QVERIFY(counts.contains(6));
    QVERIFY(counts.contains(8));
}

void tst_Samples::ExternalReferencesAreOfEveryKind() {
    const auto kindAndPath = [this](const QString& name) {
        const ExternalRow row = ExternalsOf(Path(name)).first();
        return row.kind + ": " + row.path;
    };
    QCOMPARE(kindAndPath("housing/housing.tfmprt"),
             "derived: " + Path("housing/housing casting.tfmprt"));
    QCOMPARE(kindAndPath("housing/left bracket.tfmprt"),
             "mirrored: " + Path("housing/right bracket.tfmprt"));
    QCOMPARE(kindAndPath("cover/cover gasket.tfmprt"),
             "in-context: " + Path("housing/housing unit.tfmasm"));
}

void tst_Samples::DrawingsHoldWhatTheyShow() {
    int drawings = 0;
    for (const QString& document : Documents()) {
        if (DocTypeOf(document) != DocType::Drawing)
            continue;
        ++drawings;
        const QList<ComponentRow> rows = ComponentsOf(document);
        QCOMPARE(rows.size(), 1);
        QCOMPARE(FolderOf(rows.first().path) + rows.first().name,
                 FolderOf(document) + BaseNameOf(document));
    }
    QVERIFY(drawings >= 4);
    QCOMPARE(ComponentsOf(Path("gearbox.tfmdrw")).first().path, Path("gearbox.tfmasm"));
}

void tst_Samples::ConfigurationsOfScrewsHaveTheirProperties() {
    QStringList names;
    for (const char* screw : {"fasteners/hex screw M6.tfmprt", "fasteners/hex screw M8.tfmprt"}) {
        const auto file = Opened(Path(screw));
        for (int index = 0; index < file->GetConfigurationCount(); ++index) {
            names.append(file->GetConfiguration(index));
            const auto info = file->GetCustomProperties(index);
            QVERIFY(info);
            const QMap<QString, QVariant> properties = PropertiesOf(*info);
            QCOMPARE(properties["Length"].toDouble(),
                     names.last().section('x', 1).toDouble());  // M6x20 is 20 mm long
            QCOMPARE(properties["Mass"].typeId(), int(QMetaType::Double));
            QVERIFY(properties["Material"].toString().startsWith("Steel"));
        }
    }
    for (const char* name : {"M6x20", "M6x30", "M8x25"})
        QVERIFY2(names.contains(QString(name)), name);
}

void tst_Samples::PartsAndAssembliesHaveAConfiguration() {
    for (const QString& document : Documents())
        QVERIFY2(DocTypeOf(document) == DocType::Drawing ||
                     Opened(document)->GetConfigurationCount() > 0,
                 qPrintable(document));
}

void tst_Samples::EveryDocumentHasItsProperties() {
    QSet<QString> numbers;
    QSet<bool> released;
    for (const QString& document : Documents()) {
        const auto info = InfoOf(document);
        QVERIFY2(!info->GetTitle().isEmpty(), qPrintable(document));
        QVERIFY2(!info->GetAuthor().isEmpty(), qPrintable(document));
        const QMap<QString, QVariant> properties = PropertiesOf(*info);
        numbers.insert(properties["Document Number"].toString());
        released.insert(properties["Released"].toBool());
        QCOMPARE(properties["Released"].typeId(), int(QMetaType::Bool));
        QCOMPARE(properties["Recorded"].typeId(), int(QMetaType::QDateTime));
        QVERIFY(!properties["Owner"].toString().isEmpty());
        if (DocTypeOf(document) == DocType::Part) {
            QVERIFY2(!properties["Material"].toString().isEmpty(), qPrintable(document));
            QCOMPARE(properties["Mass"].typeId(), int(QMetaType::Double));
        }
    }
    QCOMPARE(numbers.size(), Documents().size());
    QCOMPARE(released.size(), 2);
}

void tst_Samples::HyperlinksPointToReservedNamesOnly() {
    const QRegularExpression reserved("^https://([a-z]+\\.)?example\\.(com|org|net)/");
    int links = 0;
    for (const QString& document : Documents()) {
        const auto file = Library().MakeDocumentFile();
        file->OpenHyperlinks(document);
        for (int index = 0; index < file->GetHyperlinkCount(); ++index, ++links)
            QVERIFY2(file->GetHyperlink(index).contains(reserved),
                     qPrintable(file->GetHyperlink(index)));
    }
    QVERIFY(links >= 8);
}

void tst_Samples::OneDocumentIsLockedAndOneHasItsReferencesLocked() {
    QStringList lockedBy;
    int referencesLocked = 0;
    for (const QString& document : Documents()) {
        const auto info = InfoOf(document);
        if (info->GetLocked())
            lockedBy.append(info->GetLockedBy());
        referencesLocked += Opened(document)->GetReferencesLocked() ? 1 : 0;
    }
    QCOMPARE(lockedBy, QStringList{"m.keller"});
    QCOMPARE(referencesLocked, 1);
}

void tst_Samples::EveryDocumentHasAPreviewOfItsOwnKind() {
    for (const QString& document : Documents()) {
        const QImage preview = QImage::fromData(PreviewOf(document));
        QVERIFY2(preview.size() == QSize(640, 480), qPrintable(document));
        // Something stands in the middle of the ground, which is light at its corners.
        QVERIFY2(preview.pixelColor(4, 4).lightness() > 220, qPrintable(document));
        bool dark = false;
        for (int x = 0; x < preview.width(); ++x)
            dark = dark || preview.pixelColor(x, 240).lightness() < 140;
        QVERIFY2(dark, qPrintable(document));
    }
    QVERIFY(PreviewOf(Path("housing/left bracket.tfmprt")) !=
            PreviewOf(Path("housing/right bracket.tfmprt")));
}

void tst_Samples::ASecondRunReplacesItsOwnDocumentsAlone() {
    const QString screw = Path("fasteners/hex screw M6.tfmprt");
    const QString notes = Path("fasteners/notes.txt");
    const QString renamed = Path("fasteners/my screw.tfmprt");
    const auto info = InfoOf(screw);
    info->SetTitle("Changed by the user");
    info->Save();
    QMap<QString, QByteArray> previews;
    for (const QString& document : Documents())
        previews.insert(document, PreviewOf(document));
    QVERIFY(Write(notes, "keep"));
    QVERIFY(QFile::copy(screw, renamed));
    const QByteArray ofRenamed = BytesOf(renamed);

    const Run run({Path("")});
    QVERIFY2(run.code == 0, qPrintable(run.err));
    QCOMPARE(InfoOf(screw)->GetTitle(), QString("Hexagon head screw M6"));
    QCOMPARE(BytesOf(notes), QByteArray("keep"));
    QCOMPARE(BytesOf(renamed), ofRenamed);
    QVERIFY(QFile::remove(notes) && QFile::remove(renamed));
    QCOMPARE(Documents(), previews.keys());
    for (const QString& document : previews.keys())
        QVERIFY2(PreviewOf(document) == previews[document], qPrintable(document));
}

void tst_Samples::AForeignFileInTheWayIsLeftAloneAndNothingIsWritten() {
    const QTemporaryDir folder;
    const QString foreign = folder.filePath("gearbox.tfmdrw");
    QVERIFY(Write(foreign, "somebody's drawing"));
    const Run run({folder.path()});
    QCOMPARE(run.code, 1);
    QVERIFY2(run.err.contains(foreign), qPrintable(run.err));
    QVERIFY(run.out.isEmpty());
    QCOMPARE(FilesBelow(folder.path()), QStringList{foreign});
    QCOMPARE(BytesOf(foreign), QByteArray("somebody's drawing"));
}

void tst_Samples::AFolderThatCannotBeMadeIsAFailure() {
    const QTemporaryDir folder;
    QVERIFY(Write(folder.filePath("file"), "a file"));
    const Run run({folder.filePath("file/library")});
    QCOMPARE(run.code, 1);
    QVERIFY2(run.err.contains(folder.filePath("file/library")), qPrintable(run.err));
}

void tst_Samples::WrongUsageEndsWithTwo_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("no folder") << QStringList();
    QTest::newRow("two folders") << QStringList{"a", "b"};
    QTest::newRow("an option") << QStringList{"--force"};
    QTest::newRow("an empty folder name") << QStringList{""};
}

void tst_Samples::WrongUsageEndsWithTwo() {
    QFETCH(const QStringList, arguments);
    const Run run(arguments);
    QCOMPARE(run.code, 2);
    QVERIFY2(run.err.contains("usage: docbench-samples FOLDER"), qPrintable(run.err));
    QVERIFY(run.out.isEmpty());
}

DOCBENCH_TEST_MAIN(QCoreApplication, tst_Samples)
#include "tst_samples.moc"
