// Whatever fails on the way of a copy: the sources stay as they are, every document opens, and what
// the lists show is so.

#include <unistd.h>

#include <QTest>

#include "copy/referencemap.h"
#include "services/filesystem.h"
#include "tests/copy/copyproject.h"
#include "tests/support/failingaccess.h"
#include "tests/support/mortaldisk.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

using Answer = Dialogs::Answer;
using IfThere = FileSystem::IfThere;

// 15 documents: the main assembly, three groups, eight parts, a mirrored part that refers to
// another part, and two users of the main assembly, one of them a drawing.
class Project : public CopyDesk {
public:
    static constexpr int kDocuments = 15;

    Project() {
        QStringList parts;
        for (int i = 0; i < 8; ++i)
            parts.append(library.Make(QString("part%1.tfmprt").arg(i)));
        const QString mirrored = library.Make("mirrored.tfmprt", {}, {{parts[0], "mirrored"}});
        QList<TestLibrary::Component> groups;
        for (int i = 0; i < 3; ++i)
            groups.append({library.Make(QString("sub/group%1.tfmasm").arg(i),
                                        {{parts[2 * i]}, {parts[2 * i + 1]}, {parts[7]}})});
        groups.append({{mirrored}, {parts[6]}});
        top = library.Make("top.tfmasm", groups, {{parts[7], "in context"}});
        whole = library.Make("whole.tfmasm", {{top}, {parts[0]}, {top}});
        drawing = library.Make("top.tfmdrw", {{top}});
        bytes = AllBytes(library.Folder());
        affixes = {"x_", ""};
    }

    // As before any copy.
    void Restore() {
        QDir(library.Path("new")).removeRecursively();
        for (auto file = bytes.cbegin(); file != bytes.cend(); ++file) {
            if (BytesOf(file.key()) == file.value())
                continue;
            QFile restored(file.key());
            if (!restored.open(QIODevice::WriteOnly) || restored.write(file.value()) < 0)
                qFatal("can't restore");
        }
        replaced.clear();
        PrepareCopyList(copies);
        PrepareParentList(parents);
        List(top);
        FindParents();
    }

    // What must hold after every run, whatever happened in it. Empty: it does.
    QString Broken() const {
        for (auto file = bytes.cbegin(); file != bytes.cend(); ++file) {
            if (file.key() != whole && BytesOf(file.key()) != file.value())
                return "changed: " + file.key();
        }
        QDirIterator files(library.Folder(), QDir::Files | QDir::Hidden,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            if (path.endsWith(".tmp"))
                return "left behind: " + path;
            const QString broken = BrokenReference(path);
            if (!broken.isEmpty())
                return broken;
        }
        return {};
    }

    // References lead to a source or to its copy, each in its place, and to a file that is there.
    QString BrokenReference(const QString& path) const {
        const QString name = FileNameOf(path);
        const bool isCopy = path.startsWith(library.Path("new/"));
        if (isCopy && !name.startsWith("x_"))
            return {};  // not of this copy
        const QString original = isCopy ? SourceOf(path) : path;
        const QStringList before = Holds(Saved(original)).split(' ', Qt::SkipEmptyParts);
        QStringList now;
        try {
            now = Holds(path).split(' ', Qt::SkipEmptyParts);
        } catch (const DocumentError& error) {
            return error.Description();
        }
        if (now.size() != before.size())
            return "other rows: " + path;
        for (qsizetype i = 0; i < now.size(); ++i) {
            const bool old = now[i] == before[i];
            const bool copied = SourceOf(library.Path(now[i])) == library.Path(before[i]);
            if ((!old && !copied) || !QFile::exists(library.Path(now[i])))
                return path + " leads to " + now[i] + " instead of " + before[i];
        }
        return {};
    }
    QString SourceOf(const QString& copy) const {
        return QString(copy).replace("/new/", "/").replace("/x_", "/");
    }
    // The sources never change; the one user that does is looked up as it was.
    QString Saved(const QString& path) const {
        if (path != whole)
            return path;
        const QString copy = saved.filePath("whole.tfmasm");
        QFile file(copy);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes[whole]) < 0)
            qFatal("can't save");
        return copy;
    }

    // Whether anything that the user sees holds the text.
    bool Says(const QString& text, const AnsweringDialogs& dialogs,
              const CopyResult& result) const {
        QStringList said = dialogs.boxes + dialogs.details;
        said.append(result.target.toolTip);
        for (const CellList* list : {&copies, &parents}) {
            for (const CellRow& row : list->Rows()) {
                for (const Cell& cell : row.cells)
                    said.append(cell.toolTip);
            }
        }
        return said.join('\n').contains(text);
    }
    int CountColor(CellColor color) const {
        int count = 0;
        for (const CellRow& row : copies.Rows())
            count += row.cells[kCopyTarget].foreColor == color;
        return count;
    }

    QString top, whole, drawing;
    QHash<QString, QByteArray> bytes;
    QTemporaryDir saved;
};

