#include "platform/filefilter.h"

#include <QRegularExpression>

namespace docbench {
namespace {

// Both spellings that occur in practice: "*.[pP][rR][tT]", for any, is hard to read in the dialog.
QString Pattern(const QString& pattern) {
    if (pattern == QLatin1String("*.*"))
        return QStringLiteral("*");
    const QString upper = pattern.toUpper();
    return upper == pattern ? pattern : pattern + u' ' + upper;
}

// The dialog shows the patterns itself.
QString WithoutPatterns(QString label) {
    static const QRegularExpression patterns(QStringLiteral("\\s*\\([^()]*\\*[^()]*\\)\\s*$"));
    return label.remove(patterns).trimmed();
}

}  // namespace

QStringList NameFiltersOf(const QString& filter) {
    const QStringList pieces = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
        QStringList patterns;
        for (const QString& pattern : pieces[i + 1].split(u';', Qt::SkipEmptyParts))
            patterns.append(Pattern(pattern.trimmed()));
        if (!patterns.isEmpty())
            filters.append(WithoutPatterns(pieces[i]) + QStringLiteral(" (") + patterns.join(u' ') +
                           u')');
    }
    return filters;
}

}  // namespace docbench
