#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>

#include "frame/commandtable.h"
#include "frame/maincontrol.h"
#include "frame/olbar.h"
#include "frame/statusline.h"
#include "services/helpviewer.h"
#include "services/language.h"
#include "services/scratch.h"
#include "services/seams.h"
#include "services/texts.h"
#include "shell/panetable.h"
#include "shell/picturestore.h"
#include "shell/usercontrol1.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

class FakeHelp : public HelpViewer {
public:
    FakeHelp() { gSeams.help = this; }
    ~FakeHelp() override { gSeams.help = nullptr; }
    bool Has(const QString& helpFile) const override { return QFile::exists(helpFile); }
    void Open(const QString& helpFile, const QString& topic) override {
        opened.append(helpFile);
        topics.append(topic);
    }
    bool IsOpen() const override { return !opened.isEmpty() && closed == 0; }
    void Close() override { ++closed; }

    QStringList opened;
    QStringList topics;
    int closed = 0;
};

struct Bench {
    Bench() {
        frame.resize(1024, 700);
        frame.show();
    }
    template <typename T>
    T* Child(const QString& name) {
        T* child = frame.findChild<T*>(name);
        if (!child)
            qFatal("no %s", qPrintable(name));
        return child;
    }
    QMenu* Menu(const char* name) { return Child<QMenu>(QLatin1String(name)); }
    UserControl1& Shell() { return frame.Shell(); }
    // The enabled states of rename, replace and copy in a menu that is about to be shown.
    QString RenameGroup(const char* menuName) {
        QMenu* menu = Menu(menuName);
        Q_EMIT menu->aboutToShow();
        QString enabled;
        for (const QAction* action : menu->actions())
            enabled += action->isEnabled() ? u'1' : u'0';
        return enabled;
    }

    TestLibrary library;
    TestDialogs dialogs;
    FakeHelp help;
    Maincontrol frame;
};

// Hides and shows the frame as minimising and restoring its window do.
void MinimiseAndRestore(QWidget& frame) {
    QHideEvent hide;
    QSpontaneKeyEvent::setSpontaneous(&hide);
    qApp->notify(&frame, &hide);
    QShowEvent show;
    QSpontaneKeyEvent::setSpontaneous(&show);
    qApp->notify(&frame, &show);
}

class ClickCounter : public QObject {
public:
    explicit ClickCounter(QWidget& watched) { watched.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        presses += event->type() == QEvent::MouseButtonPress;
        releases += event->type() == QEvent::MouseButtonRelease;
        return false;
    }
    int presses = 0;
    int releases = 0;
};

}  // namespace

class TestMaincontrol : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFrameStartsOnThePreview();
    void menusMirrorTheDropDowns_data();
    void menusMirrorTheDropDowns();
    void aMenuEntryRunsItsCommand();
    void theIconBarHasItsEightItems();
    void anItemOfTheIconBarRunsItsCommand_data();
    void anItemOfTheIconBarRunsItsCommand();
    void anIndexBeyondTheIconBarDoesNothing();
    void aToolbarButtonOpensItsPopupBelowItself_data();
    void aToolbarButtonOpensItsPopupBelowItself();
    void withoutADocumentRenameIsOffAndReplaceOn();
    void aDrawingHasNoReplace();
    void copyKeepsItsLastStateWithoutADocument();
    void aShortcutObeysTheEnablingRule();
    void commandsAreRoutedToTheShell();
    void lockCommandsDoNotPassThroughTheFrame();
    void minimisingKeepsTheStatusLineAndTheFocus();
    void theFirstFocusClicksTheFrameOnce();
    void helpOpensTheHelpFile();
    void aMissingHelpFileFallsBackToTheShorterNameForGood();
    void theHelpKeyOpensThePageOfThePane();
    void aboutShowsTheAboutBox();
    void releasingTheFrameChangesNothing();
    void theStatusLineBelongsToTheShellWhileShown();
    void theIconBarHasTheFocusWhenShown();
    void aShortFrameScrollsItsIconBar();
    void theIconBarScrollsToTheItemPickedByKey();
    void theWheelScrollsTheIconBar();
    void aLargerFontMakesTheIconBarLonger();
    void theIconBarShowsThePictureOfEachCommand();
    void everyDropDownEntryRunsItsCommand();
    void theEndClosesTheHelpWindowAndDeletesTheScratchFolder();
};

void TestMaincontrol::theFrameStartsOnThePreview() {
    Bench bench;
    QCOMPARE(bench.Shell().CurrentFunction(), QStringLiteral("PREVIEW"));
    QCOMPARE(bench.Child<QLabel>(QStringLiteral("LabelInfo"))->text(), gStrings[126] + u' ');
}

