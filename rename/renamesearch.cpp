#include "rename/renamesearch.h"

#include <QSet>

#include "rename/renamelist.h"
#include "services/language.h"

namespace docbench {

bool SearchHolders(const RenameSearch& search, const QString& folders, RowBatch& rows) {
    QSet<QString> listed;  // holders with their relations
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
                if (listed.contains(key))
                    return;
                listed.insert(key);
                rows.Add(HolderRow(found, holder, shown, found.document, search.parent));
            },
        .unsearched = search.unsearched};
    return shared.Run(folders);
}

}  // namespace docbench
