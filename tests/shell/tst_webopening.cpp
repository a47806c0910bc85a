// Opening documents from web folders: the form, its picker, and the shell around them.

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "platform/urlfileopen.h"
#include "services/language.h"
#include "services/loggingmanager.h"
#include "services/scratch.h"
#include "services/webdocument.h"
#include "shell/openurlfrm.h"
#include "shell/twips.h"
#include "tests/shell/shellbench.h"
#include "tests/support/fakeoutside.h"
#include "tests/support/fakewebclient.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

const QString kFolder = QStringLiteral("http://s/w/");

// A picker that is told what the user does.
class FakePicker : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString url MEMBER url)

public:
    Q_INVOKABLE void SetType(const QString& type) { calls.append(type); }
    Q_INVOKABLE void AddFileType(const QString& type) { calls.append(type); }

    QString url;
    QStringList calls;

Q_SIGNALS:
    void Event(const QString& name);
};

// The shell with a web folder of a small assembly, and a picker that answers at once.
struct WebBench : ShellBench {
    WebBench() {
        outside.make = [this](const QString&) {
            auto picker = std::make_unique<FakePicker>();
            last = picker.get();
            QTimer::singleShot(0, picker.get(), [this] {
                seen = last->calls;
                title = last->window()->windowTitle();
                last->url = answer;
                Q_EMIT last->Event(QStringLiteral("FileTypeChangeEvent"));
                Q_EMIT last->Event(event);
            });
            return picker;
        };
        outside.start = nullptr;
        for (const QString& path : {top, left, pin}) {
            QFile file(path);
            if (file.open(QIODevice::ReadOnly))
                web.server.files[kFolder + QFileInfo(path).fileName()] = file.readAll();
        }
    }

    FakeOutside outside;
    FakeWeb web;
    FakePicker* last = nullptr;
    QString answer;
    QString event = QStringLiteral("OpenEvent");
    QStringList seen;
    QString title;
};

struct PickerBench {
    explicit PickerBench(bool withTypes = true) {
        LoadResources();
        web.server.folders = {kFolder, kFolder + "sub 10/", kFolder + "sub 9/"};
        web.server.files = {{kFolder + "b.tfmasm", "x"}, {kFolder + "a.tfmprt", "x"},
                            {kFolder + "c.tfmdrw", "x"}, {kFolder + "n.txt", "x"},
                            {kFolder + "old.prt", "x"},  {kFolder + "sub 9/d.tfmprt", "x"}};
        for (const char* type :
             {"Tessaforma files(*.tfmasm, *.tfmprt, *.tfmdrw)", "Part files(*.tfmprt, *.prt)"}) {
            if (withTypes)
                picker.AddFileType(QLatin1String(type));
        }
        picker.show();
    }
    void Type(const QString& address) {
        auto* line = picker.findChild<QComboBox*>(QStringLiteral("address"));
        line->setEditText(address);
        QTest::keyClick(line->lineEdit(), Qt::Key_Return);
    }
    QStringList Listed() {
        QStringList names;
        auto* list = picker.findChild<QListWidget*>();
        for (int i = 0; i < list->count(); ++i)
            names.append(list->item(i)->text());
        return names;
    }
    bool Activate() {
        picker.activateWindow();
        return QTest::qWaitForWindowActive(&picker);
    }
    QListWidget* List() { return picker.findChild<QListWidget*>(); }
    QLabel* Error() { return picker.findChild<QLabel*>(QStringLiteral("error")); }
    QPushButton* Button(const char* name) {
        return picker.findChild<QPushButton*>(QLatin1String(name));
    }

    TestLibrary library;
    TestDialogs dialogs;
    FakeWeb web;
    URLFileOpen picker;
};

}  // namespace

