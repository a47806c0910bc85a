#include "platform/helpwindow.h"

#include <QFileInfo>

#include "platform/helpbrowser.h"
#include "services/dialogs.h"
#include "services/language.h"
#include "services/seams.h"

namespace docbench {
namespace {

QString FolderOfPages(const QString& helpFile) {
    const QFileInfo info(helpFile);
    const bool compiled = info.suffix().compare(QLatin1String("chm"), Qt::CaseInsensitive) == 0;
    return compiled ? info.path() + QStringLiteral("/help") : info.path();
}

bool IsCompiled(const QString& helpFile) {
    return FolderOfPages(helpFile) != QFileInfo(helpFile).path();
}

void ReportMissing(const QString& helpFile) {
    gSeams.dialogs->Box(
        HelpBrowser::tr("The help file %1 can't be found. Please check the installation.")
            .arg(helpFile),
        Dialogs::Icon::Exclamation, gAppTitle);
}

}  // namespace

HelpWindow::~HelpWindow() {
    delete window_;
}

bool HelpWindow::Has(const QString& helpFile) const {
    return QFileInfo(IsCompiled(helpFile)
                         ? FolderOfPages(helpFile) + QStringLiteral("/contents.html")
                         : helpFile)
        .isFile();
}

void HelpWindow::Open(const QString& helpFile, const QString& topic) {
    if (!Has(helpFile))
        return ReportMissing(helpFile);
    HelpPages pages(FolderOfPages(helpFile));
    const QString page = IsCompiled(helpFile) ? pages.PageOf(topic.section(u'#', 0, 0))
                                              : QFileInfo(helpFile).absoluteFilePath();
    if (!window_)
        window_ = new HelpBrowser;
    window_->SetPages(std::move(pages));
    window_->ShowPage(page, topic.section(u'#', 1));
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
