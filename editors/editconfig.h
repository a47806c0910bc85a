// The pane that renames and deletes the configurations of a document.
#pragma once

#include <QVariant>
#include <memory>

#include "shell/export.h"
#include "shell/pane.h"

class QAction;
class QMenu;

namespace Ui {
class editConfig;
}

namespace docbench {

class ConfigurationTree;
class DocumentFile;

class DOCBENCH_EXPORT editConfig : public Pane {
    Q_OBJECT

public:
    explicit editConfig(QWidget* parent = nullptr);
    ~editConfig() override;

    bool ShowDesc() const { return showDesc_; }
    void SetShowDesc(bool show) override;
    // Loads a document, dropping what was not saved; no path empties the pane.
    void SetPartName(const QString& displayName, const QString& path);
    void showCombo() {}  // do nothing; kept for hosts that call them
    void GridEdit(const QVariant&) {}
    void Enable(bool enabled) override;

    void SetDocument(const PaneDocument& document) override {
        SetPartName(document.partName, document.path);
    }
    QString HelpTopic() const override;

private:
    void SetCaptions();
    void MakeMenu();
    void ConnectControls();
    void ShowMenu(QPoint globalPosition);
    void Load();
    void EndRename(int node, const QString& typed);
    void ToggleDeletion(int node);
    void UpdateButtons();
    void Save();
    bool Write();

    std::unique_ptr<Ui::editConfig> ui_;
    QMenu* mnuEdit = nullptr;
    QAction* renameEntry_ = nullptr;
    QAction* deleteEntry_ = nullptr;
    std::unique_ptr<ConfigurationTree> configurations_;
    QString partDisplayName;
    QString partfilename;
    // As it was loaded: what differs on the disk is somebody else's work.
    std::unique_ptr<DocumentFile> configDocument;
    int configCount = 0;
    QString localPath;
    bool showDesc_ = true;
};

}  // namespace docbench
