// The reference list, through its widgets.

#include <QAction>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QTest>
#include <memory>

#include "editors/editreference.h"
#include "editors/referencelist.h"
#include "panes/celllistview.h"
#include "services/language.h"
#include "services/scratch.h"
#include "services/seams.h"
#include "services/spreadsheet.h"
#include "services/texts.h"
#include "services/webdocument.h"
#include "tests/support/failingaccess.h"
#include "tests/support/fakeoutside.h"
#include "tests/support/fakepane.h"
#include "tests/support/fakewebclient.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

class FakeSpreadsheet : public Spreadsheet {
public:
    FakeSpreadsheet() { gSeams.spreadsheet = this; }
    ~FakeSpreadsheet() override { gSeams.spreadsheet = nullptr; }
    QString Show(const TextTable& table) override {
        if (fails)
            throw DocumentError("No.");
        shown = table;
        return "/docs/list.xlsx";
    }
    TextTable shown;
    bool fails = false;
};

struct Bench {
    Bench() {
        LoadResources();
        PrepareScratch();  // for local copies of web documents
        pin = library.Make("pin.tfmprt");
        sub = library.Make("sub.tfmasm", {{pin}});
        lost = library.Path("lost.tfmprt");
        top = library.Make("top.tfmasm", {{sub}, {pin}, {pin, 2}, {lost}}, {{pin, "x"}});
        pane = std::make_unique<editReference>();
        pane->SetStatusBarControl(&status);
        pane->resize(700, 400);
        pane->show();
        if (!QTest::qWaitForWindowActive(pane.get()))
            qFatal("no active window");
    }
    void Load(const QString& path) { pane->SetPartName("title", path); }
    template <typename T>
    T* Child(const char* name) {
        T* child = pane->findChild<T*>(QLatin1String(name));
        if (!child)
            qFatal("no %s", name);
        return child;
    }
    CellListView* View() { return Child<CellListView>("lv"); }
    CellList& List() { return View()->List(); }
    const CellRow& Row(int row) { return List().At(row); }
    QString Text(int row, int column) { return Row(row).cells[size_t(column)].text; }
    QStringList Tags() {
        QStringList tags;
        for (const CellRow& row : List().Rows())
            tags.append(row.tag);
        return tags;
    }
    void OpenMenu(int row) {
        QTest::mouseClick(View()->viewport(), Qt::RightButton, {},
                          row < 0 ? QPoint(5, View()->viewport()->height() - 5)
                                  : View()->visualRect(List().index(row, 0)).center());
        if (!Child<QMenu>("mnlistmenu")->isVisible())
            qFatal("no menu");
        Child<QMenu>("mnlistmenu")->hide();
    }
    void ClickHeader(int column) {
        QHeaderView* header = View()->header();
        QTest::mouseClick(
            header->viewport(), Qt::LeftButton, {},
            QPoint(header->sectionViewportPosition(column) + 20, header->viewport()->height() / 2));
    }

    TestLibrary library;
    TestDialogs dialogs;
    FakeStatusLine status;
    QString pin, sub, lost, top;
    std::unique_ptr<editReference> pane;
};

// A server in whose next transfer something happens, as it may while a password is asked for.
struct AskingWeb : FakeWeb {
    struct Client : FakeWebClient {
        using FakeWebClient::FakeWebClient;
        bool GetFile(const QString& url, const QString& localPath) override {
            if (const auto action = std::exchange(meanwhile, {}))
                action();
            return FakeWebClient::GetFile(url, localPath);
        }
        std::function<void()> meanwhile;
    };
    AskingWeb() {
        auto made = std::make_unique<Client>(server);
        client = made.get();
        gWebFolder = std::move(made);
    }
    Client* client = nullptr;
};

}  // namespace

