#include "panes/usekinds.h"

#include "services/language.h"

namespace docbench {

bool UseKinds::Drops(const QString& relation) const {
    return (relation == gRelationAssembly && !inContext) ||
           (relation == gRelationPart && !mirrored);
}

}  // namespace docbench
