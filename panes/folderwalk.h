// The walk over folders that all searches share.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace docbench {

// Where a walk lets the event loop run.
enum class WalkYields {
    AtFolders,     // once on entering each folder
    AtSubfolders,  // once for each subfolder listed and once for each one entered
};

struct FolderWalk {
    WalkYields yields = WalkYields::AtSubfolders;
    std::function<void()> yield;
    std::function<bool()> stopped;  // asked before each folder and after each yield
    std::function<void(const QString& folder)>
        entering;  // before a yield on entering; may be empty
    // Searches one folder; gives the subfolders that the walk goes into, in order.
    std::function<QStringList(const QString& folder)> visit;

    // Depth first, a folder before its subfolders. What `visit` raises ends the walk.
    void Run(const QString& folder) const;
};

}  // namespace docbench
