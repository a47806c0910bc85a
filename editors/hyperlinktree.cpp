#include "editors/hyperlinktree.h"

#include "editors/pendingtext.h"
#include "services/docaccess.h"
#include "services/documentlibrary.h"
#include "services/paths.h"

namespace docbench {
namespace {

QString PictureOfDocument(const QString& path) {
    switch (DocTypeOf(path)) {
        case DocType::Assembly:
            return QStringLiteral("picAsm");
        case DocType::Drawing:
            return QStringLiteral("picDrw");
        default:
            return QStringLiteral("picPart");
    }
}

}  // namespace

void HyperlinkTree::Clear() {
    tree_.Clear();
    pendingChanges = 0;
}

int HyperlinkTree::Load(DocumentFile& file, const QString& displayName, const QString& path) {
    Clear();
    const int count = file.GetHyperlinkCount();
    CellNodes nodes;
    if (count > 0)
        nodes.Add(0, DocumentNode(displayName, PictureOfDocument(path)));
    for (int index = 0; index < count; ++index)
        nodes.Add(kDocumentNode,
                  StoredNode(file.GetHyperlink(index), index, QStringLiteral("picHyperlink")));
    tree_.Assign(std::move(nodes));
    return count;
}

std::optional<QString> HyperlinkTree::TextToEdit(int node) const {
    return node <= kDocumentNode ? std::nullopt : std::optional(StoredText(At(node)));
}

void HyperlinkTree::Edit(int node, const QString& typed) {
    if (node <= kDocumentNode)
        return;
    const QString stored = StoredText(At(node));
    const bool wasPending = !IsSameText(At(node).text, stored);
    const bool isPending = !IsSameText(typed, stored);
    pendingChanges += int(isPending) - int(wasPending);
    tree_.SetText(node, isPending ? PendingText(stored, typed) : stored);
}

std::optional<QString> HyperlinkTree::Target(int node) const {
    return node <= kDocumentNode ? std::nullopt : std::optional(CurrentText(At(node)));
}

bool HyperlinkTree::Write(DocumentFile& file) const {
    bool changed = false;
    for (int node = kDocumentNode + 1; node <= tree_.Count(); ++node) {
        const QString current = CurrentText(At(node));
        if (current == At(node).text)
            continue;
        file.SetHyperlink(StoredPosition(At(node)), current);
        changed = true;
    }
    return changed;
}

bool HyperlinkTree::Save(const QString& local, DocumentFile& loaded, const QString& path) const {
    const auto newest = Documents().MakeDocumentFile();
    newest->OpenHyperlinks(local);
    if (newest->GetStamp(Table::Hyperlinks) != loaded.GetStamp(Table::Hyperlinks))
        throw DocumentError(QStringLiteral("The hyperlinks of %1 were changed by another program "
                                           "since they were loaded. Load them again and repeat "
                                           "your changes.")
                                .arg(path));
    const bool changed = Write(*newest);
    if (changed)
        newest->SaveHyperlinks();
    return changed;
}

}  // namespace docbench
