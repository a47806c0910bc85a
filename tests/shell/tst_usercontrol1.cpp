#include <QAction>
#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QMenu>
#include <QPushButton>

#include "editors/editconfig.h"
#include "services/language.h"
#include "services/loggingmanager.h"
#include "services/settingsstore.h"
#include "services/texts.h"
#include "shell/panesplitter.h"
#include "tests/shell/shellbench.h"
#include "tests/support/fakeoutside.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

using Bench = ShellBench;

class TestUserControl1 : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutADocumentAPaneComesUpWithItsOldContent();
    void aPaneIsHandedTheDocumentWithItsTitle();
    void theDescriptionIsSetBeforeThePaneIsVisible();
    void everyPaneCommandHasItsHeading_data();
    void everyPaneCommandHasItsHeading();
    void exactlyOnePaneIsVisible();
    void anUnknownCodeShowsTheLabelAndIsKept();
    void showResultDoesNotChangeTheCurrentFunction();
    void theEditorsFollowTheLockButTheReferenceListDoesNot();
    void aPaneIsMadeWhenItIsFirstShownAndKnowsTheLock();
    void theSearchPaneGetsTheCurrentDocumentWhateverThePath();
    void renameReplaceAndCopyGetTheChainAndAnEmptyDocumentToo();
    void openingFromAWebFolderIsNotTakenForACommand();
    void theCaptionsAreSetAtTheStart();
    void theDescriptionFollowsTheStoredOption();
    void panesThatAreWorkedInGetTheFocus();
    void panesGetTheStatusLineOnlyWhileVisible();
    void thePreviewTellsWhoseItIs();
    void commandsAndOpenedDocumentsAreLogged();
    void everyPaneHasAHelpPageOfItsOwn();
    void thePanesGetTheStatusLineInOrder();
    void thePanesThatMayRunAreReleasedInOrder();
    void theSavedPropertiesComeBack();
    void theSplitterKeepsItsMarginAndTurnsBlackWhileDragged();
};

void TestUserControl1::withoutADocumentAPaneComesUpWithItsOldContent() {
    Bench bench;
    FakePane* editor = bench.Add(PaneId::Configurations);
    bench.shell.SetCurrentFunction(QStringLiteral("EDIT"));
    QVERIFY(!editor->isHidden());
    QVERIFY(editor->documents.isEmpty());
}

void TestUserControl1::aPaneIsHandedTheDocumentWithItsTitle() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    bench.Open();
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    QCOMPARE(references->documents.size(), 1);
    QCOMPARE(references->documents[0].path, bench.top);
    QCOMPARE(references->documents[0].partName, QStringLiteral("top"));
}

void TestUserControl1::theDescriptionIsSetBeforeThePaneIsVisible() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    FakePane* setup = bench.Add(PaneId::Setup);
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    bench.shell.SetCurrentFunction(QStringLiteral("SETUP"));
    QCOMPARE(references->calls.first(), QStringLiteral("ShowDesc 1 visible 0"));
    QVERIFY(setup->calls.isEmpty());  // it owns that value
}

void TestUserControl1::everyPaneCommandHasItsHeading_data() {
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("text");
    const std::pair<const char*, int> headings[] = {
        {"PREVIEW", 126}, {"SUMMARY", 127}, {"REF", 128},  {"WHERE", 129},
        {"SEARCH", 130},  {"EDIT", 131},    {"LINK", 132}, {"SETUP", 133},
        {"RENAME", 315},  {"REPLACE", 317}, {"COPY", 316}};
    for (const auto& [code, text] : headings)
        QTest::newRow(code) << QString::fromLatin1(code) << text;
}

void TestUserControl1::everyPaneCommandHasItsHeading() {
    QFETCH(QString, code);
    QFETCH(int, text);
    Bench bench;
    bench.shell.SetCurrentFunction(code);
    QCOMPARE(bench.Heading(), gStrings[text] + u' ');
    QVERIFY(!gStrings[text].isEmpty());
    QCOMPARE(bench.shell.CurrentFunction(), code);
}

