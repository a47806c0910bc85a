#include "docmodel/foldersearch.h"

#include <sys/stat.h>

#include <QFileInfo>
#include <QLoggingCategory>
#include <cerrno>

#include "docmodel/documentreferences.h"
#include "docmodel/foldermemory.h"
#include "docmodel/packageerror.h"
#include "docmodel/parallel.h"
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

// A document that must be read, and what is kept of it then.
struct Candidate {
    const ListedDocument* document;
    bool isNew;  // the index is to know it
    bool isRead = false;
    QList<docbench::FoundReference> rows = {};
    FileState state = {};
    std::vector<quint32> stemHashes = {};
};

class FolderSearch {
public:
    FolderSearch(const ReferenceQuery& query, KnownFolders& known);
    FolderFindings Run(ReferenceIndex& index);

private:
    bool IsKnownByAnotherName();
    void Search(const FolderListing& listing, FolderMemory& memory);
    void Read(Candidate& candidate) const;
    QString PathOf(const std::string& name) const {
        return prefix_ + QString::fromUtf8(name.data(), qsizetype(name.size()));
    }

    const ReferenceQuery& query_;
    KnownFolders& known_;
    const ReferenceTarget target_;
    const QString prefix_;        // of the documents' paths
    const QString holderFolder_;  // the same, absolute and clean
    const FileDescriptor folder_;
    FolderFindings findings_;
};

FolderSearch::FolderSearch(const ReferenceQuery& query, KnownFolders& known)
    : query_(query),
      known_(known),
      target_(query),
      prefix_(FolderPrefix(query.pattern)),
      holderFolder_(HolderFolder(prefix_ + QLatin1String("document"))),
      folder_(OpenFolder(prefix_.isEmpty() ? QStringLiteral(".") : prefix_)) {}

// Tells so of links alone, and takes in any folder that is not known.
bool FolderSearch::IsKnownByAnotherName() {
    struct stat status;
    if (fstat(folder_.Get(), &status) != 0)
        throw FolderError(prefix_, QStringLiteral("searched"), errno);
    const auto [known, isNew] = known_.try_emplace({status.st_dev, status.st_ino}, holderFolder_);
    return !isNew && known->second != holderFolder_ &&
           QFileInfo(holderFolder_.chopped(1)).isSymLink();
}

FolderFindings FolderSearch::Run(ReferenceIndex& index) {
    if (IsKnownByAnotherName())
        return {};
    const QString pattern = docbench::FileNameOf(query_.pattern);
    const FolderListing listing = ListFolder(folder_, prefix_, pattern, known_);
    findings_.counts = {int(listing.documents.size()) + listing.unnamable, listing.unnamable};
    FolderMemory memory(index, folder_, holderFolder_, IsEveryName(pattern));
    Search(listing, memory);
    memory.Save();
    for (const std::string& subfolder : listing.subfolders)
        findings_.subfolders.append(PathOf(subfolder));
    return std::move(findings_);
}

// Reading waits for the disk most of the time, and documents don't depend on each other.
void FolderSearch::Search(const FolderListing& listing, FolderMemory& memory) {
    std::vector<Candidate> candidates;
    for (const ListedDocument& document : listing.documents) {
        const FolderMemory::Knowledge knowledge = memory.Ask(document, target_);
        if (knowledge != FolderMemory::Knowledge::Without)
            candidates.push_back(
                {&document, memory.CanLearn() && knowledge == FolderMemory::Knowledge::None});
    }
    InParallel(candidates.size(), [&](size_t i) { Read(candidates[i]); });
    for (Candidate& candidate : candidates) {
        findings_.rows.append(candidate.rows);
        if (!candidate.isRead)
            ++findings_.counts.unread;
        else if (candidate.isNew)
            memory.Learn(*candidate.document, candidate.state, std::move(candidate.stemHashes));
    }
}

// Runs on several threads at once.
void FolderSearch::Read(Candidate& candidate) const {
    const std::string& name = candidate.document->name;
    try {
        const DocumentReferences references(folder_.Get(), name.c_str(), PathOf(name),
                                            holderFolder_);
        references.Find(target_, query_.mask, candidate.rows);
        candidate.state = references.State();
        if (candidate.isNew)
            candidate.stemHashes = references.StemHashes();
        candidate.isRead = true;
    } catch (const DocumentError& error) {
        qCDebug(searchLog).noquote() << error.Description();
    }
}

}  // namespace

FolderFindings SearchFolder(const ReferenceQuery& query, KnownFolders& known,
                            ReferenceIndex& index) {
    return FolderSearch(query, known).Run(index);
}

}  // namespace docmodel