void TestMaincontrol::menusMirrorTheDropDowns_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QList<int>>("texts");  // 0: separator
    QTest::newRow("open") << "OPEN"
                          << "menufile" << QList<int>{113, 383};
    QTest::newRow("rename") << "RENAME"
                            << "menuedit" << QList<int>{315, 317, 316};
    QTest::newRow("view") << "PREVIEW"
                          << "menutools"
                          << QList<int>{126, 127, 128, 0, 129, 130, 0, 131, 132, 0, 133};
    QTest::newRow("help") << "ABOUT"
                          << "menuhelp" << QList<int>{79, 332};
}

void TestMaincontrol::menusMirrorTheDropDowns() {
    QFETCH(QString, key);
    QFETCH(QString, menu);
    QFETCH(QList<int>, texts);
    Bench bench;
    const auto shown = [](const QMenu* popup) {
        QStringList list;
        for (const QAction* action : popup->actions())
            list.append(action->isSeparator() ? QString() : action->text());
        return list;
    };
    QStringList expected;
    for (const int text : texts)
        expected.append(text == 0 ? QString() : gStrings[text]);
    QCOMPARE(shown(bench.Child<QMenu>(menu)), expected);
    QCOMPARE(shown(bench.Child<QToolButton>(QStringLiteral("Toolbar1_") + key)->menu()), expected);
}

void TestMaincontrol::aMenuEntryRunsItsCommand() {
    Bench bench;
    const std::pair<const char*, const char*> entries[] = {
        {"menuedit_1", "RENAME"},   {"menuedit_2", "REPLACE"},  {"menuedit_3", "COPY"},
        {"menutools_1", "PREVIEW"}, {"menutools_2", "SUMMARY"}, {"menutools_3", "REF"},
        {"menutools_5", "WHERE"},   {"menutools_6", "SEARCH"},  {"menutools_8", "EDIT"},
        {"menutools_9", "LINK"},    {"menutools_11", "SETUP"}};
    for (const auto& [name, code] : entries) {
        auto* action = bench.Child<QAction>(QLatin1String(name));
        action->setEnabled(true);
        action->trigger();
        QCOMPARE(bench.Shell().CurrentFunction(), QLatin1String(code));
    }
    bench.dialogs.ExpectOpenFile(QString());
    bench.Child<QAction>(QStringLiteral("menufile_1"))->trigger();
    QVERIFY(bench.dialogs.AllCame());
}

void TestMaincontrol::theIconBarHasItsEightItems() {
    Bench bench;
    auto* bar = bench.Child<olbar>(QStringLiteral("olbar1"));
    for (int i = 0; i < 8; ++i) {
        QCOMPARE(bar->findChild<QLabel*>(QStringLiteral("Label1_%1").arg(i))->text(),
                 gStrings[126 + i]);
        QVERIFY(!bar->findChild<QLabel*>(QStringLiteral("Image1_%1").arg(i))
                     ->pixmap(Qt::ReturnByValue)
                     .isNull());
    }
}

void TestMaincontrol::anItemOfTheIconBarRunsItsCommand_data() {
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("code");
    const char* codes[] = {"PREVIEW", "SUMMARY", "REF", "WHERE", "SEARCH", "EDIT", "LINK", "SETUP"};
    for (int i = 0; i < 8; ++i)
        QTest::newRow(codes[i]) << i << QString::fromLatin1(codes[i]);
}

void TestMaincontrol::anItemOfTheIconBarRunsItsCommand() {
    QFETCH(int, index);
    QFETCH(QString, code);
    Bench bench;
    bench.Shell().SetCurrentFunction(QStringLiteral("COPY"));
    Q_EMIT bench.Child<olbar>(QStringLiteral("olbar1"))->olBarClick(index);
    QCOMPARE(bench.Shell().CurrentFunction(), code);
}

void TestMaincontrol::anIndexBeyondTheIconBarDoesNothing() {
    Bench bench;
    bench.Shell().SetCurrentFunction(QStringLiteral("COPY"));
    Q_EMIT bench.Child<olbar>(QStringLiteral("olbar1"))->olBarClick(8);
    Q_EMIT bench.Child<olbar>(QStringLiteral("olbar1"))->olBarClick(-1);
    QCOMPARE(bench.Shell().CurrentFunction(), QStringLiteral("COPY"));
}

