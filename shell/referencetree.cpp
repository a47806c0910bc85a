#include "shell/referencetree.h"

#include "shell/treewalk.h"

namespace docbench {

bool ReferenceTree::Load(const QString& path) {
    Clear();
    TreeWalk walk(currentLocked);
    const bool found = walk.WalkDocument(path);
    hadErrors_ = walk.HadErrors();
    if (!found)
        return false;
    circular_ = walk.CircularNodes();
    model_.Assign(walk.TakeNodes());
    return true;
}

void ReferenceTree::Clear() {
    circular_.clear();
    hadErrors_ = false;
    model_.Clear();
}

void ReferenceTree::BuildReferencingChain(int node, QString& chain) const {
    if (node == 0)
        return;
    const CellNodes& nodes = Nodes();
    const QString tag = nodes.At(node).tag;
    chain = tag;
    for (int i = 1; i <= nodes.Count(); ++i) {
        if (nodes.At(i).tag != tag)
            continue;
        for (int above = nodes.At(i).parent; above != 0; above = nodes.At(above).parent)
            chain += u';' + nodes.At(above).tag;
    }
}

}  // namespace docbench
