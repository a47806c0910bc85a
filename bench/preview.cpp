// Showing the preview of a document, against loading and scaling the bare picture.

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include "bench/ratios.h"
#include "docmodel/access.h"
#include "docmodel/builder.h"
#include "services/language.h"
#include "services/scratch.h"
#include "services/seams.h"
#include "shell/picturebox.h"
#include "shell/previewpane.h"

namespace {

using namespace docbench;

constexpr QSize kPicture(1024, 768);
constexpr QSize kShown(640, 480);

// A shaded drawing such as a CAD program stores: areas of slow gradients, lines and some noise.
QByteArray MakePicture() {
    QImage picture(kPicture, QImage::Format_RGB32);
    QPainter painter(&picture);
    QLinearGradient sky(0, 0, 0, kPicture.height());
    sky.setColorAt(0, Qt::white);
    sky.setColorAt(1, QColor(170, 190, 215));
    painter.fillRect(picture.rect(), sky);
    painter.setRenderHint(QPainter::Antialiasing);
    QRandomGenerator random(7);
    for (int i = 0; i < 60; ++i) {
        QRadialGradient metal(random.bounded(1024), random.bounded(768), 200);
        metal.setColorAt(0, QColor(230, 230, 235));
        metal.setColorAt(1, QColor::fromHsv(random.bounded(360), 60, 140));
        painter.setBrush(metal);
        painter.drawEllipse(random.bounded(900), random.bounded(650), 60 + random.bounded(200),
                            60 + random.bounded(200));
    }
    painter.end();
    QByteArray png;
    QBuffer buffer(&png);
    picture.save(&buffer, "PNG");
    return png;
}

struct Fixture {
    Fixture() {
        gSeams.documents = &access;
        LoadResources();
        PrepareScratch();
        const QByteArray png = MakePicture();
        picture = folder.filePath(QStringLiteral("picture.png"));
        QFile file(picture);
        if (!file.open(QFile::WriteOnly) || file.write(png) != png.size())
            std::abort();
        for (QString* path : {&first, &second}) {
            *path = folder.filePath(path == &first ? QStringLiteral("first.tfmprt")
                                                   : QStringLiteral("second.tfmprt"));
            auto document =
                docmodel::DocumentBuilder::New(*path, docmodel::DocumentBuilder::IfThere::Replace);
            document.SetPreview(png);
            document.Save();
        }
        pane = std::make_unique<PreviewPane>();
        pane->resize(kShown);
        pane->show();
        QApplication::processEvents();
    }
    // Shows the other of the two documents, each time, until it is drawn.
    void ShowNext() {
        std::swap(first, second);
        pane->ShowPreview(first);
        QApplication::processEvents();
    }

    docmodel::Access access;
    QTemporaryDir folder;
    QString picture, first, second;
    std::unique_ptr<PreviewPane> pane;
};

Fixture* gFixture = nullptr;

void ShowPreview(benchmark::State& state) {
    for (auto _ : state)
        gFixture->ShowNext();
}

// What any picture viewer has to do: read, scale to the same size, and draw in a window.
void BareLoadAndScale(benchmark::State& state) {
    QLabel window;
    window.resize(kShown);
    window.show();
    const QSize size = gFixture->pane->findChild<PictureBox*>(QStringLiteral("Image1A_0"))->size();
    for (auto _ : state) {
        const QImage picture(gFixture->picture);
        window.setPixmap(QPixmap::fromImage(
            picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
        QApplication::processEvents();
    }
}

BENCHMARK(ShowPreview)->Unit(benchmark::kMillisecond);
BENCHMARK(BareLoadAndScale)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    Fixture fixture;
    fixture.ShowNext();  // once, so that the picture's place is known
    gFixture = &fixture;
    return docbench::bench::RunRatios(argc, argv, {{"ShowPreview", "BareLoadAndScale", 1.5}});
}