void TestMaincontrol::aToolbarButtonOpensItsPopupBelowItself_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("menu");
    QTest::newRow("open") << "OPEN"
                          << "menufile";
    QTest::newRow("rename") << "RENAME"
                            << "menuedit";
    QTest::newRow("view") << "PREVIEW"
                          << "menutools";
    QTest::newRow("help") << "ABOUT"
                          << "menuhelp";
}

void TestMaincontrol::aToolbarButtonOpensItsPopupBelowItself() {
    QFETCH(QString, key);
    QFETCH(QString, menu);
    Bench bench;
    auto* button = bench.Child<QToolButton>(QStringLiteral("Toolbar1_") + key);
    button->click();
    auto* popup = bench.Child<QMenu>(menu);
    QVERIFY(popup->isVisible());
    QCOMPARE(popup->pos(), button->mapToGlobal(QPoint(0, button->height() + 25 / 15)));
    popup->hide();
}

void TestMaincontrol::withoutADocumentRenameIsOffAndReplaceOn() {
    Bench bench;
    QCOMPARE(bench.RenameGroup("menuedit"), QStringLiteral("011"));
    QCOMPARE(bench.RenameGroup("dropDown_RENAME"), QStringLiteral("011"));
    bench.Child<QToolButton>(QStringLiteral("Toolbar1_RENAME"))->click();
    QMenu* popup = bench.Menu("menuedit");
    QVERIFY(popup->isVisible());
    QVERIFY(!popup->actions()[0]->isEnabled());
    QVERIFY(popup->actions()[1]->isEnabled());
    popup->hide();
}

void TestMaincontrol::aDrawingHasNoReplace() {
    Bench bench;
    bench.Shell().OpenPath(bench.library.Make(QStringLiteral("sheet.tfmdrw")));
    QCOMPARE(bench.RenameGroup("menuedit"), QStringLiteral("101"));
    QCOMPARE(bench.RenameGroup("dropDown_RENAME"), QStringLiteral("101"));
    bench.Shell().OpenPath(bench.library.Make(QStringLiteral("pin.tfmprt")));
    QCOMPARE(bench.RenameGroup("menuedit"), QStringLiteral("111"));
}

void TestMaincontrol::copyKeepsItsLastStateWithoutADocument() {
    Bench bench;
    bench.Child<QAction>(QStringLiteral("menuedit_3"))->setEnabled(false);
    QCOMPARE(bench.RenameGroup("menuedit"), QStringLiteral("010"));
}

void TestMaincontrol::aShortcutObeysTheEnablingRule() {
    Bench bench;
    bench.frame.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&bench.frame));
    QTest::keyClick(&bench.frame, Qt::Key_F2);
    QCOMPARE(bench.Shell().CurrentFunction(), QStringLiteral("PREVIEW"));
    bench.Shell().OpenPath(bench.library.Make(QStringLiteral("pin.tfmprt")));
    QTest::keyClick(&bench.frame, Qt::Key_F2);
    QCOMPARE(bench.Shell().CurrentFunction(), QStringLiteral("RENAME"));
}

void TestMaincontrol::commandsAreRoutedToTheShell() {
    Bench bench;
    bench.frame.SetCurrentFunction(QStringLiteral("WHERE"));
    QCOMPARE(bench.Shell().CurrentFunction(), QStringLiteral("WHERE"));
    bench.frame.showResult(QStringLiteral("EDIT"), QString(), QString());
    QCOMPARE(bench.Child<QLabel>(QStringLiteral("LabelInfo"))->text(), gStrings[131] + u' ');
    QCOMPARE(bench.Shell().CurrentFunction(), QStringLiteral("WHERE"));
}

void TestMaincontrol::lockCommandsDoNotPassThroughTheFrame() {
    for (const char* code : {"LOCK", "UNLOCK", "LOCKCHILDREN", "UNLOCKCHILDREN", "NONSENSE", ""})
        QVERIFY(!IsFrameCommand(QLatin1String(code)));
    for (const char* code : {"OPEN", "OPENURL", "RENAME", "PREVIEW", "SETUP", "HELP", "ABOUT"})
        QVERIFY(IsFrameCommand(QLatin1String(code)));
}

void TestMaincontrol::minimisingKeepsTheStatusLineAndTheFocus() {
    Bench bench;
    auto* path = bench.Child<QWidget>(QStringLiteral("filepathCombo"));
    path->setFocus();
    MinimiseAndRestore(bench.frame);
    const QString missing = bench.library.Path(QStringLiteral("none.tfmprt"));
    bench.Shell().OpenPath(missing);
    QCOMPARE(bench.Child<StatusLine>(QStringLiteral("StatusBar1"))->Caption(),
             Format(Text::DocumentNotFound, missing));
    QCOMPARE(bench.frame.focusWidget(), path);
}

