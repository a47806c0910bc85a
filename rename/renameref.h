// The pane that renames a document, or replaces it by another, and brings its users up to date.
#pragma once

#include <memory>

#include "rename/renamechecks.h"
#include "services/listtable.h"
#include "shell/export.h"
#include "shell/pane.h"
#include "whereused/searchdialog.h"

namespace Ui {
class renameRef;
}

namespace docbench {

class DOCBENCH_EXPORT renameRef : public Pane {
    Q_OBJECT

public:
    explicit renameRef(QWidget* parent = nullptr);
    ~renameRef() override;

    void ReleaseAll() override;
    void SetShowDesc(bool show) override;
    // Loads a document; an empty full name blanks the pane. `chain` is the document itself and all
    // documents above it in the tree, joined by ";".
    void SetPartName(const QString& displayName, const QString& fullName, const QString& chain,
                     bool isReplace);
    // The list as a table for an export; left alone when it is empty.
    void PackSafeArray(TextTable& table) const;

    void SetDocument(const PaneDocument& document) override {
        SetPartName(document.partName, document.path, document.treeChain, document.actionReplace);
    }
    QString HelpTopic() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void SetCaptions();
    void ConnectControls();
    void ShowMode();
    void Load();
    void FillForm();
    void Blank();
    void EnableCommands(bool enabled);
    void EnableInput(bool enabled);
    void OnNewNameChanged();
    void EnableApply();
    bool IsSearching() const;
    QString Target() const;
    void AddExtension();
    void RefuseTarget();
    void CheckEntered();
    void CheckDropped(const QString& path);
    void Browse();

    void FindOrStop();
    void Search();
    void ChooseScope();
    void ResetList();

    void OnTicked(int row);
    void Tick(int row, bool ticked);

    bool PrepareApply();
    bool AskForSearch();
    void Apply();
    void OpenSelected();
    void ExportRows();

    std::unique_ptr<Ui::renameRef> ui_;
    RenameSubject subject_;
    QString partDisplayName;
    QString parentDocument;
    bool replaceMode = false;
    bool whereUsedDone = false;
    SearchScope scope_;
    QString searchFolders;
    bool cancelSearch = false;
    bool checking_ = false;  // the field's own box takes the focus as well
    int loads_ = 0;          // counts up with each document, so that a search knows its own
};

}  // namespace docbench
