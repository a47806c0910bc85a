// One rule of a search by properties: an operator with its value, and what satisfies it.
#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QVariant>
#include <optional>

#include "docmodel/propertyvalue.h"
#include "services/docaccess.h"

namespace docmodel {

// Letter case never counts. Dates and numbers are compared as such, also where a document stores
// them as texts; docs/property-search.md tells it all.
class PropertyRule {
public:
    // As PropertyQuery::AddCondition takes them.
    PropertyRule(int operatorCode, const QVariant& value, docbench::QueryWords words);

    // Whether a property satisfies the rule; none stands for one that the document lacks.
    bool HoldsFor(const std::optional<PropertyValue>& property) const;
    // The same of a file's name. In the rule's value, "*" as the extension stands for any.
    bool HoldsForFileName(const QString& name) const;

private:
    enum class Operator {
        Is,
        IsNot,
        Contains,
        Equal,
        NotEqual,
        Less,
        AtMost,
        More,
        AtLeast,
        Yes,
        No
    };
    enum class Kind { Nothing, Text, Date, Number, YesNo };

    bool IsSame(const PropertyValue& property) const;
    bool IsSameText(const PropertyValue& property) const;
    bool Includes(const PropertyValue& property) const;
    bool IsInOrder(const PropertyValue& property) const;
    std::optional<QDateTime> DateIn(const PropertyValue& property) const;
    int CompareDate(const QDateTime& date) const;
    const QString& WordFor(bool yes) const { return yes ? words_.yes : words_.no; }

    const Operator operator_;
    const docbench::QueryWords words_;
    Kind kind_ = Kind::Nothing;
    QString text_;
    std::optional<double> number_;  // also of a text that reads as one
    QDateTime date_;                // the same
    bool isYes_ = false;
    // Texts that were read as dates: reading one takes longer than reading a document.
    mutable QHash<QString, std::optional<QDateTime>> datesOfTexts_;
};

}  // namespace docmodel