class TestEditReference : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theDocumentAndItsReferencesAreListedOnce() {
        Bench bench;
        bench.Load(bench.top);
        QCOMPARE(bench.Tags(), QStringList({bench.top, bench.sub, bench.pin, bench.lost}));
        for (int row = 0; row < 4; ++row) {
            QCOMPARE(bench.Row(row).cells[0].bold, row == 0);
            QCOMPARE(bench.Row(row).cells[0].toolTip, bench.Row(row).tag);
        }
        QCOMPARE(bench.Text(0, kReferenceRelation), QString());
        QCOMPARE(bench.Text(2, kReferenceRelation), gStrings[147]);
        QCOMPARE(bench.Row(0).image + bench.Row(2).image, QString("asmprt"));
    }

    void externalReferencesHaveTheirLabel() {
        Bench bench;
        const QString part =
            bench.library.Make("derived.tfmprt", {}, {{bench.pin, "x"}, {bench.top, "y"}});
        bench.Load(part);
        QCOMPARE(bench.Tags(), QStringList({part, bench.pin, bench.top}));
        QCOMPARE(bench.Text(1, kReferenceRelation), gStrings[149]);
        QCOMPARE(bench.Text(2, kReferenceRelation), gStrings[148]);
    }

    void aDocumentWithoutReferencesIsOneBoldRow() {
        Bench bench;
        bench.Load(bench.pin);
        QCOMPARE(bench.List().Count(), 1);
        QVERIFY(bench.Row(0).cells[kReferenceSize].bold);
    }

    void aDocumentThatRefersToItselfIsListedOnce() {
        Bench bench;
        const QString own = bench.library.Make("own.tfmasm", {{bench.library.Path("own.tfmasm")}});
        bench.Load(own);
        QCOMPARE(bench.Tags(), QStringList(own));
    }

    void theFactsOfEachFileAreTold() {
        Bench bench;
        QFile file(bench.pin);
        QVERIFY(file.open(QFile::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime(QDate(2004, 5, 3), QTime(14, 7)),
                                 QFileDevice::FileModificationTime));
        file.close();
        QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::ReadUser));
        bench.Load(bench.top);
        const qint64 size = QFileInfo(bench.pin).size();
        QCOMPARE(bench.Text(2, kReferenceSize),
                 Format(Text::Kilobytes, qRound64(double(size) / 1000)));
        QCOMPARE(bench.Text(2, kReferenceChanged), QString("05/03/04  02:07 PM"));
        QCOMPARE(bench.Text(2, kReferenceAttributes), QString("R"));
        QCOMPARE(bench.Text(0, kReferenceAttributes), QString());
    }

    void sizesAreRounded() {
        Bench bench;
        const QString small = bench.library.Path("small.tfmprt");
        const QString large = bench.library.Path("large.tfmprt");
        for (const auto& [path, bytes] : {std::pair(small, 499), std::pair(large, 1501)}) {
            QFile file(path);
            QVERIFY(file.open(QFile::WriteOnly));
            file.write(QByteArray(bytes, 'x'));
        }
        const QString holder = bench.library.Make("holder.tfmasm", {{small}, {large}});
        bench.Load(holder);
        QCOMPARE(bench.Text(1, kReferenceSize), Format(Text::Kilobytes, "0"));
        QCOMPARE(bench.Text(2, kReferenceSize), Format(Text::Kilobytes, "2"));
    }

    void aMissingReferenceIsRedAndCantBeOpened() {
        Bench bench;
        FakeOutside outside;
        bench.Load(bench.top);
        for (const Cell& cell : bench.Row(3).cells)
            QCOMPARE(cell.foreColor, kColorRed);
        QCOMPARE(bench.Text(3, kReferenceSize) + bench.Text(3, kReferenceChanged) +
                     bench.Text(3, kReferenceAttributes),
                 QString());
        bench.OpenMenu(3);
        QVERIFY(!bench.Child<QAction>("mnopen")->isEnabled());
        QVERIFY(bench.Child<QAction>("mnexport")->isEnabled());
        bench.dialogs.Expect(gStrings[48]);
        QTest::keyClick(bench.View(), Qt::Key_Return);
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(outside.asked, QStringList());
    }

    void aMissingDocumentIsOneRedRow() {
        Bench bench;
        bench.Load(bench.lost);
        QCOMPARE(bench.Tags(), QStringList(bench.lost));
        QCOMPARE(bench.Row(0).cells[0].foreColor, kColorRed);
    }

    void lockedReferencesAreMarked() {
        Bench bench;
        bench.library.LockReferences(bench.top);
        bench.Load(bench.top);
        QCOMPARE(bench.Text(0, kReferenceRelation), QString("(locked)"));
        QCOMPARE(bench.Row(0).image, QString("locked"));
        QCOMPARE(bench.Row(1).image, QString("asm"));
    }

    void aDocumentThatCantBeReadIsTold() {
        Bench bench;
        const QString broken = bench.library.MakeBroken("broken.tfmasm");
        bench.dialogs.Expect(Format(Text::DocumentNotReadable, broken));
        bench.Load(broken);
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(!bench.dialogs.LastDetail().isEmpty());
        QCOMPARE(bench.Tags(), QStringList(broken));
    }

    void anErrorInTheMiddleKeepsTheRowsSoFar() {
        Bench bench;
        FailingAccess access([](const char* operation, const QString&) {
            if (operation == QLatin1String("GetExternalReferenceCount"))
                throw DocumentError("Torn.");
        });
        bench.dialogs.Expect(Format(Text::DocumentNotReadable, bench.top));
        bench.Load(bench.top);
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.List().Count(), 4);
        QVERIFY(bench.Row(0).cells[0].bold);
    }

    void theHeaderChangesBetweenNamesAndPaths() {
        Bench bench;
        bench.Load(bench.top);
        QCOMPARE(bench.List().Headers()[0].text, gStrings[27]);
        QCOMPARE(bench.Text(2, 0), bench.pin);
        bench.ClickHeader(1);
        QCOMPARE(bench.Text(2, 0), bench.pin);
        bench.ClickHeader(0);
        QCOMPARE(bench.Text(2, 0), QString("pin.tfmprt"));
        QCOMPARE(bench.List().Headers()[0].text, gStrings[28]);
        bench.Load(bench.sub);
        QCOMPARE(bench.Text(1, 0), QString("pin.tfmprt"));
        bench.ClickHeader(0);
        QCOMPARE(bench.Text(1, 0), bench.pin);
    }

    void aWideLayoutSetsTheHeaderAlone() {
        LoadResources();
        editReference narrow;
        auto* view = narrow.findChild<CellListView*>("lv");
        QCOMPARE(view->List().Headers()[0].text, gStrings[6]);
        Bench bench;
        bench.Load(bench.top);
        bench.ClickHeader(0);
        bench.pane->resize(720, 400);
        QCOMPARE(bench.List().Headers()[0].text, gStrings[27]);
        QCOMPARE(bench.Text(2, 0), QString("pin.tfmprt"));
        bench.ClickHeader(0);
        QCOMPARE(bench.List().Headers()[0].text, gStrings[28]);
    }

    void openingGoesByTheShownText() {
        Bench bench;
        FakeOutside outside;
        FakeShellExecute shell;
        const QString notes = bench.library.Path("notes.txt");
        QFile file(notes);
        QVERIFY(file.open(QFile::WriteOnly));
        bench.Load(bench.library.Make("holder.tfmasm", {{notes}}));
        bench.OpenMenu(1);
        QVERIFY(bench.Child<QAction>("mnopen")->isEnabled());
        bench.Child<QAction>("mnopen")->trigger();
        bench.ClickHeader(0);
        bench.Child<QAction>("mnopen")->trigger();
        QCOMPARE(shell.calls, QStringList({"Open|" + notes + "|0|0|1", "Open|notes.txt|0|0|1"}));
    }

    void anEmptyListsMenuIsDisabled() {
        Bench bench;
        bench.OpenMenu(-1);
        QVERIFY(!bench.Child<QAction>("mnopen")->isEnabled());
        QVERIFY(!bench.Child<QAction>("mnexport")->isEnabled());
    }

    void theListIsExported() {
        Bench bench;
        FakeSpreadsheet sheet;
        bench.Load(bench.top);
        bench.OpenMenu(0);
        bench.Child<QAction>("mnexport")->trigger();
        QCOMPARE(sheet.shown[0][0], gStrings[27]);
        QCOMPARE(sheet.shown[3][0], bench.pin);
        QCOMPARE(bench.status.caption,
                 Format(Text::ExportDone, QString::number(sheet.shown.size() - 1)));
        sheet.fails = true;
        bench.dialogs.Expect(Format(Text::ExportError, "No."), Dialogs::Icon::None);
        bench.Child<QAction>("mnexport")->trigger();
        QCOMPARE(bench.status.caption, gStrings[42]);
    }

    void aWebDocumentShowsNoFacts() {
        Bench bench;
        FakeWeb web;
        const QString folder = "http://server/docs/";
        QFile file(bench.top);
        QVERIFY(file.open(QFile::ReadOnly));
        web.server.files[folder + "top.tfmasm"] = file.readAll();
        gWebDocument = true;
        bench.Load(folder + "top.tfmasm");
        gWebDocument = false;
        QCOMPARE(bench.Tags(), QStringList({folder + "top.tfmasm", folder + "sub.tfmasm",
                                            folder + "pin.tfmprt", folder + "lost.tfmprt"}));
        for (int row = 0; row < 4; ++row) {
            QCOMPARE(bench.Text(row, kReferenceSize) + bench.Text(row, kReferenceChanged) +
                         bench.Text(row, kReferenceAttributes),
                     QString());
            QCOMPARE(bench.Row(row).cells[0].foreColor, kColorNormal);
        }
        QCOMPARE(web.server.calls, QStringList("get " + folder + "top.tfmasm"));
    }

    void thePaneMayGoAwayBehindABox_data() {
        QTest::addColumn<QString>("which");
        for (const char* which : {"a document that can't be read", "a password"})
            QTest::newRow(which) << which;
    }
    void thePaneMayGoAwayBehindABox() {
        QFETCH(QString, which);
        Bench bench;
        AskingWeb web;
        if (which == "a password") {
            web.client->meanwhile = [&] { bench.pane.reset(); };
            bench.Load("http://server/docs/top.tfmasm");
        } else {
            bench.dialogs.Meanwhile([&] { bench.pane.reset(); });
            bench.dialogs.Expect("*");
            bench.Load(bench.library.MakeBroken("broken.tfmasm"));
        }
        QVERIFY(!bench.pane);
        QVERIFY(bench.dialogs.AllCame());
    }

    void anotherDocumentMayComeBehindABox_data() { thePaneMayGoAwayBehindABox_data(); }
    void anotherDocumentMayComeBehindABox() {
        QFETCH(QString, which);
        Bench bench;
        AskingWeb web;
        QFile file(bench.top);
        QVERIFY(file.open(QFile::ReadOnly));
        web.server.files["http://server/docs/top.tfmasm"] = file.readAll();
        if (which == "a password") {
            web.client->meanwhile = [&] { bench.Load(bench.sub); };
            bench.Load("http://server/docs/top.tfmasm");
            QCOMPARE(gWebCopies.keys(), QStringList("http://server/docs/top.tfmasm"));
        } else {
            bench.dialogs.Meanwhile([&] { bench.Load(bench.sub); });
            bench.dialogs.Expect("*");
            bench.Load(bench.library.MakeBroken("broken.tfmasm"));
        }
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.Tags(), QStringList({bench.sub, bench.pin}));
        QVERIFY(bench.Row(0).cells[0].bold && !bench.Row(1).cells[0].bold);
    }

    void noPathKeepsTheList() {
        Bench bench;
        bench.Load(bench.top);
        bench.Load(QString());
        QCOMPARE(bench.List().Count(), 4);
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestEditReference)
#include "tst_editreference.moc"
