#include "platform/helpwindow.h"

#include <QFileInfo>
#include <QTextBrowser>
#include <QUrl>

#include "services/dialogs.h"
#include "services/language.h"
#include "services/seams.h"

namespace docbench {
namespace {

constexpr int kWidth = 820;
constexpr int kHeight = 640;

// The pages of a help file that is known by the name of its compiled form stand beside it.
QString PageOf(const QString& helpFile) {
    const QFileInfo info(helpFile);
    const QString page = info.path() + u'/' + info.completeBaseName() + QStringLiteral(".html");
    const bool compiled = info.suffix().compare(QLatin1String("chm"), Qt::CaseInsensitive) == 0;
    return compiled && QFileInfo(page).isFile() ? page : helpFile;
}

void ReportMissing(const QString& helpFile) {
    gSeams.dialogs->Box(QStringLiteral("The help file %1 can't be found. Please check the "
                                       "installation.")
                            .arg(helpFile),
                        Dialogs::Icon::Exclamation, gAppTitle);
}

QTextBrowser* MakeWindow() {
    auto* browser = new QTextBrowser;
    browser->setObjectName(QStringLiteral("HelpWindow"));
    browser->setAttribute(Qt::WA_DeleteOnClose);
    browser->setAttribute(Qt::WA_QuitOnClose, false);  // it ends with the program, not the reverse
    browser->setOpenExternalLinks(true);
    browser->resize(kWidth, kHeight);
    return browser;
}

}  // namespace

HelpWindow::~HelpWindow() {
    delete window_;
}

bool HelpWindow::Has(const QString& helpFile) const {
    return QFileInfo(PageOf(helpFile)).isFile();
}

void HelpWindow::Open(const QString& helpFile) {
    if (!Has(helpFile))
        return ReportMissing(helpFile);
    const QString page = PageOf(helpFile);
    if (!window_)
        window_ = MakeWindow();
    window_->setSource(QUrl::fromLocalFile(QFileInfo(page).absoluteFilePath()),
                       QTextDocument::HtmlResource);
    const QString title = window_->documentTitle();
    window_->setWindowTitle(title.isEmpty() ? QFileInfo(page).completeBaseName() : title);
    window_->show();
    window_->raise();
    window_->activateWindow();
}

bool HelpWindow::IsOpen() const {
    return window_ && window_->isVisible();
}

void HelpWindow::Close() {
    if (window_)
        window_->close();
}

}  // namespace docbench
