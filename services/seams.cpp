#include "services/seams.h"

namespace docbench {

Seams gSeams;

}  // namespace docbench