class TestWebOpening : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        gLogger.reset();
        gWebDocument = false;
    }
    void aPickedDocumentIsOpenedWithItsTree();
    void cancellingLeavesTheDocumentAsItWas();
    void whatIsNoDocumentIsIgnored();
    void aDrawingOfTheFormerKindIsIgnored();
    void withoutAPickerNothingHappens();
    void theFormTellsThePickerItsFileTypes();
    void aWebDocumentLeavesTheFileOperations();
    void lockingAWebDocumentUploadsIt();
    void browsingToALocalDocumentForgetsTheCopies();
    void aDocumentThatCantBeFetchedIsRed();
    void thePickerListsFoldersBeforeFilesInNaturalOrder();
    void thePickersFilterShowsItsTypesAlone();
    void thePickerGoesUpAndDown();
    void aDoubleClickOpensTheDocument();
    void aDocumentsAddressOpensIt();
    void escapeCancels();
    void anErrorIsToldInWords();
    void anErrorKeepsTheListing();
    void whatIsNoWebAddressIsRefusedInWords_data();
    void whatIsNoWebAddressIsRefusedInWords();
    void aPasswordInTheAddressIsRefusedAndNotRemembered_data();
    void aPasswordInTheAddressIsRefusedAndNotRemembered();
    void aServersNameAloneIsAnAddress();
    void withoutFileTypesAllDocumentsAreListed();
    void altUpGoesToTheFolderAbove();
    void enterOpensWhatIsMarkedInTheList();
    void theLastAddressesAreRemembered();
    void notMoreThanTenAddressesAreRemembered();
    void theFormStaysOpenWhileThePickerIsFilled();
    void theFormGivesWhatThePickerOpened();
    void escapeLeavesTheFormWithNothing();
};

void TestWebOpening::aPickedDocumentIsOpenedWithItsTree() {
    WebBench bench;
    bench.answer = kFolder + "top.tfmasm";
    bench.shell.SetCurrentFunction("REF");
    bench.shell.SetCurrentFunction("OPENURL");
    QCOMPARE(bench.shell.CurrentFunction(), QString("REF"));
    QCOMPARE(bench.shell.m_partfilename, bench.answer);
    QVERIFY(gWebDocument);
    QCOMPARE(bench.PathBox()->currentText(), bench.answer);
    QCOMPARE(bench.PathBox()->itemText(0), bench.answer);
    const CellNodes& nodes = bench.shell.Tree().Nodes();
    QCOMPARE(nodes.At(2).tag, kFolder + "left.tfmasm");
    QCOMPARE(nodes.At(3).tag, kFolder + "pin.tfmprt");
}

void TestWebOpening::cancellingLeavesTheDocumentAsItWas() {
    WebBench bench;
    bench.Open();
    bench.answer = kFolder + "top.tfmasm";
    bench.event = "CancelEvent";
    bench.shell.SetCurrentFunction("OPENURL");
    QCOMPARE(bench.shell.m_partfilename, bench.top);
    QVERIFY(!gWebDocument);
}

void TestWebOpening::whatIsNoDocumentIsIgnored() {
    WebBench bench;
    bench.Open();
    bench.answer = kFolder + "notes.txt";
    bench.shell.SetCurrentFunction("OPENURL");
    QCOMPARE(bench.shell.m_partfilename, bench.top);
    QVERIFY(!gWebDocument);
}

void TestWebOpening::aDrawingOfTheFormerKindIsIgnored() {
    WebBench bench;
    bench.Open();
    bench.answer = kFolder + "old.drw";
    bench.shell.SetCurrentFunction("OPENURL");
    QCOMPARE(bench.shell.m_partfilename, bench.top);
    QVERIFY(!gWebDocument);
}

void TestWebOpening::withoutAPickerNothingHappens() {
    WebBench bench;
    bench.outside.make = nullptr;
    bench.Open();
    bench.shell.SetCurrentFunction("OPENURL");
    QCOMPARE(bench.shell.m_partfilename, bench.top);
}

void TestWebOpening::theFormTellsThePickerItsFileTypes() {
    WebBench bench;
    bench.shell.SetCurrentFunction("OPENURL");
    QCOMPARE(bench.outside.created.last(), QString("URLFileOpenControl.URLFileOpen"));
    QCOMPARE(bench.seen,
             QStringList({"open", "Tessaforma files(*.tfmasm, *.tfmprt, *.tfmdrw)",
                          "Part files(*.tfmprt, *.prt)", "Assembly files(*.tfmasm, *.asm)",
                          "Drawing files(*.tfmdrw, *.drw)"}));
    QCOMPARE(bench.title, gStrings[383]);
}

void TestWebOpening::aWebDocumentLeavesTheFileOperations() {
    WebBench bench;
    bench.answer = kFolder + "top.tfmasm";
    bench.shell.SetCurrentFunction("RENAME");
    bench.shell.SetCurrentFunction("OPENURL");
    QCOMPARE(bench.shell.CurrentFunction(), QString("PREVIEW"));
}

