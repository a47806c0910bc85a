#include <QDirIterator>
#include <QImage>

#include "tests/support/installation.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

int ColoursOf(const QImage& picture) {
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); y += 2)
        for (int x = 0; x < picture.width(); x += 2)
            colours.insert(picture.pixel(x, y));
    return int(colours.size());
}

// The differing pixels of two pictures of one size, within a part of them.
int Differences(const QImage& one, const QImage& other, const QRect& part) {
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            count += one.pixel(x, y) != other.pixel(x, y);
    return count;
}

}  // namespace

// What a program of others needs to place the controls on its window: built from nothing but what
// is installed, with plain CMake, in a folder of its own.
class TestEmbedding : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        install_.Add(QStringLiteral("development"));
        QVERIFY2(install_.outcome.code == 0, qPrintable(install_.outcome.err));
        const Outcome configured =
            RunProgram(QStringLiteral("cmake"),
                       {"-S", install_.Data("doc/docbench/example"), "-B", Host(), "-G", "Ninja",
                        "-DCMAKE_BUILD_TYPE=None", "-DCMAKE_CXX_FLAGS=" + HostFlags(),
                        "-DCMAKE_PREFIX_PATH=" + install_.Path("usr")});
        QVERIFY2(configured.code == 0, qPrintable(configured.out + configured.err));
        const Outcome built = RunProgram(QStringLiteral("cmake"), {"--build", Host()});
        QVERIFY2(built.code == 0, qPrintable(built.out + built.err));
    }

    void theHostShowsTheTreeOfADocument() {
        TestLibrary library;
        const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
        const QString top = library.Make(QStringLiteral("top.tfmasm"), {{pin, 2}});
        const QImage with = PictureOf(top);
        const QImage without = PictureOf(library.Path(QStringLiteral("lost.tfmasm")));
        QCOMPARE(with.size(), QSize(1024, 700));
        QVERIFY(ColoursOf(with) > 50);
        // The tree is on the left; two rows with their pictures are well over a hundred pixels.
        QVERIFY(Differences(with, without, QRect(0, 100, 400, 500)) > 100);
        if (const QString kept = qEnvironmentVariable("DOCBENCH_KEEP_PICTURE"); !kept.isEmpty())
            with.save(kept);
    }

    void theHostReadsDocumentsAndSpeaksTheLanguagesOfTheInstallation() {
        TestLibrary library;
        const QString top = library.Make(QStringLiteral("top.tfmasm"));
        QVERIFY(Differences(PictureOf(top), PictureOf(top, "de_DE.UTF-8"), QRect(0, 0, 1024, 100)) >
                100);
    }

    void everyInstalledHeaderStandsAlone() {
        const QString folder = install_.Path(QStringLiteral("headers"));
        QVERIFY(QDir().mkpath(folder));
        QByteArray includes;
        const QDir installed(install_.Path(QStringLiteral("usr/include/docbench")));
        for (QDirIterator headers(installed.path(), {QStringLiteral("*.h")}, QDir::Files,
                                  QDirIterator::Subdirectories);
             headers.hasNext();)
            includes +=
                "#include \"" + installed.relativeFilePath(headers.next()).toUtf8() + "\"\n";
        QVERIFY(includes.contains("frame/maincontrol.h"));
        Write(folder + QStringLiteral("/all.cpp"), includes);
        Write(folder + QStringLiteral("/CMakeLists.txt"),
              "cmake_minimum_required(VERSION 3.16)\nproject(headers LANGUAGES CXX)\n"
              "find_package(Docbench REQUIRED)\nadd_library(headers OBJECT all.cpp)\n"
              "target_compile_options(headers PRIVATE -fsyntax-only)\n"
              "target_link_libraries(headers PRIVATE Docbench::Controls)\n");
        const QString build = folder + QStringLiteral("/build");
        const Outcome configured =
            RunProgram(QStringLiteral("cmake"), {"-S", folder, "-B", build, "-G", "Ninja",
                                                 "-DCMAKE_PREFIX_PATH=" + install_.Path("usr")});
        QVERIFY2(configured.code == 0, qPrintable(configured.out + configured.err));
        const Outcome built = RunProgram(QStringLiteral("cmake"), {"--build", build});
        QVERIFY2(built.code == 0, qPrintable(built.out + built.err));
    }

    void aHostOfALaterMajorVersionIsRefused() {
        QVERIFY(QDir().mkpath(install_.Path(QStringLiteral("later"))));
        Write(install_.Path(QStringLiteral("later/CMakeLists.txt")),
              "cmake_minimum_required(VERSION 3.16)\nproject(later LANGUAGES NONE)\n"
              "find_package(Docbench 2.0 REQUIRED)\n");
        const Outcome run =
            RunProgram(QStringLiteral("cmake"),
                       {"-S", install_.Path("later"), "-B", install_.Path("later/build"), "-G",
                        "Ninja", "-DCMAKE_PREFIX_PATH=" + install_.Path("usr")});
        QVERIFY(run.code != 0);
        QVERIFY(run.err.contains(QLatin1String("1.0.0")));
    }

private:
    static void Write(const QString& path, const QByteArray& text) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("%s can't be written", qPrintable(path));
    }

    QString Host() const { return install_.Path(QStringLiteral("host")); }

    // A build with sanitizers needs them in the host's program as well.
    static QString HostFlags() {
#ifdef __SANITIZE_ADDRESS__
        return QStringLiteral("-fsanitize=address,undefined");
#else
        return QStringLiteral("-O0");
#endif
    }

    QImage PictureOf(const QString& document, const char* locale = "C.UTF-8") const {
        const QString file = install_.Path(QStringLiteral("host.png"));
        QFile::remove(file);
        const Outcome run = RunProgram(Host() + QStringLiteral("/docbench-host"), {document, file},
                                       {{QStringLiteral("LC_ALL"), QString::fromLatin1(locale)}});
        if (run.code != 0)
            qWarning("the host: %s", qPrintable(run.err));
        return QImage(file);
    }

    Installation install_;
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestEmbedding)

#include "tst_embedding.moc"
