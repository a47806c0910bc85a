#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>

#include "services/docaccess.h"
#include "services/processfolder.h"
#include "services/scratch.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

constexpr char kHolder[] = "--holder";

QString UserFolder(const QString& tempFolder) {
    return tempFolder + QStringLiteral("/docbench-%1").arg(uint(::geteuid()));
}

mode_t ModeOf(const QString& path) {
    struct stat status;
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

void Leave(const QString& folder) {
    QVERIFY(QDir().mkpath(folder + "/tessaformadocbench/sub"));
    QFile file(folder + "/tessaformadocbench/sub/a.tfmprt");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.setPermissions(QFile::ReadOwner));
}

// Another process of the same user: tells its folder and stays until its input ends.
class Holder {
public:
    explicit Holder(const QString& tempFolder) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TMPDIR", tempFolder);
        process_.setProcessEnvironment(environment);
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(QCoreApplication::applicationFilePath(), {kHolder});
        while (!process_.canReadLine() && process_.waitForReadyRead())
            continue;
        folder_ = QFile::decodeName(process_.readLine().trimmed());
    }
    ~Holder() { End(); }

    QString Folder() const { return folder_; }  // with a separator at its end
    void Kill() {
        process_.kill();
        process_.waitForFinished();
    }
    void End() {
        process_.closeWriteChannel();
        process_.waitForFinished();
    }

private:
    QProcess process_;
    QString folder_;
};

int Hold() {
    PrepareScratch();
    std::puts(QFile::encodeName(gTempFolder).constData());
    std::fflush(stdout);
    while (std::getchar() != EOF)
        continue;
    return 0;
}

}  // namespace

