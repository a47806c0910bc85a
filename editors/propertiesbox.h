// The pane that shows and edits what a document says about itself: summary, custom properties, and
// the properties of its configurations.
#pragma once

#include <QPointer>
#include <QStringList>
#include <array>
#include <memory>

#include "editors/summaryfields.h"
#include "shell/export.h"
#include "shell/pane.h"

namespace Ui {
class PropertiesBox;
}

namespace docbench {

class DocumentInfo;

class DOCBENCH_EXPORT PropertiesBox : public Pane {
    Q_OBJECT

public:
    explicit PropertiesBox(QWidget* parent = nullptr);
    ~PropertiesBox() override;

    bool ShowDesc() const { return showDesc_; }
    void SetShowDesc(bool show) override;
    // Loads all tabs from the document at a path or address, which is the one that is written from
    // then on. What was not written is dropped.
    void populateSummary(const QString& path);
    void SetPartName(const QString& displayName, const QString& path);  // no path: does nothing

    void SetDocument(const PaneDocument& document) override {
        SetPartName(document.partName, document.path);
    }
    void ReloadProperties(const QString& path) override { populateSummary(path); }
    QString HelpTopic() const override;

private:
    // The document that is loaded. To be asked behind every box, a password's among them: the pane
    // may have got another document meanwhile, or be gone.
    class Loaded {
    public:
        explicit Loaded(const PropertiesBox* pane) : pane_(pane), load_(pane->loads_) {}
        bool IsOver() const { return !pane_ || pane_->loads_ != load_; }

    private:
        QPointer<const PropertiesBox> pane_;
        int load_;
    };

    void SetCaptions();
    void ConnectControls();
    void OnSummaryChanged();
    void OnTabChanged();
    void FocusByTab();
    void EnableButtons();

    void Load(QString path);
    void Blank();
    void FillSummary(DocumentInfo& info);
    void ShowLastSave(DocumentInfo& info);
    void ListConfigurations(const QString& local);

    int PickedConfiguration() const;  // -1 for none
    void OnConfigurationPicked();
    bool LeaveConfiguration();
    std::unique_ptr<DocumentInfo> OpenConfiguration(int index) const;
    void ShowConfiguration(int index);

    void Apply();
    void WriteEdits();
    bool WriteConfiguration(int index);
    void WriteDocument();
    void TakeAsRead(DocumentInfo& saved, bool summaryTyped);
    bool Upload();
    SummaryEdits TypedSummary() const;
    QString TextOf(SummaryField field) const;

    std::unique_ptr<Ui::PropertiesBox> ui_;
    QString partDisplayName;
    QString partfilename;
    bool summaryDirty = false;
    bool customDirty = false;
    bool configDirty = false;
    QStringList deletedCustomNames;
    QStringList deletedConfigNames;
    int currentConfiguration = -1;
    bool populated = false;
    int loads_ = 0;
    int lostUploads_ = 0;  // of the document when it was loaded
    bool showDesc_ = true;

    // As they were read or last written: what differs on the disk is somebody else's work.
    QByteArray summaryStamp_;
    QByteArray customStamp_;
    QByteArray configStamp_;
    std::array<QString, kSummaryFields> untouched_;  // what the fields showed then
};

}  // namespace docbench
