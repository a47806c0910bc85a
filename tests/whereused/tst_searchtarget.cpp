#include <QTest>

#include "tests/support/testenvironment.h"
#include "whereused/searchtarget.h"

using namespace docbench;

class tst_SearchTarget : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTextIsTakenApart_data() {
        QTest::addColumn<QString>("fullPath");
        QTest::addColumn<QString>("baseName");
        QTest::addColumn<QString>("extension");
        const auto row = [](const char* text, const char* full, const char* base,
                            const char* extension) {
            QTest::newRow(text) << full << base << extension;
        };
        row("gear", "", "gear", "*");
        row("gear.*", "", "gear", "*");
        row("gear.step", "", "gear.step", "*");
        row("gear.TFMPRT", "", "gear", "TFMPRT");
        row("a.b.tfmasm", "", "a.b", "tfmasm");
        row("C:\\parts\\gear.TFMPRT", "C:\\parts\\gear.TFMPRT", "gear", "TFMPRT");
        row("/w/gear", "/w/gear.*", "gear", "*");
        row("/w/gear.*", "/w/gear.*", "gear", "*");
        row("asm", "", "asm", "asm");
        row("", "", "", "*");
    }
    void theTextIsTakenApart() {
        const SearchTarget target = ParseSearchName(QTest::currentDataTag());
        QTEST(target.fullPath, "fullPath");
        QTEST(target.baseName, "baseName");
        QTEST(target.extension, "extension");
        QCOMPARE(target.FullPathFlag(), target.fullPath.isEmpty() ? 0 : 1);
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, tst_SearchTarget)
#include "tst_searchtarget.moc"
