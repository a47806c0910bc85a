// The description strip and the about box.

#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "frame/desccontrol.h"
#include "frame/frmabout.h"
#include "services/helpviewer.h"
#include "services/language.h"
#include "services/seams.h"
#include "tests/support/fakeoutside.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

class FakeHelp : public HelpViewer {
public:
    FakeHelp() { gSeams.help = this; }
    ~FakeHelp() override { gSeams.help = nullptr; }
    bool Has(const QString&) const override { return true; }
    void Open(const QString& helpFile, const QString& topic) override {
        opened.append(helpFile + u' ' + topic);
    }
    bool IsOpen() const override { return false; }
    void Close() override {}

    QStringList opened;
};

struct Bench {
    Bench() {
        strip.resize(600, 60);
        strip.show();
    }
    QLabel* Label() { return strip.findChild<QLabel*>(QStringLiteral("labDescription")); }
    QPushButton* Button() { return strip.findChild<QPushButton*>(QStringLiteral("helpbutton")); }
    QLabel* Icon() { return strip.findChild<QLabel*>(QStringLiteral("descriptionIcon")); }

    TestLibrary library;
    TestDialogs dialogs;
    FakeHelp help;
    DescControl strip;
};

}  // namespace

class TestDescControl : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewStripHasAPlaceholderAndNoButton();
    void theTextIsFollowedByOneBlank();
    void theHelpButtonOpensItsTopic();
    void aStripWithoutHelpFileIgnoresTheClick();
    void thePartsStandBesideEachOther();
    void theAboutBoxSaysWhatItIs();
    void okAndEscapeCloseTheAboutBox();
    void theWebPageOpensInTheBrowser();
};

void TestDescControl::aNewStripHasAPlaceholderAndNoButton() {
    Bench bench;
    QCOMPARE(bench.Label()->text(), QStringLiteral("XXXXXXXXXXXXXXXXX"));
    QVERIFY(bench.Button()->isHidden());
    QCOMPARE(bench.Button()->text(), gStrings[79]);
}

void TestDescControl::theTextIsFollowedByOneBlank() {
    Bench bench;
    bench.strip.text(QStringLiteral("what <b>it</b> does"));
    QCOMPARE(bench.Label()->text(), QStringLiteral("what <b>it</b> does "));
    QCOMPARE(bench.Label()->textFormat(), Qt::PlainText);
}

void TestDescControl::theHelpButtonOpensItsTopic() {
    Bench bench;
    bench.strip.SetHelpFile(QStringLiteral("/help.chm"), QStringLiteral("preview"));
    QVERIFY(bench.Button()->isVisible());
    QTest::mouseClick(bench.Button(), Qt::LeftButton);
    QCOMPARE(bench.help.opened, QStringList{QStringLiteral("/help.chm preview")});
}

void TestDescControl::aStripWithoutHelpFileIgnoresTheClick() {
    Bench bench;
    bench.strip.SetHelpFile(QString(), QStringLiteral("preview"));
    QTest::mouseClick(bench.Button(), Qt::LeftButton);
    QVERIFY(bench.help.opened.isEmpty());
}

void TestDescControl::thePartsStandBesideEachOther() {
    Bench bench;
    bench.strip.SetHelpFile(QStringLiteral("/help.chm"), QString());
    bench.strip.icon(QIcon(QPixmap(32, 32)));
    QVERIFY(!bench.Icon()->pixmap(Qt::ReturnByValue).isNull());
    const QRect button = bench.Button()->geometry();
    QCOMPARE(button.height(), bench.strip.height() / 3);
    QCOMPARE(button.x(), bench.strip.width() - button.width() * 3 / 2);
    QCOMPARE(bench.Icon()->geometry().center().y(), bench.strip.rect().center().y());
    QCOMPARE(bench.Icon()->x(), 70 / 15);
    QCOMPARE(bench.Label()->x(), bench.Icon()->x() + bench.Icon()->width() + 70 / 15);
    QCOMPARE(bench.Label()->width(), button.x() - bench.Label()->x() - 280 / 15);
}

void TestDescControl::theAboutBoxSaysWhatItIs() {
    const TestLibrary library;
    frmAbout box;
    const auto text = [&](const char* name) {
        return box.findChild<QLabel*>(QLatin1String(name))->text();
    };
    QCOMPARE(box.windowTitle(), gStrings[332]);
    QCOMPARE(text("lblTitle"), gStrings[122]);
    QCOMPARE(text("lblDescription"), gStrings[334]);
    QCOMPARE(text("lblDisclaimer"), gStrings[336]);
    QVERIFY(QRegularExpression(QRegularExpression::escape(gStrings[335]) +
                               QStringLiteral(" \\d+\\.\\d+\\.\\d+"))
                .match(text("lblVersion"))
                .hasMatch());
    QCOMPARE(box.findChild<QPushButton*>(QStringLiteral("cmdOK"))->text(), gStrings[47]);
    QCOMPARE(box.findChild<QPushButton*>(QStringLiteral("cmdSysInfo"))->text(), gStrings[333]);
}

void TestDescControl::okAndEscapeCloseTheAboutBox() {
    const TestLibrary library;
    frmAbout box;
    box.show();
    QTest::mouseClick(box.findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
    QVERIFY(!box.isVisible());
    box.show();
    QTest::keyClick(&box, Qt::Key_Escape);
    QVERIFY(!box.isVisible());
}

void TestDescControl::theWebPageOpensInTheBrowser() {
    const TestLibrary library;
    const FakeShellExecute shell;
    frmAbout box;
    box.show();
    QTest::mouseClick(box.findChild<QPushButton*>(QStringLiteral("cmdSysInfo")), Qt::LeftButton);
    QCOMPARE(
        shell.calls,
        QStringList{QStringLiteral("Open|iexplore.exe|https://docbench.tessaforma.example/|0|1")});
    QVERIFY(box.isVisible());
}

DOCBENCH_TEST_MAIN(QApplication, TestDescControl)
#include "tst_desccontrol.moc"
