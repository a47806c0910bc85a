// The help window, and the pages that are shipped.

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSet>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>

#include "platform/helpbrowser.h"
#include "platform/helppages.h"
#include "platform/helpwindow.h"
#include "shell/panetable.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

void WritePage(const QString& path, const QByteArray& html) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(html);
}

// A help of three pages: pumps, and below it gears and seals.
struct SmallHelp {
    SmallHelp() {
        QDir(folder.path()).mkdir(QStringLiteral("help"));
        WritePage(folder.filePath(QStringLiteral("help/contents.html")),
                  "<title>Start</title><ul><li><a href=\"pumps.html\">Pumps</a><ul>"
                  "<li><a href=\"gears.html\">Gears</a></li><li><a href=\"seals.html\">Seals</a>"
                  "</li></ul></li><li><a href=\"missing.html\">Missing</a></li></ul>");
        WritePage(folder.filePath(QStringLiteral("help/pumps.html")),
                  "<title>Pumps</title><meta name=\"keywords\" content=\"flow, pressure\">"
                  "<p>A pump has gears.</p>");
        WritePage(folder.filePath(QStringLiteral("help/gears.html")),
                  "<title>Gears</title><p>Teeth mesh.</p>");
        WritePage(folder.filePath(QStringLiteral("help/seals.html")),
                  "<title>Seals</title><p>A ring &amp; a groove.</p>");
    }
    QString Page(const char* name) const {
        return folder.filePath(QStringLiteral("help/%1.html").arg(QLatin1String(name)));
    }

    QTemporaryDir folder;
    QString file = folder.filePath(QStringLiteral("TFDocbench.chm"));
};

HelpBrowser* ShownHelp() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == QLatin1String("HelpWindow") && widget->isVisible())
            return qobject_cast<HelpBrowser*>(widget);
    }
    return nullptr;
}

QTextBrowser* ShownPage() {
    return ShownHelp()->findChild<QTextBrowser*>();
}

void ClickItem(QTreeWidget* list, QTreeWidgetItem* item) {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(item).center());
}

QStringList Listed(const QTreeWidget* list) {
    QStringList titles;
    for (QTreeWidgetItemIterator item(const_cast<QTreeWidget*>(list)); *item; ++item)
        titles.append((*item)->text(0));
    return titles;
}

}  // namespace

class TestHelp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thePagesStandInTheOrderAndDepthOfTheContents();
    void aTopicIsAFileNameOrAKeyword();
    void aSearchFindsAllWordsWhateverTheirCase();
    void aCompiledHelpFileStandsForTheFolderBesideIt();
    void aTopicOpensItsPage();
    void aTopicMayNameASection();
    void aPageOfItsOwnIsShown();
    void theContentsFollowThePage();
    void anEntryLeadsBackToItsPageAfterTheStartPage();
    void aClickOnTheMarkedEntryShowsItsPage();
    void theMarkStaysWhenATopicIsOpenedTwice();
    void theMarkStaysWhenTheSearchIsCleared();
    void aSearchListsThePagesThatItFinds();
    void oneStepBackLeadsToThePageBefore();
    void theWindowOpensAgainAfterItWasClosed();
    void escapeClosesTheWindow();
    void aMissingHelpFileIsReported();
    void everyShippedPageIsInTheContents();
    void everyLinkOfTheShippedPagesLeadsSomewhere();
    void everyShippedPageHasTitleKeywordsAndText();
};

void TestHelp::thePagesStandInTheOrderAndDepthOfTheContents() {
    const SmallHelp help;
    const HelpPages pages(help.folder.filePath(QStringLiteral("help")));
    QStringList found;
    for (const HelpPage& page : pages.Pages())
        found.append(QStringLiteral("%1 %2").arg(page.depth).arg(page.title));
    QCOMPARE(found, QStringList({"0 Pumps", "1 Gears", "1 Seals"}));
    QVERIFY(HelpPages(QStringLiteral("/nowhere")).Pages().empty());
}

void TestHelp::aTopicIsAFileNameOrAKeyword() {
    const SmallHelp help;
    const HelpPages pages(help.folder.filePath(QStringLiteral("help")));
    QCOMPARE(pages.PageOf(QStringLiteral("gears")), help.Page("gears"));
    QCOMPARE(pages.PageOf(QStringLiteral("Pressure")), help.Page("pumps"));
    QCOMPARE(pages.PageOf(QStringLiteral("unknown")), help.Page("contents"));
    QCOMPARE(pages.PageOf(QString()), help.Page("contents"));
}

void TestHelp::aSearchFindsAllWordsWhateverTheirCase() {
    const SmallHelp help;
    const HelpPages pages(help.folder.filePath(QStringLiteral("help")));
    QCOMPARE(pages.Search(QStringLiteral("GEARS")), std::vector<int>({1, 0}));  // titles first
    QCOMPARE(pages.Search(QStringLiteral("pump flow")), std::vector<int>({0}));
    QCOMPARE(pages.Search(QStringLiteral("ring & groove")), std::vector<int>({2}));
    QVERIFY(pages.Search(QStringLiteral("gears ring")).empty());
    QVERIFY(pages.Search(QStringLiteral("  ")).empty());
}

