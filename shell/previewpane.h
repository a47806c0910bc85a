// The default pane: the pictures stored in the documents that were looked at, or the 3D viewer.
#pragma once

#include <QDateTime>
#include <array>

#include "shell/pane.h"
#include "shell/previewgrid.h"

class QCheckBox;
class QLabel;

namespace docbench {

class DescControl;
class PictureBox;

class PreviewPane : public Pane {
    Q_OBJECT

public:
    explicit PreviewPane(QWidget* parent = nullptr);

    void ShowPreview(const QString& path);
    void ClearPreviewGrid();

    void SetShowDesc(bool show) override;
    void SetDocument(const PaneDocument& document) override { ShowPreview(document.path); }
    void ForgetDocuments() override { ClearPreviewGrid(); }
    QString HelpTopic() const override;
    void setVisible(bool visible) override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // What a document's file looked like when its picture was taken.
    struct FileState {
        qint64 size = -1;
        QDateTime modified;
        bool operator==(const FileState&) const = default;
    };
    static FileState StateOf(const QString& local);

    bool ShowsAlready(const QString& path, const QString& local) const;
    int IndexOf(const QString& path) const;
    void ShowViewer(const QString& path, const QString& local);
    void AddViewer();
    void AddToGrid(const QString& bitmap, const QString& path);
    void PlacePicture(const QString& bitmap, const QString& path);
    void FrameOnly(int index);
    void LayOutGrid();

    DescControl* DescControl1;
    QWidget* Image1;  // holds the pictures and the viewer
    QCheckBox* chkUseFullScreen;
    QLabel* Label2;                                     // the document holds no preview
    std::array<PictureBox*, kPreviewPictures> Image1A;  // the tool tip is the path of the document
    std::array<FileState, kPreviewPictures> taken_;
    QWidget* vistamodel1 = nullptr;
    int previewCount = 0;
    int previewNext = 0;  // the next picture to fill
};

}  // namespace docbench
