#include "docmodel/propertyqueryobject.h"

#include <QLoggingCategory>

#include "services/paths.h"

namespace docmodel {

using docbench::DocumentError;

namespace {

Q_LOGGING_CATEGORY(searchLog, "docmodel.search", QtInfoMsg)

QString FolderPrefix(const QString& folder) {
    return folder.isEmpty() || folder.endsWith(u'/') ? folder : folder + u'/';
}

}  // namespace

void PropertyQueryObject::AddCondition(const QString& connective, const QString& property,
                                       int operatorCode, const QVariant& value) {
    const bool isAlternative = connective == QLatin1String("OR");
    if (!isAlternative && connective != QLatin1String("AND"))
        throw DocumentError(
            QStringLiteral("A rule can't be joined by \"%1\". Use \"AND\" or \"OR\".")
                .arg(connective));
    const bool isOnFileName = !words_.fileName.isEmpty() && property == words_.fileName;
    conditions_.push_back({isAlternative, isOnFileName, PropertyKey::For(property),
                           PropertyRule(operatorCode, value, words_)});
}

PropertyFolder& PropertyQueryObject::Folder(const QString& prefix) {
    if (!index_)
        index_.emplace(ReferenceIndex::Facts::Properties);
    if (!folder_ || folder_->Prefix() != prefix) {
        folder_.reset();
        folder_ = std::make_unique<PropertyFolder>(*index_, prefix);
    }
    return *folder_;
}

void PropertyQueryObject::ReadAhead(const QString& folder, const QStringList& names) {
    try {
        Folder(FolderPrefix(folder)).ReadAhead(names);
    } catch (const DocumentError& error) {
        qCDebug(searchLog).noquote() << error.Description();  // it will come with each document
    }
}

bool PropertyQueryObject::Holds(const Condition& condition, const PropertyRecord& record) const {
    return condition.isOnFileName ? condition.rule.HoldsForFileName(fileName_)
                                  : condition.rule.HoldsFor(record.Find(condition.key));
}

bool PropertyQueryObject::Evaluate(const QString& path) {
    ++counts_.documents;
    QByteArray packed;
    try {
        packed = Folder(docbench::FolderOf(path)).Read(docbench::FileNameOf(path));
    } catch (const DocumentError& error) {
        qCDebug(searchLog).noquote() << error.Description();
        ++counts_.unread;
        return false;
    } catch (const std::bad_alloc&) {
        qCDebug(searchLog).noquote() << path << "takes more memory than there is.";
        ++counts_.unread;
        return false;
    }
    const PropertyRecord record(packed);
    bool matches = false;
    for (size_t i = 0; i < conditions_.size(); ++i) {
        const Condition& condition = conditions_[i];
        const bool isDecided = i > 0 && matches == condition.isAlternative;
        if (!isDecided)
            matches = Holds(condition, record);
    }
    return matches;
}

}  // namespace docmodel