// A disk whose n-th copy fails or is told something before it.
class TrickyFiles : public FileSystem {
public:
    TrickyFiles() { gSeams.files = this; }
    ~TrickyFiles() override { gSeams.files = nullptr; }
    bool Copy(const QString& from, const QString& to, IfThere ifThere) override {
        if (++count == nth && before)
            before(from, to);
        const bool copied = FileSystem::Copy(from, to, ifThere);
        if (count == nth && after)
            after(from, to);
        return copied;
    }
    int count = 0;
    int nth = 0;
    std::function<void(const QString&, const QString&)> before, after;
};

constexpr int kCopies = 13;  // of documents below and with the main assembly, and of its drawing

}  // namespace

class TestCopyTrust : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Some hundred runs, whose saves need not wait for a disk.
    void initTestCase() {
        if (QFileInfo(QStringLiteral("/dev/shm")).isWritable())
            qputenv("TMPDIR", "/dev/shm");
    }

    void theProjectIsCopiedWhole() {
        AnsweringDialogs dialogs;
        Project project;
        QCOMPARE(project.bytes.size(), Project::kDocuments);
        project.Restore();
        const CopyResult result = project.Run();
        QCOMPARE(result.copied, kCopies);
        QCOMPARE(result.failed, 0);
        QCOMPARE(project.Broken(), QString());
        QCOMPARE(project.Holds(project.whole),
                 QString("new/x_top.tfmasm part0.tfmprt new/x_top.tfmasm"));
        QCOMPARE(project.Holds(project.Copy("x_top.tfmdrw")), QString("new/x_top.tfmasm"));
        QCOMPARE(project.Holds(project.Copy("x_mirrored.tfmprt")), QString("new/x_part0.tfmprt"));
        QVERIFY(dialogs.boxes.isEmpty());
    }

    void whateverOperationOnADocumentFailsNothingIsBrokenAndItIsTold_data() {
        QTest::addColumn<bool>("goesOn");
        QTest::newRow("going on") << true;
        QTest::newRow("ending there") << false;
    }
    void whateverOperationOnADocumentFailsNothingIsBrokenAndItIsTold() {
        QFETCH(bool, goesOn);
        Project project;
        int operations = 0;
        for (int nth = 0; nth <= operations; ++nth) {  // the first one fails never, and counts
            AnsweringDialogs dialogs;
            dialogs.answer = [&](const QString&) { return goesOn ? Answer::Yes : Answer::No; };
            project.Restore();
            int count = 0;
            CopyResult result;
            {
                const FailingAccess failing([&](const char* operation, const QString& path) {
                    if (++count == nth)
                        throw DocumentError(
                            QString("operation %1 on %2 failed").arg(operation, path));
                });
                result = project.Run();
            }
            if (nth == 0)
                operations = count;
            const QByteArray context = QByteArray::number(nth);
            QVERIFY2(project.Broken().isEmpty(), context + ": " + project.Broken().toUtf8());
            QVERIFY2(nth == 0 || project.Says("operation ", dialogs, result), context);
            // The files were copied before any of it.
            QCOMPARE(result.copied, kCopies);
            QCOMPARE(result.failed, 0);
            const int red = project.CountColor(kColorRed);
            QVERIFY2(red <= 1, context);
            QCOMPARE(project.CountColor(kColorBlue) + red, project.copies.Count());
        }
        QVERIFY(operations > 100);
    }

    void whateverCopyFailsItsRowIsRedAndTheOthersGoOn() {
        Project project;
        for (int nth = 1; nth <= kCopies + 1; ++nth) {
            AnsweringDialogs dialogs;
            project.Restore();
            TrickyFiles files;
            files.nth = nth;
            files.before = [](const QString& from, const QString&) {
                throw DocumentError("no space left for " + from);
            };
            const CopyResult result = project.Run();
            const QByteArray context = QByteArray::number(nth);
            QVERIFY2(project.Broken().isEmpty(), context + ": " + project.Broken().toUtf8());
            QVERIFY2(project.Says("no space left", dialogs, result), context);
            QCOMPARE(files.count, kCopies + 1);
            if (nth == 1) {
                // The document's own: its users stay where they are.
                QCOMPARE(result.copied, kCopies);
                QVERIFY(dialogs.boxes[0].startsWith(gStrings[68].section("%s", 0, 0)));
                QCOMPARE(BytesOf(project.whole), project.bytes[project.whole]);
                continue;
            }
            QCOMPARE(result.copied, kCopies - 1);
            QCOMPARE(result.failed, 1);
            if (nth <= kCopies) {
                QCOMPARE(project.CountColor(kColorRed), 1);
                for (const CellRow& row : project.copies.Rows()) {
                    if (row.cells[kCopyTarget].foreColor == kColorRed)
                        QCOMPARE(row.cells[kCopyTarget].toolTip, QString());
                }
            } else {
                QCOMPARE(project.parents.At(0).cells[kParentTarget].foreColor, kColorRed);
            }
        }
    }

    void aTargetFolderThatVanishesCostsItsDocumentsAlone() {
        Project project;
        for (int nth = 1; nth <= kCopies + 1; ++nth) {
            AnsweringDialogs dialogs;
            project.Restore();
            TrickyFiles files;
            files.nth = nth;
            files.before = [](const QString&, const QString& to) {
                QDir(FolderOf(to)).removeRecursively();
            };
            const CopyResult result = project.Run();
            QVERIFY2(project.Broken().isEmpty(), qPrintable(project.Broken()));
            QCOMPARE(result.failed, nth == 1 ? 0 : 1);
        }
    }

    void aTargetFolderThatVanishesBehindTheLastCopyBreaksNoReference() {
        Project project;
        AnsweringDialogs dialogs;
        project.Restore();
        TrickyFiles files;
        files.nth = kCopies + 1;
        files.after = [&](const QString&, const QString&) {
            QDir(project.Copy("sub")).removeRecursively();
        };
        const CopyResult result = project.Run();
        QCOMPARE(result.copied, kCopies);
        QVERIFY2(project.Broken().isEmpty(), qPrintable(project.Broken()));
        QCOMPARE(dialogs.boxes.size(), 3);  // one for each group that was in it
        QCOMPARE(project.Holds(project.whole),
                 QString("new/x_top.tfmasm part0.tfmprt new/x_top.tfmasm"));
    }

    void aTargetThatAppearsIsAskedAbout_data() {
        QTest::addColumn<int>("answer");
        QTest::newRow("kept") << int(Answer::No);
        QTest::newRow("replaced") << int(Answer::Yes);
        QTest::newRow("cancelled") << int(Answer::Cancel);
    }
    void aTargetThatAppearsIsAskedAbout() {
        QFETCH(int, answer);
        Project project;
        AnsweringDialogs dialogs;
        project.Restore();
        QString appeared;
        dialogs.answer = [&](const QString&) { return Answer(answer); };
        TrickyFiles files;
        files.nth = 3;
        files.before = [&](const QString&, const QString& to) {
            appeared = to;
            QFile file(to);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write("somebody's work") > 0);
        };
        const CopyResult result = project.Run();
        QCOMPARE(dialogs.boxes, QStringList(Format(Text::OverwriteQuestion, appeared)));
        if (Answer(answer) == Answer::Yes) {
            QCOMPARE(result.copied, kCopies);
            QCOMPARE(project.Broken(), QString());
        } else {
            QCOMPARE(BytesOf(appeared), QByteArray("somebody's work"));
            QCOMPARE(result.end == CopyResult::End::Cancelled, Answer(answer) == Answer::Cancel);
        }
    }

    // What was done by then stays done; nothing of it is half.
    void whereverTheProcessDiesEveryDocumentIsWhole() {
        AnsweringDialogs dialogs;
        Project project;
        project.Restore();
        const int calls = CallsThatChangeTheDisk([&] { project.Run(); });
        QVERIFY(calls > 3 * (kCopies + 1));
        for (int nth = 1; nth <= calls; ++nth) {
            project.Restore();
            QVERIFY2(KilledAt(nth, [&] { project.Run(); }), QByteArray::number(nth));
            QFile::remove(project.Copy(".part.tmp"));
            QFile::remove(project.Copy("sub/.part.tmp"));
            QVERIFY2(project.Broken().isEmpty(), qPrintable(project.Broken()));
            // What the dead process left is no hindrance.
            if (nth % 10 == 0) {
                project.Restore();
                QCOMPARE(project.Run().copied, kCopies);
                QVERIFY2(project.Broken().isEmpty(), qPrintable(project.Broken()));
            }
        }
    }

    void aSourceThatIsSavedBehindItsCopyLeavesTheCopyAsItWasMade() {
        CopyDesk desk;
        AnsweringDialogs dialogs;
        const QString pin = desk.library.Make("pin.tfmprt");
        const QString bolt = desk.library.Make("bolt.tfmprt");
        const QString left = desk.library.Make("left.tfmasm", {{pin}});
        desk.List(desk.library.Make("top.tfmasm", {{left}}));
        TrickyFiles files;
        files.nth = 2;
        files.after = [&](const QString&, const QString&) {
            desk.library.Make("left.tfmasm", {{bolt}, {pin}});  // copied just before
        };
        const CopyResult result = desk.Run();
        QCOMPARE(result.copied, 2);
        // Its positions are not those of the copy, which is left as it was made.
        QCOMPARE(dialogs.boxes.size(), 1);
        QVERIFY(dialogs.boxes[0].contains("was changed meanwhile"));
        QCOMPARE(desk.Holds(desk.Copy("x_left.tfmasm")), QString("pin.tfmprt"));
        QVERIFY(desk.Target(0).toolTip.contains("was changed meanwhile"));
        QCOMPARE(desk.Holds(left), QString("bolt.tfmprt pin.tfmprt"));
    }

    void aDiskThatCanNotKeepTheCopiesEndsTheRunBeforeAnyReferenceLeadsThere() {
        Project project;
        AnsweringDialogs dialogs;
        project.Restore();
        class NoSync : public FileSystem {
        public:
            NoSync() { gSeams.files = this; }
            ~NoSync() override { gSeams.files = nullptr; }
            void Sync(const QStringList&) override { throw DocumentError("the disk is broken"); }
        };
        const NoSync files;
        const CopyResult result = project.Run();
        QCOMPARE(dialogs.boxes, QStringList("the disk is broken"));
        QCOMPARE(result.copied, kCopies);
        QCOMPARE(BytesOf(project.whole), project.bytes[project.whole]);
        QCOMPARE(project.Broken(), QString());
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestCopyTrust)
#include "tst_copytrust.moc"
