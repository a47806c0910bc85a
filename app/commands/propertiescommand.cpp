#include "app/commands/propertiescommand.h"

#include <array>

#include "app/commands/console.h"
#include "app/commands/propertychange.h"
#include "app/commands/propertylist.h"
#include "app/exitcodes.h"
#include "editors/propertysave.h"
#include "services/documentlibrary.h"
#include "services/texts.h"
#include "services/webcopies.h"

namespace docbench {

namespace {

const QString kConfigurationOption = QStringLiteral("configuration");
const QString kSetOption = QStringLiteral("set");
const QString kTypeOption = QStringLiteral("type");
const QString kDeleteOption = QStringLiteral("delete");

struct SummaryOption {
    const char* name;
    const char* label;
    SummaryField field;
};
constexpr std::array<SummaryOption, kSummaryFields> kSummaryOptions{{
    {"title", "Title", SummaryField::Title},
    {"author", "Author", SummaryField::Author},
    {"subject", "Subject", SummaryField::Subject},
    {"keywords", "Keywords", SummaryField::Keywords},
    {"comments", "Comments", SummaryField::Comments},
}};

bool ChangesSummary(const QCommandLineParser& line) {
    return std::any_of(kSummaryOptions.begin(), kSummaryOptions.end(),
                       [&](const auto& option) { return line.isSet(QLatin1String(option.name)); });
}

bool ChangesSet(const QCommandLineParser& line) {
    return line.isSet(kSetOption) || line.isSet(kDeleteOption);
}

std::unique_ptr<DocumentInfo> OpenInfo(const QString& document) {
    auto info = Documents().MakeDocumentInfo();
    if (!info->Open(LocalCopyOf(document)))
        throw NoDocumentError(Format(Text::PropertiesNotOpened, document));
    return info;
}

// One run of the command that changes something.
class Editing {
public:
    Editing(const QCommandLineParser& line, const QString& document)
        : line_(line), document_(document), info_(OpenInfo(document)) {
        if (line.isSet(kConfigurationOption))
            FindConfiguration(line.value(kConfigurationOption));
        change_.emplace(set_ ? *set_ : *info_, document);
        summaryStamp_ = info_->GetStamp(PropertyGroup::Summary);
        ReadSummary();
        ReadSet();
    }

    TextTable Plan() const {
        TextTable plan = {
            {QStringLiteral("Document"), QStringLiteral("Change"), QStringLiteral("To")}};
        for (const SummaryOption& option : kSummaryOptions) {
            if (const auto& text = summary_[size_t(option.field)])
                plan.push_back(
                    {document_, QStringLiteral("set ") + QLatin1String(option.label), *text});
        }
        const QString where =
            configuration_ < 0 ? QString() : QStringLiteral(" of ") + configurationName_;
        for (const PropertyChange::Change& change : change_->Changes())
            plan.push_back({document_, change.what + where, change.value});
        return plan;
    }

    // Onto the document as it is now. False, with a message, when not all of it was done.
    bool Write(Console& console) const {
        const auto target = configuration_ < 0 ? OpenInfo(document_)
                                               : OpenConfigurationSet(document_, configuration_,
                                                                      configurationName_);
        if (!target)
            throw DocumentError(QStringLiteral("The configuration %1 is no longer in %2.")
                                    .arg(configurationName_, document_));
        const SetEdits set{change_->Rows(), change_->DeletedNames(), change_->Stamp()};
        if (configuration_ >= 0) {
            SaveConfigurationSet(*target, set, document_);
        } else {
            DocumentEdits edits{.summaryStamp = summaryStamp_};
            if (HasEdits(summary_))
                edits.summary = summary_;
            if (!change_->Changes().isEmpty())
                edits.custom.emplace(set);
            SaveDocumentProperties(*target, edits, document_);
        }
        const QStringList refused = change_->NotIn(*target);
        for (const QString& name : refused)
            console.Warn(QStringLiteral("The property \"%1\" can't be stored.").arg(name));
        return UploadIfWeb(document_) && refused.isEmpty();
    }

private:
    void FindConfiguration(const QString& name) {
        const auto file = OpenDocument(document_);
        configuration_ = ConfigurationNamed(*file, name, document_);
        configurationName_ = file->GetConfiguration(configuration_);
        set_ = OpenConfigurationSet(document_, configuration_, configurationName_);
    }

