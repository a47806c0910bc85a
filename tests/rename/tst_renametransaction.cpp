// The renaming itself: what every document holds afterwards, whatever fails on the way.

#include <QFileInfo>
#include <QTest>
#include <cerrno>

#include "services/filecopy.h"
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
        : access([this, nth](const char* operation, const QString& path) {
              if (++count != nth)
                  return;
              failed = path;
              throw DocumentError(QString("operation %1 failed").arg(operation));
          }) {}
    int count = 0;
    QString failed;  // the document of the operation
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

    // What a row tells against what its holder holds; true if it failed.
    static bool CheckOutcome(const Project& project, int row, const QString& failed) {
        const CellRow& shown = project.list.At(row);
        const bool isRed = shown.cells[kHolderColumn].foreColor == kColorRed;
        const QString holder = ReadRow(shown).holder;
        const QString holds = project.Holds(holder);  // it opens
        const QStringList possible = {"bolt.tfmprt pin.tfmprt", "pin.tfmprt pin.tfmprt",
                                      "bolt.tfmprt bolt.tfmprt", "pin.tfmprt bolt.tfmprt"};
        [&] {
            QVERIFY2(possible.contains(holds), qPrintable(holds));
            if (isRed) {
                QCOMPARE(holder, failed);
                QVERIFY(shown.cells[kHolderColumn].toolTip.startsWith(
                    Format(Text::RowFailedTip, QString()).trimmed()));
            } else {
                QCOMPARE(shown.cells[kHolderColumn].foreColor, kColorBlue);
                QCOMPARE(shown.cells[kTickColumn].toolTip, gStrings[234]);
                QVERIFY(holds.contains("bolt"));
            }
        }();
        return isRed;
    }

private Q_SLOTS:
    // Found by a link first and by its own name after that: one file, which is written twice.
    void AHolderThatWasFoundThroughALinkAsWellIsWrittenAll() {
        Project project;
        const QString holder = project.library.Make("b/extra.tfmasm", {{project.pin}});
        QDir().mkpath(project.library.Path("a"));
        QVERIFY(QFile::link(project.library.Path("b"), project.library.Path("a/shared")));
        project.SearchAgain();
        int rows = 0;
        for (const CellRow& row : project.list.Rows())
            rows += row.cells[1].tag.endsWith("/extra.tfmasm");
        QCOMPARE(rows, 2);
        const RenameResult result = project.Run();
        QCOMPARE(result.failed, 0);
        const auto file = Project::Documents()->MakeDocumentFile();
        file->Open(holder);
        QCOMPARE(file->GetComponent(0, {}).path, project.Plan().newPath);
    }

    void anExternalReferenceIsWrittenInItsOwnTable_data() {
        QTest::addColumn<bool>("asParent");
        QTest::newRow("as a row") << false;
        QTest::newRow("as the parent, found by name") << true;
    }
    void anExternalReferenceIsWrittenInItsOwnTable() {
        QFETCH(bool, asParent);
        const CollectingDialogs dialogs;
        Project project;
        const QString other = project.library.Make("other.tfmprt");
        const QString derived = project.library.Make(
            "derived.tfmprt", {{other}}, {{other, "derived"}, {project.pin, "derived"}});
        project.SearchAgain();
        int row = 0;
        while (ReadRow(project.list.At(row)).holder != derived)
            ++row;
        const CellRow& found = project.list.At(row);
        QCOMPARE(found.cells[kRelationColumn].text, gRelationPart);
        QCOMPARE(found.cells[kIndexColumn].text, QString("1"));
        QVERIFY(found.cells[kTableColumn].text != "0");
        RenamePlan plan = project.Plan();
        plan.parent = asParent ? derived : QString();
        if (asParent)
            project.list.Change(row, [](CellRow& changed) { changed.ticked = false; });
        const RenameResult result = RunRename(
            project.list, plan, {.status = [](const QString&) {}, .holders = [](int, int) {}});
        QCOMPARE(result.failed, 0);
        const auto file = Project::Documents()->MakeDocumentFile();
        file->Open(derived);
        QCOMPARE(file->GetExternalReference(1, QString()).path, plan.newPath);
        QCOMPARE(file->GetExternalReference(0, QString()).path, other);
        QCOMPARE(file->GetComponent(0, QString()).path, other);
    }

    void unwantedKindsAreNotListed() {
        Project project;
        project.library.Make("derived.tfmprt", {}, {{project.pin, "derived"}});
        project.SearchAgain();
        const int all = project.list.Count();
        project.SearchAgain({.mirrored = false});
        QCOMPARE(project.list.Count(), all - 1);
        for (const CellRow& row : project.list.Rows())
            QVERIFY(row.cells[kRelationColumn].text != gRelationPart);
    }

    void oneFolderInTwoSpellingsIsListedOnce() {
        Project project;
        const QString folder = project.library.Folder();
        const int once = project.list.Count();
        project.SearchAgain({}, folder + ';' + folder + "/../" + QFileInfo(folder).fileName());
        QCOMPARE(project.list.Count(), once);
        QCOMPARE(ReadRow(project.list.At(0)).holder, project.holders[0]);
    }

    void aDiskThatCannotRenameWithoutReplacingLinks() {
        const TestLibrary library;
        const auto write = [&](const QString& name) {
            QFile file(library.Path(name));
            if (!file.open(QIODevice::WriteOnly) || file.write(name.toUtf8()) < 0)
                qFatal("no file");
            return QFile::encodeName(file.fileName());
        };
        const QByteArray from = write("from");
        const QByteArray taken = write("taken");
        QVERIFY(!MoveByLink(from.constData(), taken.constData()));
        QCOMPARE(errno, EEXIST);
        QVERIFY(QFile::exists(library.Path("from")));
        QVERIFY(MoveByLink(from.constData(), QFile::encodeName(library.Path("to")).constData()));
        QVERIFY(!QFile::exists(library.Path("from")) && QFile::exists(library.Path("to")));
    }

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
            CollectingDialogs boxes;
            RenameResult result;
            QString failed;
            {
                const FailNth failing(nth);
                result = project.Run();
                failed = failing.failed;
            }
            QVERIFY(result.moved);
            QVERIFY(QFile::exists(project.Plan().newPath));
            int red = 0;
            for (int row = 0; row < kHolders; ++row)
                red += CheckOutcome(project, row, failed) ? 1 : 0;
            if (QTest::currentTestFailed())
                return;
            QCOMPARE(result.failed, red);
            QCOMPARE(boxes.boxes.size(), red);  // the parent's own failure is not told
            // The parent counts as soon as its reference is found, whether it can be saved or not.
            const int parent = result.updated - (kHolders - red);
            QVERIFY(red == 1 || !result.parentProblem.isEmpty());
            QVERIFY(failed == project.holders[0] || result.parentProblem.isEmpty());
            QVERIFY(red == 1 ? parent == 1 : parent == 0 || parent == 1);
            QVERIFY(red == 1 || failed == project.holders[0]);
        }
    }

    void aDocumentThatRefersToItselfIsWrittenUnderItsNewName() {
        const CollectingDialogs dialogs;
        Project project;
        project.library.Make("pin.tfmprt", {{project.pin}});
        project.SearchAgain();
        const RenameResult result = project.Run();
        QCOMPARE(result.failed, 0);
        const auto file = Project::Documents()->MakeDocumentFile();
        file->Open(project.Plan().newPath);
        QCOMPARE(file->GetComponent(0, {}).path, project.Plan().newPath);
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