void TestWebOpening::lockingAWebDocumentUploadsIt() {
    WebBench bench;
    const QByteArray before = bench.web.server.files[kFolder + "pin.tfmprt"];
    bench.shell.OpenPath(kFolder + "pin.tfmprt");
    bench.shell.SetCurrentFunction("LOCK");
    QVERIFY(bench.web.server.calls.contains("put " + kFolder + "pin.tfmprt"));
    QVERIFY(bench.web.server.files[kFolder + "pin.tfmprt"] != before);
    QVERIFY(bench.library.IsLocked(gWebCopies.value(kFolder + "pin.tfmprt")));
    QVERIFY(!bench.library.IsLocked(bench.pin));
    QCOMPARE(bench.shell.GetLockState().toBool(), true);
}

void TestWebOpening::browsingToALocalDocumentForgetsTheCopies() {
    WebBench bench;
    bench.shell.OpenPath(kFolder + "pin.tfmprt");
    QVERIFY(!gWebCopies.isEmpty());
    bench.dialogs.ExpectOpenFile(bench.pin);
    bench.shell.SetCurrentFunction("OPEN");
    QVERIFY(gWebCopies.isEmpty());
    QVERIFY(!gWebDocument);
}

void TestWebOpening::aDocumentThatCantBeFetchedIsRed() {
    WebBench bench;
    bench.web.server.files.remove(kFolder + "pin.tfmprt");
    bench.shell.OpenPath(kFolder + "top.tfmasm");
    QCOMPARE(bench.shell.Tree().Nodes().At(3).foreColor, kColorRed);
    QCOMPARE(bench.shell.m_partfilename, kFolder + "top.tfmasm");
}

void TestWebOpening::thePickerListsFoldersBeforeFilesInNaturalOrder() {
    PickerBench bench;
    bench.Type(kFolder.chopped(1));
    QCOMPARE(bench.Listed(), QStringList({"sub 9", "sub 10", "a.tfmprt", "b.tfmasm", "c.tfmdrw"}));
    QVERIFY(bench.Button("open")->isEnabled());
}

void TestWebOpening::thePickersFilterShowsItsTypesAlone() {
    PickerBench bench;
    bench.Type(kFolder);
    QSignalSpy events(&bench.picker, &URLFileOpen::Event);
    bench.picker.findChild<QComboBox*>("types")->setCurrentIndex(1);
    QCOMPARE(bench.Listed(), QStringList({"sub 9", "sub 10", "a.tfmprt", "old.prt"}));
    QCOMPARE(events.count(), 1);
    QCOMPARE(events[0][0].toString(), QString("FileTypeChangeEvent"));
}

void TestWebOpening::thePickerGoesUpAndDown() {
    PickerBench bench;
    bench.web.server.folders.append("http://s/");
    bench.Type(kFolder);
    auto* list = bench.picker.findChild<QListWidget*>();
    Q_EMIT list->itemActivated(list->item(0));
    QCOMPARE(bench.Listed(), QStringList("d.tfmprt"));
    QVERIFY(bench.Button("up")->isEnabled());
    bench.Button("up")->click();
    QCOMPARE(bench.Listed().size(), 5);
    bench.Button("up")->click();
    QCOMPARE(bench.Listed(), QStringList("w"));
    QVERIFY(!bench.Button("up")->isEnabled());
}

void TestWebOpening::aDoubleClickOpensTheDocument() {
    PickerBench bench;
    bench.Type(kFolder);
    QSignalSpy events(&bench.picker, &URLFileOpen::Event);
    auto* list = bench.picker.findChild<QListWidget*>();
    Q_EMIT list->itemActivated(list->item(2));
    QCOMPARE(events.count(), 1);
    QCOMPARE(events[0][0].toString(), QString("OpenEvent"));
    QCOMPARE(bench.picker.property("url").toString(), kFolder + "a.tfmprt");
}

void TestWebOpening::aDocumentsAddressOpensIt() {
    PickerBench bench;
    QSignalSpy events(&bench.picker, &URLFileOpen::Event);
    bench.Type(kFolder + "b.tfmasm");
    QCOMPARE(events.count(), 1);
    QCOMPARE(bench.picker.Url(), kFolder + "b.tfmasm");
}

void TestWebOpening::escapeCancels() {
    PickerBench bench;
    QSignalSpy events(&bench.picker, &URLFileOpen::Event);
    QTest::keyClick(&bench.picker, Qt::Key_Escape);
    QCOMPARE(events[0][0].toString(), QString("CancelEvent"));
    bench.Button("cancel")->click();
    QCOMPARE(events.count(), 2);
}

