// Which kinds of use a search for the users of a document looks for.
#pragma once

#include <QString>

namespace docbench {

struct UseKinds {
    bool references = true;
    bool inContext = true;
    bool mirrored = true;

    // As the document library takes them.
    int Mask() const { return (references ? 1 : 0) + (inContext ? 2 : 0) + (mirrored ? 4 : 0); }
    // Whether a relation (as RelationLabel gives it) is of a kind that is not wanted. Plain
    // references are governed by the mask alone.
    bool Drops(const QString& relation) const;
};

}  // namespace docbench
