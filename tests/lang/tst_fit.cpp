// The windows at their usual size in every language: no caption is cut off.

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTabBar>
#include <QTest>

#include "frame/frmabout.h"
#include "frame/maincontrol.h"
#include "services/language.h"
#include "services/languagechoice.h"
#include "services/texts.h"
#include "shell/usercontrol1.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

const QSize kUsualSize(1024, 700);

// The program in one language, with a document in its window.
struct Bench {
    explicit Bench(const QString& language) {
        if (!ChooseLanguage(language))
            qFatal("the language can't be chosen");
        UnloadResources();
        frame = std::make_unique<Maincontrol>();
        frame->resize(kUsualSize);
        frame->show();
        const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
        frame->Shell().OpenPath(library.Make(QStringLiteral("top.tfmasm"), {{pin}}));
    }
    ~Bench() {
        frame.reset();
        UnloadResources();
    }

    TestLibrary library;
    TestDialogs dialogs;
    std::unique_ptr<Maincontrol> frame;
};

// The room that a caption needs on its widget; one that may be broken into lines needs its height.
bool IsCutOff(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (label->text().isEmpty())
            return false;
        if (label->wordWrap())
            return label->heightForWidth(label->width()) > label->height();
        return label->sizeHint().width() > label->width();
    }
    if (const auto* tabs = qobject_cast<const QTabBar*>(&widget))
        return tabs->sizeHint().width() > tabs->width();
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    return button && !button->text().isEmpty() && button->sizeHint().width() > button->width();
}

QString CaptionOf(const QWidget& widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    const auto* label = qobject_cast<const QLabel*>(&widget);
    return button ? button->text() : label ? label->text() : widget.objectName();
}

// A shown path may be longer than any field.
bool IsFixedText(const QWidget& widget, const TestLibrary& library) {
    return !CaptionOf(widget).contains(library.Path(QString()));
}

QStringList CutOff(const QWidget& window, const TestLibrary& library) {
    QStringList cut;
    for (const QWidget* widget : window.findChildren<QWidget*>())
        if (widget->isVisible() && IsFixedText(*widget, library) && IsCutOff(*widget))
            cut.append(widget->objectName() + u' ' + CaptionOf(*widget));
    return cut;
}

}  // namespace

class TestFit : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // The same measure on every machine: the font that the set-up installs.
    void initTestCase() { QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9)); }
    void noCaptionOfThePanesIsCutOff_data();
    void noCaptionOfThePanesIsCutOff();
    void theAboutBoxHoldsItsTexts_data() { Languages(); }
    void theAboutBoxHoldsItsTexts();
    void cleanupTestCase() { QVERIFY(ChooseLanguage(QString())); }

private:
    static void Languages();
};

void TestFit::Languages() {
    QTest::addColumn<QString>("language");
    for (const OfferedLanguage& language : OfferedLanguages(QCoreApplication::applicationDirPath()))
        QTest::newRow(qPrintable(language.folder)) << language.folder;
}

void TestFit::noCaptionOfThePanesIsCutOff_data() {
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("pane");
    for (const OfferedLanguage& language : OfferedLanguages(QCoreApplication::applicationDirPath()))
        for (const char* pane : {"PREVIEW", "SUMMARY", "REF", "WHERE", "SEARCH", "EDIT", "LINK",
                                 "SETUP", "RENAME", "REPLACE", "COPY"})
            QTest::addRow("%s %s", qPrintable(language.folder), pane)
                << language.folder << QString::fromLatin1(pane);
}

void TestFit::noCaptionOfThePanesIsCutOff() {
    QFETCH(QString, language);
    QFETCH(QString, pane);
    Bench bench(language);
    if (pane == QLatin1String("REPLACE"))
        bench.dialogs.ExpectOpenFile(QString());  // what is at the top is replaced by a choice
    bench.frame->SetCurrentFunction(pane);
    QCoreApplication::processEvents();
    QCOMPARE(bench.frame->size(), kUsualSize);
    // Its own pane, and not the label that stands where there is none.
    for (const QLabel* label : bench.frame->findChildren<QLabel*>(QStringLiteral("Label1")))
        QVERIFY(!label->isVisible() || label->text() != Tr(Text::ChooseFunction));
    QCOMPARE(CutOff(*bench.frame, bench.library).join(u'\n'), QString());
}

void TestFit::theAboutBoxHoldsItsTexts() {
    QFETCH(QString, language);
    Bench bench(language);
    frmAbout box;
    box.show();
    QCOMPARE(CutOff(box, bench.library).join(u'\n'), QString());
}

DOCBENCH_TEST_MAIN(QApplication, TestFit)
#include "tst_fit.moc"
