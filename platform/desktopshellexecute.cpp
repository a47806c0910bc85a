#include "platform/desktopshellexecute.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include "services/paths.h"

namespace docbench {
namespace {

// Callers say "0" for what they leave out.
QString Given(const QString& text) {
    return text == QLatin1String("0") ? QString() : text;
}

QUrl UrlOf(const QString& file) {
    QUrl url(file, QUrl::TolerantMode);
    if (url.scheme().size() > 1)  // one letter is a drive
        return url;
    const QString local = QString(file).replace(u'\\', u'/');
    return QUrl::fromLocalFile(QFileInfo(local).absoluteFilePath());
}

}  // namespace

bool DesktopShellExecute::Execute(const QString& verb, const QString& file,
                                  const QString& parameters, const QString& folder, int) {
    const QFileInfo info(file);
    const bool opens =
        verb.isEmpty() || verb.compare(QLatin1String("open"), Qt::CaseInsensitive) == 0;
    // On some disks every file counts as executable: what can't be started is opened all the same.
    if (opens && info.isFile() && info.isExecutable() &&
        QProcess::startDetached(info.absoluteFilePath(), QProcess::splitCommand(Given(parameters)),
                                Given(folder)))
        return true;
    // A program of another system that is given an address is the web browser.
    const QUrl address(Given(parameters));
    if (opens && !info.exists() && address.scheme().startsWith(QLatin1String("http")))
        return QDesktopServices::openUrl(address);
    const QUrl url = UrlOf(file);
    if (url.isLocalFile() && !QFileInfo::exists(url.toLocalFile()))
        return false;
    return QDesktopServices::openUrl(url);
}

bool DesktopShellExecute::StartProgram(const QString& program, const QStringList& arguments) {
    return QProcess::startDetached(program, arguments);
}

}  // namespace docbench
