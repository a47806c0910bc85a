// The pane that changes and opens the hyperlinks of a document.
#pragma once

#include <QVariant>
#include <memory>

#include "shell/export.h"
#include "shell/pane.h"

namespace Ui {
class EditHyperLink;
}

namespace docbench {

class DocumentFile;
class HyperlinkTree;

class DOCBENCH_EXPORT EditHyperLink : public Pane {
    Q_OBJECT

public:
    explicit EditHyperLink(QWidget* parent = nullptr);
    ~EditHyperLink() override;

    bool ShowDesc() const { return showDesc_; }
    void SetShowDesc(bool show) override;
    // Loads a document, dropping what was not saved; no path empties the pane.
    void SetPartName(const QString& displayName, const QString& path);
    void GridEdit(const QVariant&) {}  // does nothing; kept for hosts that call it
    void Enable(bool enabled) override;

    void SetDocument(const PaneDocument& document) override {
        SetPartName(document.partName, document.path);
    }
    QString HelpTopic() const override;

private:
    void SetCaptions();
    void ConnectControls();
    void Load();
    void OpenTarget(int node);
    void UpdateButtons();
    void Save();
    bool Write();

    std::unique_ptr<Ui::EditHyperLink> ui_;
    std::unique_ptr<HyperlinkTree> hyperlinks_;
    QString partDisplayName;
    QString partfilename;
    QString localPath;
    // As it was loaded: what differs on the disk is somebody else's work.
    std::unique_ptr<DocumentFile> hyperlinkDocument;
    int hyperlinkCount = 0;
    bool showDesc_ = true;
};

}  // namespace docbench
