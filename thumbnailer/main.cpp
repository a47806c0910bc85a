// The program that file managers call for a document's thumbnail. It needs no display.

#include <sys/resource.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include "app/exitcodes.h"
#include "services/docaccess.h"
#include "thumbnailer/thumbnail.h"

namespace {

using namespace docbench;

const QString kSizeOption = QStringLiteral("size");

void PrepareParser(QCommandLineParser& parser) {
    parser.setApplicationDescription(QStringLiteral(
        "Writes the preview that is stored in a document as a PNG picture, for file managers.\n"
        "\n"
        "  docbench-thumbnailer -s 128 bolt.tfmprt bolt.png\n"));
    parser.addOptions(
        {{{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Shows this text.")},
         {{QStringLiteral("v"), QStringLiteral("version")}, QStringLiteral("Shows the version.")},
         {{QStringLiteral("s"), kSizeOption},
          QStringLiteral("Pixels in the longer direction, from 1 to %1; a smaller preview keeps "
                         "its size.")
              .arg(thumbnailer::kLargestSize),
          QStringLiteral("PIXELS"),
          QString::number(thumbnailer::kUsualSize)}});
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("The document: a path or a file: address."));
    parser.addPositionalArgument(QStringLiteral("PNG"), QStringLiteral("The picture to write."));
}

// File managers look at any file that somebody sends: whatever a picture is made to cost, the
// desktop goes on.
void LimitMyself() {
#ifndef __SANITIZE_ADDRESS__  // which reserves terabytes
    constexpr rlim_t kMemory = rlim_t(1) << 30;
    const rlimit memory{kMemory, kMemory};
    setrlimit(RLIMIT_AS, &memory);
#endif
    constexpr rlim_t kSeconds = 20;
    const rlimit time{kSeconds, kSeconds};
    setrlimit(RLIMIT_CPU, &time);
}

int WrongUsage(const QString& message) {
    QTextStream(stderr) << message << "\nTry docbench-thumbnailer --help.\n";
    return kExitUsage;
}

QString HelpText(const QCommandLineParser& parser) {
    // The toolkit's first line names the program by its whole path.
    const QString text = parser.helpText();
    return QStringLiteral("Usage: docbench-thumbnailer [options] FILE PNG\n") +
           text.mid(text.indexOf(u'\n') + 1) +
           QStringLiteral(
               "\nExit codes: 0 done, 1 there is no preview or it can't be read or "
               "written,\n2 wrong usage.\n");
}

int Run(const QCommandLineParser& parser) {
    const QStringList words = parser.positionalArguments();
    if (words.size() != 2)
        return WrongUsage(QStringLiteral("Name a document and the picture to write."));
    bool isNumber = false;
    const int size = parser.value(kSizeOption).toInt(&isNumber);
    if (!isNumber || size < 1 || size > thumbnailer::kLargestSize)
        return WrongUsage(QStringLiteral("There is no size %1.").arg(parser.value(kSizeOption)));
    const QString document = thumbnailer::LocalFile(words[0]);
    if (document.isEmpty())
        return WrongUsage(QStringLiteral("%1 is not on this computer.").arg(words[0]));
    try {
        thumbnailer::WriteThumbnail(document, words[1], size);
        return kExitDone;
    } catch (const DocumentError& error) {
        QTextStream(stderr) << error.Description() << '\n';
    } catch (const std::bad_alloc&) {
        QTextStream(stderr) << "There is too little memory for the preview of " << document
                            << ".\n";
    }
    return kExitPartly;
}

}  // namespace

int main(int argc, char* argv[]) {
    LimitMyself();
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("docbench-thumbnailer"));
    QCommandLineParser parser;
    PrepareParser(parser);
    if (!parser.parse(QCoreApplication::arguments()))
        return WrongUsage(parser.errorText());
    if (parser.isSet(QStringLiteral("help"))) {
        QTextStream(stdout) << HelpText(parser);
        return kExitDone;
    }
    if (parser.isSet(QStringLiteral("version"))) {
        QTextStream(stdout) << "docbench-thumbnailer " << DOCBENCH_VERSION << '\n';
        return kExitDone;
    }
    return Run(parser);
}
