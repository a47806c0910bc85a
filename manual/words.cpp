#include "manual/words.h"

#include <QRegularExpression>

namespace manual {

namespace {

QString Bare(const QString& word) {
    static const QRegularExpression letters(QStringLiteral("[A-Z]+"));
    return letters.match(word).captured();
}

bool IsText(const QString& word) {
    static const QStringList texts = {
        QStringLiteral("COMMAND"), QStringLiteral("ARGUMENTS"), QStringLiteral("NAME"),
        QStringLiteral("NEWNAME"), QStringLiteral("TEXT"),      QStringLiteral("VALUE"),
        QStringLiteral("TYPE"),    QStringLiteral("KIND"),      QStringLiteral("NUMBER"),
        QStringLiteral("BYTES"),   QStringLiteral("PIXELS"),    QStringLiteral("CONFIGURATION"),
        QStringLiteral("N"),       QStringLiteral("K"),         QStringLiteral("S")};
    return texts.contains(word);
}

}  // namespace

WordKind KindOfArgument(const QString& word) {
    static const QStringList documents = {QStringLiteral("FILE"), QStringLiteral("REPLACEMENT"),
                                          QStringLiteral("OTHER"), QStringLiteral("TARGET")};
    const QString bare = Bare(word);
    return documents.contains(bare) ? WordKind::Document : KindOfValue(bare);
}

WordKind KindOfValue(const QString& value) {
    if (value.contains(u'|'))
        return WordKind::Choice;
    if (value == QLatin1String("FOLDER"))
        return WordKind::Folder;
    if (value == QLatin1String("ASSEMBLY") || value == QLatin1String("DOCUMENT"))
        return WordKind::Document;
    return IsText(value) ? WordKind::NewName : WordKind::File;
}

QStringList ArgumentsOf(const QString& usage) {
    QStringList words = usage.split(u' ', Qt::SkipEmptyParts);
    words.removeAll(QStringLiteral("[options]"));
    return words;
}

QStringList DocumentExtensions() {
    return {QStringLiteral("tfmasm"), QStringLiteral("tfmprt"), QStringLiteral("tfmdrw"),
            QStringLiteral("asm"),    QStringLiteral("prt"),    QStringLiteral("drw")};
}

}  // namespace manual