class tst_Scratch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheFolderIsTheProcessesOwn() {
        PrepareScratch();
        const QString user = UserFolder(qEnvironmentVariable("TMPDIR"));
        QCOMPARE(gTempFolder, user + u'/' + QString::number(::getpid()) + u'/');
        QCOMPARE(gTempBitmap, gTempFolder + "TessaDocJunkTemp.bmp");
        QCOMPARE(ModeOf(user), mode_t(0700));
        QCOMPARE(ModeOf(gTempFolder), mode_t(0700));
        const QString first = gTempFolder;
        PrepareScratch();
        QCOMPARE(gTempFolder, first);
    }

    void StartAndStopDeleteTheLocalCopies() {
        PrepareScratch();
        Leave(gTempFolder);
        PrepareScratch();
        QVERIFY(!QFileInfo::exists(gTempFolder + "tessaformadocbench"));
        Leave(gTempFolder);
        DeleteScratch();
        QVERIFY(!QFileInfo::exists(gTempFolder + "tessaformadocbench"));
        QVERIFY(QFileInfo::exists(gTempFolder));
        DeleteScratch();
    }

    void AProcessTakesItsFolderWithIt() {
        const QTemporaryDir temp;
        Holder holder(temp.path());
        Leave(holder.Folder());
        QVERIFY(QFileInfo::exists(holder.Folder()));
        holder.End();
        QVERIFY(QDir(UserFolder(temp.path())).isEmpty());
    }

    void TheFolderOfALivingProcessIsLeftAlone() {
        const QTemporaryDir temp;
        const Holder living(temp.path());
        Leave(living.Folder());
        const Holder other(temp.path());
        QVERIFY(other.Folder() != living.Folder());
        QVERIFY(QFileInfo::exists(living.Folder() + "tessaformadocbench/sub/a.tfmprt"));
    }

    // Taking it away could take it from under a program that is just starting.
    void TheFolderOfTheUserStaysWhenAProgramEnds() {
        const QTemporaryDir temp;
        { const ProcessFolder ending(temp.path()); }
        QVERIFY(QFileInfo::exists(UserFolder(temp.path())));
    }

    void TheFolderOfAKilledProcessIsDeletedByTheNext() {
        const QTemporaryDir temp;
        Holder killed(temp.path());
        Leave(killed.Folder());
        killed.Kill();
        QVERIFY(QFileInfo::exists(killed.Folder()));
        const Holder next(temp.path());
        QVERIFY(!QFileInfo::exists(killed.Folder()));
        QCOMPARE(QDir(UserFolder(temp.path())).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList(QDir(next.Folder()).dirName()));
    }

    void AProcessIdThatAnotherProgramHasNowKeepsNoLeftovers() {
        const QTemporaryDir temp;
        const QString leftover = UserFolder(temp.path()) + "/1";
        const QString halfDeleted = UserFolder(temp.path()) + "/7.abandoned9";
        Leave(leftover);
        Leave(halfDeleted);
        const Holder holder(temp.path());
        QVERIFY(!QFileInfo::exists(leftover));
        QVERIFY(!QFileInfo::exists(halfDeleted));
    }

    void AFolderThatOthersMayWriteToIsClosed() {
        const QTemporaryDir temp;
        QVERIFY(QDir().mkpath(UserFolder(temp.path())));
        ::chmod(QFile::encodeName(UserFolder(temp.path())).constData(), 0777);
        const Holder holder(temp.path());
        QVERIFY(holder.Folder().startsWith(UserFolder(temp.path()) + u'/'));
        QCOMPARE(ModeOf(UserFolder(temp.path())), mode_t(0700));
    }

    void APlantedLinkIsNotFollowed() {
        const QTemporaryDir temp;
        const QTemporaryDir target;
        QVERIFY(QFile::link(target.path(), UserFolder(temp.path())));
        Leave(target.filePath("1"));
        {
            const Holder holder(temp.path());
            QVERIFY(holder.Folder().startsWith(UserFolder(temp.path()) + u'-'));
            QCOMPARE(ModeOf(QFileInfo(holder.Folder()).path()), mode_t(0700));
        }
        QVERIFY(QFileInfo::exists(target.filePath("1/tessaformadocbench/sub/a.tfmprt")));
        QCOMPARE(QDir(target.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
        // What could not be found again has been cleared away.
        QCOMPARE(QDir(temp.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
    }

    void AFolderOfAnotherUserIsNotUsed() {
        if (::geteuid() != 0)
            QSKIP("only the superuser can give a folder to another user");
        const QTemporaryDir temp;
        QVERIFY(QDir().mkpath(UserFolder(temp.path())));
        constexpr uid_t kNobody = 65534;
        QCOMPARE(::chown(QFile::encodeName(UserFolder(temp.path())).constData(), kNobody, kNobody),
                 0);
        const Holder holder(temp.path());
        QVERIFY(holder.Folder().startsWith(UserFolder(temp.path()) + u'-'));
    }

    void ALinkAmongTheFoldersIsNeitherFollowedNorTaken() {
        const QTemporaryDir temp;
        const QTemporaryDir target;
        Leave(target.path());
        QVERIFY(QDir().mkpath(UserFolder(temp.path())));
        QVERIFY(QFile::link(target.path(), UserFolder(temp.path()) + "/1"));
        const Holder holder(temp.path());
        QVERIFY(QFileInfo::exists(target.filePath("tessaformadocbench/sub/a.tfmprt")));
    }

    void WithoutATemporaryFolderTheProgramGoesOn() {
        const QTemporaryDir temp;
        QFile file(temp.filePath("no folder"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const Holder holder(file.fileName());
        QVERIFY(holder.Folder().startsWith(file.fileName() + "/docbench-"));
        QVERIFY(!QFileInfo::exists(holder.Folder()));
    }

    void TheCurrentFolderIsNeverTheTemporaryOne() {
        const QTemporaryDir temp;
        const Holder holder(temp.filePath("missing"));
        QVERIFY(QDir::isAbsolutePath(holder.Folder()));
    }
};

int main(int argc, char* argv[]) {
    if (argc == 2 && QLatin1String(argv[1]) == QLatin1String(kHolder))
        return Hold();
    const TestEnvironment environment;
    QCoreApplication application(argc, argv);
    tst_Scratch test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_scratch.moc"