void TestHelp::aCompiledHelpFileStandsForTheFolderBesideIt() {
    const SmallHelp help;
    HelpWindow window;
    QVERIFY(window.Has(help.file));
    QVERIFY(!window.IsOpen());
    window.Open(help.file);
    QVERIFY(window.IsOpen());
    QCOMPARE(ShownPage()->source().toLocalFile(), help.Page("contents"));
    QCOMPARE(ShownHelp()->windowTitle(), QStringLiteral("Start"));
}

void TestHelp::aTopicOpensItsPage() {
    const SmallHelp help;
    HelpWindow window;
    window.Open(help.file, QStringLiteral("seals"));
    HelpBrowser* shown = ShownHelp();
    QCOMPARE(ShownPage()->source().toLocalFile(), help.Page("seals"));
    window.Open(help.file, QStringLiteral("gears"));
    QCOMPARE(ShownHelp(), shown);  // one window
    QCOMPARE(ShownPage()->source().toLocalFile(), help.Page("gears"));
}

void TestHelp::aTopicMayNameASection() {
    const SmallHelp help;
    WritePage(help.Page("gears"),
              "<title>Gears</title>" + QByteArray("<p>Teeth mesh.</p>").repeated(200) +
                  "<h2 id=\"wear\">Wear</h2>" + QByteArray("<p>They wear.</p>").repeated(200));
    HelpWindow window;
    window.Open(help.file, QStringLiteral("gears"));
    QCOMPARE(ShownPage()->verticalScrollBar()->value(), 0);
    window.Open(help.file, QStringLiteral("gears#wear"));
    QVERIFY(ShownPage()->verticalScrollBar()->value() > 0);
    QCOMPARE(ShownPage()->source().toLocalFile(), help.Page("gears"));
    QCOMPARE(ShownHelp()->findChild<QTreeWidget*>()->currentItem()->text(0),
             QStringLiteral("Gears"));
}

void TestHelp::aPageOfItsOwnIsShown() {
    const QTemporaryDir folder;
    const QString page = folder.filePath(QStringLiteral("notes.html"));
    WritePage(page, "<title>Notes</title><p>Welcome</p>");
    HelpWindow window;
    window.Open(page);
    QCOMPARE(ShownPage()->toPlainText(), QStringLiteral("Welcome"));
    QCOMPARE(ShownHelp()->windowTitle(), QStringLiteral("Notes"));
}

void TestHelp::theContentsFollowThePage() {
    const SmallHelp help;
    HelpWindow window;
    window.Open(help.file, QStringLiteral("gears"));
    auto* list = ShownHelp()->findChild<QTreeWidget*>();
    QCOMPARE(list->currentItem()->text(0), QStringLiteral("Gears"));
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(ShownPage()->source().toLocalFile(), help.Page("seals"));
}

void TestHelp::anEntryLeadsBackToItsPageAfterTheStartPage() {
    const SmallHelp help;
    HelpWindow window;
    window.Open(help.file, QStringLiteral("pumps"));
    auto* list = ShownHelp()->findChild<QTreeWidget*>();
    ShownHelp()->findChild<QAbstractButton*>(QStringLiteral("home"))->click();
    QVERIFY(!list->currentItem());
    QVERIFY(list->selectedItems().isEmpty());
    ClickItem(list, list->topLevelItem(0));
    QCOMPARE(ShownPage()->source().toLocalFile(), help.Page("pumps"));
}

void TestHelp::aClickOnTheMarkedEntryShowsItsPage() {
    const SmallHelp help;
    HelpWindow window;
    window.Open(help.file, QStringLiteral("pumps"));
    auto* list = ShownHelp()->findChild<QTreeWidget*>();
    {
        const QSignalBlocker quiet(list);  // marked, as by a press that was dragged away
        list->setCurrentItem(list->topLevelItem(0)->child(1));
    }
    ClickItem(list, list->currentItem());
    QCOMPARE(ShownPage()->source().toLocalFile(), help.Page("seals"));
}

void TestHelp::theMarkStaysWhenATopicIsOpenedTwice() {
    const SmallHelp help;
    HelpWindow window;
    for (int time = 0; time < 2; ++time) {
        window.Open(help.file, QStringLiteral("gears"));
        const auto* list = ShownHelp()->findChild<QTreeWidget*>();
        QVERIFY(list->currentItem());
        QCOMPARE(list->currentItem()->text(0), QStringLiteral("Gears"));
    }
}