void TestMaincontrol::theFirstFocusClicksTheFrameOnce() {
    Bench bench;
    ClickCounter clicks(bench.frame);
    for (int i = 0; i < 2; ++i) {
        QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
        QCoreApplication::sendEvent(&bench.frame, &focus);
        QCoreApplication::processEvents();
    }
    QCOMPARE(clicks.presses, 1);
    QCOMPARE(clicks.releases, 1);
}

void TestMaincontrol::helpOpensTheHelpFile() {
    Bench bench;
    const QTemporaryDir folder;
    gHelpFile = folder.filePath(QStringLiteral("TFDocbench.chm"));
    QFile file(gHelpFile);
    QVERIFY(file.open(QFile::WriteOnly));
    bench.Child<QAction>(QStringLiteral("menuhelp_1"))->trigger();
    QCOMPARE(bench.help.opened, QStringList{gHelpFile});
    QCOMPARE(bench.Shell().CurrentFunction(), QStringLiteral("PREVIEW"));
}

void TestMaincontrol::aMissingHelpFileFallsBackToTheShorterNameForGood() {
    Bench bench;
    gHelpFile = QStringLiteral("/nowhere/Tessaforma Docbench/TFDocbench.chm");
    bench.Child<QAction>(QStringLiteral("menuhelp_1"))->trigger();
    QCOMPARE(bench.help.opened, QStringList{QStringLiteral("/nowhere/Tessaforma/TFDocbench.chm")});
    QCOMPARE(gHelpFile, QStringLiteral("/nowhere/Tessaforma/TFDocbench.chm"));
}

void TestMaincontrol::theHelpKeyOpensThePageOfThePane() {
    Bench bench;
    gHelpFile = QStringLiteral("/nowhere/Tessaforma Docbench/TFDocbench.chm");  // falls back too
    bench.frame.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&bench.frame));
    QTest::keyClick(&bench.frame, Qt::Key_F1);
    QCOMPARE(bench.help.opened, QStringList{gHelpFile});
    QVERIFY(!gHelpFile.contains(QLatin1String("Tessaforma Docbench")));
    QCOMPARE(bench.help.topics, QStringList{QStringLiteral("preview")});
}

void TestMaincontrol::aboutShowsTheAboutBox() {
    Bench bench;
    bool shown = false;
    QTimer::singleShot(0, [&] {
        QWidget* box = QApplication::activeModalWidget();
        shown = box && box->objectName() == QLatin1String("frmAbout");
        if (box)
            box->close();
    });
    bench.Child<QAction>(QStringLiteral("menuhelp_2"))->trigger();
    QVERIFY(shown);
    QCOMPARE(bench.Shell().CurrentFunction(), QStringLiteral("PREVIEW"));
}

void TestMaincontrol::releasingTheFrameChangesNothing() {
    Bench bench;
    bench.Shell().OpenPath(bench.library.Make(QStringLiteral("pin.tfmprt")));
    const QString document = bench.Shell().m_partfilename;
    bench.frame.RelaseAll();
    bench.frame.RelaseAll();
    QCOMPARE(bench.Shell().m_partfilename, document);
    QCOMPARE(bench.Shell().CurrentFunction(), QStringLiteral("PREVIEW"));
}

void TestMaincontrol::theStatusLineBelongsToTheShellWhileShown() {
    Bench bench;
    auto* line = bench.Child<StatusLine>(QStringLiteral("StatusBar1"));
    const QString missing = bench.library.Path(QStringLiteral("none.tfmprt"));
    bench.Shell().OpenPath(missing);
    QCOMPARE(line->Caption(), Format(Text::DocumentNotFound, missing));
    bench.frame.hide();
    const QString other = bench.library.Path(QStringLiteral("other.tfmprt"));
    bench.Shell().OpenPath(other);
    QCOMPARE(line->Caption(), Format(Text::DocumentNotFound, missing));
}

void TestMaincontrol::theIconBarHasTheFocusWhenShown() {
    Bench bench;
    QCOMPARE(bench.frame.focusWidget(), bench.Child<olbar>(QStringLiteral("olbar1")));
}

