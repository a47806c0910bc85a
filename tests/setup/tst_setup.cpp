// The setup pane through its widgets, with the settings file read back.

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <memory>

#include "panes/celllistview.h"
#include "services/documentlibrary.h"
#include "services/folderlists.h"
#include "services/language.h"
#include "services/languagechoice.h"
#include "services/openexternal.h"
#include "services/settingsstore.h"
#include "services/texts.h"
#include "setup/setup.h"
#include "shell/viewer.h"
#include "tests/shell/shellbench.h"
#include "tests/support/fakeoutside.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

using Hive = SettingsKey::Hive;

constexpr char kLoggingKey[] = "Software\\Tessaforma\\TessaformaDocbench\\Performance Logging";
constexpr char kWriter[] = "--write-lists";
constexpr char kHosted[] = "TessaCad.exe";
constexpr int kLists = 40;  // that each of two programs writes

std::unique_ptr<SettingsKey> Options() {
    return SettingsKey::Open(Hive::CurrentUser, kExtReferencesKey);
}

std::optional<quint32> Number(const char* value, const char* key = kExtReferencesKey) {
    return SettingsKey::Open(Hive::CurrentUser, key)->Number(value);
}

// The settings file without the right to be written, for as long as it lives.
class ReadOnlySettings {
public:
    ReadOnlySettings() {
        Options()->SetText("anything", "is there");
        Walk(false);
    }
    ~ReadOnlySettings() { Walk(true); }

private:
    static void Walk(bool writable) {
        const auto rights =
            writable ? QFile::WriteOwner | QFile::ReadOwner : QFile::Permissions(QFile::ReadOwner);
        const QDir folder(qEnvironmentVariable("XDG_CONFIG_HOME"));
        QDirIterator files(folder.path(), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            QFile::setPermissions(files.next(), rights);
    }
};

// A settings file that holds something else, for as long as it lives.
class BrokenSettings {
public:
    BrokenSettings()
        : path_(qEnvironmentVariable("XDG_CONFIG_HOME") + "/Tessaforma/TessaformaDocbench.ini") {
        Options()->SetText("anything", "is there");
        before_ = Content();
        Fill(content);
    }
    ~BrokenSettings() { Fill(before_); }
    QByteArray Content() const {
        QFile file(path_);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    const QByteArray content = "<?xml version=\"1.0\"?>\n<settings/>\n";

private:
    void Fill(const QByteArray& bytes) const {
        QFile file(path_);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("no settings file");
    }
    const QString path_;
    QByteArray before_;
};

struct Bench {
    Bench() {
        LoadResources();
        pane = std::make_unique<setup>();
        pane->SetStatusBarControl(&status);
        pane->resize(760, 560);
    }
    void Show() {
        pane->show();
        if (!QTest::qWaitForWindowActive(pane.get()))
            qFatal("no active window");
    }
    template <typename T = QWidget>
    T* Child(const char* name) {
        T* child = pane->findChild<T*>(QLatin1String(name));
        if (!child)
            qFatal("no %s", name);
        return child;
    }
    QCheckBox* Box(const char* name) { return Child<QCheckBox>(name); }
    QPushButton* Button(const char* name) { return Child<QPushButton>(name); }
    CellListView* Names() { return Child<CellListView>("wuNameDir"); }
    CellListView* Folders() { return Child<CellListView>("DirList"); }
    QLineEdit* Key() { return Child<QLineEdit>("wuKey"); }
    bool On(const char* name) { return Child(name)->isEnabled(); }
    void Click(const char* name) { QTest::mouseClick(Button(name), Qt::LeftButton); }
    static void ClickRow(CellListView* view, int row,
                         Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        const QRect where = view->visualRect(view->List().index(row, 0));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, where.center());
    }
    QStringList FolderTexts() {
        QStringList texts;
        for (const CellRow& row : Folders()->List().Rows())
            texts.append(row.cells.front().text);
        return texts;
    }
    // A list of the user's, and one of the CAD application.
    static void StoreLists() {
        Options()->SetText("Vendors TDB-Key", "/v/a;/v/b;/v/c");
        Options()->SetText("Document Folders", "/cad");
        Options()->SetText("Other", "/not/shown");
    }

