#include "app/commands/command.h"

#include <QFileInfo>
#include <algorithm>

#include "platform/xlsxspreadsheet.h"
#include "services/documentlibrary.h"
#include "services/folderlists.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/webauthority.h"
#include "services/webcopies.h"
#include "services/webdocument.h"
#include "shell/locking.h"

namespace docbench {

namespace {

const QString kInOption = QStringLiteral("in");
const QString kNoSubfoldersOption = QStringLiteral("no-subfolders");
const QString kKindsOption = QStringLiteral("kinds");
const QString kOutputOption = QStringLiteral("output");

QStringList FoldersOfList(const QString& word) {
    const QString list = word.mid(1);
    const QStringList folders = ExpandFolderList(word).split(u';', Qt::SkipEmptyParts);
    if (folders.isEmpty())
        throw UsageError(QStringLiteral("There is no folder list \"%1\". docbench list shows "
                                        "those that there are.")
                             .arg(list));
    for (const QString& folder : folders) {
        if (!IsAddress(folder) && !QFileInfo(folder).isDir())
            throw DocumentError(QStringLiteral("There is no folder %1, which the folder list "
                                               "\"%2\" has. Set the list anew.")
                                    .arg(folder, list));
    }
    return folders;
}

// Named lists begin with a blank, addresses stay as they are, folders are taken from here.
QStringList WholeFolders(const QString& word) {
    if (word.startsWith(u' ') && !word.contains(u';'))
        return FoldersOfList(word);
    if (IsAddress(word))
        return {word};
    const QFileInfo place(word);
    if (!place.isDir())
        throw UsageError(QStringLiteral("There is no folder %1.").arg(word));
    return {place.absoluteFilePath()};
}

// One text of several folders is taken for addresses altogether, or for none.
void RequireOneKind(const QStringList& folders) {
    for (const QString& folder : folders) {
        if (folder.contains(u';'))
            throw UsageError(QStringLiteral("The folder %1 can't be searched: a \";\" in its name "
                                            "stands between two folders.")
                                 .arg(folder));
        if (IsWebPath(folder) && !IsAddress(folder))
            throw UsageError(QStringLiteral("The folder %1 can't be searched: a name with http in "
                                            "it is taken for an address.")
                                 .arg(folder));
        if (IsAddress(folder) != IsAddress(folders.first()))
            throw UsageError(QStringLiteral("%1 and %2 can't be searched at once: web folders and "
                                            "others need a search each.")
                                 .arg(folders.first(), folder));
    }
}

}  // namespace

std::unique_ptr<DocumentFile> OpenDocument(const QString& path) {
    gWebDocument = IsWebPath(path);
    try {
        auto file = Documents().MakeDocumentFile();
        file->Open(LocalCopyOf(path));
        return file;
    } catch (const DocumentError& error) {
        throw NoDocumentError(error.Description());
    }
}

void RequireTables(DocumentFile& file, const QString& path) {
    if (!file.IsCurrentFormat())
        throw DocumentError(QStringLiteral("%1: %2").arg(path, gOldFormatText));
}

QString WritingProblem(const QString& path) {
    const int code = Documents().MakeDocumentFile()->GetAccessState(LocalCopyOf(path));
    return code == 0 ? QString() : AccessStateText(code, path);
}

void RequireWritable(const QString& path) {
    if (const QString problem = WritingProblem(path); !problem.isEmpty())
        throw DocumentError(problem);
}

QString ReservationProblem(const QString& path) {
    const auto info = Documents().MakeDocumentInfo();
    if (!info->Open(LocalCopyOf(path)) || !info->GetLocked())
        return {};
    return QStringLiteral("%1 is locked by %2: unlock it first.").arg(path, info->GetLockedBy());
}

void RequireUnlocked(const QString& path) {
    if (const QString problem = ReservationProblem(path); !problem.isEmpty())
        throw DocumentError(problem);
}

QString DocumentPath(const QString& word) {
    return IsWebPath(word) ? word : QFileInfo(word).absoluteFilePath();
}

bool IsAddress(const QString& folder) {
    return folder.startsWith(QLatin1String("http:"), Qt::CaseInsensitive) ||
           folder.startsWith(QLatin1String("https:"), Qt::CaseInsensitive);
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

QList<QCommandLineOption> FolderOptions(const QString& otherwise) {
    return {{kInOption,
             QStringLiteral("Folder to search; may be given several times. A name with a blank "
                            "before it is a named folder list. Default: %1.")
                 .arg(otherwise),
             QStringLiteral("FOLDER")},
            {kNoSubfoldersOption, QStringLiteral("Leaves the folders below out.")}};
}

bool LimitsSearch(const QCommandLineParser& line) {
    return line.isSet(kInOption) || line.isSet(kNoSubfoldersOption) || line.isSet(kKindsOption);
}

bool WithSubfolders(const QCommandLineParser& line) {
    return !line.isSet(kNoSubfoldersOption);
}

QString FoldersToSearch(const QCommandLineParser& line, const QString& otherwise) {
    QStringList folders;
    for (const QString& folder : line.values(kInOption))
        folders += WholeFolders(folder);
    if (!line.isSet(kInOption))
        folders += WholeFolders(otherwise);
    RequireOneKind(folders);
    return folders.join(u';');
}

void RaiseUnsearched(const QString& folder, const QString& reason) {
    throw DocumentError(
        QStringLiteral("%1 can't be searched, so nothing was done. %2").arg(folder, reason));
}

QCommandLineOption KindsOption() {
    return {kKindsOption,
            QStringLiteral("Kinds of use that count, with commas between them: references, "
                           "in-context, mirrored. Default: all."),
            QStringLiteral("KINDS")};
}

UseKinds KindsToFind(const QCommandLineParser& line) {
    if (!line.isSet(kKindsOption))
        return {};
    UseKinds kinds{.references = false, .inContext = false, .mirrored = false};
    for (const QString& kind : line.value(kKindsOption).split(u',')) {
        if (kind == QLatin1String("references"))
            kinds.references = true;
        else if (kind == QLatin1String("in-context"))
            kinds.inContext = true;
        else if (kind == QLatin1String("mirrored"))
            kinds.mirrored = true;
        else
            throw UsageError(QStringLiteral("There is no kind of use \"%1\".").arg(kind));
    }
    return kinds;
}

QCommandLineOption OutputOption() {
    return {{QStringLiteral("o"), kOutputOption},
            QStringLiteral("Writes the list to a spreadsheet: comma separated values if the name "
                           "ends in .csv, else .xlsx."),
            QStringLiteral("FILE")};
}

void WriteOutput(const TextTable& table, const QCommandLineParser& line) {
    if (!line.isSet(kOutputOption))
        return;
    const QString file = line.value(kOutputOption);
    if (file.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive))
        WriteCsv(table, file);
    else
        WriteXlsx(table, file);
}

}  // namespace docbench