void TestUserControl1::exactlyOnePaneIsVisible() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    FakePane* search = bench.Add(PaneId::Search);
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    QVERIFY(!references->isHidden() && search->isHidden() && !bench.ShowsLabel());
    bench.shell.SetCurrentFunction(QStringLiteral("SEARCH"));
    QVERIFY(references->isHidden() && !search->isHidden() && !bench.ShowsLabel());
    bench.shell.SetCurrentFunction(QStringLiteral("NONSENSE"));  // has no pane
    QVERIFY(references->isHidden() && search->isHidden() && bench.ShowsLabel());
}

void TestUserControl1::anUnknownCodeShowsTheLabelAndIsKept() {
    Bench bench;
    bench.Add(PaneId::References);
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    bench.shell.SetCurrentFunction(QStringLiteral("NONSENSE"));
    QVERIFY(bench.ShowsLabel());
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("NONSENSE"));
    bench.Open();
    QVERIFY(bench.ShowsLabel());
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("NONSENSE"));
}

void TestUserControl1::showResultDoesNotChangeTheCurrentFunction() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    bench.shell.SetCurrentFunction(QStringLiteral("SEARCH"));
    bench.shell.showResult(QStringLiteral("REF"), bench.pin, QStringLiteral("pin"));
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("SEARCH"));
    QCOMPARE(references->documents.last().path, bench.pin);
}

void TestUserControl1::theEditorsFollowTheLockButTheReferenceListDoesNot() {
    Bench bench;
    FakePane* editor = bench.Add(PaneId::Configurations);
    FakePane* links = bench.Add(PaneId::Hyperlinks);
    FakePane* references = bench.Add(PaneId::References);
    bench.library.Lock(bench.pin, QStringLiteral("somebody"));
    bench.Open();
    bench.Click(3);  // the locked one
    for (const char* code : {"EDIT", "LINK", "REF"})
        bench.shell.SetCurrentFunction(QLatin1String(code));
    QCOMPARE(editor->calls.last(), QStringLiteral("Enable 0"));
    QCOMPARE(links->calls.last(), QStringLiteral("Enable 0"));
    QVERIFY(!references->calls.last().startsWith(QLatin1String("Enable")));
    bench.Click(2);
    bench.shell.SetCurrentFunction(QStringLiteral("EDIT"));
    QCOMPARE(editor->calls.last(), QStringLiteral("Enable 1"));
}

void TestUserControl1::aPaneIsMadeWhenItIsFirstShownAndKnowsTheLock() {
    Bench bench;
    bench.library.Lock(bench.pin, QStringLiteral("somebody"));
    bench.Open();
    bench.Click(3);
    QVERIFY(!bench.shell.findChild<editConfig*>());
    bench.shell.SetCurrentFunction(QStringLiteral("EDIT"));
    QVERIFY(bench.shell.findChild<editConfig*>());
    QVERIFY(!bench.Child<QWidget>("tvwconfig")->isEnabled());
    bench.Click(2);
    QVERIFY(bench.Child<QWidget>("tvwconfig")->isEnabled());
}

void TestUserControl1::theSearchPaneGetsTheCurrentDocumentWhateverThePath() {
    Bench bench;
    FakePane* search = bench.Add(PaneId::Search);
    bench.Open();
    bench.shell.showResult(QStringLiteral("SEARCH"), bench.pin, QStringLiteral("pin"));
    QCOMPARE(search->documents.last().path, bench.top);
    bench.shell.m_partfilename.clear();
    bench.shell.showResult(QStringLiteral("SEARCH"), QString(), QString());
    QCOMPARE(search->documents.last().path, QString());
}