    void ReadSummary() {
        for (const SummaryOption& option : kSummaryOptions) {
            const QString name = QLatin1String(option.name);
            const QString text = line_.value(name);
            if (!line_.isSet(name) || ReadSummaryField(*info_, option.field) == text)
                continue;
            if (!FitsType(text, kTextProperty))
                throw UsageError(QStringLiteral("The text of --%1 can't be stored.").arg(name));
            summary_[size_t(option.field)] = text;
        }
    }

    void ReadSet() {
        std::optional<PropertyType> type;
        if (line_.isSet(kTypeOption))
            type = PropertyTypeNamed(line_.value(kTypeOption));
        for (const QString& name : line_.values(kDeleteOption))
            change_->Delete(name);
        for (const QString& assignment : line_.values(kSetOption))
            change_->Set(assignment, type);
    }

    const QCommandLineParser& line_;
    const QString document_;
    const std::unique_ptr<DocumentInfo> info_;
    std::unique_ptr<DocumentInfo> set_;  // of the configuration, if one is meant
    int configuration_ = -1;
    QString configurationName_;
    std::optional<PropertyChange> change_;
    SummaryEdits summary_;
    QByteArray summaryStamp_;
};

int Show(const QCommandLineParser& line, const QString& document, Console& console) {
    const auto file = OpenDocument(document);
    const auto info = OpenInfo(document);
    const PropertyListing listing =
        line.isSet(kConfigurationOption)
            ? ListConfigurationProperties(
                  *file, ConfigurationNamed(*file, line.value(kConfigurationOption), document))
            : ListProperties(*file, *info);
    console.PrintTable(listing.table);
    console.PrintJson({{QStringLiteral("rows"), listing.rows}});
    return kExitDone;
}

}  // namespace

QString PropertiesCommand::Help() const {
    return QStringLiteral(
        "Without a change, all properties are shown: the summary, the custom properties and those "
        "of each configuration, or of the one that --configuration names. Dates and numbers are "
        "those of your language's settings; 2004-05-31 is always a date. What somebody else "
        "changes meanwhile is not written over.\n\n"
        "  docbench properties bolt.tfmprt\n"
        "  docbench properties --yes --set 'Finish=zinc plated' --author Smith bolt.tfmprt\n"
        "  docbench properties --configuration Long --type number --set Mass=0.7 bolt.tfmprt\n");
}

QList<QCommandLineOption> PropertiesCommand::Options() const {
    QList<QCommandLineOption> options{
        {kConfigurationOption, QStringLiteral("The properties of the configuration NAME."),
         QStringLiteral("NAME")},
        {kSetOption, QStringLiteral("Sets a property; may be given several times."),
         QStringLiteral("NAME=VALUE")},
        {kTypeOption,
         QStringLiteral("Type of what is set: text, date, number or yes-no. Default: the one that "
                        "the property has, else text."),
         PropertyTypeNames().join(u'|')},
        {kDeleteOption, QStringLiteral("Deletes a property; may be given several times."),
         QStringLiteral("NAME")}};
    for (const SummaryOption& option : kSummaryOptions)
        options.append({QLatin1String(option.name),
                        QStringLiteral("Sets the field %1 of the summary; \"\" empties it.")
                            .arg(QLatin1String(option.label)),
                        QStringLiteral("TEXT")});
    return options + ChangeOptions();
}

int PropertiesCommand::Run(const QCommandLineParser& line, Console& console) const {
    const QString document = DocumentPath(line.positionalArguments().first());
    if (ChangesSummary(line) && line.isSet(kConfigurationOption))
        throw UsageError(QStringLiteral("A configuration has no summary of its own."));
    if (line.isSet(kTypeOption) && !line.isSet(kSetOption))
        throw UsageError(QStringLiteral("--type goes with --set."));
    if (!ChangesSummary(line) && !ChangesSet(line))
        return Show(line, document, console);

    OpenDocument(document);  // proves that it can be read
    const Editing editing(line, document);
    RequireWritable(document);
    const TextTable plan = editing.Plan();
    const Decision decision = DecideAbout(plan, line, console);
    if (decision != Decision::Go)
        return ExitCodeOf(decision, console);
    const bool isChanged = plan.size() > 1;
    const bool done = !isChanged || editing.Write(console);
    return TellChanged(document, isChanged, done, console);
}

}  // namespace docbench
