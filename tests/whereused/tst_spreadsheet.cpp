// Spreadsheets as files, read back by an independent reader.

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "platform/xlsxspreadsheet.h"
#include "services/docaccess.h"
#include "tests/support/fakeoutside.h"
#include "tests/support/smallfiles.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

const char kReader[] = R"(
import sys, zipfile, xml.etree.ElementTree as E
ns = {'m': 'http://schemas.openxmlformats.org/spreadsheetml/2006/main'}
with zipfile.ZipFile(sys.argv[1]) as z:
    assert z.testzip() is None
    texts = [''.join(t.text or '' for t in s.iter('{%s}t' % ns['m']))
             for s in E.fromstring(z.read('xl/sharedStrings.xml')).findall('m:si', ns)]
    sheet = E.fromstring(z.read('xl/worksheets/sheet1.xml'))
    for cell in sheet.iter('{%s}c' % ns['m']):
        assert cell.get('t') == 's', 'cells are texts'
        print(cell.get('r') + '=' + texts[int(cell.find('m:v', ns).text)])
    print('widths', *(round(float(c.get('width'))) for c in sheet.findall('m:cols/m:col', ns)))
)";

QStringList ReadBack(const QString& path) {
    QProcess python;
    python.start("python3", {"-c", kReader, path});
    if (!python.waitForFinished() || python.exitCode() != 0)
        return {QString::fromUtf8(python.readAllStandardError())};
    return QString::fromUtf8(python.readAllStandardOutput()).trimmed().split('\n');
}

}  // namespace

class tst_Spreadsheet : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cellsAreTextsWhateverTheyLookLike() {
        const QTemporaryDir folder;
        const QString path = folder.filePath("list.xlsx");
        WriteXlsx({{"Used in", "Number", ""},
                   {"/w/Gehäuse <1> & co.tfmasm", "007", ""},
                   {"=1+1", "http://s/w/a.tfmprt", ""},
                   {"", "", ""}},
                  path);
        QCOMPARE(ReadBack(path),
                 QStringList({"A1=Used in", "B1=Number", "A2=/w/Gehäuse <1> & co.tfmasm", "B2=007",
                              "A3==1+1", "B3=http://s/w/a.tfmprt", "widths 29 22 3"}));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("list.xlsx"));
    }

    void aTextLongerThanACellIsCutOff() {
        const QTemporaryDir folder;
        const QString path = folder.filePath("list.xlsx");
        WriteXlsx({{QString(40000, 'x')}}, path);
        QCOMPARE(ReadBack(path)[0].size(), 32767 + 3);
    }

    void aFileThatCantBeWrittenIsToldAndLeavesNothing() {
        const QTemporaryDir folder;
        const QString path = folder.filePath("none/list.xlsx");
        QVERIFY_THROWS_EXCEPTION(DocumentError, WriteXlsx({{"a"}}, path));
        const QString there = folder.filePath("there.xlsx");
        QVERIFY(QFile(there).open(QIODevice::WriteOnly));
        QVERIFY_THROWS_EXCEPTION(DocumentError, WriteXlsx({{"a"}}, there));
        QCOMPARE(QFile(there).size(), 0);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList("there.xlsx"));
    }

    // The parts of a sheet are built in temporary files, which may be cut off long before the sheet
    // is.
    void aSheetThatFindsNoRoomIsToldAndLeavesNothing_data() {
        QTest::addColumn<int>("room");
        for (const int room : {100, 3'000, 60'000, 100'000, 200'000})
            QTest::newRow(qPrintable(QString::number(room))) << room;
    }
    void aSheetThatFindsNoRoomIsToldAndLeavesNothing() {
        QFETCH(int, room);
        const QTemporaryDir folder;
        TextTable table;
        for (int row = 0; row < 3'000; ++row)
            table.push_back({"/work/gearbox", QString::number(row), "always the same text"});
        {
            const SmallFiles full(static_cast<rlim_t>(room));
            QVERIFY_THROWS_EXCEPTION(DocumentError, WriteXlsx(table, folder.filePath("a.xlsx")));
        }
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
        WriteXlsx(table, folder.filePath("a.xlsx"));
        QCOMPARE(ReadBack(folder.filePath("a.xlsx")).size(), 9'000 + 1);
    }

    void aPlainFileThatFindsNoRoomIsToldAndTheOldOneStays() {
        const QTemporaryDir folder;
        const QString path = folder.filePath("list.csv");
        WriteCsv({{"old"}}, path);
        {
            const SmallFiles full(4);
            QVERIFY_THROWS_EXCEPTION(DocumentError, WriteCsv({{"a new text"}}, path));
        }
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("old\r\n"));
    }

    void theSheetIsOpenedUnderAFreeName() {
        const FakeShellExecute shell;
        XlsxSpreadsheet sheet;
        const QString documents =
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        QVERIFY(sheet.Show({{"x"}}).startsWith(documents + '/'));
        const QString first = sheet.Show({{"a"}, {""}});
        const QString second = sheet.Show({{"b"}, {""}});
        QVERIFY(first != second);
        QVERIFY(QFile::exists(first) && QFile::exists(second));
        QCOMPARE(shell.started.mid(1),
                 QStringList({first, second}));  // each in a window of its own
        QCOMPARE(ReadBack(second).first(), QString("A1=b"));
    }

    void withoutAProgramForItTheFileIsWrittenAllTheSame() {
        XlsxSpreadsheet sheet;
        QVERIFY(QFile::exists(sheet.Show({{"a"}})));
        FakeShellExecute shell;
        shell.knows = false;
        QVERIFY(QFile::exists(sheet.Show({{"a"}})));
        QCOMPARE(shell.started.size(), 1);
    }

    void commasAndQuotesSurviveInAPlainFile() {
        const QTemporaryDir folder;
        const QString path = folder.filePath("list.csv");
        WriteCsv({{"a", "b,c"}, {"say \"x\"", "two\nlines"}}, path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("a,\"b,c\"\r\n\"say \"\"x\"\"\",\"two\nlines\"\r\n"));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, tst_Spreadsheet)
#include "tst_spreadsheet.moc"
