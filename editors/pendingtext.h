// How a node of an editor's tree holds an edit that is not saved yet: its text reads old, mark,
// new; its tag keeps what is stored.
#pragma once

#include <QString>

namespace docbench {

struct CellNode;

// Every editor's tree has one root, which stands for the document and is never edited.
inline constexpr int kDocumentNode = 1;
CellNode DocumentNode(const QString& text, const QString& image);

// A node for the stored text at a position in its table.
CellNode StoredNode(const QString& stored, int position, const QString& image);

QString StoredText(const CellNode& node);
int StoredPosition(const CellNode& node);

// The text that the node stands for: the new one behind the mark, else all of it.
QString CurrentText(const CellNode& node);
QString PendingText(const QString& stored, const QString& typed);

// Letter case alone is no difference.
bool IsSameText(const QString& one, const QString& other);

}  // namespace docbench
