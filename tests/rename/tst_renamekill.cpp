// A renaming whose process is killed, at every call that changes the disk: whatever has been done
// by then, every document is whole and holds the old path or the new one.

#include <QTest>

#include "tests/rename/renameproject.h"
#include "tests/support/mortaldisk.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

class TestRenameKill : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whereverTheProcessDiesEveryDocumentIsWhole() {
        Project whole;
        const int calls = CallsThatChangeTheDisk([&] { whole.Run(); });
        QVERIFY(calls > kHolders * 2);
        for (int nth = 1; nth <= calls; ++nth) {
            Project project;
            QVERIFY2(KilledAt(nth, [&] { project.Run(); }), qPrintable(QString::number(nth)));
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
