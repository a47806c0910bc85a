#include "services/relationlabel.h"

#include "services/language.h"
#include "services/paths.h"

namespace docbench {

QString RelationLabel(const QString& holder, const QString& reference) {
    if (DocTypeOf(holder) != DocType::Part)
        return gRelationDefault;
    switch (DocTypeOf(reference)) {
        case DocType::Part:
            return gRelationPart;
        case DocType::Assembly:
            return gRelationAssembly;
        default:
            return gRelationDefault;
    }
}

}  // namespace docbench
