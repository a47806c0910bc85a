// A private home for one test program: settings, cache and temporary folders of its own.
#pragma once

#include <QTemporaryDir>

namespace docbench {

// Make one before the application object; everything it holds goes away with it.
class TestEnvironment {
public:
    TestEnvironment();
    QString Folder() const { return home_.path(); }

private:
    QTemporaryDir home_;
};

}  // namespace docbench

// The main() of a test: like QTEST_MAIN (with widgets) or QTEST_GUILESS_MAIN, in a private home.
#define DOCBENCH_TEST_MAIN(Application, TestClass)   \
    int main(int argc, char* argv[]) {               \
        const docbench::TestEnvironment environment; \
        Application application(argc, argv);         \
        TestClass test;                              \
        return QTest::qExec(&test, argc, argv);      \
    }
