#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QTest>
#include <QThread>

#include "tests/docmodel/packagetools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

namespace {

// Another process that holds a lock on a file until this is destroyed.
class OtherProcess {
public:
    OtherProcess(const QString& path, int command, short type) {
        int toChild[2];
        int fromChild[2];
        if (pipe(toChild) != 0 || pipe(fromChild) != 0)
            qFatal("no pipes");
        child_ = fork();
        if (child_ == 0) {
            close(toChild[1]);
            close(fromChild[0]);
            const int file = open(path.toUtf8().constData(), O_RDWR);
            struct flock lock = {};
            lock.l_type = type;
            lock.l_whence = SEEK_SET;
            lock.l_len = 10;
            char answer = fcntl(file, command, &lock) == 0 ? 'y' : 'n';
            (void)!write(fromChild[1], &answer, 1);
            (void)!read(toChild[0], &answer, 1);  // until the other end is closed
            _exit(0);
        }
        close(toChild[0]);
        close(fromChild[1]);
        char answer = 'n';
        (void)!read(fromChild[0], &answer, 1);
        close(fromChild[0]);
        holds_ = answer == 'y';
        pipe_ = toChild[1];
    }
    ~OtherProcess() {
        close(pipe_);
        waitpid(child_, nullptr, 0);
    }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;
    bool Holds() const { return holds_; }

private:
    pid_t child_ = 0;
    int pipe_ = -1;
    bool holds_ = false;
};

}  // namespace

class TestPackageLock : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("gear.tfmprt"));

    int Counter() const {
        return Package::Open(path_).ReadPart(kDocumentPart, 100).trimmed().toInt();
    }

    // Reads a number and writes the next, as a save reads the newest state and changes it.
    void Count() const {
        for (;;) {
            try {
                PackageWriter writer(path_);
                const QByteArray former = writer.Current().ReadPart(kDocumentPart, 100);
                writer.Put("docProps/core.xml", Noise(3000));
                writer.Commit(QByteArray::number(former.trimmed().toInt() + 1));
                return;
            } catch (const DocumentError& error) {
                if (!error.Description().contains(u"in use"))
                    throw;
            }
        }
    }

private Q_SLOTS:
    void init() {
        NamedParts parts = SmallParts();
        parts.last().second = "0";
        PackageWriter::Create(path_, parts, QFile::exists(path_));
    }

    void ADocumentThatAnotherProcessHoldsIsInUse_data() {
        QTest::addColumn<int>("command");
        QTest::addColumn<int>("type");
        QTest::newRow("classic write lock") << F_SETLK << F_WRLCK;
        QTest::newRow("classic read lock") << F_SETLK << F_RDLCK;
        QTest::newRow("description write lock") << F_OFD_SETLK << F_WRLCK;
        QTest::newRow("description read lock") << F_OFD_SETLK << F_RDLCK;
    }

    void ADocumentThatAnotherProcessHoldsIsInUse() {
        QFETCH(int, command);
        QFETCH(int, type);
        const QByteArray before = FileBytes(path_);
        QCOMPARE(AccessState(path_), 0);
        {
            const OtherProcess other(path_, command, short(type));
            QVERIFY(other.Holds());
            QCOMPARE(AccessState(path_), 3);
            QVERIFY(Package::Open(path_).IsLockedByOther());
            for (const auto& write : {std::function<void()>([&] { SaveAs(path_, "1"); }),
                                      std::function<void()>([&] { PackageWriter::Compact(path_); }),
                                      std::function<void()>([&] {
                                          PackageWriter::Create(path_, {{"a", ""}}, true);
                                      })})
                QCOMPARE(ErrorOf(write), QStringLiteral("The document %1 is in use by another "
                                                        "program. Close it there and try again.")
                                             .arg(path_));
            QVERIFY(ErrorOfReading(path_).isEmpty());  // readers need no lock
        }
        QCOMPARE(AccessState(path_), 0);
        QCOMPARE(FileBytes(path_), before);
        SaveAs(path_, "1");
        QCOMPARE(Counter(), 1);
    }

    void ReadOnlyComesBeforeInUse() {
        const OtherProcess other(path_, F_OFD_SETLK, F_WRLCK);
        QVERIFY(other.Holds());
        QCOMPARE(chmod(path_.toUtf8().constData(), 0444), 0);
        QCOMPARE(AccessState(path_), 2);
        QCOMPARE(chmod(path_.toUtf8().constData(), 0644), 0);
    }

    void AWriterHoldsTheLockFromItsBeginToItsEnd() {
        {
            PackageWriter writer(path_);
            QCOMPARE(AccessState(path_), 3);
            QVERIFY(ErrorOf([&] { PackageWriter second(path_); }).contains(u"in use"));
            writer.Commit("1");
            QCOMPARE(AccessState(path_), 0);
            SaveAs(path_, "2");
        }
        { const PackageWriter abandoned(path_); }
        QCOMPARE(AccessState(path_), 0);
        QCOMPARE(Counter(), 2);
    }

    void AReaderTakesNoLock() {
        const Package package = Package::Open(path_);
        QCOMPARE(AccessState(path_), 0);
        SaveAs(path_, "1");
    }

    void ALockThatIsGivenBackSoonIsWaitedFor() {
        auto first = std::make_unique<PackageWriter>(path_);
        const std::unique_ptr<QThread> second(QThread::create([&] { Count(); }));
        second->start();
        first->Commit("41");
        first.reset();
        QVERIFY(second->wait());
        QCOMPARE(Counter(), 42);
    }

    // Every increment reads what the one before has written, compactions and replaced files among
    // them.
    void SavesOfManyProcessesLoseNothing() {
        constexpr int kProcesses = 4;
        constexpr int kSaves = 25;
        QList<pid_t> children;
        for (int i = 0; i < kProcesses; ++i) {
            const pid_t child = fork();
            if (child == 0) {
                try {
                    for (int save = 0; save < kSaves; ++save) {
                        Count();
                        if (save % 5 == i)
                            ErrorOf([&] { PackageWriter::Compact(path_); });
                    }
                } catch (const DocumentError&) {
                    _exit(1);
                }
                _exit(0);
            }
            children.append(child);
        }
        for (const pid_t child : children) {
            int status = 0;
            QCOMPARE(waitpid(child, &status, 0), child);
            QCOMPARE(status, 0);
        }
        QCOMPARE(Counter(), kProcesses * kSaves);
        QCOMPARE(FolderOfFile(path_), QStringList(QStringLiteral("gear.tfmprt")));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestPackageLock)
#include "tst_packagelock.moc"