void TestUserControl1::renameReplaceAndCopyGetTheChainAndAnEmptyDocumentToo() {
    Bench bench;
    FakePane* rename = bench.Add(PaneId::Rename);
    FakePane* copy = bench.Add(PaneId::Copy);
    bench.shell.SetCurrentFunction(QStringLiteral("COPY"));
    QCOMPARE(copy->documents.last().path, QString());
    bench.Open();
    bench.Click(3);
    const QString chain = QStringList{bench.pin, bench.left, bench.top}.join(u';');
    for (const char* code : {"RENAME", "REPLACE", "COPY"})
        bench.shell.SetCurrentFunction(QLatin1String(code));
    QCOMPARE(rename->documents.size(), 2);
    QCOMPARE(rename->documents[0].treeChain, chain);
    QVERIFY(!rename->documents[0].actionReplace);
    QVERIFY(rename->documents[1].actionReplace);
    QCOMPARE(copy->documents.last().treeChain, chain);
    QCOMPARE(copy->documents.last().path, bench.pin);
}

void TestUserControl1::openingFromAWebFolderIsNotTakenForACommand() {
    Bench bench;
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    bench.shell.SetCurrentFunction(QStringLiteral("OPENURL"));
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("REF"));
}

void TestUserControl1::theCaptionsAreSetAtTheStart() {
    Bench bench;
    QCOMPARE(bench.Child<QPushButton>("Command1")->text(), gStrings[10]);
    QCOMPARE(bench.Child<QLabel>("Label1")->text(), gStrings[308]);
    QCOMPARE(bench.Child<QMenu>("mnEdit")->title(), QStringLiteral("mnEdit"));
    QCOMPARE(bench.Child<QMenu>("mnEdit")->findChild<QAction*>("mnopen")->text(), gStrings[25]);
    QCOMPARE(bench.Child<QAction>("mnReplace")->text(), gStrings[331]);
    QCOMPARE(bench.Child<QAction>("mnrename")->text(), gStrings[207]);
    QCOMPARE(bench.Child<QAction>("mncopy")->text(), gStrings[5]);
}

void TestUserControl1::theDescriptionFollowsTheStoredOption() {
    Bench bench;
    bench.Add(PaneId::Setup);  // a pane without the option, as on a host's own
    FakePane* references = bench.Add(PaneId::References);
    const auto key =
        SettingsKey::Open(SettingsKey::Hive::CurrentUser, QLatin1String(kExtReferencesKey));
    const QString option = QStringLiteral("Show Description");
    for (const quint32 value : {0u, 1u, 7u}) {
        QVERIFY(key->SetNumber(option, value));
        bench.shell.SetCurrentFunction(QStringLiteral("REF"));
        QCOMPARE(references->calls.last().section(u' ', 1, 1), QString::number(value != 0));
    }
    QVERIFY(key->Delete(option));
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    QCOMPARE(references->calls.last().section(u' ', 1, 1), QStringLiteral("1"));
}

void TestUserControl1::panesThatAreWorkedInGetTheFocus() {
    Bench bench;
    const std::pair<PaneId, const char*> focused[] = {
        {PaneId::Properties, "SUMMARY"},  {PaneId::References, "REF"},
        {PaneId::WhereUsed, "WHERE"},     {PaneId::Search, "SEARCH"},
        {PaneId::Configurations, "EDIT"}, {PaneId::Hyperlinks, "LINK"},
        {PaneId::Setup, "SETUP"}};
    for (const auto& [id, code] : focused) {
        FakePane* pane = bench.Add(id);
        pane->setFocusPolicy(Qt::StrongFocus);
        bench.shell.SetCurrentFunction(QLatin1String(code));
        QCOMPARE(bench.shell.focusWidget(), pane);
    }
    const std::pair<PaneId, const char*> others[] = {
        {PaneId::Preview, "PREVIEW"}, {PaneId::Rename, "RENAME"}, {PaneId::Copy, "COPY"}};
    for (const auto& [id, code] : others) {
        FakePane* pane = bench.Add(id);
        pane->setFocusPolicy(Qt::StrongFocus);
        bench.Tree()->setFocus();
        bench.shell.SetCurrentFunction(QLatin1String(code));
        QCOMPARE(bench.shell.focusWidget(), bench.Tree());
    }
}

