// What the tests of searches share: documents with references, queries, and rows as texts.
#pragma once

#include <QString>
#include <QStringList>
#include <memory>

#include "tests/docmodel/documenttools.h"

namespace docmodel {

using docbench::FolderSearcher;
using docbench::ReferenceQuery;

// While it lives, documents are written without waiting for the disk: no test here pulls the plug.
class UnsyncedDisk : public FileOps {
public:
    UnsyncedDisk() : former_(gFileOps) { gFileOps = this; }
    ~UnsyncedDisk() override { gFileOps = former_; }
    UnsyncedDisk(const UnsyncedDisk&) = delete;
    UnsyncedDisk& operator=(const UnsyncedDisk&) = delete;
    int Sync(int) override { return 0; }
    int SyncData(int) override { return 0; }

private:
    FileOps* former_;
};

inline void MakeDocument(const QString& path, const QStringList& components = {},
                         const QStringList& externals = {}) {
    DocumentBuilder document = DocumentBuilder::New(path, DocumentBuilder::IfThere::Replace);
    for (const QString& target : components)
        document.AddComponent(target);
    for (const QString& target : externals)
        document.AddExternal(target, "derived");
    document.Save();
}

// For all documents in the folder that refer to a file of that name.
inline ReferenceQuery NameQuery(const QString& folder, const QString& base,
                                const QString& extension) {
    ReferenceQuery query;
    query.pattern = folder + "/*.*";
    query.baseName = base;
    query.extension = extension;
    return query;
}

inline std::unique_ptr<FolderSearcher> SearchByName(const QString& folder, const QString& base,
                                                    const QString& extension, int mask = 7) {
    ReferenceQuery query = NameQuery(folder, base, extension);
    query.mask = mask;
    auto searcher = Access().MakeFolderSearcher();
    const int count = searcher->FindReferences(query);
    if (count != searcher->GetResultCount())
        QTest::qFail("FindReferences counts other rows than there are", __FILE__, __LINE__);
    return searcher;
}

// "DOCUMENT POSITION REFERENCE" for each row, without folders; an "x" before the position means the
// external table.
inline QStringList RowTexts(FolderSearcher& searcher) {
    const auto name = [](const QString& path) {
        return path.mid(qMax(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\')) + 1);
    };
    QStringList texts;
    for (int i = 0; i < searcher.GetResultCount(); ++i) {
        const docbench::FoundReference row = searcher.GetResult(i);
        texts.append(QStringLiteral("%1 %2%3 %4")
                         .arg(name(row.document), row.inContext ? QStringLiteral("x") : QString())
                         .arg(row.referenceIndex)
                         .arg(name(row.reference)));
    }
    return texts;
}

inline QStringList Subfolders(FolderSearcher& searcher) {
    QStringList folders;
    for (int i = 0; i < searcher.GetSubfolderCount(); ++i)
        folders.append(searcher.GetSubfolder(i));
    return folders;
}

// Searches a folder and all below it, and notes them in their order.
inline void Walk(FolderSearcher& searcher, const QString& folder, QStringList& walked) {
    searcher.FindReferences(NameQuery(folder, "gear", "*"));
    walked.append(folder);
    for (const QString& subfolder : Subfolders(searcher))
        Walk(searcher, subfolder, walked);
}

}  // namespace docmodel
