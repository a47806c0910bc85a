// The library's PropertyQuery: evaluates rules on the properties of one document after the other.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "docmodel/propertyfolder.h"
#include "docmodel/propertyrecord.h"
#include "docmodel/propertyrule.h"
#include "services/docaccess.h"

namespace docmodel {

class PropertyQueryObject : public docbench::PropertyQuery {
public:
    explicit PropertyQueryObject(const docbench::QueryWords& words) : words_(words) {}

    void AddCondition(const QString& connective, const QString& property, int operatorCode,
                      const QVariant& value) override;
    void SetFileName(const QString& name) override { fileName_ = name; }
    bool Evaluate(const QString& path) override;
    void ReadAhead(const QString& folder, const QStringList& names) override;
    docbench::SearchCounts GetSearchCounts() override { return counts_; }

private:
    struct Condition {
        bool isAlternative;  // joined by OR
        bool isOnFileName;
        PropertyKey key;
        PropertyRule rule;
    };
    PropertyFolder& Folder(const QString& prefix);
    bool Holds(const Condition& condition, const PropertyRecord& record) const;

    const docbench::QueryWords words_;
    std::vector<Condition> conditions_;
    QString fileName_;
    std::optional<ReferenceIndex> index_;     // opened by the first document
    std::unique_ptr<PropertyFolder> folder_;  // of the last document
    docbench::SearchCounts counts_;
};

}  // namespace docmodel
