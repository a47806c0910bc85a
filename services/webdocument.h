// Whether the open document came from a web folder.
#pragma once

namespace docbench {

// Tags of the reference tree are addresses. Each way of opening a document sets it: a tree is
// either all web or all local.
extern bool gWebDocument;

}  // namespace docbench
