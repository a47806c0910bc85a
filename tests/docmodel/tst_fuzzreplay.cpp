#include <QDir>
#include <QRandomGenerator>
#include <QTest>

#include "fuzz/entries.h"
#include "tests/docmodel/packagetools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

// Runs the fuzzers' seeds, and some thousand inputs made of them, through the fuzzers' own entries.
class TestFuzzReplay : public QObject {
    Q_OBJECT

private:
    static void RunAll(const QByteArray& bytes) {
        const auto* data = reinterpret_cast<const uint8_t*>(bytes.constData());
        for (const auto entry : {FuzzRead, FuzzSave, FuzzChange})
            entry(data, size_t(bytes.size()));
    }

private Q_SLOTS:
    void EverySeedAndWhatIsMadeOfItIsReadSavedIntoAndChanged_data() {
        QTest::addColumn<QString>("path");
        const QDir corpus(QStringLiteral(FUZZ_CORPUS));
        for (const QString& name : corpus.entryList(QDir::Files))
            QTest::newRow(qPrintable(name)) << corpus.filePath(name);
    }

    void EverySeedAndWhatIsMadeOfItIsReadSavedIntoAndChanged() {
        QFETCH(QString, path);
        const QByteArray seed = FileBytes(path);
        RunAll(seed);
        constexpr int kMutants = 100;
        QRandomGenerator generator(42);  // the same inputs at each run
        for (int i = 0; i < kMutants; ++i) {
            QByteArray bytes = seed;
            for (quint32 changes = 1 + generator.bounded(4U); changes > 0; --changes) {
                const qsizetype at = generator.bounded(int(bytes.size()));
                switch (generator.bounded(4)) {
                    case 0:
                        bytes[at] = char(generator.bounded(256));
                        break;
                    case 1:
                        bytes[at] = char(0xff);
                        break;
                    case 2:
                        bytes.insert(at, seed.mid(generator.bounded(int(seed.size())), 40));
                        break;
                    default:
                        bytes.remove(at, 1 + generator.bounded(30));
                        bytes += 'P';
                }
            }
            RunAll(bytes);
        }
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestFuzzReplay)
#include "tst_fuzzreplay.moc"
