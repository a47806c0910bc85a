// Transfers with a web folder on Apache on this machine: 200 MB down and up against curl, a folder
// of 10,000 entries against curl with a bare parse of its answer, and the memory that they take.

#include <sys/stat.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <pugixml.hpp>

#include "bench/ratios.h"
#include "docmodel/access.h"
#include "tests/support/apacheserver.h"

using namespace docbench;

namespace {

constexpr int kTransferRounds = 7;
constexpr int kListingRounds = 21;  // they are short, so chance weighs more
constexpr qint64 kFileBytes = 200 << 20;
constexpr int kEntries = 10'000;
constexpr double kMaxGrowthMegabytes = 8;

const QByteArray kQuestion =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<D:propfind xmlns:D=\"DAV:\"><D:prop>"
    "<D:resourcetype/><D:getetag/></D:prop></D:propfind>";

void Require(bool done, const QString& what) {
    if (!done)
        qFatal("%s", qPrintable(what));
}

double Milliseconds(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

double Median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void Curl(const QStringList& arguments) {
    QProcess curl;
    curl.start(QStringLiteral("curl"), QStringList{QStringLiteral("-sSf")} + arguments);
    Require(curl.waitForFinished(-1) && curl.exitCode() == 0,
            QString::fromLocal8Bit(curl.readAllStandardError()));
}

// The most memory that was in use since the last reset.
double PeakMegabytes() {
    QFile status(QStringLiteral("/proc/self/status"));
    Require(status.open(QFile::ReadOnly), status.fileName());
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    return 0;
}

void ResetPeak() {
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    Require(file.open(QFile::WriteOnly) && file.write("5") == 1, file.fileName());
}

// Ours against theirs, in turn. Before each, `prepare` runs outside the time.
bool CompareTimes(const char* name, int rounds, double limit, const std::function<void()>& prepare,
                  const std::function<void()>& ours, const std::function<void()>& theirs) {
    std::vector<double> ourTimes;
    std::vector<double> theirTimes;
    for (int i = 0; i < rounds; ++i) {
        prepare();
        ourTimes.push_back(Milliseconds(ours));
        prepare();
        theirTimes.push_back(Milliseconds(theirs));
    }
    const double our = Median(ourTimes);
    const double their = Median(theirTimes);
    std::printf("%s: %.1f ms; curl: %.1f ms\n", name, our, their);
    return bench::PrintRatio(std::string(name) + " / curl", our / their, limit);
}

bool CompareMemory(const char* name, const std::function<void()>& work) {
    ResetPeak();
    const double before = PeakMegabytes();
    work();
    const double growth = PeakMegabytes() - before;
    return bench::PrintRatio(std::string(name) + ": memory growth in MB", growth,
                             kMaxGrowthMegabytes);
}

void MakeBigFile(const QString& path) {
    QFile file(path);
    Require(file.open(QFile::WriteOnly), path);
    QByteArray block(1 << 20, Qt::Uninitialized);
    for (qsizetype i = 0; i < block.size(); ++i)
        block[i] = char(i * 7919 >> 5);
    for (qint64 written = 0; written < kFileBytes; written += block.size())
        Require(file.write(block) == block.size(), path);
}

std::unique_ptr<WebFolderClient> Client() {
    return docmodel::Access().MakeWebFolderClient({});
}

bool Transfers(const ApacheServer& server, const QTemporaryDir& folder) {
    const QString local = folder.filePath(QStringLiteral("local"));
    const QString url = server.Url(QStringLiteral("big.tfmprt"));
    MakeBigFile(server.Path(QStringLiteral("big.tfmprt")));
    const auto download = [&] {
        const auto client = Client();
        Require(client->GetFile(url, local), client->LastError());
    };
    bool isKept = CompareTimes(
        "download_200_MB", kTransferRounds, 1.3, [&] { QFile::remove(local); }, download,
        [&] {
            Curl({QStringLiteral("-o"), local, url});
        });
    isKept &= CompareMemory("download_200_MB", download);

    const QString target = server.Url(QStringLiteral("up.tfmprt"));
    const auto clear = [&] { QFile::remove(server.Path(QStringLiteral("up.tfmprt"))); };
    const auto upload = [&] {
        const auto client = Client();
        Require(client->PutFile(local, target), client->LastError());
    };
    isKept &= CompareTimes("upload_200_MB", kTransferRounds, 1.3, clear, upload, [&] {
        Curl({QStringLiteral("-T"), local, QStringLiteral("-o"), QStringLiteral("/dev/null"),
              target});
    });
    clear();
    isKept &= CompareMemory("upload_200_MB", upload);
    return isKept;
}

void CurlListing(const QString& url, const QString& answer) {
    Curl({QStringLiteral("-X"), QStringLiteral("PROPFIND"), QStringLiteral("-H"),
          QStringLiteral("Depth: 1"), QStringLiteral("-H"),
          QStringLiteral("Content-Type: application/xml"), QStringLiteral("--data-binary"),
          QString::fromLatin1(kQuestion), QStringLiteral("-o"), answer, url});
    pugi::xml_document document;
    Require(bool(document.load_file(QFile::encodeName(answer).constData())), answer);
}

bool Listing(const ApacheServer& server, const QTemporaryDir& folder) {
    const QString name = QStringLiteral("many");
    Require(Client()->MakeFolder(server.Url(name)), name);
    const QString path = server.Path(name) + u'/';
    for (int i = 0; i < kEntries; ++i) {
        QFile file(path + QStringLiteral("part number %1.tfmprt").arg(i));
        Require(file.open(QFile::WriteOnly), file.fileName());
    }
    const QString url = server.Url(name) + u'/';
    const auto list = [&] {
        const auto client = Client();
        const auto listing = client->ListFolder(url);
        Require(bool(listing), client->LastError());
        int count = 0;
        for (QString entry; listing->NextEntry(entry);)
            ++count;
        Require(count == kEntries, QString::number(count));
    };
    return CompareTimes(
        "list_10000_entries", kListingRounds, 1.5, [] {}, list,
        [&] { CurlListing(url, folder.filePath(QStringLiteral("answer"))); });
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const ApacheServer server;
    const bool transfers = Transfers(server, folder);
    return Listing(server, folder) && transfers ? 0 : 1;
}
