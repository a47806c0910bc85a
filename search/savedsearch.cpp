#include "search/savedsearch.h"

#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>
#include <array>

#include "cells/celllist.h"
#include "search/searchrules.h"
#include "services/docaccess.h"
#include "services/wholefile.h"

namespace docbench {
namespace {

// Far above any that a person makes.
constexpr qint64 kMostBytes = 1 << 20;

constexpr QLatin1Char kQuote('"');

QString Quoted(const QString& field) {
    return kQuote + field + kQuote;
}

QString LineOf(const CellRow& rule) {
    const auto cell = [&rule](RuleColumn column) { return rule.cells[column].text; };
    QStringList fields{Quoted(cell(kRuleProperty)), Quoted(cell(kRuleOperator)),
                       Quoted(cell(kRuleValue))};
    if (!cell(kRuleConnective).isEmpty())
        fields.prepend(Quoted(cell(kRuleConnective)));
    return fields.join(u' ');
}

// The characters of the bytes from 0x80 to 0x9F; the others are those of Latin-1. What the code
// page leaves open stays a control character.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QString FromWindows1252(const QByteArray& bytes) {
    QString text = QString::fromLatin1(bytes);
    for (QChar& character : text) {
        const size_t position = size_t(character.unicode()) - 0x80;
        if (position < kWindows1252.size())
            character = kWindows1252[position];
    }
    return text;
}

// A file that was cut off may end in the midst of a character.
QString TextOf(const QByteArray& bytes, bool isWhole) {
    if (const auto marked = QStringConverter::encodingForData(bytes);
        marked && *marked != QStringConverter::Utf8)
        return QStringDecoder(*marked)(bytes);
    QStringDecoder decoder(QStringConverter::Utf8);
    QString text = decoder(bytes);
    const bool isUtf8 = !decoder.hasError() &&
                        (!isWhole || QUtf8StringView(bytes.data(), bytes.size()).isValidUtf8());
    return isUtf8 ? text : FromWindows1252(bytes);
}

std::vector<CellRow> RulesIn(const QString& text, const QStringList& operators) {
    constexpr qsizetype kAndPieces = 7;
    constexpr qsizetype kOrPieces = 9;
    std::vector<CellRow> rules;
    for (QString line : text.split(u'\n')) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        const QStringList pieces = line.split(kQuote);
        if (pieces.size() != kAndPieces && pieces.size() != kOrPieces)
            continue;
        const qsizetype first = pieces.size() == kOrPieces ? 3 : 1;
        const QString connective = pieces.size() == kOrPieces ? pieces[1] : QString();
        rules.push_back(MakeRule(connective, pieces[first], pieces[first + 2], pieces[first + 4],
                                 FindOperatorCode(operators, pieces[first + 2])));
    }
    return rules;
}

[[noreturn]] void Raise(const QString& text, const QString& path, const QString& reason) {
    throw DocumentError(text.arg(path, reason));
}

}  // namespace

void WriteSavedSearch(const QString& path, const CellList& rules) {
    QByteArray bytes;
    for (const CellRow& rule : rules.Rows())
        bytes += LineOf(rule).toUtf8() + '\n';
    QSaveFile file(path);
    file.setDirectWriteFallback(true);  // a folder may take no new files
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !CommitWhole(file))
        Raise(QStringLiteral("The saved search %1 can't be written: %2. Choose another folder or "
                             "name."),
              path, file.errorString());
}

void ReadSavedSearch(const QString& path, const QStringList& operators, CellList& rules) {
    QFile file(path);
    const auto fail = [&path](const QString& reason) {
        Raise(QStringLiteral("The saved search %1 can't be read: %2. Check that it is one."), path,
              reason);
    };
    if (!file.open(QIODevice::ReadOnly))
        fail(file.errorString());
    QByteArray bytes(kMostBytes + 1, Qt::Uninitialized);
    const qint64 length = file.read(bytes.data(), bytes.size());
    bytes.truncate(std::clamp<qint64>(length, 0, kMostBytes));
    const bool isWhole = length >= 0 && length <= kMostBytes && file.error() == QFile::NoError;
    if (!isWhole)
        bytes.truncate(bytes.lastIndexOf('\n') + 1);  // half a line may look like another rule
    rules.Append(RulesIn(TextOf(bytes, isWhole), operators));
    if (length > kMostBytes)
        fail(QStringLiteral("it is larger than %1 bytes").arg(kMostBytes));
    if (!isWhole)
        fail(file.errorString());
}

}  // namespace docbench
