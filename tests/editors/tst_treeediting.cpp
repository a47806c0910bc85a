// What the two tree editors have in common: edit boxes, drops, and boxes behind which they go away.

#include "editors/editconfig.h"
#include "editors/edithyperlink.h"
#include "services/documentlibrary.h"
#include "tests/editors/editorbench.h"
#include "tests/support/failingaccess.h"
#include "tests/support/testenvironment.h"

using namespace docbench;
using docmodel::DocumentBuilder;

namespace {

// What the tests need to know of an editor.
struct Configurations {
    using Pane = editConfig;
    static constexpr const char* kTree = "tvwconfig";
    static constexpr const char* kSave = "Save";
    static constexpr size_t kSaved = 97;
    static void Add(DocumentBuilder& document, const QString& text) {
        document.AddConfiguration(text);
    }
    static QStringList Read(const QString& path) {
        const auto file = Documents().MakeDocumentFile();
        file->Open(path);
        QStringList texts;
        for (int index = 0; index < file->GetConfigurationCount(); ++index)
            texts.append(file->GetConfiguration(index));
        return texts;
    }
};

struct Hyperlinks {
    using Pane = EditHyperLink;
    static constexpr const char* kTree = "tvwhlink";
    static constexpr const char* kSave = "SaveHyperlinks";
    static constexpr size_t kSaved = 110;
    static void Add(DocumentBuilder& document, const QString& text) { document.AddHyperlink(text); }
    static QStringList Read(const QString& path) {
        const auto file = Documents().MakeDocumentFile();
        file->OpenHyperlinks(path);
        QStringList texts;
        for (int index = 0; index < file->GetHyperlinkCount(); ++index)
            texts.append(file->GetHyperlink(index));
        return texts;
    }
};

template <typename Editor>
struct Bench : EditorBench<typename Editor::Pane> {
    Bench() : EditorBench<typename Editor::Pane>(Editor::kTree) {}
    QString Load(const QString& name, const QStringList& texts) {
        QString path = this->library.Make(name);
        DocumentBuilder document = DocumentBuilder::Edit(path);
        for (const QString& text : texts)
            Editor::Add(document, text);
        document.Save();
        this->pane->SetPartName(name, path);
        return path;
    }
};

// A mnemonic leaves the focus where it is, and an edit box open.
template <typename Editor>
void SavesByMnemonic() {
    Bench<Editor> bench;
    const QString pin = bench.Load("pin.tfmprt", {"a", "b"});
    bench.Type(2, "c");
    bench.BeginEdit(3)->setText("d");
    QTest::keyClick(bench.EditBox(), Qt::Key_S, Qt::AltModifier);
    QTRY_COMPARE(bench.status.caption, gStrings[Editor::kSaved]);
    QCOMPARE(Editor::Read(pin), QStringList({"c", "d"}));
    QCOMPARE(bench.Texts(), QStringList({"c", "d"}));
}

template <typename Editor>
void ClosesTheEditBox() {
    Bench<Editor> bench;
    const QString pin = bench.Load("pin.tfmprt", {"a", "b"});
    bench.BeginEdit(2)->setText("x");
    bench.Load("other.tfmprt", {"c", "d"});
    bench.Settle();
    QVERIFY(!bench.EditBox());
    QCOMPARE(bench.Texts(), QStringList({"c", "d"}));
    QVERIFY(!bench.CanSave());
    QCOMPARE(Editor::Read(pin), QStringList({"a", "b"}));
}

template <typename Editor>
void TakesFilesOnly() {
    Bench<Editor> bench;
    bench.Load("pin.tfmprt", {"a"});
    QMimeData text;
    text.setText("/docs/one.txt");
    QVERIFY(!bench.Drop(text, bench.CentreOf(2)));
    QMimeData address;
    address.setUrls({QUrl("http://server/one.txt")});
    QVERIFY(!bench.Drop(address, bench.CentreOf(2)));
    QMimeData file;
    file.setUrls({QUrl::fromLocalFile("/docs/one.txt")});
    bench.Drop(file, bench.View()->viewport()->rect().bottomRight() - QPoint(5, 5));
    bench.Drop(file, bench.CentreOf(1));
    QVERIFY(!bench.EditBox());
    QVERIFY(!bench.CanSave());
    QVERIFY(bench.Drop(file, bench.CentreOf(2)));
    QVERIFY(bench.EditBox());
}

template <typename Editor>
void MayGoAway(const QString& which) {
    Bench<Editor> bench;
    bool fails = false;
    FailingAccess access([&](const char* operation, const QString&) {
        if (fails)
            throw DocumentError("No.");
        fails = operation == QLatin1String(Editor::kSave);
    });
    bench.Load("pin.tfmprt", {"a"});
    bench.Type(2, "b");
    fails = which == "a save that fails";
    bench.dialogs.Meanwhile([&] { bench.pane.reset(); });
    bench.dialogs.Expect("*");
    if (which == "a document that can't be read")
        bench.pane->SetPartName("broken", bench.library.MakeBroken("broken.tfmprt"));
    else
        QMetaObject::invokeMethod(bench.SaveButton(), "click");
    QVERIFY(bench.dialogs.AllCame());
    QVERIFY(!bench.pane);
}

// The pane gets another document behind the box that the one that was saved can't be read.
template <typename Editor>
void KeepsTheOther() {
    Bench<Editor> bench;
    bool fails = false;
    FailingAccess access([&](const char* operation, const QString&) {
        if (fails)
            throw DocumentError("No.");
        fails = operation == QLatin1String(Editor::kSave);
    });
    const QString other = bench.Load("other.tfmprt", {"theirs", "too"});
    const QString told = bench.status.caption;
    bench.Load("pin.tfmprt", {"a"});
    bench.Type(2, "b");
    bench.dialogs.Meanwhile([&] {
        fails = false;
        bench.pane->SetPartName("other", other);
    });
    bench.dialogs.Expect("*");
    bench.Save();
    QVERIFY(bench.dialogs.AllCame());
    QCOMPARE(bench.Texts(), QStringList({"theirs", "too"}));
    QCOMPARE(bench.status.caption, told);
    bench.pane.reset();  // with the objects of this library
}

}  // namespace

