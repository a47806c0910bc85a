// The library's DocumentFile: one document's references, configurations and hyperlinks.
#pragma once

#include <QSet>
#include <optional>

#include "docmodel/documentchange.h"
#include "docmodel/documentpart.h"
#include "docmodel/trackedtable.h"
#include "services/docaccess.h"

namespace docmodel {

using docbench::ComponentRow;
using docbench::DocumentInfo;
using docbench::ExternalRow;

class DocumentFileObject : public docbench::DocumentFile {
public:
    void Open(const QString& path) override;
    int GetComponentCount() override;
    int GetConfigurationCount() override;
    void Save() override;
    QString GetConfiguration(int index) override;
    int RenameConfiguration(int id, const QString& newName) override;
    int GetConfigurationType(int index) override;
    int DeleteConfiguration(int id, int mode) override;
    void OpenHyperlinks(const QString& path) override;
    int GetHyperlinkCount() override;
    QString GetHyperlink(int index) override;
    void SetHyperlink(int index, const QString& text) override;
    void SaveHyperlinks() override;
    void SetComponentPath(int index, const QString& newPath) override;
    std::unique_ptr<DocumentInfo> GetCustomProperties(int which) override;
    int GetExternalReferenceCount() override;
    void SetExternalReferencePath(int index, const QString& newPath) override;
    bool IsCurrentFormat() override;
    int GetAccessState(const QString& path) override;
    bool GetReferencesLocked() override;
    ComponentRow GetComponent(int index, const QString& webFolder) override;
    ExternalRow GetExternalReference(int index, const QString& webFolder) override;
    QByteArray GetStamp(Table table) override;

private:
    // What is known of the bound document.
    struct State {
        State(const QString& path, DocumentPart tables);
        QString folder;     // of the document, ending in a separator
        DocumentPart part;  // at Open, with what was saved by this object since then
        TrackedTable<StoredComponent> components;
        TrackedTable<StoredExternal> externals;
        // Read when they are first asked for: a walk through references never does.
        std::optional<TrackedTable<StoredConfiguration>> configurations;
        std::optional<TrackedTable<StoredHyperlink>> hyperlinks;
        QSet<int> deletedConfigurations;

        TrackedTable<StoredConfiguration>& Configurations();
        TrackedTable<StoredHyperlink>& Hyperlinks();
        bool ConfigurationsChanged() const;
    };

    State& Bound();  // raises when no document is open
    // The row at `index`; raises when the table has none. `what` names it in the error text.
    template <typename Row>
    const Row& RowAt(const TrackedTable<Row>& table, int index, const char* what) const;
    bool IsNameFree(const QString& name, int exceptId);
    // Raise when a table that was changed here has been changed by somebody else.
    void RequireReferences(DocumentChange& change);
    void RequireHyperlinks(DocumentChange& change);
    void RequireConfigurations(DocumentChange& change);
    // Carry the changes out on `tables`.
    void Apply(DocumentPart& tables) const;
    void ApplyHyperlinks(DocumentPart& tables) const;

    BoundPath path_;  // also of a document that could not be opened
    std::optional<State> state_;
};

}  // namespace docmodel
