#include "search/searchrules.h"

#include <algorithm>
#include <optional>

#include "services/docaccess.h"
#include "services/errorstate.h"
#include "services/localvalues.h"
#include "services/paths.h"
#include "services/texts.h"

namespace docbench {
namespace {

struct SearchProperty {
    TextId<0> label;
    const char* key;  // null: none, the label goes as it is
};

constexpr SearchProperty kProperties[] = {
    {Text::FileName, nullptr},
    {Text::Title, "Title"},
    {Text::Author, "Author"},
    {Text::Comments, "Comments"},
    {Text::Keywords, "Keywords"},
    {Text::Subject, "Subject"},
    {Text::LastSavedBy, "Last Saved by"},
    {Text::PropertyLastSaved, "Last Saved"},
    {Text::Created, "Created"},
    {Text::PropertyCreatedBy, "Created by"},
    {Text::PropertyDateCompleted, "Date completed"},
    {Text::PropertyDepartment, "Department"},
    {Text::PropertyDestination, "Destination"},
    {Text::PropertyDisposition, "Disposition"},
    {Text::PropertyDivision, "Division"},
    {Text::PropertyDocumentNumber, "Document Number"},
    {Text::PropertyEditor, "Editor"},
    {Text::PropertyForwardTo, "Forward to"},
    {Text::PropertyGroup, "Group"},
    {Text::PropertyLanguage, "Language"},
    {Text::PropertyMailstop, "Mailstop"},
    {Text::PropertyMatter, "Matter"},
    {Text::PropertyOffice, "Office"},
    {Text::PropertyOwner, "Owner"},
    {Text::PropertyProject, "Project"},
    {Text::PropertyPublisher, "Publisher"},
    {Text::PropertyPurpose, "Purpose"},
    {Text::PropertyReceivedFrom, "Received from"},
    {Text::PropertyRecordedBy, "Recorded by"},
    {Text::PropertyRecordedDate, "Recorded date"},
    {Text::PropertyReference, "Reference"},
    {Text::PropertySource, "Source"},
    {Text::Status, "Status"},
    {Text::PropertyTelephoneNumber, "Telephone number"},
    {Text::PropertyTypist, "Typist"},
};

QVariant DateElse(const QString& text, const QVariant& other) {
    const std::optional<QDateTime> date = DateFromLocal(text);
    return date ? QVariant(*date) : other;
}

// The library tells a number's "is not" from that of all others, and the other way round for "is".
int NormalCode(int code, const QVariant& value) {
    const bool isNumber = value.typeId() == QMetaType::Double;
    if (code == kNotEqual && isNumber)
        return kIsNot;
    if (code == kEqual && !isNumber)
        return kIsExactly;
    return code;
}

}  // namespace

QStringList PropertyLabels() {
    QStringList labels;
    for (const SearchProperty& property : kProperties)
        labels.append(Tr(property.label));
    return labels;
}

QStringList OperatorTexts(Operators which) {
    QStringList texts{Tr(Text::IsExactly), Tr(Text::IsNot), Tr(Text::Contains)};
    if (which == Operators::All)
        texts << QStringLiteral("=") << Tr(Text::NotEqual) << QStringLiteral("<")
              << QStringLiteral("<=") << QStringLiteral(">") << QStringLiteral(">=")
              << Tr(Text::IsYes) << Tr(Text::IsNo);
    return texts;
}

int FindOperatorCode(const QStringList& operators, const QString& text) {
    return int(std::max<qsizetype>(operators.indexOf(text), 0));
}

CellRow MakeRule(const QString& connective, const QString& property, const QString& operatorText,
                 const QString& value, int code) {
    return {.cells = {{.text = connective},
                      {.text = property},
                      {.text = operatorText},
                      {.text = value},
                      {.text = QString::number(code)}}};
}

QString ToPropertyKey(const QString& text) {
    for (const SearchProperty& property : kProperties)
        if (property.key && !text.isEmpty() && Tr(property.label) == text)
            return QLatin1String(property.key);
    return text;
}

QVariant ToValue(int code, const QString& text) {
    if (code == kIsYes || code == kIsNo)
        return code == kIsYes;
    if (code == kIsExactly || code == kIsNot)
        return DateElse(text, text);
    if (code < kEqual || code > kAtLeast)
        return text;
    if (const std::optional<double> number = NumberFromLocal(text))
        return *number;
    return DateElse(text, code < kLess ? QVariant(text) : QVariant());
}

SearchCondition ConditionOf(const CellRow& rule) {
    const auto cell = [&rule](RuleColumn column) { return rule.cells[column].text; };
    const int code = cell(kRuleCode).toInt();
    const QString property = cell(kRuleProperty);
    QString text = cell(kRuleValue);
    // A name without an extension is that of documents of all kinds.
    if (property == Tr(Text::FileName) && code != kContains && DocTypeOf(text) == DocType::None)
        text += QLatin1String(".*");
    const QVariant value = ToValue(code, text);
    const QString connective = cell(kRuleConnective);
    const bool isAlternative = !connective.isEmpty() && connective == Tr(Text::RuleOr);
    return {isAlternative ? QStringLiteral("OR") : QStringLiteral("AND"), ToPropertyKey(property),
            NormalCode(code, value), value};
}

void AddRules(const CellList& rules, PropertyQuery& query) {
    for (const CellRow& rule : rules.Rows()) {
        ErrorState passedOver;
        passedOver.Run([&] {
            const SearchCondition condition = ConditionOf(rule);
            query.AddCondition(condition.connective, condition.property, condition.operatorCode,
                               condition.value);
        });
    }
}

}  // namespace docbench