class TestTreeEditing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theMnemonicSavesAConfigurationThatIsBeingTyped() { SavesByMnemonic<Configurations>(); }
    void theMnemonicSavesAHyperlinkThatIsBeingTyped() { SavesByMnemonic<Hyperlinks>(); }

    void theMnemonicRefusesATakenName() {
        Bench<Configurations> bench;
        const QString pin = bench.Load("pin.tfmprt", {"a", "b", "e"});
        bench.Type(2, "c");
        bench.BeginEdit(3)->setText("e");
        bench.dialogs.Expect(gStrings[94]);
        QTest::keyClick(bench.EditBox(), Qt::Key_S, Qt::AltModifier);
        QTRY_COMPARE(bench.status.caption, gStrings[97]);
        bench.Settle();
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(Configurations::Read(pin), QStringList({"c", "b", "e"}));
    }

    void anotherDocumentClosesTheEditBoxOfAConfiguration() { ClosesTheEditBox<Configurations>(); }
    void anotherDocumentClosesTheEditBoxOfAHyperlink() { ClosesTheEditBox<Hyperlinks>(); }

    void aConfigurationTakesFilesOnly() { TakesFilesOnly<Configurations>(); }
    void aHyperlinkTakesFilesOnly() { TakesFilesOnly<Hyperlinks>(); }

    void thePaneMayGoAwayBehindABox_data() {
        QTest::addColumn<QString>("which");
        for (const char* which : {"a document that can't be read", "a save that fails",
                                  "a document that can't be read behind its save"})
            QTest::newRow(which) << which;
    }
    void thePaneMayGoAwayBehindABox() {
        QFETCH(QString, which);
        MayGoAway<Configurations>(which);
        MayGoAway<Hyperlinks>(which);
    }

    void anotherDocumentMayComeBehindTheBoxOfASave() {
        KeepsTheOther<Configurations>();
        KeepsTheOther<Hyperlinks>();
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestTreeEditing)
#include "tst_treeediting.moc"
