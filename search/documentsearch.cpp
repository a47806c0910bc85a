#include "search/documentsearch.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include "panes/folderwalk.h"
#include "services/errorstate.h"
#include "services/folderlists.h"
#include "services/paths.h"

namespace docbench {
namespace {

QString PathIn(const QString& folder, const QString& name) {
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

struct Listing {
    QStringList files;
    QStringList folders;
};

// Links to folders come last, so that a folder is walked under its own name.
Listing List(const QString& folder) {
    Listing listing;
    QStringList links;
    QDirIterator entries(folder,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QFileInfo entry = entries.fileInfo();
        QStringList& kind = !entry.isDir()      ? listing.files
                            : entry.isSymLink() ? links
                                                : listing.folders;
        kind.append(entries.fileName());
    }
    for (QStringList* names : {&listing.files, &listing.folders, &links})
        names->sort();
    listing.folders += links;
    return listing;
}

}  // namespace

QStringList SearchEntries(const QString& text) {
    QStringList entries = ExpandFolderList(text).split(u';');
    return RemoveDuplicates(entries);
}

void DocumentSearch::Run(const QStringList& entries) {
    QString folder;
    for (const QString& entry : entries) {
        const QFileInfo place(entry);
        if (place.isDir())
            folder = QDir::cleanPath(place.absoluteFilePath());
        if (!folder.isEmpty())
            SearchTree(folder);
    }
}

void DocumentSearch::SearchTree(const QString& folder) {
    visited_.clear();
    const FolderWalk walk{
        .yields = WalkYields::AtFolders,
        .yield = calls_.yield,
        .stopped = calls_.stopped,
        .entering = {},
        .visit = [this](const QString& visited) { return SearchFolder(visited); }};
    walk.Run(folder);
}

// A link to a folder that was searched already is left out, so that a walk through linked folders
// ends.
QStringList DocumentSearch::SearchFolder(const QString& folder) {
    const QFileInfo place(folder);
    const QString canonical = place.canonicalFilePath();
    if (place.isSymLink() && visited_.contains(canonical))
        return {};
    visited_.insert(canonical);
    calls_.entering(folder);
    if (!place.isReadable()) {
        ++unlisted_;
        TellProgress();
    }
    const Listing listing = List(folder);
    QStringList below;
    if (!SearchFiles(folder, listing.files) || !calls_.descends())
        return below;
    for (const QString& name : listing.folders)
        below.append(PathIn(folder, name));
    return below;
}

bool DocumentSearch::SearchFiles(const QString& folder, const QStringList& names) {
    Announce(folder, names);
    for (const QString& name : names) {
        calls_.yield();
        if (calls_.stopped())
            return false;
        const QString path = PathIn(folder, name);
        if (!IsCandidate(name, path))
            continue;
        query_.SetFileName(name);
        ErrorState passedOver;
        bool matches = false;
        passedOver.Assign(matches, [&] { return query_.Evaluate(path); });
        if (matches) {
            ++found_;
            calls_.found(path);
        }
        TellProgress();
    }
    return true;
}

void DocumentSearch::TellProgress() {
    const SearchCounts counts = query_.GetSearchCounts();
    calls_.progress({counts.documents, counts.unread + unlisted_});
}

void DocumentSearch::Announce(const QString& folder, const QStringList& names) {
    QStringList candidates;
    for (const QString& name : names)
        if (IsCandidate(name, PathIn(folder, name)))
            candidates.append(name);
    if (!candidates.isEmpty())
        query_.ReadAhead(folder, candidates);
}

bool DocumentSearch::IsCandidate(const QString& name, const QString& path) const {
    return DocTypeOf(name) != DocType::None && !calls_.isListed(path);
}

}  // namespace docbench
