#include "shell/previewpane.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QLabel>
#include <QResizeEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "frame/desccontrol.h"
#include "services/dialogs.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/language.h"
#include "services/loggingmanager.h"
#include "services/outsideobjects.h"
#include "services/paths.h"
#include "services/scratch.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"
#include "shell/picturebox.h"
#include "shell/picturestore.h"
#include "shell/viewer.h"

namespace docbench {
namespace {

enum ExtractResult { kExtracted = 0, kNoPreview = -2 };
constexpr int kViewerFeatures = 8193;

}  // namespace

PreviewPane::PreviewPane(QWidget* parent)
    : Pane(parent),
      DescControl1(new DescControl(this)),
      Image1(new QWidget(this)),
      chkUseFullScreen(new QCheckBox(Image1)),
      Label2(new QLabel(this)) {
    setObjectName(QStringLiteral("preview"));
    DescControl1->setObjectName(QStringLiteral("DescControl1"));
    Image1->setObjectName(QStringLiteral("Image1"));
    chkUseFullScreen->setObjectName(QStringLiteral("chkUseFullScreen"));
    Label2->setObjectName(QStringLiteral("Label2"));
    for (int i = 0; i < kPreviewPictures; ++i) {
        Image1A[size_t(i)] = new PictureBox(Image1);
        Image1A[size_t(i)]->setObjectName(QStringLiteral("Image1A_%1").arg(i));
        Image1A[size_t(i)]->hide();
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(DescControl1);
    layout->addWidget(Image1, 1);
    layout->addWidget(Label2, 1);
    Image1->installEventFilter(this);
    Image1->hide();
    Label2->hide();
    Label2->setAlignment(Qt::AlignCenter);
    Label2->setWordWrap(true);
    Label2->setTextFormat(Qt::PlainText);
    Label2->setText(Tr(Text::NoPreview));
    chkUseFullScreen->setText(Tr(Text::UseFullScreen));
    chkUseFullScreen->setChecked(true);
    connect(chkUseFullScreen, &QCheckBox::clicked, this,
            [this] { AddToGrid(QString(), QString()); });
    DescControl1->text(gPreviewHelp);
    DescControl1->icon(PictureOf(QStringLiteral("PVIW")));
    DescControl1->SetHelpFile(gHelpFile, HelpTopic());
    ReadUseViewer();
    AddViewer();
}

void PreviewPane::AddViewer() {
    if (!IsViewerAvailable())
        return;
    std::unique_ptr<QObject> made = gSeams.outside->Create(QLatin1String(kViewerProgramId));
    vistamodel1 = qobject_cast<QWidget*>(made.get());
    if (!vistamodel1)
        return;
    made.release();
    vistamodel1->setParent(Image1);
    vistamodel1->setObjectName(QStringLiteral("vistamodel1"));
    vistamodel1->setProperty("EnableFeatures", kViewerFeatures);
    vistamodel1->hide();
}

QString PreviewPane::HelpTopic() const {
    return QStringLiteral("preview");
}

void PreviewPane::SetShowDesc(bool show) {
    DescControl1->setVisible(show);
}

// A pane that comes up shows nothing until it is handed a document; what it has collected stays.
void PreviewPane::setVisible(bool visible) {
    if (!visible) {
        Image1->hide();
        Label2->hide();
    }
    Pane::setVisible(visible);
}

void PreviewPane::resizeEvent(QResizeEvent* event) {
    Pane::resizeEvent(event);
    LayOutGrid();
}

bool PreviewPane::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Image1 && (event->type() == QEvent::Resize || event->type() == QEvent::Show))
        LayOutGrid();
    return Pane::eventFilter(watched, event);
}

PreviewPane::FileState PreviewPane::StateOf(const QString& local) {
    const QFileInfo file(local);
    return {file.exists() ? file.size() : -1, file.lastModified()};
}

