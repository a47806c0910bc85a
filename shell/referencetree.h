// The reference tree of the open document, without its view.
#pragma once

#include <QString>
#include <vector>

#include "cells/celltree.h"

namespace docbench {

class ReferenceTree {
public:
    CellTree& Model() { return model_; }
    const CellNodes& Nodes() const { return model_.Nodes(); }

    // Lock state of the current document as last read.
    bool currentLocked = false;

    // Reads the document at `path` and everything that it refers to. False when the document itself
    // is missing or can't be read; the tree is empty then.
    bool Load(const QString& path);
    void Clear();
    const std::vector<int>& CircularNodes() const { return circular_; }
    bool HadErrors() const { return hadErrors_; }  // some document below the root can't be read

    // All documents that hold the document of `node`, with itself first, joined by ";". Documents
    // that are reached by several ways come several times. Without a node (0), `chain` stays as it
    // is.
    void BuildReferencingChain(int node, QString& chain) const;

private:
    CellTree model_;
    std::vector<int> circular_;
    bool hadErrors_ = false;
};

}  // namespace docbench
