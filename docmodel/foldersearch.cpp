#include "docmodel/foldersearch.h"

#include <sys/stat.h>

#include <QLoggingCategory>
#include <cerrno>

#include "docmodel/documentreferences.h"
#include "docmodel/foldermemory.h"
#include "docmodel/packageerror.h"
#include "docmodel/referencetarget.h"
#include "services/paths.h"

namespace docmodel {

using docbench::ReferenceQuery;

namespace {

Q_LOGGING_CATEGORY(searchLog, "docmodel.search", QtInfoMsg)

bool IsSeparator(QChar c) {
    return c == u'/' || c == u'\\';
}

// The folder of a pattern with one separator at its end; empty for the working folder.
QString FolderPrefix(const QString& pattern) {
    QString folder = docbench::FolderOf(pattern);
    if (folder.isEmpty())
        return folder;
    while (!folder.isEmpty() && IsSeparator(folder.back()))
        folder.chop(1);
    return folder + u'/';
}

class FolderSearch {
public:
    FolderSearch(const ReferenceQuery& query, std::set<FolderIdentity>& known);
    FolderFindings Run(ReferenceIndex& index);

private:
    void Remember();
    void Read(const ListedDocument& document, FolderMemory& memory);
    QString PathOf(const std::string& name) const {
        return prefix_ + QString::fromUtf8(name.data(), qsizetype(name.size()));
    }

    const ReferenceQuery& query_;
    std::set<FolderIdentity>& known_;
    const ReferenceTarget target_;
    const QString prefix_;        // of the documents' paths
    const QString holderFolder_;  // the same, absolute and clean
    const FileDescriptor folder_;
    FolderFindings findings_;
};

FolderSearch::FolderSearch(const ReferenceQuery& query, std::set<FolderIdentity>& known)
    : query_(query),
      known_(known),
      target_(query),
      prefix_(FolderPrefix(query.pattern)),
      holderFolder_(HolderFolder(prefix_ + QLatin1String("document"))),
      folder_(OpenFolder(prefix_.isEmpty() ? QStringLiteral(".") : prefix_)) {}

// So that a link from below leads no walk in here again.
void FolderSearch::Remember() {
    struct stat status;
    if (fstat(folder_.Get(), &status) != 0)
        throw FolderError(prefix_, QStringLiteral("searched"), errno);
    known_.insert({status.st_dev, status.st_ino});
}

FolderFindings FolderSearch::Run(ReferenceIndex& index) {
    Remember();
    const QString pattern = docbench::FileNameOf(query_.pattern);
    const FolderListing listing = ListFolder(folder_, prefix_, pattern, known_);
    findings_.counts = {int(listing.documents.size()) + listing.unnamable, listing.unnamable};
    FolderMemory memory(index, folder_, holderFolder_, IsEveryName(pattern));
    for (const ListedDocument& document : listing.documents)
        if (!memory.IsWithout(document, target_))
            Read(document, memory);
    memory.Save();
    for (const std::string& subfolder : listing.subfolders)
        findings_.subfolders.append(PathOf(subfolder));
    return std::move(findings_);
}

void FolderSearch::Read(const ListedDocument& document, FolderMemory& memory) {
    try {
        const DocumentReferences references(folder_.Get(), document.name.c_str(),
                                            PathOf(document.name), holderFolder_);
        references.Find(target_, query_.mask, findings_.rows);
        memory.Learn(document, references);
    } catch (const DocumentError& error) {
        ++findings_.counts.unread;
        qCDebug(searchLog).noquote() << error.Description();
    }
}

}  // namespace

FolderFindings SearchFolder(const ReferenceQuery& query, std::set<FolderIdentity>& known,
                            ReferenceIndex& index) {
    return FolderSearch(query, known).Run(index);
}

}  // namespace docmodel
