// The setup pane: the user's options, and the named folder lists.
#pragma once

#include <memory>

#include "setup/options.h"
#include "shell/export.h"
#include "shell/pane.h"

class QCheckBox;

namespace Ui {
class setup;
}

namespace docbench {

class FolderListEditor;

class DOCBENCH_EXPORT setup : public Pane {
    Q_OBJECT

public:
    explicit setup(QWidget* parent = nullptr);
    ~setup() override;

    bool ShowDesc() const { return mShowDesc; }  // for all panes
    void SetShowDesc(bool show) override { ApplyShowDesc(show); }

    void SetDocument(const PaneDocument&) override {}
    QString HelpTopic() const override;

Q_SIGNALS:
    // An option was stored: the text "FO" and the number 0.
    void SetupChanged(const QString& text, int number);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void SetCaptions();
    void ConnectControls();
    void FillLanguages();
    void ShowLanguage();
    void TakeLanguage();
    void ReadOptions();
    void TakeUseViewer();
    void ApplyShowDesc(bool value);
    void Store(Option option, const QCheckBox& box);

    std::unique_ptr<Ui::setup> ui_;
    FolderListEditor* lists_;
    bool mShowDesc = true;
    bool mLoading = false;  // the boxes follow the store, and not the other way round
};

}  // namespace docbench
