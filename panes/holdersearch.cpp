#include "panes/holdersearch.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

#include "panes/folderwalk.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/folderlists.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/relationlabel.h"
#include "services/texts.h"
#include "services/webcopies.h"
#include "services/webdocument.h"

namespace docbench {
namespace {

class Walk {
public:
    explicit Walk(const HolderSearch& search)
        : search_(search), finder_(Documents().MakeFolderSearcher()) {}

    void SearchFolders(const QString& folder, bool deep);
    // Looks in the copies of a web folder's documents; `url` may be more than the folder itself.
    void SearchWebFolder(const QString& url);
    void Tell(const QString& folder, const QString& reason) const;

private:
    QStringList Visit(const QString& folder, bool deep);
    void SearchFolder(const QString& folder);
    void ReportProgress() const;
    void Take(const FoundReference& found);

    const HolderSearch& search_;
    std::unique_ptr<FolderSearcher> finder_;
    QHash<QString, QString> urls_;  // of the local copies
    int unfetched_ = 0;             // documents of web folders that can't be had
};

void Walk::SearchFolders(const QString& folder, bool deep) {
    const FolderWalk walk{.yields = WalkYields::AtFolders,
                          .yield = search_.yield,
                          .stopped = search_.cancelled,
                          .entering =
                              [this](const QString& entered) {
                                  search_.status(Format(Text::SearchingHolders, entered));
                              },
                          .visit = [&](const QString& visited) { return Visit(visited, deep); }};
    walk.Run(folder);
}

void Walk::SearchWebFolder(const QString& url) {
    QString mirror;
    int unfetched = 0;
    const bool fetched = MirrorWebFolder(url, mirror, &unfetched);
    unfetched_ += unfetched;
    if (fetched)
        return SearchFolders(FolderNoSeparator(mirror), false);
    if (!gWebListing)
        return Tell(url, gWebFolder ? gWebFolder->LastError()
                                    : QStringLiteral("There is no way to web folders."));
    ReportProgress();
}

void Walk::Tell(const QString& folder, const QString& reason) const {
    if (search_.unsearched)
        search_.unsearched(folder, reason);
}

void Walk::ReportProgress() const {
    SearchCounts counts = finder_->GetSearchCounts();
    counts.unread += unfetched_;
    search_.progress(counts);
}

QStringList Walk::Visit(const QString& folder, bool deep) {
    ErrorState passedOver;
    if (search_.onFailure == HolderSearch::OnFailure::Raises)
        SearchFolder(folder);
    else if (!passedOver.Run([&] { SearchFolder(folder); }))
        Tell(folder, passedOver.Description());
    QStringList below;
    for (int i = 0; deep && i < finder_->GetSubfolderCount(); ++i)
        below.append(finder_->GetSubfolder(i));
    finder_->ClearResults();
    return below;
}

void Walk::SearchFolder(const QString& folder) {
    finder_->ClearResults();
    if (gWebDocument || IsWebPath(search_.document))
        urls_ = UrlsOfCopies();
    finder_->FindReferences({.pattern = folder + QStringLiteral("/*.*"),
                             .fullPathFlag = 0,
                             .baseName = BaseNameOf(search_.document),
                             .extension = ExtensionOf(search_.document),
                             .fullPath = QString(),
                             .mask = search_.kinds.Mask()});
    const int count = finder_->GetResultCount();
    for (int i = 0; i < count; ++i)
        Take(finder_->GetResult(i));
    ReportProgress();
}

void Walk::Take(const FoundReference& found) {
    const QString holder = urls_.value(QDir::cleanPath(found.document), found.document);
    const QString relation = RelationLabel(holder, search_.document);
    if (!search_.kinds.Drops(relation))
        search_.take(found, holder, relation);
}

}  // namespace

bool HolderSearch::Run(const QString& folders) const {
    const QString expanded = ExpandFolderList(folders);
    QStringList entries = expanded.split(u';', Qt::SkipEmptyParts);
    if (entries.isEmpty())
        return false;
    entries = RemoveDuplicates(entries);
    Walk walk(*this);
    for (const QString& entry : entries) {
        if (cancelled())
            break;
        if (IsWebPath(expanded))
            walk.SearchWebFolder(mirrors == Mirrors::EachEntry ? entry : expanded);
        else if (QFileInfo(entry).isDir())
            walk.SearchFolders(QDir::cleanPath(QFileInfo(entry).absoluteFilePath()), subfolders);
        else
            walk.Tell(entry, QStringLiteral("It is not there."));
    }
    return true;
}

}  // namespace docbench