void TestUserControl1::panesGetTheStatusLineOnlyWhileVisible() {
    Bench bench;
    FakePane* search = bench.Add(PaneId::Search);
    FakePane* properties = bench.Add(PaneId::Properties);
    QCOMPARE(search->StatusBarControl(), &bench.status);
    QVERIFY(!properties->StatusBarControl());  // has no status of its own
    bench.shell.hide();
    QVERIFY(!search->StatusBarControl());
    search->SetStatusText(QStringLiteral("dropped"));
    bench.shell.show();
    QCOMPARE(search->StatusBarControl(), &bench.status);
    search->SetStatusText(QStringLiteral("shown"));
    QCOMPARE(bench.status.caption, QStringLiteral("shown"));
}

void TestUserControl1::thePreviewTellsWhoseItIs() {
    Bench bench;
    bench.shell.SetCurrentFunction(QStringLiteral("PREVIEW"));
    bench.Open();
    QCOMPARE(bench.status.caption, Format(Text::PreviewOf, bench.top));
}

namespace {

// A log that writes its calls into a list.
class RecordingLog : public OutsideObject {
public:
    explicit RecordingLog(QStringList& calls) : calls_(calls) {}
    bool Call(const QString& method, const QVariantList& arguments) override {
        QStringList call(method);
        for (const QVariant& argument : arguments)
            call.append(argument.toString());
        calls_.append(call.join(u' '));
        return true;
    }
    bool SetProperty(const QString&, const QVariant&) override { return false; }

private:
    QStringList& calls_;
};

}  // namespace

