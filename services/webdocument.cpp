#include "services/webdocument.h"

namespace docbench {

bool gWebDocument = false;

}  // namespace docbench
