#include "app/exitcodes.h"
#include "docmodel/builder.h"
#include "docmodel/propertyvalue.h"
#include "docmodel/tool/command.h"
#include "docmodel/tool/summaryfields.h"

namespace docmodel::tool {

namespace {

const QString kType = QStringLiteral("type");
const QString kConfiguration = QStringLiteral("configuration");
const QString kSummary = QStringLiteral("summary");
const QString kDelete = QStringLiteral("delete");

// What the text stands for in the type of that name.
QVariant ValueOf(const QString& text, const QString& type) {
    if (type == QLatin1String("text"))
        return text;
    if (type == QLatin1String("number")) {
        if (const std::optional<double> number = NumberFromText(text))
            return *number;
        throw UsageError(QStringLiteral("\"%1\" is no number such as 1.5.").arg(text));
    }
    if (type == QLatin1String("date")) {
        if (const QDateTime time = DateFromText(text); time.isValid())
            return time;
        throw UsageError(QStringLiteral("\"%1\" is no date such as 2004-05-31 or "
                                        "2004-05-31T12:00:00Z.")
                             .arg(text));
    }
    if (type != QLatin1String("yesno"))
        throw UsageError(QStringLiteral("There is no type \"%1\".").arg(type));
    if (text != QLatin1String("yes") && text != QLatin1String("no"))
        throw UsageError(QStringLiteral("\"%1\" is neither \"yes\" nor \"no\".").arg(text));
    return text == QLatin1String("yes");
}

void SetSummaryField(DocumentBuilder& document, const QString& name, const QString& text) {
    for (const SummaryFieldOption& field : kSummaryFieldOptions) {
        if (name.compare(QLatin1String(field.name), Qt::CaseInsensitive) != 0)
            continue;
        (document.*field.set)(text);
        return;
    }
    throw UsageError(QStringLiteral("There is no summary field \"%1\".").arg(name));
}

bool Delete(DocumentBuilder& document, const Arguments& given) {
    if (given.IsSet(kConfiguration))
        return document.DeleteConfigurationProperty(given.Value(kConfiguration), given.At(1));
    return document.DeleteCustomProperty(given.At(1));
}

bool Set(DocumentBuilder& document, const Arguments& given) {
    const QVariant value = ValueOf(given.At(2), given.Value(kType));
    if (given.IsSet(kConfiguration))
        return document.SetConfigurationProperty(given.Value(kConfiguration), given.At(1), value);
    return document.SetCustomProperty(given.At(1), value);
}

void Change(DocumentBuilder& document, const Arguments& given) {
    const QString name = given.At(1);
    if (given.IsSet(kSummary)) {
        SetSummaryField(document, name, given.At(2));
    } else if (given.IsSet(kDelete)) {
        if (!Delete(document, given))
            throw DocumentError(
                QStringLiteral("There is no property \"%1\" in %2.").arg(name, given.At(0)));
    } else if (!Set(document, given)) {
        throw DocumentError(QStringLiteral("The property \"%1\" can't be stored in %2. Give it a "
                                           "name, and a value without control characters.")
                                .arg(name, given.At(0)));
    }
}

}  // namespace

int RunSetProperty(const QStringList& arguments) {
    Arguments given(QStringLiteral("set-property"),
                    QStringLiteral("Sets or deletes a custom property or a summary field."),
                    {{QStringLiteral("FILE"), QStringLiteral("The document.")},
                     {QStringLiteral("NAME"), QStringLiteral("The property.")},
                     {QStringLiteral("[VALUE]"), QStringLiteral("Left out with --delete.")}});
    given.Parser().addOptions(
        {{kType,
          QStringLiteral("text, number (1.5), date (2004-05-31 or 2004-05-31T12:00:00Z) or yesno "
                         "(yes, no); text by default."),
          QStringLiteral("TYPE"), QStringLiteral("text")},
         {kConfiguration, QStringLiteral("Changes the property of this configuration."),
          QStringLiteral("CONFIGURATION")},
         {kSummary,
          QStringLiteral("NAME is a summary field: title, author, subject, keywords or comments.")},
         {kDelete, QStringLiteral("Deletes the property.")}});
    if (!given.Read(arguments))
        return docbench::kExitDone;
    if ((given.All().size() < 3) != given.IsSet(kDelete))
        throw UsageError(QStringLiteral("Give a value, or --delete."));
    if (given.IsSet(kSummary) && (given.IsSet(kConfiguration) || given.IsSet(kDelete)))
        throw UsageError(
            QStringLiteral("--summary goes with neither --configuration nor --delete."));
    RequireDocument(given.At(0));
    DocumentBuilder document = DocumentBuilder::Edit(given.At(0));
    Change(document, given);
    document.Save();
    return docbench::kExitDone;
}

}  // namespace docmodel::tool
