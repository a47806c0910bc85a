#include "rename/renamesearch.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include "panes/folderwalk.h"
#include "panes/rowbatch.h"
#include "rename/renamelist.h"
#include "services/documentlibrary.h"
#include "services/folderlists.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/relationlabel.h"
#include "services/texts.h"
#include "services/webcopies.h"
#include "services/webdocument.h"

namespace docbench {
namespace {

class HolderSearch {
public:
    HolderSearch(const RenameSearch& search, RowBatch& rows)
        : search_(search), rows_(rows), finder_(Documents().MakeFolderSearcher()) {}

    void SearchFolders(const QString& folder, bool deep);

private:
    void SearchFolder(const QString& folder);
    void Take(const FoundReference& found);

    const RenameSearch& search_;
    RowBatch& rows_;
    std::unique_ptr<FolderSearcher> finder_;
    QHash<QString, QString> urls_;  // of the local copies
    QSet<QString> listed_;          // holders with their relations
};

void HolderSearch::SearchFolders(const QString& folder, bool deep) {
    const FolderWalk walk{.yields = WalkYields::AtFolders,
                          .yield = search_.yield,
                          .stopped = search_.cancelled,
                          .entering =
                              [this](const QString& entered) {
                                  search_.status(Format(Text::SearchingHolders, entered));
                              },
                          .visit =
                              [&](const QString& visited) {
                                  SearchFolder(visited);
                                  QStringList below;
                                  for (int i = 0; deep && i < finder_->GetSubfolderCount(); ++i)
                                      below.append(finder_->GetSubfolder(i));
                                  finder_->ClearResults();
                                  return below;
                              }};
    walk.Run(folder);
}

void HolderSearch::SearchFolder(const QString& folder) {
    finder_->ClearResults();
    if (gWebDocument)
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
    rows_.Offer();
    search_.progress(finder_->GetSearchCounts(), rows_.Count());
}

void HolderSearch::Take(const FoundReference& found) {
    QString holder = found.document;
    if (gWebDocument)
        holder = urls_.value(QDir::cleanPath(holder), holder);
    // A component is a plain reference whatever the types.
    const QString label = RelationLabel(holder, search_.document);
    if (search_.kinds.Drops(label))
        return;
    const QString shown = found.inContext ? label : gRelationDefault;
    const QString key = holder + u'\0' + shown;
    if (listed_.contains(key))
        return;
    listed_.insert(key);
    rows_.Add(HolderRow(found, holder, shown, found.document, search_.parent));
}

}  // namespace

bool SearchHolders(const RenameSearch& search, const QString& folders, RowBatch& rows) {
    const QString expanded = ExpandFolderList(folders);
    QStringList entries = expanded.split(u';', Qt::SkipEmptyParts);
    if (entries.isEmpty())
        return false;
    entries = RemoveDuplicates(entries);
    HolderSearch holders(search, rows);
    for (const QString& entry : entries) {
        if (search.cancelled())
            break;
        QString mirror;
        if (!IsWebPath(expanded)) {
            if (QFileInfo(entry).isDir())
                holders.SearchFolders(QDir::cleanPath(QFileInfo(entry).absoluteFilePath()),
                                      search.subfolders);
        } else if (MirrorWebFolder(expanded, mirror)) {
            holders.SearchFolders(FolderNoSeparator(mirror), false);
        }
    }
    return true;
}

}  // namespace docbench
