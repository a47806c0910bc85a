// The walk of a document search: looks at the documents of folders and tells those that satisfy a
// query.
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <functional>

#include "services/docaccess.h"

namespace docbench {

// The entries of a text of folders, with its named lists resolved, each once.
QStringList SearchEntries(const QString& text);

class DocumentSearch {
public:
    // What a search asks of whoever runs it, and tells. All must be given.
    struct Calls {
        std::function<void()> yield;     // once for each folder and once for each file
        std::function<bool()> stopped;   // asked after each yield
        std::function<bool()> descends;  // into the subfolders of the folder just looked at
        std::function<void(const QString& folder)> entering;
        std::function<bool(const QString& path)> isListed;  // then it is not looked at again
        std::function<void(const QString& path)> found;
        std::function<void(const SearchCounts& counts)> progress;  // after each document
    };

    DocumentSearch(PropertyQuery& query, Calls calls) : query_(query), calls_(std::move(calls)) {}

    // Looks into the entries one by one: files by their names, a folder before its subfolders. An
    // entry that is no folder stands for the one before it. Raises nothing of its own; what can't
    // be read is counted.
    void Run(const QStringList& entries);
    int Found() const { return found_; }

private:
    void SearchTree(const QString& folder);
    QStringList SearchFolder(const QString& folder);  // gives the subfolders to go into
    bool SearchFiles(const QString& folder, const QStringList& names);  // false when stopped
    void TellProgress();
    void Announce(const QString& folder, const QStringList& names);
    bool IsCandidate(const QString& name, const QString& path) const;

    PropertyQuery& query_;
    const Calls calls_;
    QSet<QString> visited_;  // folders of this entry, by their canonical paths
    int unlisted_ = 0;       // folders that can't be listed
    int found_ = 0;
};

}  // namespace docbench
