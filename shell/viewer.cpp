#include "shell/viewer.h"

#include <QObject>

#include "services/errorstate.h"
#include "services/outsideobjects.h"
#include "services/seams.h"
#include "services/settingsstore.h"

namespace docbench {

bool gViewerChecked = false;
bool gViewerPresent = false;
bool UseViewer = false;

bool IsViewerAvailable() {
    if (gViewerChecked)
        return gViewerPresent;
    std::unique_ptr<QObject> viewer;
    if (gSeams.outside)
        ErrorState().Assign(viewer, [] { return gSeams.outside->Create(kViewerProgramId); });
    gViewerPresent = viewer != nullptr;
    if (!gViewerPresent)
        UseViewer = false;
    gViewerChecked = true;
    return gViewerPresent;
}

void ReadUseViewer() {
    if (!IsViewerAvailable())
        return;
    const auto key = SettingsKey::Open(SettingsKey::Hive::CurrentUser, kExtReferencesKey);
    UseViewer = !key || key->Number(kUseViewerValue).value_or(1) != 0;
}

}  // namespace docbench
