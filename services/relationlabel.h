// The name of the relation between a document and one that it refers to.
#pragma once

#include <QString>

namespace docbench {

// By the types of the two documents, in the user's language.
QString RelationLabel(const QString& holder, const QString& reference);

}  // namespace docbench