void PreviewPane::ShowPreview(const QString& path) {
    int result = -1;
    ErrorState errors;
    QString local;
    errors.Assign(local, [&] { return LocalCopyOf(path); });
    if (ShowsAlready(path, local))
        result = kExtracted;  // its picture would be the same
    else
        errors.Assign(result, [&] {
            return Documents().MakePreviewExtractor()->ExtractPreview(local, gTempBitmap);
        });
    if (result == kExtracted)
        errors.Run([&] {
            Label2->hide();
            ShowViewer(path, local);
            Log([&](LoggingManager& log) {
                log.LogPreviewInfo(local, IsViewerAvailable(), true, UseViewer);
            });
            AddToGrid(gTempBitmap, path);
            Image1->show();
        });
    else if (result == kNoPreview)
        Label2->show();
    if (errors.Failed() || (result != kExtracted && result != kNoPreview))
        gSeams.dialogs->Box(Format(Text::PreviewError, path), Dialogs::Icon::Exclamation,
                            gAppTitle);
    SetStatusText(Format(Text::PreviewOf, path));
}

bool PreviewPane::ShowsAlready(const QString& path, const QString& local) const {
    const int index = IndexOf(path);
    return !chkUseFullScreen->isChecked() && index >= 0 && !path.isEmpty() &&
           taken_[size_t(index)] == StateOf(local);
}

void PreviewPane::ShowViewer(const QString& path, const QString& local) {
    if (!vistamodel1)
        return;
    vistamodel1->setVisible(UseViewer);
    vistamodel1->setToolTip(UseViewer ? path : QString());
    const bool opened =
        !UseViewer ||
        QMetaObject::invokeMethod(vistamodel1, "OpenDoc", Q_ARG(QString, local), Q_ARG(int, 0),
                                  Q_ARG(int, 0), Q_ARG(int, 1), Q_ARG(QString, QString()));
    if (!opened)
        throw DocumentError(QStringLiteral("The viewer can't open documents."));
}

int PreviewPane::IndexOf(const QString& path) const {
    const auto found = std::find_if(Image1A.begin(), Image1A.end(), [&](const PictureBox* picture) {
        return picture->toolTip() == path;
    });
    return found == Image1A.end() ? -1 : int(found - Image1A.begin());
}

void PreviewPane::AddToGrid(const QString& bitmap, const QString& path) {
    if (chkUseFullScreen->isChecked())
        ClearPreviewGrid();
    const int shown = IndexOf(path);
    if (shown < 0)
        PlacePicture(bitmap, path);
    FrameOnly(shown < 0 ? previewNext : shown);
    if (shown < 0)
        previewCount = qMin(previewCount + 1, kPreviewPictures);
    LayOutGrid();
    if (shown < 0)  // a full grid takes the newest picture in its last place
        previewNext = qMin(previewNext + 1, kPreviewPictures - 1);
}

void PreviewPane::PlacePicture(const QString& bitmap, const QString& path) {
    const QImage picture(bitmap);
    if (picture.isNull())
        throw DocumentError(bitmap);  // the box that follows names the document
    PictureBox& box = *Image1A[size_t(previewNext)];
    box.hide();
    box.SetPicture(picture);
    box.setToolTip(path);
    box.setAccessibleName(FileNameOf(path));
    taken_[size_t(previewNext)] = StateOf(LocalCopyOf(path));
}

void PreviewPane::FrameOnly(int index) {
    for (int i = 0; i < kPreviewPictures; ++i)
        Image1A[size_t(i)]->SetFramed(i == index);
}

void PreviewPane::LayOutGrid() {
    const int below = chkUseFullScreen->sizeHint().height();
    chkUseFullScreen->setGeometry(0, Image1->height() - below, Image1->width(), below);
    const QSize area(Image1->width(), Image1->height() - below);
    for (int i = 0; i < previewCount; ++i) {
        PictureBox& box = *Image1A[size_t(i)];
        const QRect cell = PreviewCell(i, previewCount, area);
        qint16 width = qint16(box.width());
        qint16 height = qint16(box.height());
        FitPicture(box.NaturalSize().width(), box.NaturalSize().height(), cell.width(),
                   cell.height(), width, height);
        box.setGeometry(cell.x(), cell.y(), width, height);
        box.show();
        if (vistamodel1 && !vistamodel1->toolTip().isEmpty() &&
            vistamodel1->toolTip() == box.toolTip()) {
            vistamodel1->setGeometry(box.geometry());
            vistamodel1->raise();
        }
    }
}

void PreviewPane::ClearPreviewGrid() {
    for (PictureBox* picture : Image1A) {
        picture->setToolTip(QString());
        picture->hide();
        picture->SetFramed(false);
    }
    previewCount = 0;
    previewNext = 0;
}

}  // namespace docbench
