#include "manual/words.h"

#include <QRegularExpression>

namespace manual {

namespace {

const QLatin1String kMore("...");

QString Bare(const QString& word) {
    static const QRegularExpression letters(QStringLiteral("[A-Z]+"));
    return letters.match(word).captured();
}

// A word that is typed as it stands, or several to choose from: "rename|delete".
bool IsLiteral(const QString& word) {
    return !word.isEmpty() && word.front().isLower();
}

bool IsText(const QString& word) {
    static const QStringList texts =
        QStringLiteral(
            "ARGUMENTS BYTES COMMAND CONFIGURATION K KIND KINDS N NAME "
            "NEW NEWNAME NUMBER OLD PIXELS RULE S TEXT TYPE VALUE")
            .split(u' ');
    // What is composed, such as "NAME=VALUE", is no file either.
    return texts.contains(word) || word.contains(u'=');
}

// Takes a word that may stand at a position: what is typed there is added to the choice.
void Put(QStringList& words, qsizetype position, const QString& word) {
    if (position == words.size())
        words.append(word);
    else if (IsLiteral(words[position]) && IsLiteral(word))
        words[position] += u'|' + word;
    else if (word.endsWith(kMore) && !words.last().endsWith(kMore))
        words.last() += kMore;
}

}  // namespace

WordKind KindOfArgument(const QString& word) {
    static const QStringList documents = {QStringLiteral("FILE"), QStringLiteral("REPLACEMENT"),
                                          QStringLiteral("OTHER"), QStringLiteral("TARGET")};
    if (IsLiteral(word))
        return WordKind::Choice;
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
    QStringList words;
    qsizetype start = 0;  // of the alternatives that are being read
    qsizetype position = 0;
    for (QString word : usage.split(u' ', Qt::SkipEmptyParts)) {
        if (word == QLatin1String("[options]"))
            continue;
        if (word == QLatin1String("|")) {
            position = start;
            continue;
        }
        if (word.startsWith(u'['))
            start = position;
        Put(words, position++, word.remove(u'[').remove(u']'));
    }
    return words;
}

QStringList DocumentExtensions() {
    return {QStringLiteral("tfmasm"), QStringLiteral("tfmprt"), QStringLiteral("tfmdrw"),
            QStringLiteral("asm"),    QStringLiteral("prt"),    QStringLiteral("drw")};
}

}  // namespace manual
