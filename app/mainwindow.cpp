#include "app/mainwindow.h"

#include <QCloseEvent>
#include <QFileInfo>

#include "frame/maincontrol.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/settingsstore.h"
#include "shell/usercontrol1.h"

namespace docbench {

namespace {

const char kWindowKey[] = "Software\\Tessaforma\\TessaformaDocbench\\Window";
const QString kGeometry = QStringLiteral("Geometry");

std::unique_ptr<SettingsKey> WindowKey() {
    return SettingsKey::Open(SettingsKey::Hive::CurrentUser, QLatin1String(kWindowKey));
}

}  // namespace

MainWindow::MainWindow() : frame_(new Maincontrol(this)) {
    setObjectName(QStringLiteral("MainWindow"));
    setCentralWidget(frame_);
    setMinimumSize(640, 420);
    resize(1180, 760);
    RestorePlace();
    connect(&frame_->Shell(), &UserControl1::DocumentOpened, this, &MainWindow::ShowTitle);
    ShowTitle();
}

void MainWindow::Open(const QString& path) {
    frame_->Shell().OpenPath(IsWebPath(path) ? path : QFileInfo(path).absoluteFilePath());
}

bool MainWindow::HasDocument() const {
    return !frame_->Shell().m_partfilename.isEmpty();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (const auto key = WindowKey())
        key->SetText(kGeometry, QString::fromLatin1(saveGeometry().toBase64()));
    frame_->Shell().ReleasePanes();  // a search would go on without a window
    QMainWindow::closeEvent(event);
}

void MainWindow::ShowTitle() {
    const QString title = frame_->Shell().CurrentTitle();
    setWindowTitle(title.isEmpty() ? gAppTitle : title + QStringLiteral(" \u2013 ") + gAppTitle);
}

void MainWindow::RestorePlace() {
    if (const auto key = WindowKey())
        restoreGeometry(
            QByteArray::fromBase64(key->Text(kGeometry).value_or(QString()).toLatin1()));
}

}  // namespace docbench