void TestUserControl1::commandsAndOpenedDocumentsAreLogged() {
    gLogger.reset();
    FakeOutside outside;
    QStringList calls;
    outside.start = [&](const QString&) { return std::make_unique<RecordingLog>(calls); };
    {
        Bench bench;
        bench.shell.SetCurrentFunction(QStringLiteral("NONSENSE"));
        bench.shell.SetCurrentFunction(QStringLiteral("LOCK"));
        bench.shell.SetCurrentFunction(QStringLiteral("OPENURL"));
        QCOMPARE(calls, QStringList({"Start", "LogCommand NONSENSE", "LogCommand LOCK",
                                     "LogCommand OPENURL"}));
        calls.clear();
        bench.dialogs.ExpectOpenFile(bench.top);
        bench.shell.SetCurrentFunction(QStringLiteral("OPEN"));
        QCOMPARE(calls, QStringList({"LogCommand OPEN", "LogDocumentOpen " + bench.top}));
        calls.clear();
        bench.Type(bench.pin);  // only what is browsed to is an opened document to the log
        QVERIFY(calls.isEmpty());
        QImage picture(4, 3, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        picture.save(&buffer, "PNG");
        bench.library.SetPreview(bench.pin, bytes);
        bench.shell.SetCurrentFunction(QStringLiteral("PREVIEW"));
        QCOMPARE(calls, QStringList({"LogCommand PREVIEW",
                                     "LogPreviewInfo " + bench.pin + " false true false"}));
    }
    gLogger.reset();
    QCOMPARE(calls.last(), QString("Finish"));
}

void TestUserControl1::everyPaneHasAHelpPageOfItsOwn() {
    Bench bench;
    const QDir pages(QCoreApplication::applicationDirPath() + QStringLiteral("/lang/english/help"));
    QSet<QString> topics;
    for (const Pane* pane : bench.shell.findChildren<Pane*>()) {
        const QString topic = pane->HelpTopic().section(u'#', 0, 0);
        QVERIFY2(pages.exists(topic + QStringLiteral(".html")), pane->metaObject()->className());
        QVERIFY2(!topics.contains(topic), qPrintable(topic));
        topics.insert(topic);
    }
    QVERIFY(topics.size() >= 2);
}

void TestUserControl1::thePanesGetTheStatusLineInOrder() {
    Bench bench;
    QStringList given;
    const std::pair<PaneId, const char*> panes[] = {
        {PaneId::Setup, "setup1"},           {PaneId::Copy, "copyRef1"},
        {PaneId::Rename, "renameRef1"},      {PaneId::Search, "searchbox"},
        {PaneId::References, "refbox"},      {PaneId::Hyperlinks, "HyperLinkbox"},
        {PaneId::Configurations, "editbox"}, {PaneId::WhereUsed, "whereUsed1"}};
    for (const auto& [id, name] : panes)
        bench.Add(id, QLatin1String(name))->givenStatus = &given;
    given.clear();
    bench.shell.StatusBar(&bench.status);
    QCOMPARE(given, QStringList({"whereUsed1", "editbox", "HyperLinkbox", "refbox", "searchbox",
                                 "renameRef1", "copyRef1", "setup1"}));
}

void TestUserControl1::thePanesThatMayRunAreReleasedInOrder() {
    TestLibrary library;
    QStringList released;
    {
        UserControl1 shell;
        const std::pair<PaneId, const char*> panes[] = {{PaneId::Search, "search"},
                                                        {PaneId::Rename, "rename"},
                                                        {PaneId::References, "references"},
                                                        {PaneId::Copy, "copy"},
                                                        {PaneId::WhereUsed, "whereused"}};
        for (const auto& [id, name] : panes) {
            auto* pane = new FakePane;
            pane->setObjectName(QLatin1String(name));
            pane->released = &released;
            shell.AddPane(id, pane);
        }
    }
    QCOMPARE(released, (QStringList{QStringLiteral("whereused"), QStringLiteral("copy"),
                                    QStringLiteral("rename"), QStringLiteral("search")}));
}

void TestUserControl1::theSavedPropertiesComeBack() {
    TestLibrary library;
    UserControl1 fresh;
    for (const char* key : {"Caption", "partfilename", "Function", "statusText"})
        QCOMPARE(fresh.WriteProperties().value(QLatin1String(key)), QVariant(QString()));
    const QVariantMap saved{{QStringLiteral("Caption"), QStringLiteral("tab")},
                            {QStringLiteral("partfilename"), QStringLiteral("/a.tfmprt")},
                            {QStringLiteral("Function"), QStringLiteral("REF")},
                            {QStringLiteral("statusText"), QStringLiteral("ready")}};
    fresh.ReadProperties(saved);
    QCOMPARE(fresh.WriteProperties(), saved);
    QCOMPARE(fresh.property("Function"), QVariant(QStringLiteral("REF")));
    QCOMPARE(fresh.property("statusText"), QVariant(QStringLiteral("ready")));
    QVERIFY(!fresh.setProperty("statusText", QStringLiteral("changed")));
    fresh.ReadProperties({});
    QCOMPARE(fresh.Caption(), QString());
}

void TestUserControl1::theSplitterKeepsItsMarginAndTurnsBlackWhileDragged() {
    Bench bench;
    auto* splitter = bench.Child<PaneSplitter>("splitter");
    auto* handle = qobject_cast<PaneSplitterHandle*>(splitter->handle(1));
    QVERIFY(handle);
    QCOMPARE(handle->GrabX(), kNoSplitterDrag);
    const QPoint middle = handle->rect().center();
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, middle);
    QCOMPARE(handle->GrabX(), middle.x());
    QCOMPARE(handle->grab().toImage().pixelColor(middle), QColor(Qt::black));
    QTest::mouseMove(handle, QPoint(-2000, middle.y()));
    QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, middle);
    QCOMPARE(handle->GrabX(), kNoSplitterDrag);
    QVERIFY(handle->grab().toImage().pixelColor(middle) != QColor(Qt::black));
    splitter->setSizes({0, 10000});
    QCOMPARE(splitter->sizes()[0], 4);
    splitter->setSizes({10000, 0});
    QCOMPARE(splitter->sizes()[1], 4);
}

DOCBENCH_TEST_MAIN(QApplication, TestUserControl1)
#include "tst_usercontrol1.moc"
