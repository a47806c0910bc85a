#include "shell/documentfacts.h"

#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/paths.h"
#include "services/webcopies.h"
#include "shell/locking.h"

namespace docbench {

namespace {

void ReadTables(const QString& path, const QString& local, DocumentFacts& facts) {
    const auto file = Documents().MakeDocumentFile();
    const QString webFolder = IsWebPath(path) ? UrlFolder(path) : QString();
    file->Open(local);
    facts.reached = ReadStage::Components;
    const int componentCount = file->GetComponentCount();
    for (int i = 0; i < componentCount; ++i)
        facts.components.push_back(file->GetComponent(i, webFolder));
    facts.reached = ReadStage::ExternalReferences;
    const int externalCount = file->GetExternalReferenceCount();
    for (int i = 0; i < externalCount; ++i)
        facts.externals.push_back(file->GetExternalReference(i, webFolder));
    facts.reached = ReadStage::ReferencesLocked;
    facts.referencesLocked = file->GetReferencesLocked();
}

DocumentFacts Read(const QString& path) {
    DocumentFacts facts;
    facts.reached = ReadStage::Opening;
    try {
        const QString local = LocalCopyOf(path);
        if (!local.isEmpty())
            facts.locked = ReadLockState(local);
        facts.exists = !local.isEmpty() && FileExists(local);
        if (facts.exists)
            ReadTables(path, local, facts);
        facts.reached = ReadStage::Complete;
    } catch (const std::exception& error) {
        facts.error = DescriptionOf(error);
    }
    return facts;
}

}  // namespace

const DocumentFacts& FactsCache::Of(const QString& path) {
    std::shared_ptr<DocumentFacts>& entry = facts_[path];
    if (!entry) {
        entry = std::make_shared<DocumentFacts>(Read(path));
        const QString folded = path.toUpper();
        const auto known = identities_.constFind(folded);
        entry->identity = known != identities_.cend() ? *known : int(identities_.size());
        identities_.insert(folded, entry->identity);
    }
    return *entry;
}

}  // namespace docbench
