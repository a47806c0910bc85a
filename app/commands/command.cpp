#include "app/commands/command.h"

#include <QFileInfo>
#include <algorithm>

#include "services/paths.h"
#include "services/webauthority.h"

namespace docbench {

namespace {

const QString kInOption = QStringLiteral("in");
const QString kNoSubfoldersOption = QStringLiteral("no-subfolders");

// Named lists begin with a blank, addresses stay as they are, folders are taken from here.
QString WholeFolder(const QString& folder) {
    if (IsWebPath(folder) || folder.startsWith(u' '))
        return folder;
    return QFileInfo(folder).absoluteFilePath();
}

}  // namespace

QString DocumentPath(const QString& word) {
    return IsWebPath(word) ? word : QFileInfo(word).absoluteFilePath();
}

QString PasswordProblem(const QStringList& words) {
    if (std::none_of(words.begin(), words.end(), HasPassword))
        return {};
    return QStringLiteral("Name the address without the password: others see the command line.");
}

QString Wrapped(const QString& text) {
    constexpr int kWidth = 80;
    QString lines;
    for (const QString& paragraph : text.split(u'\n')) {
        if (paragraph.startsWith(u' ')) {
            lines += paragraph + u'\n';
            continue;
        }
        QString line;
        for (const QString& word : paragraph.split(u' ')) {
            if (!line.isEmpty() && line.size() + 1 + word.size() > kWidth) {
                lines += line + u'\n';
                line.clear();
            }
            line += (line.isEmpty() ? QString() : QStringLiteral(" ")) + word;
        }
        lines += line + u'\n';
    }
    return lines.trimmed();
}

void AddFolderOptions(QCommandLineParser& parser) {
    parser.addOption({kInOption,
                      QStringLiteral("Folder to search; may be given several times. A name with a "
                                     "blank before it is a named folder list. Default: the folder "
                                     "of FILE."),
                      QStringLiteral("FOLDER")});
    parser.addOption({kNoSubfoldersOption, QStringLiteral("Leaves the folders below out.")});
}

bool WithSubfolders(const QCommandLineParser& line) {
    return !line.isSet(kNoSubfoldersOption);
}

QString FoldersToSearch(const QCommandLineParser& line, const QString& document) {
    QStringList folders;
    for (const QString& folder : line.values(kInOption))
        folders.append(WholeFolder(folder));
    return folders.isEmpty() ? FolderOf(document) : folders.join(u';');
}

}  // namespace docbench
