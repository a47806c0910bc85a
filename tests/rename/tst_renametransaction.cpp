// The renaming itself: what every document holds afterwards, whatever fails on the way.

#include <QDir>
#include <QTest>

#include "cells/celllist.h"
#include "rename/renamelist.h"
#include "rename/renamesearch.h"
#include "rename/renametransaction.h"
#include "services/filesystem.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/texts.h"
#include "tests/support/failingaccess.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

constexpr int kHolders = 12;

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

// A part, its parent, and the other holders, one of which has two references to it.
struct Project {
    Project() {
        LoadResources();
        pin = library.Make("pin.tfmprt");
        PrepareRenameList(list);
        for (int i = 0; i < kHolders; ++i) {
            const QString name = QString("holder%1.tfmasm").arg(i, 2, 10, QChar('0'));
            holders.append(library.Make(name, {{pin, i + 1}}, {{pin, "mirrored"}}));
        }
        const RenameSearch search{.document = pin,
                                  .parent = holders[0],
                                  .kinds = {},
                                  .status = [](const QString&) {},
                                  .yield = [] {},
                                  .cancelled = [] { return false; },
                                  .progress = [](const SearchCounts&) {}};
        SearchHolders(search, library.Folder(), list);
    }
    RenamePlan Plan() const {
        return {.oldPath = pin, .newPath = library.Path("bolt.tfmprt"), .parent = holders[0]};
    }
    RenameResult Run() {
        return RunRename(list, Plan(),
                         {.status = [](const QString&) {}, .holders = [](int, int) {}});
    }
    // What a holder refers to, its two tables joined.
    QString Holds(const QString& holder) const {
        const auto file = Documents()->MakeDocumentFile();
        file->Open(holder);
        return FileNameOf(file->GetComponent(0, QString()).path) + ' ' +
               FileNameOf(file->GetExternalReference(0, QString()).path);
    }
    static DocumentAccess* Documents() { return gSeams.documents; }

    TestLibrary library;
    QString pin;
    QStringList holders;
    CellList list;
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
