#include "platform/filefilter.h"

namespace docbench {
namespace {

// "*.prt" as "*.[pP][rR][tT]" is hard to read in the dialog; where only the toolkit's own dialog
// looks at letter case, both spellings that occur in practice do.
QString Pattern(const QString& pattern) {
    if (pattern == QLatin1String("*.*"))
        return QStringLiteral("*");
    const QString upper = pattern.toUpper();
    return upper == pattern ? pattern : pattern + u' ' + upper;
}

}  // namespace

QStringList NameFiltersOf(const QString& filter) {
    const QStringList pieces = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
        QStringList patterns;
        for (const QString& pattern : pieces[i + 1].split(u';', Qt::SkipEmptyParts))
            patterns.append(Pattern(pattern.trimmed()));
        const QString label = pieces[i].section(u'(', 0, 0).trimmed();
        if (!patterns.isEmpty())
            filters.append(label + QStringLiteral(" (") + patterns.join(u' ') + u')');
    }
    return filters;
}

}  // namespace docbench
