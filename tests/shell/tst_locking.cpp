#include <QFile>
#include <QTest>
#include <algorithm>

#include "services/language.h"
#include "services/texts.h"
#include "services/username.h"
#include "shell/locking.h"
#include "tests/support/failingaccess.h"
#include "tests/support/filelockholder.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

class TestLocking : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        const TestLibrary library;
        const TestDialogs dialogs;
        LoadResources();
    }
    void lockingWritesFlagAndUserIntoTheDocument();
    void unlockingClearsThem();
    void aSecondLockByTheSameUserIsHarmless();
    void anotherUsersLockStaysAndTheRecordIsStillWritten();
    void aUserWhoseNameOnlyBeginsLikeTheLocksMayUnlock();
    void aReadOnlyDocumentIsRefused();
    void aDocumentInUseIsRefused();
    void aMissingDocumentIsRefused();
    void aSaveThatFailsLeavesStateAndPicture();
    void childrenAreLockedToAnyDepthButNotTheNodeItself();
    void markedNodesAreLockedAndStayMarked();
    void clearingTakesAwayAllMarks();

private:
    // top(1) -> left(2) -> pin(3), top -> bolt(4)
    void LoadSmallTree(TestLibrary& library, ReferenceTree& tree);
    QString top_, left_, pin_, bolt_;
};

void TestLocking::LoadSmallTree(TestLibrary& library, ReferenceTree& tree) {
    pin_ = library.Make(QStringLiteral("pin.tfmprt"));
    bolt_ = library.Make(QStringLiteral("bolt.tfmprt"));
    left_ = library.Make(QStringLiteral("left.tfmasm"), {{pin_}});
    top_ = library.Make(QStringLiteral("top.tfmasm"), {{left_}, {bolt_}});
    QVERIFY(tree.Load(top_));
}

void TestLocking::lockingWritesFlagAndUserIntoTheDocument() {
    TestLibrary library;
    const TestDialogs dialogs;
    ReferenceTree tree;
    LoadSmallTree(library, tree);
    ApplyLock(tree, true, 4);
    QVERIFY(library.IsLocked(bolt_));
    QCOMPARE(library.LockedBy(bolt_), CurrentUserName());
    QCOMPARE(tree.Nodes().At(4).image, QStringLiteral("picPartLock"));
    QVERIFY(tree.currentLocked);
}

void TestLocking::unlockingClearsThem() {
    TestLibrary library;
    const TestDialogs dialogs;
    ReferenceTree tree;
    LoadSmallTree(library, tree);
    ApplyLock(tree, true, 2);
    QCOMPARE(tree.Nodes().At(2).image, QStringLiteral("picAsmLock"));
    ApplyLock(tree, false, 2);
    QVERIFY(!library.IsLocked(left_));
    QCOMPARE(library.LockedBy(left_), QString());
    QCOMPARE(tree.Nodes().At(2).image, QStringLiteral("picAsm"));
    QVERIFY(!tree.currentLocked);
}

void TestLocking::aSecondLockByTheSameUserIsHarmless() {
    TestLibrary library;
    const TestDialogs dialogs;
    ReferenceTree tree;
    LoadSmallTree(library, tree);
    ApplyLock(tree, true, 4);
    ApplyLock(tree, true, 4);
    QVERIFY(library.IsLocked(bolt_));
    QCOMPARE(library.LockedBy(bolt_), CurrentUserName());
}

void TestLocking::anotherUsersLockStaysAndTheRecordIsStillWritten() {
    TestLibrary library;
    TestDialogs dialogs;
    ReferenceTree tree;
    LoadSmallTree(library, tree);
    library.Lock(bolt_, QStringLiteral("m.keller"));
    const qint64 before = QFileInfo(bolt_).size();
    dialogs.Expect(Format(Text::LockedByOther, bolt_, QStringLiteral("m.keller")));
    ApplyLock(tree, false, 4);
    QVERIFY(library.IsLocked(bolt_));
    QCOMPARE(library.LockedBy(bolt_), QStringLiteral("m.keller"));
    QVERIFY(QFileInfo(bolt_).size() > before);  // a save appends
    QCOMPARE(tree.Nodes().At(4).image, QStringLiteral("picPartLock"));
}

