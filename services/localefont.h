// The fonts of the four locales whose texts the usual one can't show; every other keeps its font.
#pragma once

#include <QFont>
#include <QLocale>
#include <optional>

namespace docbench {

struct LocaleFont {
    int localeId;  // as the platform numbers locales
    int charset;
    const char16_t* face;
    int size;  // points
};

inline constexpr LocaleFont kLocaleFonts[] = {
    {1028, 136, u"\u65B0\u7D30\u660E\u9AD4", 9},                     // Traditional Chinese
    {1041, 128, u"\uFF2D\uFF33 \uFF30\u30B4\u30B7\u30C3\u30AF", 9},  // Japanese
    {1042, 129, u"\uAD74\uB9BC", 9},                                 // Korean
    {2052, 134, u"\u5B8B\u4F53", 9},                                 // Simplified Chinese
};

// The number of a locale of the four; 0 for any other. Only the default territory of a language
// counts: the Chinese of Hong Kong or Singapore is a locale of its own.
inline int LocaleIdOf(const QLocale& locale) {
    switch (locale.language()) {
        case QLocale::Chinese:
            if (locale.territory() == QLocale::Taiwan)
                return 1028;
            return locale.territory() == QLocale::China ? 2052 : 0;
        case QLocale::Japanese:
            return 1041;
        case QLocale::Korean:
            return locale.territory() == QLocale::SouthKorea ? 1042 : 0;
        default:
            return 0;
    }
}

inline std::optional<LocaleFont> LocaleFontOf(int localeId) {
    for (const LocaleFont& font : kLocaleFonts)
        if (font.localeId == localeId)
            return font;
    return std::nullopt;
}

// Gives `font` the face and size of the locale's. A character set has no place in a font here: the
// face says which characters it has.
inline void ApplyFontOfLocale(QFont& font, const QLocale& locale) {
    if (const std::optional<LocaleFont> found = LocaleFontOf(LocaleIdOf(locale))) {
        font.setFamily(QString::fromUtf16(found->face));
        font.setPointSize(found->size);
    }
}

}  // namespace docbench
