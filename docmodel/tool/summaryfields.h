// The summary fields under the names that the tool's arguments have for them.
#pragma once

#include "docmodel/builder.h"

namespace docmodel::tool {

struct SummaryFieldOption {
    const char* name;
    void (DocumentBuilder::*set)(const QString& text);
};

inline constexpr SummaryFieldOption kSummaryFieldOptions[] = {
    {"title", &DocumentBuilder::SetTitle},
    {"author", &DocumentBuilder::SetAuthor},
    {"subject", &DocumentBuilder::SetSubject},
    {"keywords", &DocumentBuilder::SetKeywords},
    {"comments", &DocumentBuilder::SetComments}};

}  // namespace docmodel::tool