void TestHelp::theMarkStaysWhenTheSearchIsCleared() {
    const SmallHelp help;
    HelpWindow window;
    window.Open(help.file, QStringLiteral("seals"));
    const auto* list = ShownHelp()->findChild<QTreeWidget*>();
    auto* search = ShownHelp()->findChild<QLineEdit*>(QStringLiteral("search"));
    QTest::keyClicks(search, QStringLiteral("teeth"));
    QVERIFY(!list->currentItem());
    search->clear();
    QVERIFY(list->currentItem());
    QCOMPARE(list->currentItem()->text(0), QStringLiteral("Seals"));
}

void TestHelp::aSearchListsThePagesThatItFinds() {
    const SmallHelp help;
    HelpWindow window;
    window.Open(help.file);
    auto* list = ShownHelp()->findChild<QTreeWidget*>();
    QCOMPARE(Listed(list), QStringList({"Pumps", "Gears", "Seals"}));
    auto* search = ShownHelp()->findChild<QLineEdit*>(QStringLiteral("search"));
    QTest::keyClicks(search, QStringLiteral("groove"));
    QCOMPARE(Listed(list), QStringList({"Seals"}));
    search->clear();
    QCOMPARE(Listed(list), QStringList({"Pumps", "Gears", "Seals"}));
}

void TestHelp::oneStepBackLeadsToThePageBefore() {
    const SmallHelp help;
    HelpWindow window;
    window.Open(help.file, QStringLiteral("gears"));
    window.Open(help.file, QStringLiteral("seals"));
    auto* back = ShownHelp()->findChild<QAbstractButton*>(QStringLiteral("back"));
    QVERIFY(back->isEnabled());
    back->click();
    QCOMPARE(ShownPage()->source().toLocalFile(), help.Page("gears"));
    ShownHelp()->findChild<QAbstractButton*>(QStringLiteral("home"))->click();
    QCOMPARE(ShownPage()->source().toLocalFile(), help.Page("contents"));
}

void TestHelp::theWindowOpensAgainAfterItWasClosed() {
    const SmallHelp help;
    HelpWindow window;
    window.Close();
    for (int time = 0; time < 2; ++time) {
        window.Open(help.file);
        QVERIFY(window.IsOpen());
        window.Close();
        QVERIFY(!window.IsOpen());
    }
}

void TestHelp::escapeClosesTheWindow() {
    const SmallHelp help;
    HelpWindow window;
    window.Open(help.file);
    ShownHelp()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(ShownHelp()));
    QTest::keyClick(ShownHelp(), Qt::Key_Escape);
    QVERIFY(!window.IsOpen());
}

void TestHelp::aMissingHelpFileIsReported() {
    TestDialogs dialogs;
    dialogs.Expect(QStringLiteral("The help file /nowhere/TFDocbench.chm can't be found.*"));
    HelpWindow window;
    window.Open(QStringLiteral("/nowhere/TFDocbench.chm"));
    QVERIFY(dialogs.AllCame());
    QVERIFY(!window.IsOpen());
}

namespace {

QDir ShippedFolder() {
    return QDir(QCoreApplication::applicationDirPath() + QStringLiteral("/lang/english/help"));
}

}  // namespace

void TestHelp::everyShippedPageIsInTheContents() {
    const HelpPages pages(ShippedFolder().path());
    QStringList listed = {pages.Contents()};
    for (const HelpPage& page : pages.Pages())
        listed.append(page.file);
    QStringList shipped;
    for (const QString& name : ShippedFolder().entryList({"*.html"}))
        shipped.append(ShippedFolder().absoluteFilePath(name));
    listed.sort();
    shipped.sort();
    QVERIFY(shipped.size() > 10);
    QCOMPARE(listed, shipped);
}

void TestHelp::everyLinkOfTheShippedPagesLeadsSomewhere() {
    static const QRegularExpression link(QStringLiteral("href=\"([^\"#]+)"));
    for (const QString& name : ShippedFolder().entryList({"*.html"})) {
        QFile page(ShippedFolder().filePath(name));
        QVERIFY(page.open(QIODevice::ReadOnly));
        for (auto found = link.globalMatch(QString::fromUtf8(page.readAll())); found.hasNext();) {
            const QString target = found.next().captured(1);
            QVERIFY2(ShippedFolder().exists(target), qPrintable(name + u' ' + target));
        }
    }
}

void TestHelp::everyShippedPageHasTitleKeywordsAndText() {
    QSet<QString> titles;
    const HelpPages pages(ShippedFolder().path());
    for (const HelpPage& page : pages.Pages()) {
        QVERIFY2(!page.title.isEmpty() && !titles.contains(page.title), qPrintable(page.file));
        titles.insert(page.title);
        QVERIFY2(!page.keywords.isEmpty(), qPrintable(page.file));
        QVERIFY2(page.text.size() > 300, qPrintable(page.file));
    }
}

DOCBENCH_TEST_MAIN(QApplication, TestHelp)
#include "tst_help.moc"
