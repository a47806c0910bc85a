#include "editors/pendingtext.h"

#include "cells/celltree.h"
#include "services/texts.h"

namespace docbench {
namespace {

constexpr QChar kBeforePosition = u'_';

}  // namespace

CellNode DocumentNode(const QString& text, const QString& image) {
    return {.text = text, .tag = QStringLiteral("ignore"), .image = image};
}

CellNode StoredNode(const QString& stored, int position, const QString& image) {
    return {.text = stored,
            .tag = stored + kBeforePosition + QString::number(position),
            .image = image};
}

// The last one: the stored text may hold others.
QString StoredText(const CellNode& node) {
    return node.tag.left(node.tag.lastIndexOf(kBeforePosition));
}

int StoredPosition(const CellNode& node) {
    return node.tag.mid(node.tag.lastIndexOf(kBeforePosition) + 1).toInt();
}

QString CurrentText(const CellNode& node) {
    const QString before = StoredText(node) + Tr(Text::BecomesMark);
    return node.text.startsWith(before) ? node.text.mid(before.size()) : node.text;
}

QString PendingText(const QString& stored, const QString& typed) {
    return stored + Tr(Text::BecomesMark) + typed;
}

bool IsSameText(const QString& one, const QString& other) {
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

}  // namespace docbench
