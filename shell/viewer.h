// The optional 3D viewer: whether there is one, and whether the user wants it.
#pragma once

#include <QString>

namespace docbench {

inline constexpr char kViewerProgramId[] = "VistaModelView.VistaModelViewControl.6";
inline constexpr char kUseViewerValue[] = "Use Vistamodel Viewer";  // of the key kExtReferencesKey

extern bool gViewerChecked;
extern bool gViewerPresent;
extern bool UseViewer;  // false while no viewer is known of

// Tries once per process to make a viewer; later calls repeat the answer. Without one, UseViewer
// becomes false.
bool IsViewerAvailable();

// Takes UseViewer from the settings; a missing value means yes. Leaves it alone without a viewer.
void ReadUseViewer();

}  // namespace docbench
