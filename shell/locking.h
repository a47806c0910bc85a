// Locks and unlocks the documents of a reference tree, and marks nodes for locking as a group.
#pragma once

#include <optional>

#include "shell/referencetree.h"

namespace docbench {

// Whether the document at `path` is locked; none when its record can't be opened.
std::optional<bool> ReadLockState(const QString& path);

// Whether a lock of that user is the running user's own.
bool IsOwnLock(const QString& lockedBy);

// Why a document can't be written, and the same in a box; `code` is that of
// DocumentFile::GetAccessState.
QString AccessStateText(int code, const QString& path);
void ReportAccessState(int code, const QString& path);

// Locks or unlocks the document of one node under the user's name. Only who locked a document can
// unlock it; a second lock by the same user is harmless. Boxes tell of refusals and errors.
void ApplyLock(ReferenceTree& tree, bool wantLocked, int node);
// All nodes below `node`, which is itself left alone.
void ApplyLockToChildren(ReferenceTree& tree, bool wantLocked, int node);
// The marked nodes from `node` down.
void ApplyLockToMarked(ReferenceTree& tree, bool wantLocked, int node);

void MarkNode(ReferenceTree& tree, int node);
bool IsMarked(const ReferenceTree& tree, int node);
void ClearMarks(ReferenceTree& tree, int node);  // from `node` down

}  // namespace docbench
