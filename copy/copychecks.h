// What is looked at, and asked, before a copy begins.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <functional>

#include "cells/celllist.h"

namespace docbench {

struct CopyChecks {
    QString source;
    QString target;
    CellList& copies;
    CellList& parents;
    QHash<QString, QString>& replacedFiles;  // gets the files chosen in place of missing ones
    // Shows a question with a button for each caption; the index of the one pressed, -1 for none.
    std::function<int(const QString& question, const QStringList& buttons)> ask;
    // False: the lists are gone, behind one of the boxes.
    std::function<bool()> there = [] { return true; };
    // False: nobody is asked about missing folders, which the copy makes as it comes to them.
    bool makesFolders = true;
};

// What refused a copy wants of the field with the target.
enum class CheckOutcome { Ok, Refused, RefusedTarget, RefusedTargetType };

// Boxes say why a copy is refused. Missing folders may have been made, missing documents replaced,
// and a parent refused.
CheckOutcome CheckBeforeCopy(const CopyChecks& checks);

// The filter of a file dialog for documents of the type of `path`.
const QString& FilterFor(const QString& path);

}  // namespace docbench
