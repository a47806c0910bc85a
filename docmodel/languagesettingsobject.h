// The library's LanguageSettings: the user's language and the fonts that it needs.
#pragma once

#include "services/docaccess.h"

namespace docmodel {

class LanguageSettingsObject : public docbench::LanguageSettings {
public:
    QString GetLanguageFolder() override;
    void ApplyLocaleFont(QFont& font) override;
};

}  // namespace docmodel
