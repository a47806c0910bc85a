#include <pwd.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/seams.h"
#include "services/username.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

class tst_DocumentLibrary : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { gSeams = Seams(); }

    void AMissingLibraryIsNamed() {
        const QTemporaryDir folder;
        const DocumentLibrary library(folder.path());
        QVERIFY(!library.Access());
        QCOMPARE(library.Error(), "The document library " + folder.filePath("docmodel.so") +
                                      " is missing. Please check the installation.");
    }

    void ABrokenLibraryIsNamedWithTheReason() {
        const QTemporaryDir folder;
        QFile file(folder.filePath("docmodel.so"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no library");
        file.close();
        const DocumentLibrary library(folder.path());
        QVERIFY(!library.Access());
        QVERIFY(library.Error().contains(file.fileName()));
        QVERIFY(library.Error().contains("can't be loaded"));
    }

    void WhoAsksForDocumentsIsToldWhyThereAreNone() {
        const QTemporaryDir folder;
        const DocumentLibrary library(folder.path());
        gSeams.documents = library.Access();
        ErrorState state;
        state.Run([] { Documents(); });
        QCOMPARE(state.Description(), library.Error());
    }

    void TheLibraryBesideTheProgramMakesItsObjects() {
        if (!QFile::exists(QCoreApplication::applicationDirPath() + "/docmodel.so"))
            QSKIP("the document library is not built");
        const DocumentLibrary library;
        QCOMPARE(library.Error(), QString());
        gSeams.documents = library.Access();
        QVERIFY(Documents().MakeDocumentFile());
        QVERIFY(Documents().MakeFolderSearcher());
    }

    void TheUserIsTheOneWhomTheProcessBelongsTo() {
        qputenv("USER", "somebody else");
        qputenv("LOGNAME", "somebody else");
        const passwd* record = ::getpwuid(::geteuid());
        QCOMPARE(CurrentUserName(), record ? QString::fromLocal8Bit(record->pw_name) : QString());
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, tst_DocumentLibrary)

#include "tst_documentlibrary.moc"
