#include <QTest>
#include <stdexcept>

#include "services/errorstate.h"
#include "tests/support/testenvironment.h"

using docbench::DocumentError;
using docbench::ErrorState;

namespace {

int FailWith(const char* description) {
    throw DocumentError(QString::fromUtf8(description));
}

}  // namespace

class tst_ErrorState : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ItStartsClear() {
        const ErrorState state;
        QVERIFY(!state.Failed());
        QCOMPARE(state.Description(), QString());
    }

    void AFailureIsKeptAndTheRoutineGoesOn() {
        ErrorState state;
        int ran = 0;
        QVERIFY(!state.Run([&] {
            ++ran;
            FailWith("größer");
            ++ran;
        }));
        QVERIFY(state.Run([&] { ++ran; }));
        QCOMPARE(ran, 2);
        QVERIFY(state.Failed());
        QCOMPARE(state.Description(), QString::fromUtf8("größer"));
    }

    void TheLastErrorCounts() {
        ErrorState state;
        state.Run([] { FailWith("first"); });
        state.Run([] { throw std::runtime_error("second"); });
        QCOMPARE(state.Description(), QString("second"));
        state.Run([] {});
        QCOMPARE(state.Description(), QString("second"));
    }

    void AFailedStatementLeavesItsResultAlone() {
        ErrorState state;
        int count = 3;
        QVERIFY(!state.Assign(count, [] { return FailWith("no"); }));
        QCOMPARE(count, 3);
        QVERIFY(state.Assign(count, [] { return 4; }));
        QCOMPARE(count, 4);
        QVERIFY(state.Failed());
    }

    void ClearingForgetsTheError() {
        ErrorState state;
        state.Run([] { FailWith("first"); });
        state.Clear();
        QVERIFY(!state.Failed());
        QCOMPARE(state.Description(), QString());
    }

    void AnErrorWithoutTextIsAnErrorToo() {
        ErrorState state;
        state.Run([] { FailWith(""); });
        QVERIFY(state.Failed());
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, tst_ErrorState)

#include "tst_errorstate.moc"