void TestLocking::aUserWhoseNameOnlyBeginsLikeTheLocksMayUnlock() {
    TestLibrary library;
    const TestDialogs dialogs;
    ReferenceTree tree;
    LoadSmallTree(library, tree);
    library.Lock(bolt_, CurrentUserName().left(2));
    ApplyLock(tree, false, 4);
    QVERIFY(!library.IsLocked(bolt_));
}

void TestLocking::aReadOnlyDocumentIsRefused() {
    TestLibrary library;
    TestDialogs dialogs;
    ReferenceTree tree;
    LoadSmallTree(library, tree);
    QVERIFY(QFile::setPermissions(bolt_, QFile::ReadOwner | QFile::ReadUser));
    dialogs.Expect(Format(Text::AccessReadOnly, bolt_));
    ApplyLock(tree, true, 4);
    QVERIFY(!library.IsLocked(bolt_));
    QCOMPARE(tree.Nodes().At(4).image, QStringLiteral("picPart"));
}

void TestLocking::aDocumentInUseIsRefused() {
    TestLibrary library;
    TestDialogs dialogs;
    ReferenceTree tree;
    LoadSmallTree(library, tree);
    const FileLockHolder holder(bolt_);
    dialogs.Expect(Format(Text::AccessInUse, bolt_));
    ApplyLock(tree, true, 4);
    QVERIFY(!library.IsLocked(bolt_));
}

void TestLocking::aMissingDocumentIsRefused() {
    TestLibrary library;
    TestDialogs dialogs;
    ReferenceTree tree;
    LoadSmallTree(library, tree);
    QVERIFY(QFile::remove(bolt_));
    dialogs.Expect(Format(Text::AccessRefused, bolt_));
    ApplyLock(tree, true, 4);
}

void TestLocking::aSaveThatFailsLeavesStateAndPicture() {
    TestLibrary library;
    TestDialogs dialogs;
    ReferenceTree tree;
    LoadSmallTree(library, tree);
    const FailingAccess access([](const char* operation, const QString&) {
        if (qstrcmp(operation, "Save") == 0)
            throw DocumentError(QStringLiteral("The disk is full."));
    });
    dialogs.Expect(QStringLiteral("The disk is full."));
    ApplyLock(tree, true, 4);
    QVERIFY(dialogs.AllCame());
    QVERIFY(!tree.currentLocked);
    QCOMPARE(tree.Nodes().At(4).image, QStringLiteral("picPart"));
    QVERIFY(!library.IsLocked(bolt_));
}

void TestLocking::childrenAreLockedToAnyDepthButNotTheNodeItself() {
    TestLibrary library;
    const TestDialogs dialogs;
    ReferenceTree tree;
    LoadSmallTree(library, tree);
    ApplyLockToChildren(tree, true, 1);
    QVERIFY(!library.IsLocked(top_));
    QVERIFY(library.IsLocked(left_));
    QVERIFY(library.IsLocked(pin_));
    QVERIFY(library.IsLocked(bolt_));
    ApplyLockToChildren(tree, false, 2);
    QVERIFY(library.IsLocked(left_));
    QVERIFY(!library.IsLocked(pin_));
}

void TestLocking::markedNodesAreLockedAndStayMarked() {
    TestLibrary library;
    const TestDialogs dialogs;
    ReferenceTree tree;
    LoadSmallTree(library, tree);
    MarkNode(tree, 1);
    MarkNode(tree, 3);
    MarkNode(tree, 4);
    ApplyLockToMarked(tree, true, 1);
    QVERIFY(library.IsLocked(top_));
    QVERIFY(!library.IsLocked(left_));
    QVERIFY(library.IsLocked(pin_));
    QVERIFY(library.IsLocked(bolt_));
    for (const int node : {1, 3, 4})
        QVERIFY(IsMarked(tree, node));
}

void TestLocking::clearingTakesAwayAllMarks() {
    TestLibrary library;
    const TestDialogs dialogs;
    ReferenceTree tree;
    LoadSmallTree(library, tree);
    MarkNode(tree, 1);
    MarkNode(tree, 3);
    ClearMarks(tree, 1);
    for (int node = 1; node <= 4; ++node)
        QCOMPARE(tree.Nodes().At(node).backColor, kColorWhite);
}

DOCBENCH_TEST_MAIN(QCoreApplication, TestLocking)
#include "tst_locking.moc"
