// The renaming itself: what every document holds afterwards, whatever fails on the way.

#include <QTest>

#include "services/filesystem.h"
#include "services/texts.h"
#include "tests/rename/renameproject.h"
#include "tests/support/failingaccess.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

// Takes every box and writes it down.
class CollectingDialogs : public Dialogs {
public:
    CollectingDialogs() : former_(gSeams.dialogs) { gSeams.dialogs = this; }
    ~CollectingDialogs() override { gSeams.dialogs = former_; }
    Answer Box(const QString& text, Icon, const QString&, Buttons, const QString&) override {
        boxes.append(text);
        return Answer::Ok;
    }
    QString OpenFile(const QString&, const QString&, const QString&) override { return {}; }
    QString BrowseFolder(const QString&, const QString&) override { return {}; }
    std::optional<Password> AskPassword(const QString&, const QString&, bool) override {
        return std::nullopt;
    }
    QStringList boxes;

private:
    Dialogs* former_;
};

// The n-th operation on a document from now on fails, once.
struct FailNth {
    explicit FailNth(int nth)
        : access([this, nth](const char* operation, const QString&) {
              if (++count == nth)
                  throw DocumentError(QString("operation %1 failed").arg(operation));
          }) {}
    int count = 0;
    FailingAccess access;
};

class FailingFiles : public FileSystem {
public:
    FailingFiles() { gSeams.files = this; }
    ~FailingFiles() override { gSeams.files = nullptr; }
    void Move(const QString&, const QString&) override { throw DocumentError("no such luck"); }
};

}  // namespace

class TestRenameTransaction : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyHolderGetsTheNewPath() {
        const CollectingDialogs dialogs;
        Project project;
        QCOMPARE(project.list.Count(), kHolders);  // one row for each holder and relation
        const RenameResult result = project.Run();
        QVERIFY(result.moved);
        QCOMPARE(result.updated, kHolders + 1);  // the parent is written twice, and counted twice
        QCOMPARE(result.failed, 0);
        QVERIFY(!QFile::exists(project.pin) && QFile::exists(project.Plan().newPath));
        for (const CellRow& row : project.list.Rows()) {
            QCOMPARE(row.cells[kHolderColumn].foreColor, kColorBlue);
            QCOMPARE(row.cells[kTickColumn].toolTip, gStrings[234]);
        }
        for (const QString& holder : project.holders)
            QVERIFY2(project.Holds(holder).contains("bolt.tfmprt"), qPrintable(holder));
        QVERIFY(dialogs.boxes.isEmpty());
    }

    void rowsWithoutATickKeepTheirReference() {
        const CollectingDialogs dialogs;
        Project project;
        project.list.Change(3, [](CellRow& row) { row.ticked = false; });
        QCOMPARE(project.Run().updated, kHolders);
        QVERIFY(!project.Holds(project.holders[3]).contains("bolt"));
        QCOMPARE(project.list.At(3).cells[kHolderColumn].foreColor, kColorNormal);
    }

    void whateverFailsEveryDocumentHoldsTheOldOrTheNewPath() {
        const CollectingDialogs dialogs;
        int operations = 0;
        {
            Project project;
            const FailNth none(0);
            project.Run();
            operations = none.count;
        }
        QVERIFY(operations > kHolders * 3);
        for (int nth = 1; nth <= operations; ++nth) {
            Project project;
            RenameResult result;
            {
                const FailNth failing(nth);
                result = project.Run();
            }
            QVERIFY(result.moved);
            QVERIFY(QFile::exists(project.Plan().newPath));
            int red = 0;
            for (int row = 0; row < kHolders; ++row) {
                const CellRow& shown = project.list.At(row);
                const bool failed = shown.cells[kHolderColumn].foreColor == kColorRed;
                red += failed;
                QVERIFY(failed || shown.cells[kHolderColumn].foreColor == kColorBlue);
                const QString holds = project.Holds(ReadRow(shown).holder);  // it opens
                QVERIFY2(holds == "bolt.tfmprt pin.tfmprt" || holds == "pin.tfmprt pin.tfmprt" ||
                             holds == "bolt.tfmprt bolt.tfmprt" ||
                             holds == "pin.tfmprt bolt.tfmprt",
                         qPrintable(holds));
                if (!failed)
                    QVERIFY(holds.contains("bolt"));
                else
                    QVERIFY(shown.cells[kHolderColumn].toolTip.startsWith(
                        Format(Text::RowFailedTip, QString()).trimmed()));
            }
            QCOMPARE(result.failed, red);
            QVERIFY(red <= 1);
        }
    }

    void aMoveThatFailsChangesNothing() {
        CollectingDialogs dialogs;
        Project project;
        const FailingFiles files;
        QVERIFY(!project.Run().moved);
        QCOMPARE(dialogs.boxes, QStringList(Format(Text::NotRenamed, project.Plan().newPath)));
        QVERIFY(QFile::exists(project.pin));
        for (const QString& holder : project.holders)
            QVERIFY(!project.Holds(holder).contains("bolt"));
    }

    void aFileThatAppearedMeanwhileIsNotOverwritten() {
        CollectingDialogs dialogs;
        Project project;
        QFile appeared(project.Plan().newPath);
        QVERIFY(appeared.open(QIODevice::WriteOnly));
        appeared.write("somebody's work");
        appeared.close();
        QVERIFY(!project.Run().moved);
        QVERIFY(QFile::exists(project.pin));
        QVERIFY(appeared.open(QIODevice::ReadOnly));
        QCOMPARE(appeared.readAll(), QByteArray("somebody's work"));
    }

    void aTableThatChangedSinceTheSearchIsNotWritten() {
        CollectingDialogs dialogs;
        Project project;
        const QString other = project.library.Make("other.tfmprt");
        project.library.Make("holder05.tfmasm", {{other}, {project.pin}});
        const RenameResult result = project.Run();
        QCOMPARE(result.failed, 1);
        QCOMPARE(project.list.At(5).cells[kHolderColumn].foreColor, kColorRed);
        const auto file = Project::Documents()->MakeDocumentFile();
        file->Open(project.holders[5]);
        QCOMPARE(file->GetComponent(0, QString()).path, other);  // no wrong position was written
    }

    void aHolderThatVanishedFailsAlone() {
        CollectingDialogs dialogs;
        Project project;
        QVERIFY(QFile::remove(project.holders[7]));
        const RenameResult result = project.Run();
        QCOMPARE(result.failed, 1);
        QCOMPARE(dialogs.boxes.size(), 1);
        QCOMPARE(project.list.At(7).cells[kHolderColumn].foreColor, kColorRed);
    }

    void aReplacementMovesNoFile() {
        const CollectingDialogs dialogs;
        Project project;
        RenamePlan plan = project.Plan();
        plan.newPath = project.library.Make("bolt.tfmprt");
        plan.replaces = true;
        const RenameResult result = RunRename(
            project.list, plan, {.status = [](const QString&) {}, .holders = [](int, int) {}});
        QCOMPARE(result.updated, kHolders + 1);
        QVERIFY(QFile::exists(project.pin));
        QVERIFY(project.Holds(project.holders[4]).contains("bolt"));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestRenameTransaction)
#include "tst_renametransaction.moc"
