#include "search/ruletext.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "search/searchrules.h"
#include "services/docaccess.h"
#include "services/texts.h"

namespace docbench {
namespace {

constexpr QLatin1Char kQuote('"');

[[noreturn]] void Raise(const QString& rule, const QString& reason) {
    throw DocumentError(QStringLiteral("The rule \"%1\" can't be read: %2.").arg(rule, reason));
}

struct OperatorWord {
    QString text;
    int code;
};

// Those that hold others come first: at one place the longest counts.
std::vector<OperatorWord> OperatorWords() {
    constexpr int kAtMost = 6;
    constexpr int kMore = 7;
    std::vector<OperatorWord> words{{QStringLiteral("is (exactly)"), kIsExactly},
                                    {QStringLiteral("is exactly"), kIsExactly},
                                    {QStringLiteral("is not"), kIsNot},
                                    {QStringLiteral("is yes"), kIsYes},
                                    {QStringLiteral("is no"), kIsNo},
                                    {QStringLiteral("is"), kIsExactly},
                                    {QStringLiteral("contains"), kContains},
                                    {QStringLiteral("not ="), kNotEqual},
                                    {QStringLiteral("!="), kNotEqual},
                                    {QStringLiteral("<="), kAtMost},
                                    {QStringLiteral(">="), kAtLeast},
                                    {QStringLiteral("="), kEqual},
                                    {QStringLiteral("<"), kLess},
                                    {QStringLiteral(">"), kMore}};
    const QStringList own = OperatorTexts(Operators::All);
    for (int code = 0; code < int(own.size()); ++code)
        words.push_back({own[code], code});
    std::stable_sort(words.begin(), words.end(), [](const auto& one, const auto& other) {
        return one.text.size() > other.text.size();
    });
    return words;
}

bool IsSign(const QString& text) {
    return !text.back().isLetter() && !text.front().isLetter();
}

bool NeedsNoValue(int code) {
    return code == kIsYes || code == kIsNo;
}

// A word ends at a blank or with the text; one that takes no value must end the text.
bool StandsAt(const OperatorWord& word, const QString& text, qsizetype position) {
    const QStringView rest = QStringView(text).mid(position);
    if (!rest.startsWith(word.text, Qt::CaseInsensitive))
        return false;
    const QStringView behind = rest.mid(word.text.size());
    if (NeedsNoValue(word.code))
        return behind.trimmed().isEmpty();
    if (IsSign(word.text))
        return true;
    const bool begins = position == 0 || text[position - 1].isSpace();
    const bool ends = behind.isEmpty() || behind.front().isSpace() || !word.text.back().isLetter();
    return begins && ends;
}

class RuleReader {
public:
    explicit RuleReader(const QString& rule) : rule_(rule), rest_(rule.trimmed()) {}

    CellRow Read() {
        const QString connective = ReadConnective();
        const QString property = ReadProperty();
        const OperatorWord& word = *operator_;
        rest_ = rest_.mid(word.text.size()).trimmed();
        const QString value = ReadValue();
        RequireSense(property, word, value);
        return MakeRule(connective, LabelOfProperty(property),
                        OperatorTexts(Operators::All)[word.code], value, word.code);
    }

private:
    QString ReadConnective() {
        for (const auto& [word, connective] :
             {std::pair(QStringLiteral("or "), QString(Tr(Text::RuleOr))),
              std::pair(QStringLiteral("and "), QString())}) {
            if (!rest_.startsWith(word, Qt::CaseInsensitive))
                continue;
            rest_ = rest_.mid(word.size()).trimmed();
            return connective;
        }
        return {};
    }

    // Leaves the operator at the begin of what is left.
    QString ReadProperty() {
        qsizetype position = 0;
        QString property;
        if (rest_.startsWith(kQuote)) {
            const qsizetype end = rest_.indexOf(kQuote, 1);
            if (end < 0)
                Raise(rule_, QStringLiteral("a double quote is missing"));
            property = rest_.mid(1, end - 1);
            rest_ = rest_.mid(end + 1).trimmed();
            FindOperator(0);
        } else {
            for (position = 0; position < rest_.size() && !FindOperator(position); ++position)
                continue;
            property = rest_.left(position).trimmed();
            rest_ = rest_.mid(position);
        }
        if (!operator_)
            Raise(rule_, QStringLiteral("it needs an operator, such as in \"Author is Smith\""));
        if (property.isEmpty())
            Raise(rule_, QStringLiteral("it begins with its operator. Name a property"));
        return property;
    }

    bool FindOperator(qsizetype position) {
        for (const OperatorWord& word : words_) {
            if (!StandsAt(word, rest_, position))
                continue;
            operator_ = &word;
            return true;
        }
        return false;
    }

    QString ReadValue() const {
        const bool quoted = rest_.size() > 1 && rest_.startsWith(kQuote) && rest_.endsWith(kQuote);
        return quoted ? rest_.mid(1, rest_.size() - 2) : rest_;
    }

    void RequireSense(const QString& property, const OperatorWord& word,
                      const QString& value) const {
        if (value.isEmpty() && !NeedsNoValue(word.code))
            Raise(rule_, QStringLiteral("it has no value, and would match nothing"));
        if (LabelOfProperty(property) == Tr(Text::FileName) && word.code > kContains)
            Raise(rule_,
                  QStringLiteral("a file name is compared by is, is not and contains alone"));
        if (word.code >= kLess && word.code <= kAtLeast && !ToValue(word.code, value).isValid())
            Raise(rule_, QStringLiteral("\"%1\" is neither a number nor a date").arg(value));
    }

    const QString& rule_;
    QString rest_;
    const std::vector<OperatorWord> words_ = OperatorWords();
    const OperatorWord* operator_ = nullptr;
};

}  // namespace

CellRow ParseRule(const QString& text) {
    return RuleReader(text).Read();
}

}  // namespace docbench
