// The library's DocumentInfo of a whole document: summary, custom properties and lock record.
#pragma once

#include <optional>

#include "docmodel/coreproperties.h"
#include "docmodel/documentchange.h"
#include "docmodel/propertyset.h"
#include "services/docaccess.h"

namespace docmodel {

using docbench::PropertyGroup;

class DocumentInfoObject : public docbench::DocumentInfo {
public:
    bool Open(const QString& path) override;
    QString GetTitle() override;
    void SetTitle(const QString& text) override;
    QString GetAuthor() override;
    void SetAuthor(const QString& text) override;
    QString GetComments() override;
    void SetComments(const QString& text) override;
    QString GetKeywords() override;
    void SetKeywords(const QString& text) override;
    QString GetSubject() override;
    void SetSubject(const QString& text) override;
    QString GetCreated() override;
    QString GetLastSavedBy() override;
    QString GetLastSaved() override;
    int GetCustomCount() override;
    CustomProperty GetCustomProperty(int index) override;
    bool SetCustomProperty(const QString& name, const QVariant& value) override;
    bool DeleteCustomProperty(const QString& name) override;
    void Save() override;
    bool GetLocked() override;
    void SetLocked(bool locked) override;
    QString GetLockedBy() override;
    void SetLockedBy(const QString& user) override;
    QByteArray GetStamp(PropertyGroup group) override;

private:
    // What is known of the bound document; the texts with the edits, and as they were at Open.
    struct State {
        State(const CoreProperties& core, QList<CustomProperty> properties, LockRecord record);
        Summary summary;
        Summary summaryAtOpen;
        QString created;
        QString modified;
        QString lastSavedBy;
        PropertySet custom;
        LockRecord lock;
        bool lockChanged = false;
        bool lockUserChanged = false;
    };
    State& Bound();  // raises when no document is open
    void SetField(SummaryField field, const QString& text);
    void ApplyLock(DocumentPart& tables) const;
    // After a save: takes over what this object wrote, `custom` among it.
    void Renew(DocumentContent& newest, QList<CustomProperty> custom);

    BoundPath path_;  // also of a document that could not be opened
    std::optional<State> state_;
};

}  // namespace docmodel
