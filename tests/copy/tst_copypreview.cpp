// What is told before a copy is what the copy then writes, no more and no less.

#include <QSet>
#include <QTest>

#include "copy/copypreview.h"
#include "tests/copy/copyproject.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

// top -> left -> pin, top -> right -> pin; with a drawing, a whole that uses top twice, and a
// reference that is missing.
struct Desk : CopyDesk {
    Desk() {
        const QString pin = library.Make("pin.tfmprt");
        const QString left = library.Make("left.tfmasm", {{pin}, {library.Path("lost.tfmprt")}});
        const QString right = library.Make("sub/right.tfmasm", {{pin}}, {{left, "in context"}});
        const QString top = library.Make("top.tfmasm", {{left}, {right}}, {{pin, "derived"}});
        library.Make("top.tfmdrw", {{top}});
        library.Make("whole.tfmasm", {{pin}, {top}, {left}, {top}});
        List(top);
        FindParents();
    }
    AnsweringDialogs dialogs;

    QStringList Previewed() {
        QStringList lines;
        for (const PlannedReference& planned : PlanReferences(Plan()))
            lines.append(Line(planned.document, planned.table == Table::Components,
                              planned.position, planned.path));
        lines.sort();
        return lines;
    }
    // Every reference of the library's documents.
    QStringList References() const {
        QStringList lines;
        QDirIterator files(library.Folder(), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            const auto file = gSeams.documents->MakeDocumentFile();
            file->Open(path);
            for (int i = 0; i < file->GetComponentCount(); ++i)
                lines.append(Line(path, true, i, file->GetComponent(i, {}).path));
            for (int i = 0; i < file->GetExternalReferenceCount(); ++i)
                lines.append(Line(path, false, i, file->GetExternalReference(i, {}).path));
        }
        return lines;
    }
    // Those that lead to a copy.
    QStringList ToCopies() const {
        QStringList lines;
        for (const QString& line : References()) {
            if (line.section(' ', -1).startsWith("new/"))
                lines.append(line);
        }
        lines.sort();
        return lines;
    }

private:
    QString Line(const QString& document, bool component, int position, const QString& to) const {
        return QString("%1 %2%3 %4")
            .arg(Short(document), component ? "c" : "x")
            .arg(position)
            .arg(Short(to));
    }
};

}  // namespace

class TestCopyPreview : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatIsToldIsWhatIsWritten() {
        Desk desk;
        const QStringList told = desk.Previewed();
        desk.Run();
        QVERIFY(told.size() >= 8);
        QCOMPARE(desk.ToCopies(), told);
    }

    void nothingIsWrittenByTelling() {
        Desk desk;
        const auto before = AllBytes(desk.library.Folder());
        desk.Previewed();
        QVERIFY(AllBytes(desk.library.Folder()) == before);
    }

    void whatHasNoTickIsNotToldOf() {
        Desk desk;
        desk.Untick(desk.RowOf("left.tfmasm"));
        const QStringList told = desk.Previewed();
        desk.Run();
        QCOMPARE(desk.ToCopies(), told);
        QVERIFY(told.filter("x_left").isEmpty());
    }

    void twoDocumentsWithOneTargetAreToldAsTheyAreWritten() {
        Desk desk;
        desk.SetTarget(desk.RowOf("left.tfmasm"), desk.Copy("same.tfmasm"));
        desk.SetTarget(desk.RowOf("sub/right.tfmasm"), desk.Copy("same.tfmasm"));
        const QStringList told = desk.Previewed();
        desk.Run();
        QCOMPARE(desk.ToCopies(), told);
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestCopyPreview)
#include "tst_copypreview.moc"
