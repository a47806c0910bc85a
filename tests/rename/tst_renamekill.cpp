// A renaming whose process is killed, at every call that changes the disk: whatever has been done
// by then, every document is whole and holds the old path or the new one.

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QTest>

#include "docmodel/fileops.h"
#include "services/filesystem.h"
#include "services/seams.h"
#include "tests/rename/renameproject.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

// Counts the calls that change the disk; the process does not outlive the n-th.
class LastCall {
public:
    explicit LastCall(int nth) : nth_(nth) {}
    bool Comes() { return ++count_ == nth_; }
    int Count() const { return count_; }
    [[noreturn]] static void Die() {
        ::kill(::getpid(), SIGKILL);
        ::_exit(1);
    }
    void DieIfItComes() {
        if (Comes())
            Die();
    }

private:
    const int nth_;
    int count_ = 0;
};

class MortalDisk : public docmodel::FileOps {
public:
    explicit MortalDisk(LastCall& last) : last_(last), former_(docmodel::gFileOps) {
        docmodel::gFileOps = this;
    }
    ~MortalDisk() override { docmodel::gFileOps = former_; }

    // The last write gets half of its bytes to the disk.
    ssize_t Write(int file, const void* bytes, size_t count, off_t offset) override {
        if (last_.Comes()) {
            (void)FileOps::Write(file, bytes, count / 2, offset);
            LastCall::Die();
        }
        return FileOps::Write(file, bytes, count, offset);
    }
    int Sync(int) override {
        last_.DieIfItComes();
        return 0;
    }
    int SyncData(int) override {
        last_.DieIfItComes();
        return 0;
    }
    int Truncate(int file, off_t length) override {
        last_.DieIfItComes();
        return FileOps::Truncate(file, length);
    }
    int CreateNew(const char* path, unsigned mode) override {
        last_.DieIfItComes();
        return FileOps::CreateNew(path, mode);
    }
    int Rename(const char* from, const char* to) override {
        last_.DieIfItComes();
        return FileOps::Rename(from, to);
    }
    int RenameNoReplace(const char* from, const char* to) override {
        last_.DieIfItComes();
        return FileOps::RenameNoReplace(from, to);
    }
    int Unlink(const char* path) override {
        last_.DieIfItComes();
        return FileOps::Unlink(path);
    }

private:
    LastCall& last_;
    docmodel::FileOps* former_;
};

class MortalFiles : public FileSystem {
public:
    explicit MortalFiles(LastCall& last) : last_(last) { gSeams.files = this; }
    ~MortalFiles() override { gSeams.files = nullptr; }
    void Move(const QString& from, const QString& to) override {
        last_.DieIfItComes();
        FileSystem::Move(from, to);
    }

private:
    LastCall& last_;
};

// Runs the renaming in a process of its own. True if it was killed.
bool KilledAt(int nth, Project& project) {
    const pid_t child = ::fork();
    if (child == 0) {
        LastCall last(nth);
        const MortalDisk disk(last);
        const MortalFiles files(last);
        project.Run();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

int CallsOfAWholeRun() {
    Project project;
    LastCall never(0);
    const MortalDisk disk(never);
    const MortalFiles files(never);
    project.Run();
    return never.Count();
}

}  // namespace

class TestRenameKill : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whereverTheProcessDiesEveryDocumentIsWhole() {
        const int calls = CallsOfAWholeRun();
        QVERIFY(calls > kHolders * 2);
        for (int nth = 1; nth <= calls; ++nth) {
            Project project;
            QVERIFY2(KilledAt(nth, project), qPrintable(QString::number(nth)));
            // One file, under one of its names, and it opens.
            const bool moved = QFile::exists(project.Plan().newPath);
            QCOMPARE(QFile::exists(project.pin), !moved);
            const auto part = Project::Documents()->MakeDocumentFile();
            part->Open(moved ? project.Plan().newPath : project.pin);
            int rewritten = 0;
            for (const QString& holder : project.holders) {
                const QString holds = project.Holds(holder);
                QVERIFY2(holds == "pin.tfmprt pin.tfmprt" || holds == "bolt.tfmprt pin.tfmprt" ||
                             holds == "pin.tfmprt bolt.tfmprt" ||
                             holds == "bolt.tfmprt bolt.tfmprt",
                         qPrintable(holds));
                rewritten += holds.contains("bolt");
            }
            QVERIFY(moved || rewritten == 0);  // no document points at a file that is not there yet
            // What the dead process left is no hindrance: the other holders can still be written.
            if (moved && rewritten < kHolders)
                FinishWhatIsLeft(project);
        }
    }

private:
    static void FinishWhatIsLeft(Project& project) {
        for (const QString& holder : project.holders) {
            const auto file = Project::Documents()->MakeDocumentFile();
            file->Open(holder);
            file->SetComponentPath(0, project.Plan().newPath);
            file->Save();
            QVERIFY(project.Holds(holder).startsWith("bolt.tfmprt"));
        }
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestRenameKill)
#include "tst_renamekill.moc"
