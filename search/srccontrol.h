// The document search pane: finds documents by rules on their properties.
#pragma once

#include <QElapsedTimer>
#include <memory>

#include "services/docaccess.h"
#include "shell/export.h"
#include "shell/pane.h"

namespace Ui {
class srcControl;
}

namespace docbench {

class FolderListInput;
class SearchResults;

class DOCBENCH_EXPORT srcControl : public Pane {
    Q_OBJECT
    Q_PROPERTY(
        QString partfilename READ partfilename WRITE Putpartfilename NOTIFY partfilenameChanged)

public:
    explicit srcControl(QWidget* parent = nullptr);
    ~srcControl() override;

    // The current document. Its folder becomes the place to look in, unless there is one.
    QString partfilename() const { return partfilename_; }
    void Putpartfilename(const QString& path);
    void ReleaseAll() override;
    void Refresh() {}  // hosts call it
    void SetShowDesc(bool show) override;

    void SetDocument(const PaneDocument& document) override { Putpartfilename(document.path); }
    QString HelpTopic() const override;

Q_SIGNALS:
    void partfilenameChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void SetCaptions();
    void SetHeaders();
    void ConnectControls();
    void ConnectLists();

    void FillOperators(bool withComparisons);
    QStringList OperatorsOffered() const;
    void OperatorChosen();
    bool IsValueRefused() const;
    bool TellNumberNeeded();
    void LeaveValue();
    void LeaveRules();

    void AddRule();
    void DeleteRules();
    void NewSearch();
    void Save();
    void Load();
    void EnableAdd();
    void UpdateStartEnabled();
    void EnableSearchControls(bool enabled);

    void StartOrStop();
    void Search();
    void SearchPlaces(const QStringList& places, PropertyQuery& query);
    void ShowProgress();

    void ToggleColumn(int column);
    void OpenSelected();
    void ExportRows();

    std::unique_ptr<Ui::srcControl> ui_;
    std::unique_ptr<SearchResults> results_;
    FolderListInput* lookIn_;
    QString partfilename_;
    QString mFileNameLabel;
    bool mStopRequested = false;
    bool isTelling_ = false;  // its own box takes the focus as well
    QElapsedTimer progressShown_;
    SearchCounts counts_;  // of the search, and how many it has found
    int found_ = 0;
};

}  // namespace docbench
