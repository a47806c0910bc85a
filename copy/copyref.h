// The pane that copies a document with what it refers to and what uses it.
#pragma once

#include <QElapsedTimer>
#include <QHash>
#include <QPointer>
#include <memory>
#include <optional>

#include "cells/celllist.h"
#include "copy/copynaming.h"
#include "copy/copyrun.h"
#include "services/listtable.h"
#include "shell/export.h"
#include "shell/pane.h"
#include "whereused/searchdialog.h"

class QLineEdit;

namespace Ui {
class copyRef;
}

namespace docbench {

class CellListView;
class editDialog;

class DOCBENCH_EXPORT copyRef : public Pane {
    Q_OBJECT

public:
    explicit copyRef(QWidget* parent = nullptr);
    ~copyRef() override;

    // Loads a document; an empty path blanks the pane. A copy that is running ends first.
    void SetPartName(const QString& partName, const QString& fullpath, const QString& treefullpath);
    void ReleaseAll() override;
    void SetShowDesc(bool show) override;
    // The lists as tables for an export; left alone when they are empty.
    void PackWhereUsedSafeArray(TextTable& table) const;
    void PackCopyBoxSafeArray(TextTable& table) const;

    void SetDocument(const PaneDocument& document) override {
        SetPartName(document.partName, document.path, document.treeChain);
    }
    QString HelpTopic() const override { return QStringLiteral("copy"); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    struct Load {
        QString partName, fullpath, treefullpath;
    };

    void InitPaneTexts();
    void InitLists();
    void ConnectControls();
    void ShowLists();
    void FitLists();
    void EnablePaneControls(bool enabled);
    void EnableListButtons();
    void ShowTargetControls(bool visible);
    void LoadDocument();
    void BuildCopyList(const QString& path);
    void ShowStep(const QString& text);

    CellList& Copies();
    CellList& Parents();
    QString FolderText() const;
    QString SourceTarget(const QString& folder) const;
    void UpdateAffix();
    void RecomputeTargets(bool forceLong);
    bool ValidateFolderText(const QString& text) const;
    bool ValidateTargetFile(const QString& path) const;
    void OnChildren(bool ticked);
    void OnWhereUsed(bool ticked);
    void OnTargetPathChanged(const QString& text);
    void OnToFileChanged(const QString& text);
    bool OnKey(const QObject* field, int key);
    void AcceptTargetFile();
    void AcceptTargetPath();
    void ResetTargetFile();
    void Refuse(QLineEdit* field);
    void BrowseFile();
    void BrowseFolder();
    void ChooseTarget(CellListView* list, int row);
    void ReplaceInTargets();
    void SelectAll();

    void FindOrStop();
    void SearchParents();
    void ChooseScope();
    void ResetParents();

    bool CheckBeforeCopy();
    void Apply();
    CopyProgress Progress();
    void BringIntoView(CopyProgress::List which, int row);
    void EndRun(const CopyResult& result);
    void ShowOutcome(const Cell& target);

    void OpenCopyRow();
    void OpenParentRow();
    void Export(const std::optional<TextTable>& table);

    std::unique_ptr<Ui::copyRef> ui_;
    QPointer<editDialog> editDialog_;
    QString mPartName;
    QString mDocumentPath;
    QString mBaseFolder;  // the document's, with a separator at its end
    QString mOriginalFolder;
    QString mPrefix;
    QString mSuffix;
    QStringList mRowFolders;  // relative folders: of the document, then of each row
    QHash<QString, QString> mReplacedFiles;
    int mMissingCount = 0;
    bool mTargetAccepted = false;
    QString mLookIn;
    SearchScope scope_;
    bool mStopSearch = false;
    bool searching_ = false;
    bool running_ = false;
    std::optional<Load> pending_;  // came while a copy was running
    int loads_ = 0;                // counts up with each document, so that a walk knows its own
    QElapsedTimer sinceDrawn_;     // the progress
    bool drawn_ = false;           // since a row was brought into view
};

}  // namespace docbench