void TestWebOpening::anErrorIsToldInWords() {
    PickerBench bench;
    bench.Type("http://s/nowhere/");
    QVERIFY(!bench.Error()->isHidden());
    QCOMPARE(bench.Error()->text(), bench.web.server.error);
    bench.Type(kFolder);
    QVERIFY(bench.Error()->isHidden());
}

void TestWebOpening::anErrorKeepsTheListing() {
    PickerBench bench;
    bench.Type(kFolder);
    const QStringList listed = bench.Listed();
    bench.Type("http://s/nowhere/");
    QCOMPARE(bench.Listed(), listed);
    bench.Type("ftp://s/w/");
    QCOMPARE(bench.Listed(), listed);
    QVERIFY(bench.Button("up")->isEnabled());
}

void TestWebOpening::whatIsNoWebAddressIsRefusedInWords_data() {
    QTest::addColumn<QString>("typed");
    for (const char* typed : {"", "  ", "https://", "ftp://s/w/", "file:///w/a.tfmprt", "/w/",
                              "https:///a.tfmprt", "https://s:port/"})
        QTest::newRow(*typed ? typed : "nothing") << QString(typed);
}

void TestWebOpening::whatIsNoWebAddressIsRefusedInWords() {
    QFETCH(QString, typed);
    PickerBench bench;
    QSignalSpy events(&bench.picker, &URLFileOpen::Event);
    bench.Type(typed);
    QVERIFY(!bench.Error()->isHidden());
    QVERIFY(bench.Error()->text().startsWith("This is no address of a web folder."));
    QVERIFY(bench.web.server.calls.isEmpty());
    QCOMPARE(events.count(), 0);
}

void TestWebOpening::aPasswordInTheAddressIsRefusedAndNotRemembered_data() {
    QTest::addColumn<QString>("typed");
    QTest::newRow("folder") << "http://ann:secret@s/w/";
    QTest::newRow("document") << "http://ann:secret@s/w/a.tfmprt";
    QTest::newRow("no scheme") << "ann:secret@s/w/";
    QTest::newRow("unencoded") << "http://ann:se/secret@s/w/";
}

void TestWebOpening::aPasswordInTheAddressIsRefusedAndNotRemembered() {
    QFETCH(QString, typed);
    PickerBench bench;
    QSignalSpy events(&bench.picker, &URLFileOpen::Event);
    bench.Type(typed);
    QVERIFY(!bench.Error()->isHidden());
    QVERIFY(!bench.Error()->text().contains("secret"));
    QCOMPARE(events.count(), 0);
    QVERIFY(bench.web.server.calls.isEmpty());
    QVERIFY(bench.picker.Url().isEmpty());
    const URLFileOpen other;
    const auto* addresses = other.findChild<QComboBox*>("address");
    for (int i = 0; i < addresses->count(); ++i)
        QVERIFY(!addresses->itemText(i).contains("secret"));
}

void TestWebOpening::aServersNameAloneIsAnAddress() {
    PickerBench bench;
    bench.web.server.folders.append("https://s/");
    bench.Type("s");
    QVERIFY(bench.Error()->isHidden());
    QCOMPARE(bench.web.server.calls, QStringList("list https://s/"));
}

void TestWebOpening::withoutFileTypesAllDocumentsAreListed() {
    PickerBench bench(false);
    bench.Type(kFolder);
    QCOMPARE(bench.Listed(),
             QStringList({"sub 9", "sub 10", "a.tfmprt", "b.tfmasm", "c.tfmdrw", "old.prt"}));
}

