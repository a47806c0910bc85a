// The where-used pane: finds the documents that use a document.
#pragma once

#include <QSet>
#include <memory>

#include "panes/usekinds.h"
#include "services/docaccess.h"
#include "shell/export.h"
#include "shell/pane.h"
#include "whereused/searchtarget.h"

namespace Ui {
class whereUsed;
}

namespace docbench {

class FolderListInput;
class RowBatch;
class UseKindBoxes;
struct CellRow;
struct PathColumn;

class DOCBENCH_EXPORT whereUsed : public Pane {
    Q_OBJECT

public:
    explicit whereUsed(QWidget* parent = nullptr);
    ~whereUsed() override;

    // Prepares a search for the users of a document; does not start it.
    void SetPartNameToSearch(const QString& path, const QString& title);
    void Findnow();  // as a click on wuFindNow, if that is enabled
    void ReleaseAll() override;
    void SetShowDesc(bool show) override;

    void SetDocument(const PaneDocument& document) override {
        SetPartNameToSearch(document.path, document.partName);
    }
    QString HelpTopic() const override;

private:
    void SetCaptions();
    void ConnectControls();
    void EnableSearchControls(bool enabled);
    void EnableFindNow();
    void NewSearch();

    void Search();
    void SearchPlaces();
    void SearchLocal(const QString& folder);
    void SearchWeb(const QString& url);
    void SearchFolders(const QString& folder, const QString& urlPrefix);
    void SearchFolder(FolderSearcher& finder, const QString& folder, const QString& urlPrefix);
    void ShowRow(CellRow& row) const;
    void AcceptRow(const FoundReference& found, const QString& urlPrefix);
    bool RowExists(const QString& document, const QString& relation,
                   const QString& reference) const;
    void EndSearch();
    void ShowProgress(const SearchCounts& counts);

    void ToggleColumn(int column);
    void OpenSelected();
    void ExportRows();

    std::unique_ptr<Ui::whereUsed> ui_;
    FolderListInput* lookIn_;
    UseKindBoxes* kinds_;
    std::unique_ptr<RowBatch> rows_;  // of the running search
    bool mStopRequested = false;
    bool searching_ = false;
    SearchTarget target_;   // of the running search
    QSet<QString> listed_;  // what RowExists compares, of every row
    SearchCounts counted_;  // by the searchers that are done with
};

}  // namespace docbench
