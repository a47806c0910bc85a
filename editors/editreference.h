// The pane that lists a document and what it directly refers to. It changes nothing.
#pragma once

#include <memory>

#include "shell/export.h"
#include "shell/pane.h"

namespace Ui {
class editReference;
}

namespace docbench {

class DOCBENCH_EXPORT editReference : public Pane {
    Q_OBJECT

public:
    explicit editReference(QWidget* parent = nullptr);
    ~editReference() override;

    bool ShowDesc() const { return showDesc_; }
    void SetShowDesc(bool show) override;
    void SetPartName(const QString& displayName, const QString& path);  // no path: does nothing

    void SetDocument(const PaneDocument& document) override {
        SetPartName(document.partName, document.path);
    }
    QString HelpTopic() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void SetCaptions();
    void Layout();
    void MakeRoom();
    void OpenSelected();
    void ExportRows();

    std::unique_ptr<Ui::editReference> ui_;
    QString partDisplayName;
    QString partfilename;
    bool showDesc_ = true;
};

}  // namespace docbench