void TestWebOpening::altUpGoesToTheFolderAbove() {
    PickerBench bench;
    QVERIFY(bench.Activate());
    bench.web.server.folders.append("http://s/");
    bench.Type(kFolder + "sub 9/");
    QTest::keyClick(bench.List(), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(bench.Listed().size(), 5);
    bench.List()->setCurrentRow(3);  // there is a row above it
    QTest::keyClick(bench.List(), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(bench.Listed(), QStringList("w"));
    bench.web.server.calls.clear();
    QTest::keyClick(bench.List(), Qt::Key_Up, Qt::AltModifier);  // nothing is above a server
    QVERIFY(bench.web.server.calls.isEmpty());
}

void TestWebOpening::enterOpensWhatIsMarkedInTheList() {
    PickerBench bench;
    bench.Type(kFolder);
    QSignalSpy events(&bench.picker, &URLFileOpen::Event);
    QTest::keyClick(bench.List(), Qt::Key_Return);
    QCOMPARE(bench.Listed(), QStringList("d.tfmprt"));
    QCOMPARE(events.count(), 0);
    QTest::keyClick(bench.List(), Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(events.count(), 1);
    QCOMPARE(bench.picker.Url(), kFolder + "sub 9/d.tfmprt");
}

void TestWebOpening::theLastAddressesAreRemembered() {
    PickerBench bench;
    bench.Type(kFolder);
    bench.Type(kFolder + "sub 9/");
    bench.Type(kFolder);
    const URLFileOpen other;
    auto* addresses = other.findChild<QComboBox*>("address");
    QCOMPARE(addresses->itemText(0), kFolder);
    QCOMPARE(addresses->itemText(1), kFolder + "sub 9/");
    QVERIFY(addresses->itemText(2) != kFolder);
}

void TestWebOpening::notMoreThanTenAddressesAreRemembered() {
    PickerBench bench;
    for (int i = 0; i < 12; ++i) {
        const QString folder = QStringLiteral("http://s/w%1/").arg(i);
        bench.web.server.folders.append(folder);
        bench.Type(folder);
    }
    const URLFileOpen other;
    const auto* addresses = other.findChild<QComboBox*>("address");
    QCOMPARE(addresses->count(), 10);
    QCOMPARE(addresses->itemText(0), QString("http://s/w11/"));
    QCOMPARE(addresses->itemText(9), QString("http://s/w2/"));
}

namespace {

// The form with the program's own picker in it.
struct FormBench {
    FormBench() {
        LoadResources();
        web.server.folders = {kFolder};
        web.server.files = {{kFolder + "a.tfmprt", "x"}, {kFolder + "old.drw", "x"}};
        outside.make = [this](const QString&) {
            auto made = std::make_unique<URLFileOpen>();
            QObject::connect(made.get(), &URLFileOpen::Event,
                             [this](const QString& name) { events.append(name); });
            return made;
        };
        form = std::make_unique<OpenURLFrm>();
        form->show();
        picker = form->findChild<URLFileOpen*>(QStringLiteral("URLFileOpen"));
    }
    void Type(const QString& address) {
        auto* line = picker->findChild<QComboBox*>(QStringLiteral("address"));
        line->setEditText(address);
        QTest::keyClick(line->lineEdit(), Qt::Key_Return);
    }

    TestDialogs dialogs;
    FakeWeb web;
    FakeOutside outside;
    QStringList events;
    std::unique_ptr<OpenURLFrm> form;
    URLFileOpen* picker = nullptr;
};

}  // namespace

void TestWebOpening::theFormStaysOpenWhileThePickerIsFilled() {
    const FormBench bench;
    QVERIFY(bench.picker);
    QVERIFY(bench.events.contains("FileTypeChangeEvent"));
    QVERIFY(bench.form->isVisible());
    QCOMPARE(bench.picker->findChild<QComboBox*>("types")->count(), 4);
    QCOMPARE(bench.picker->pos(), QPoint(0, 0));
    QVERIFY(bench.picker->width() >= TwipsToPixels(6555));
    QVERIFY(bench.picker->height() >= TwipsToPixels(4155));
}

void TestWebOpening::theFormGivesWhatThePickerOpened() {
    FormBench bench;
    bench.Type(kFolder);
    QVERIFY(bench.form->isVisible());
    bench.picker->findChild<QComboBox*>("types")->setCurrentIndex(1);
    QVERIFY(bench.form->isVisible());
    QTest::keyClick(bench.picker->findChild<QListWidget*>(), Qt::Key_Return);
    QVERIFY(!bench.form->isVisible());
    QCOMPARE(bench.form->Url(), kFolder + "a.tfmprt");
}

void TestWebOpening::escapeLeavesTheFormWithNothing() {
    FormBench bench;
    bench.Type(kFolder);
    QTest::keyClick(bench.picker->findChild<QListWidget*>(), Qt::Key_Escape);
    QVERIFY(!bench.form->isVisible());
    QCOMPARE(bench.form->Url(), QString());
    QCOMPARE(bench.events.last(), QString("CancelEvent"));
}

DOCBENCH_TEST_MAIN(QApplication, TestWebOpening)
#include "tst_webopening.moc"
