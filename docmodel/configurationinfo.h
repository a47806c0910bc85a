// The custom properties of one configuration as a DocumentInfo; there is no summary and no lock in
// it.
#pragma once

#include "docmodel/documentchange.h"
#include "docmodel/propertyset.h"
#include "services/docaccess.h"

namespace docmodel {

using docbench::PropertyGroup;

class ConfigurationInfo : public docbench::DocumentInfo {
public:
    ConfigurationInfo(const BoundPath& path, StoredConfiguration configuration,
                      QList<CustomProperty> properties);

    bool Open(const QString& path) override;  // a configuration is not found by a path: false
    QString GetTitle() override { return {}; }
    void SetTitle(const QString&) override { RaiseNoSummary(); }
    QString GetAuthor() override { return {}; }
    void SetAuthor(const QString&) override { RaiseNoSummary(); }
    QString GetComments() override { return {}; }
    void SetComments(const QString&) override { RaiseNoSummary(); }
    QString GetKeywords() override { return {}; }
    void SetKeywords(const QString&) override { RaiseNoSummary(); }
    QString GetSubject() override { return {}; }
    void SetSubject(const QString&) override { RaiseNoSummary(); }
    QString GetCreated() override { return {}; }
    QString GetLastSavedBy() override { return {}; }
    QString GetLastSaved() override { return {}; }
    int GetCustomCount() override;
    CustomProperty GetCustomProperty(int index) override;
    bool SetCustomProperty(const QString& name, const QVariant& value) override;
    bool DeleteCustomProperty(const QString& name) override;
    void Save() override;
    bool GetLocked() override { return false; }
    void SetLocked(bool) override { RaiseNoSummary(); }
    QString GetLockedBy() override { return {}; }
    void SetLockedBy(const QString&) override { RaiseNoSummary(); }
    QByteArray GetStamp(PropertyGroup group) override;

private:
    [[noreturn]] void RaiseNoSummary() const;
    PropertySet& Bound();
    int IndexIn(const DocumentPart& tables) const;  // -1 if the configuration is gone

    BoundPath path_;
    StoredConfiguration configuration_;
    PropertySet properties_;
    bool bound_ = true;
};

}  // namespace docmodel