    TestLibrary library;
    TestDialogs dialogs;
    FakeStatusLine status;
    std::unique_ptr<setup> pane;
};

// What another program does meanwhile.
int WriteLists(const QString& prefix) {
    const DocumentLibrary library;
    gSeams.documents = library.Access();
    for (int i = 0; i < kLists; ++i) {
        if (!WriteFolderList(QString("%1%2%3").arg(prefix).arg(i).arg(kFolderListMarker), "/x"))
            return 1;
    }
    return 0;
}

// In a process of the CAD application; the other one has stored that the log is wanted.
int ShowHosted() {
    Bench bench;
    bench.pane->show();
    return bench.Child("Frame4")->isHidden() && bench.Box("chkLogging")->isHidden() &&
                   bench.Box("chkLogging")->isChecked()
               ? 0
               : 1;
}

}  // namespace

class TestSetup : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        for (const char* value : {"Show Description", "Use Search Rules", kUseViewerValue,
                                  "Vendors TDB-Key", "Document Folders", "Other"})
            Options()->Delete(value);
        SettingsKey::Open(Hive::CurrentUser, kLoggingKey)->Delete("Email Enabled");
        gViewerChecked = false;
        UseViewer = false;
    }

    void aFreshProfileShowsTheDefaults() {
        Bench bench;
        bench.Show();
        QVERIFY(bench.pane->ShowDesc());
        QVERIFY(bench.Box("chkShowDesc")->isChecked());
        QVERIFY(bench.Child("DescControl1")->isVisible());
        QCOMPARE(bench.Box("chkOpenFile")->checkState(), Qt::PartiallyChecked);
        QVERIFY(bench.Box("chkUse3dView")->isHidden());  // there is no viewer
        QVERIFY(!UseViewer);
        QVERIFY(!Number("Show Description"));  // nothing was stored by looking
        QVERIFY(!Number("Use Search Rules"));
    }

    void anOptionIsStoredAtOnce_data() {
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::newRow("description") << "chkShowDesc" << kExtReferencesKey << "Show Description";
        QTest::newRow("rules") << "chkOpenFile" << kExtReferencesKey << "Use Search Rules";
        QTest::newRow("viewer") << "chkUse3dView" << kExtReferencesKey << kUseViewerValue;
        QTest::newRow("log") << "chkLogging" << kLoggingKey << "Email Enabled";
    }
    void anOptionIsStoredAtOnce() {
        QFETCH(QString, box);
        QFETCH(QString, key);
        QFETCH(QString, value);
        FakeOutside outside;
        outside.make = [](const QString&) { return std::make_unique<QObject>(); };
        Bench bench;
        bench.Show();
        QSignalSpy changed(bench.pane.get(), &setup::SetupChanged);
        QCheckBox* shown = bench.Box(qPrintable(box));
        for (int i = 0; i < 2; ++i) {
            const bool ticks = shown->checkState() != Qt::Checked;
            QTest::mouseClick(shown, Qt::LeftButton, Qt::NoModifier,
                              QPoint(8, shown->height() / 2));
            QCOMPARE(shown->checkState(), ticks ? Qt::Checked : Qt::Unchecked);
            QCOMPARE(Number(qPrintable(value), qPrintable(key)), std::optional<quint32>(ticks));
            QCOMPARE(changed.count(), i + 1);
            QCOMPARE(changed[i][0].toString(), QString("FO"));
            QCOMPARE(changed[i][1].toInt(), 0);
        }
    }

    void theDescriptionFollowsItsBox() {
        Bench bench;
        bench.Show();
        bench.Box("chkShowDesc")->click();
        QVERIFY(!bench.pane->ShowDesc());
        QVERIFY(bench.Child("DescControl1")->isHidden());
        Bench next;
        QVERIFY(!next.pane->ShowDesc());  // as it is made
    }

    void theBoxesAreReadAtEachShowing() {
        Bench bench;
        bench.Show();
        QSignalSpy changed(bench.pane.get(), &setup::SetupChanged);
        bench.pane->hide();
        Options()->SetNumber("Show Description", 0);
        Options()->SetNumber("Use Search Rules", 7);
        bench.pane->show();
        QVERIFY(!bench.Box("chkShowDesc")->isChecked() && !bench.pane->ShowDesc());
        QCOMPARE(bench.Box("chkOpenFile")->checkState(), Qt::Checked);
        QVERIFY(changed.isEmpty());
        QCOMPARE(Number("Use Search Rules"), std::optional<quint32>(7));
    }

    void theViewerFollowsItsBox() {
        FakeOutside outside;
        outside.make = [](const QString&) { return std::make_unique<QObject>(); };
        Bench bench;
        bench.Show();
        QVERIFY(UseViewer && bench.Box("chkUse3dView")->isChecked());  // missing: used
        bench.Box("chkUse3dView")->click();
        QVERIFY(!UseViewer);
        bench.pane->hide();
        Options()->Delete(kUseViewerValue);
        bench.pane->show();
        QVERIFY(UseViewer && bench.Box("chkUse3dView")->isChecked());
    }

    void theLogIsReadFromTheMachineWhereTheUserHasNothing() {
        const QString machine = qEnvironmentVariable("XDG_CONFIG_DIRS");
        {
            // Written as the user's own, then carried over to where the machine's is.
            SettingsKey::Open(Hive::CurrentUser, kLoggingKey)->SetNumber("Email Enabled", 1);
            const QDir own(qEnvironmentVariable("XDG_CONFIG_HOME"));
            QDirIterator files(own.path(), QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                const QString file = files.next();
                const QString target = machine + '/' + own.relativeFilePath(file);
                QDir().mkpath(QFileInfo(target).path());
                QFile::copy(file, target);
            }
            SettingsKey::Open(Hive::CurrentUser, kLoggingKey)->Delete("Email Enabled");
        }
        Bench bench;
        bench.Show();
        QVERIFY(bench.Box("chkLogging")->isChecked());
        SettingsKey::Open(Hive::CurrentUser, kLoggingKey)->SetNumber("Email Enabled", 0);
        bench.pane->hide();
        bench.pane->show();
        QVERIFY(!bench.Box("chkLogging")->isChecked());
        QDir(machine).removeRecursively();
    }

    void insideTheCadApplicationTheLogIsNotOffered() {
        Bench bench;
        QVERIFY(!bench.Child("Frame4")->isHidden());
        SettingsKey::Open(Hive::CurrentUser, kLoggingKey)->SetNumber("Email Enabled", 1);
        QCOMPARE(QProcess::execute(QCoreApplication::applicationFilePath(), {kHosted}), 0);
    }

    void anOptionThatCannotBeStoredIsTold() {
        Bench bench;
        bench.Show();
        const ReadOnlySettings readOnly;
        QSignalSpy changed(bench.pane.get(), &setup::SetupChanged);
        bench.dialogs.Expect(gStrings[256], Dialogs::Icon::Exclamation);
        bench.Box("chkShowDesc")->click();
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.dialogs.LastTitle(), QString(gStrings[122]));
        QVERIFY(changed.isEmpty());
        QVERIFY(!bench.pane->ShowDesc());  // that has changed already
        QVERIFY(!Number("Show Description"));
    }

    void aListThatCannotBeStoredIsNotTold() {
        Bench bench;
        bench.Show();
        const ReadOnlySettings readOnly;
        bench.Key()->setText("Vendors");
        bench.Click("wuApply");  // no box
        QCOMPARE(bench.status.caption, Format(Text::FolderListSaved, "Vendors"));
        QVERIFY(!Options()->Text("Vendors TDB-Key"));
    }

    void aListThatMayNotBeDeletedStays() {
        Bench::StoreLists();
        Bench bench;
        bench.Show();
        const ReadOnlySettings readOnly;
        bench.Key()->setText("Vendors");
        bench.dialogs.Expect(Format(Text::FolderListNotDeleted, "Vendors"), Dialogs::Icon::None);
        bench.Click("wuDelKey");
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(RowOf(bench, "Vendors") >= 0);
    }

    // What can't be read is not written either: nothing of it is lost.
    void aBrokenSettingsFileIsLeftAlone() {
        Bench bench;
        bench.Show();
        const BrokenSettings broken;
        QSignalSpy changed(bench.pane.get(), &setup::SetupChanged);
        bench.Box("chkOpenFile")->click();  // no box
        bench.Box("chkShowDesc")->click();
        QVERIFY(changed.isEmpty());
        QVERIFY(!bench.pane->ShowDesc());
        bench.Key()->setText("Vendors");
        bench.Click("wuApply");
        QCOMPARE(broken.Content(), broken.content);
        Bench other;  // and is shown as if nothing was stored
        other.Show();
        QCOMPARE(other.Box("chkOpenFile")->checkState(), Qt::PartiallyChecked);
        QVERIFY(other.Box("chkShowDesc")->isChecked());
        QCOMPARE(other.Names()->List().Count(), 0);
    }

    void aLanguageIsChosenForTheNextStart() {
        Bench bench;
        bench.Show();
        auto* languages = bench.Child<QComboBox>("cmbLanguage");
        QCOMPARE(languages->currentIndex(), 0);
        QCOMPARE(languages->count(), 6);
        const int german = languages->findText("Deutsch");
        languages->setCurrentIndex(german);
        QCOMPARE(ChosenLanguage(), QString());  // only the user's choice counts
        Q_EMIT languages->activated(german);
        QCOMPARE(ChosenLanguage(), QString("german"));
        QVERIFY(!bench.status.caption.isEmpty());
        Bench other;
        other.Show();
        QCOMPARE(other.Child<QComboBox>("cmbLanguage")->currentText(), QString("Deutsch"));
        languages->setCurrentIndex(0);
        Q_EMIT languages->activated(0);
        QCOMPARE(ChosenLanguage(), QString());
    }

    void aLanguageThatCannotBeStoredIsTold() {
        Bench bench;
        bench.Show();
        const ReadOnlySettings readOnly;
        auto* languages = bench.Child<QComboBox>("cmbLanguage");
        languages->setCurrentIndex(1);
        bench.dialogs.Expect(gStrings[256], Dialogs::Icon::Exclamation);
        Q_EMIT languages->activated(1);
        QCOMPARE(languages->currentIndex(), 0);
    }

    void theShellFollowsTheOptions() {
        ShellBench bench;
        bench.Open();
        bench.shell.SetCurrentFunction("SETUP");
        bench.Click(2);
        QCOMPARE(bench.shell.m_partfilename, bench.left);
        bench.Child<QCheckBox>("chkShowDesc")->click();
        QCOMPARE(bench.shell.m_partfilename, bench.top);  // the tree was loaded again
        bench.shell.SetCurrentFunction("WHERE");
        for (QWidget* strip : bench.shell.findChildren<QWidget*>("DescControl1"))
            QVERIFY(!strip->isVisible());
    }

    void namesAreListedWithTheirKind() {
        Bench::StoreLists();
        Bench bench;
        QCOMPARE(bench.Names()->List().Count(), 2);
        const QStringList names = {bench.Names()->List().At(0).cells[0].text,
                                   bench.Names()->List().At(1).cells[0].text};
        QVERIFY(names.contains("Vendors") && names.contains("Document Folders"));
        for (const char* name : {"wuDelKey", "wuDeleteDir", "wumoveup", "wumovedown", "wuAddNewDir",
                                 "wuApply", "wuReset"})
            QVERIFY2(!bench.On(name), name);
        QCOMPARE(bench.Button("wuApply")->text(), gStrings[261]);
    }

    void aPickedNameShowsItsFolders() {
        Bench::StoreLists();
        Bench bench;
        bench.Show();
        const int row = RowOf(bench, "Vendors");
        Bench::ClickRow(bench.Names(), row);
        QCOMPARE(bench.Key()->text(), QString("Vendors"));
        QCOMPARE(bench.Key()->selectedText(), QString("Vendors"));
        QVERIFY(bench.Key()->hasFocus());
        QCOMPARE(bench.FolderTexts(), QStringList({"/v/a", "/v/b", "/v/c"}));
        QCOMPARE(bench.Button("wuApply")->text(), gStrings[163]);
        for (const char* name : {"wuAddNewDir", "wuApply", "wuDelKey"})
            QVERIFY2(bench.On(name), name);
        for (const char* name : {"wumoveup", "wumovedown", "wuDeleteDir"})
            QVERIFY2(!bench.On(name), name);
    }

    void typingANameLooksItUp() {
        Bench::StoreLists();
        Bench bench;
        bench.Show();
        QTest::keyClicks(bench.Key(), "Vendors");
        QCOMPARE(bench.FolderTexts().size(), 3);
        QCOMPARE(bench.Button("wuApply")->text(), gStrings[163]);
        QTest::keyClicks(bench.Key(), "2");
        QCOMPARE(bench.Button("wuApply")->text(), gStrings[261]);
        QCOMPARE(bench.FolderTexts().size(), 3);  // they stay
        for (const char* name : {"wuDelKey", "wuAddNewDir", "wumoveup", "wumovedown", "wuDeleteDir",
                                 "wuApply", "wuReset"})
            QVERIFY2(bench.On(name), name);
        bench.Key()->clear();
        QVERIFY(!bench.On("wuApply") && !bench.On("wuReset"));
    }

    void aNewListIsStoredWithTheMarker() {
        Bench bench;
        bench.Show();
        bench.Key()->setText("Vendors");
        for (const QString folder : {"/a", "/b"}) {
            bench.dialogs.ExpectBrowseFolder(folder);
            bench.Click("wuAddNewDir");
        }
        bench.Click("wuApply");
        QCOMPARE(Options()->Text("Vendors TDB-Key"), std::optional<QString>("/a;/b"));
        QVERIFY(!Options()->Text("Vendors"));
        QCOMPARE(bench.status.caption, Format(Text::FolderListSaved, "Vendors"));
        QCOMPARE(bench.Names()->List().Count(), 1);
        QCOMPARE(bench.Key()->text(), QString());
        QVERIFY(bench.FolderTexts().isEmpty());
        QCOMPARE(ExpandFolderList(" Vendors"), QString("/a;/b"));
    }

    void aNameWithABlankIsRefused() {
        Bench::StoreLists();
        Bench bench;
        bench.Show();
        Bench::ClickRow(bench.Names(), RowOf(bench, "Document Folders"));
        QCOMPARE(bench.FolderTexts(), QStringList("/cad"));
        bench.dialogs.Expect(gStrings[259], Dialogs::Icon::Exclamation);
        bench.Click("wuApply");
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(bench.Key()->hasFocus());
        QCOMPARE(Options()->Text("Document Folders"), std::optional<QString>("/cad"));
        bench.Click("wuDelKey");  // nobody asks
        QVERIFY(!Options()->Text("Document Folders"));
        QCOMPARE(bench.Names()->List().Count(), 1);
        QCOMPARE(bench.Key()->text(), QString());
    }

    void foldersMoveUpAndDown() {
        Bench::StoreLists();
        Bench bench;
        bench.Show();
        Bench::ClickRow(bench.Names(), RowOf(bench, "Vendors"));
        Bench::ClickRow(bench.Folders(), 0);
        QVERIFY(!bench.On("wumoveup") && bench.On("wumovedown") && bench.On("wuDeleteDir"));
        bench.Click("wumovedown");
        QCOMPARE(bench.FolderTexts(), QStringList({"/v/b", "/v/a", "/v/c"}));
        QVERIFY(bench.On("wumoveup") && bench.On("wumovedown"));
        bench.Click("wumovedown");
        QCOMPARE(bench.FolderTexts(), QStringList({"/v/b", "/v/c", "/v/a"}));
        QVERIFY(bench.On("wumoveup") && !bench.On("wumovedown"));
        bench.Click("wumoveup");
        bench.Click("wuApply");
        QCOMPARE(Options()->Text("Vendors TDB-Key"), std::optional<QString>("/v/b;/v/a;/v/c"));
    }

    void everySelectedFolderIsRemoved() {
        Bench::StoreLists();
        Bench bench;
        bench.Show();
        Bench::ClickRow(bench.Names(), RowOf(bench, "Vendors"));
        Bench::ClickRow(bench.Folders(), 0);
        Bench::ClickRow(bench.Folders(), 2, Qt::ControlModifier);
        bench.Click("wuDeleteDir");
        QCOMPARE(bench.FolderTexts(), QStringList("/v/b"));
        QVERIFY(bench.Folders()->hasFocus());
        Bench::ClickRow(bench.Folders(), 0);
        QVERIFY(!bench.On("wumoveup") && !bench.On("wumovedown"));
        bench.Click("wuDeleteDir");
        for (const char* name : {"wuDeleteDir", "wuApply", "wumoveup", "wumovedown"})
            QVERIFY2(!bench.On(name), name);
    }

    void resetClearsTheFoldersAndCanBeApplied() {
        Bench::StoreLists();
        Bench bench;
        bench.Show();
        Bench::ClickRow(bench.Names(), RowOf(bench, "Vendors"));
        bench.Click("wuReset");
        QVERIFY(bench.FolderTexts().isEmpty());
        QCOMPARE(Options()->Text("Vendors TDB-Key"), std::optional<QString>("/v/a;/v/b;/v/c"));
        QVERIFY(bench.On("wuApply"));
        bench.Click("wuApply");
        QCOMPARE(Options()->Text("Vendors TDB-Key"), std::optional<QString>(""));
    }

    void aListThatCannotBeDeletedIsTold() {
        Bench bench;
        bench.Show();
        bench.Key()->setText("Nothing");
        bench.dialogs.Expect(Format(Text::FolderListNotDeleted, "Nothing"), Dialogs::Icon::None);
        bench.Click("wuDelKey");
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.Key()->text(), QString());
    }

    void twoProgramsThatWriteAtOnceKeepBothTheirLists() {
        QProcess other;
        other.setProcessChannelMode(QProcess::ForwardedChannels);
        other.start(QCoreApplication::applicationFilePath(), {kWriter, "other"});
        QVERIFY(other.waitForStarted());
        const TestLibrary library;
        for (int i = 0; i < kLists; ++i)
            QVERIFY(WriteFolderList(QString("own%1%2").arg(i).arg(kFolderListMarker), "/y"));
        QVERIFY(other.waitForFinished());
        QCOMPARE(other.exitCode(), 0);
        for (int i = 0; i < kLists; ++i) {
            QCOMPARE(ReadFolderList(QString("own%1%2").arg(i).arg(kFolderListMarker)), "/y");
            QCOMPARE(ReadFolderList(QString("other%1%2").arg(i).arg(kFolderListMarker)), "/x");
            DeleteFolderList(QString("own%1%2").arg(i).arg(kFolderListMarker));
            DeleteFolderList(QString("other%1%2").arg(i).arg(kFolderListMarker));
        }
    }

private:
    static int RowOf(Bench& bench, const QString& name) {
        const auto& rows = bench.Names()->List().Rows();
        for (size_t row = 0; row < rows.size(); ++row) {
            if (rows[row].cells[0].text == name)
                return int(row);
        }
        return -1;
    }
};

int main(int argc, char* argv[]) {
    if (argc == 3 && QLatin1String(argv[1]) == QLatin1String(kWriter)) {
        QCoreApplication application(argc, argv);
        return WriteLists(QString::fromLocal8Bit(argv[2]));
    }
    if (argc == 2 && QLatin1String(argv[1]) == QLatin1String(kHosted)) {
        QApplication application(argc, argv);
        return ShowHosted();
    }
    const TestEnvironment environment;
    QApplication application(argc, argv);
    TestSetup test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_setup.moc"