void TestMaincontrol::aShortFrameScrollsItsIconBar() {
    Bench bench;
    auto* bar = bench.Child<olbar>(QStringLiteral("olbar1"));
    auto* scroll = bench.Child<QScrollBar>(QStringLiteral("VScroll1"));
    bench.frame.resize(1024, bar->ContentHeight() + 200);
    QVERIFY(scroll->isHidden());
    bench.frame.resize(1024, 300);
    QVERIFY(!scroll->isHidden());
    const int height = bar->height();
    scroll->setValue(40);
    QCOMPARE(bar->pos(), QPoint(0, -40));
    QCOMPARE(bar->height(), height + 40);
}

void TestMaincontrol::theIconBarScrollsToTheItemPickedByKey() {
    Bench bench;
    auto* bar = bench.Child<olbar>(QStringLiteral("olbar1"));
    auto* scroll = bench.Child<QScrollBar>(QStringLiteral("VScroll1"));
    bench.frame.resize(1024, 300);
    for (int i = 0; i < 8; ++i)
        QTest::keyClick(bar, Qt::Key_Down);
    auto* last = bench.Child<QLabel>(QStringLiteral("Label1_7"));
    const int bottom =
        last->mapTo(bench.Child<QWidget>(QStringLiteral("Picture1")), QPoint(0, last->height()))
            .y();
    QVERIFY(scroll->value() > 0);
    QVERIFY(bottom <= bench.Child<QWidget>(QStringLiteral("Picture1"))->height());
    for (int i = 0; i < 8; ++i)
        QTest::keyClick(bar, Qt::Key_Up);
    QVERIFY(scroll->value() <= bench.Child<QLabel>(QStringLiteral("Image1_0"))->y());
}

void TestMaincontrol::theWheelScrollsTheIconBar() {
    Bench bench;
    auto* area = bench.Child<QWidget>(QStringLiteral("Picture1"));
    auto* scroll = bench.Child<QScrollBar>(QStringLiteral("VScroll1"));
    bench.frame.resize(1024, 300);
    QCOMPARE(scroll->maximum(),
             bench.Child<olbar>(QStringLiteral("olbar1"))->ContentHeight() - area->height());
    QWheelEvent wheel(QPointF(5, 5), area->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(area, &wheel);
    QVERIFY(scroll->value() > 0);
}

void TestMaincontrol::aLargerFontMakesTheIconBarLonger() {
    Bench bench;
    auto* bar = bench.Child<olbar>(QStringLiteral("olbar1"));
    auto* scroll = bench.Child<QScrollBar>(QStringLiteral("VScroll1"));
    bench.frame.resize(1024, 300);
    const int before = scroll->maximum();
    QFont font = bar->font();
    font.setPointSize(font.pointSize() * 2);
    bar->setFont(font);
    QVERIFY(scroll->maximum() > before);
}

void TestMaincontrol::theIconBarShowsThePictureOfEachCommand() {
    Bench bench;
    const char* keys[] = {"PVIW", "PROP", "EREF", "WUSE", "PSRC", "ECON", "ELIK", "SETU"};
    for (int i = 0; i < 8; ++i) {
        auto* shown = bench.Child<QLabel>(QStringLiteral("Image1_%1").arg(i));
        QCOMPARE(shown->pixmap(Qt::ReturnByValue).toImage(),
                 PictureOf(QLatin1String(keys[i])).pixmap(QSize(32, 32), 1.0).toImage());
    }
}

void TestMaincontrol::everyDropDownEntryRunsItsCommand() {
    Bench bench;
    for (const CommandGroup& group : CommandGroups()) {
        for (QAction* action :
             bench.Menu(qPrintable(QStringLiteral("dropDown_") + group.key))->actions()) {
            const QString code = action->data().toString();
            if (!FindPaneCommand(code))
                continue;
            action->setEnabled(true);
            action->trigger();
            QCOMPARE(bench.Shell().CurrentFunction(), code);
        }
    }
    bench.dialogs.ExpectOpenFile(QString());
    bench.Child<QAction>(QStringLiteral("dropDown_OPEN_1"))->trigger();
    QVERIFY(bench.dialogs.AllCame());
}

void TestMaincontrol::theEndClosesTheHelpWindowAndDeletesTheScratchFolder() {
    TestLibrary library;
    FakeHelp help;
    help.opened.append(QStringLiteral("open"));
    QString scratch;
    {
        const Maincontrol frame;
        scratch = gTempFolder + QStringLiteral("tessaformadocbench/");
        QVERIFY(QDir().mkpath(scratch));
    }
    QCOMPARE(help.closed, 1);
    QVERIFY(!QDir(scratch).exists());
}

DOCBENCH_TEST_MAIN(QApplication, TestMaincontrol)
#include "tst_maincontrol.moc"
