// The rules of a document search: rows of a list, and the conditions that they become.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include "cells/celllist.h"

namespace docbench {

class PropertyQuery;

// What the cells of a rule hold. The first is empty for AND, or the word for OR; the last is the
// operator's code, which no file keeps.
enum RuleColumn { kRuleConnective, kRuleProperty, kRuleOperator, kRuleValue, kRuleCode };

enum OperatorCode {
    kIsExactly = 0,
    kIsNot = 1,
    kContains = 2,
    kEqual = 3,
    kNotEqual = 4,
    kLess = 5,
    kAtLeast = 8,
    kIsYes = 9,
    kIsNo = 10
};

enum class Operators { All, OnTextsAlone };

// The properties that are offered, in the user's language and in their order. The first stands for
// the file's name.
QStringList PropertyLabels();
// The operators' texts; an operator's position is its code.
QStringList OperatorTexts(Operators which);
// The position of the first of `operators` that equals the text; 0 if none does.
int FindOperatorCode(const QStringList& operators, const QString& text);

CellRow MakeRule(const QString& connective, const QString& property, const QString& operatorText,
                 const QString& value, int code);

// The name by which the document library knows a property: that of a label of PropertyLabels, else
// the text itself.
QString ToPropertyKey(const QString& text);
// A rule's value by its kind: QDateTime, double, bool, QString, or invalid. Dates and numbers are
// read by the user's locale.
QVariant ToValue(int code, const QString& text);

// A rule as PropertyQuery::AddCondition takes it.
struct SearchCondition {
    QString connective;  // "AND" or "OR"
    QString property;
    int operatorCode;
    QVariant value;
};
SearchCondition ConditionOf(const CellRow& rule);

// Hands all rules over, in their order. One that the query refuses is passed over.
void AddRules(const CellList& rules, PropertyQuery& query);

}  // namespace docbench
