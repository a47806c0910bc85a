#include "rename/renamesearch.h"

#include <QHash>
#include <utility>

#include "rename/renamelist.h"
#include "services/language.h"

namespace docbench {

bool SearchHolders(const RenameSearch& search, const QString& folders, RowBatch& rows) {
    using Place = std::pair<int, bool>;  // index and table
    QHash<QString, Place> listed;        // of holders with their relations
    const HolderSearch shared{
        .document = search.document,
        .kinds = search.kinds,
        .subfolders = search.subfolders,
        .status = search.status,
        .yield = search.yield,
        .cancelled = search.cancelled,
        .progress =
            [&](const SearchCounts& counts) {
                rows.Offer();
                search.progress(counts, rows.Count());
            },
        .mirrors = search.mirrors,
        .take =
            [&](const FoundReference& found, const QString& holder, const QString& relation) {
                // A component is a plain reference whatever the types.
                const QString shown = found.inContext ? relation : gRelationDefault;
                const QString key = holder + u'\0' + shown;
                const Place place(found.referenceIndex, found.inContext);
                if (const auto first = listed.constFind(key); first != listed.cend()) {
                    if (search.repeated && *first != place)
                        search.repeated(holder);
                    return;
                }
                listed.insert(key, place);
                rows.Add(HolderRow(found, holder, shown, found.document, search.parent));
            },
        .unsearched = search.unsearched};
    return shared.Run(folders);
}

}  // namespace docbench
