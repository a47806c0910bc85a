#include "editors/pendinguploads.h"

#include <QSet>

#include "services/webcopies.h"

namespace docbench {
namespace {

QSet<QString> gPendingUploads;

}  // namespace

bool IsUploadPending(const QString& document) {
    return gPendingUploads.contains(document);
}

void ForgetGivenUpCopies() {
    // A document may have been opened as the local copy itself.
    gPendingUploads.removeIf([](const QString& document) {
        QString address;
        return !gWebCopies.contains(document) && !FindUrlOfCopy(document, address);
    });
}

bool UploadSaved(const QString& document, const QString& address) {
    gPendingUploads.insert(document);
    if (!UploadIfWeb(address))
        return false;
    gPendingUploads.remove(document);
    return true;
}

}  // namespace docbench
