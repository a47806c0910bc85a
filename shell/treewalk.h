// Builds the nodes of a reference tree: one for each reference row, to any depth.
#pragma once

#include <QString>
#include <vector>

#include "cells/celltree.h"
#include "shell/documentfacts.h"

namespace docbench {

// A tree has as many rows as there are ways from the root down to a document, which a handful of
// hostile documents can drive beyond any memory. Real assemblies stay far below this.
inline constexpr int kMaximumTreeRows = 2'000'000;

// Walks one document. Boxes tell of circular references and of documents that can't be read, one
// for each occurrence; the walk goes on behind them.
class TreeWalk {
public:
    // `currentLocked` is the lock state that carries over from node to node in walk order: a node
    // whose record can't be opened takes the picture of the one before it.
    explicit TreeWalk(bool& currentLocked, int maximumRows = kMaximumTreeRows);

    // Adds the document at `path` as a root and everything below it. False when there is no such
    // file or it can't be read.
    bool WalkDocument(const QString& path);

    CellNodes TakeNodes() { return std::move(nodes_); }
    const std::vector<int>& CircularNodes() const { return circular_; }  // to be made visible
    bool HadErrors() const { return hadErrors_; }  // something could not be read

private:
    // One document on the way from the root to the node being added.
    struct Level {
        int node;
        const DocumentFacts* facts;
        bool isExternal;
        size_t nextComponent = 0;
        size_t nextExternal = 0;
    };
    enum class Entered { Descends, Missing, Circular };

    Entered Enter(int parent, const QString& path, const QString& labelTail,
                  const QString& labelExtra);
    bool Advance(Level& level);  // adds the level's next row; false when there is none left
    void EnterComponent(const Level& level, const ComponentRow& row);
    void EnterExternal(const Level& level, const ExternalRow& row);
    bool Leave(const Level& level);  // finishes the node's label; false after an error
    bool
    IsFull();  // with one more row to come: the tree may grow no further; says so the first time
    void ReportError(const QString& path, const QString& description);

    bool& currentLocked_;
    const int maximumRows_;
    FactsCache facts_;
    CellNodes nodes_;
    std::vector<Level> levels_;
    std::vector<bool> onTheWay_;  // by identity: the documents of `levels_`
    std::vector<int> circular_;
    bool hadErrors_ = false;
    bool toldFull_ = false;
};

}  // namespace docbench
