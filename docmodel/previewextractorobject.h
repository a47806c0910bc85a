// The library's PreviewExtractor: the preview stored in a document, as a bitmap file.
#pragma once

#include "services/docaccess.h"

namespace docmodel {

class PreviewExtractorObject : public docbench::PreviewExtractor {
public:
    int ExtractPreview(const QString& path, const QString& bitmapPath) override;
};

}  // namespace docmodel
