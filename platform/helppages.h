// The pages of the help: what they are called, in which order they stand, and where words occur.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace docbench {

struct HelpPage {
    QString file;  // absolute path
    QString title;
    QStringList keywords;
    QString text;   // what a reader sees, for the search
    int depth = 0;  // in the contents, from 0
};

class HelpPages {
public:
    // Reads the folder's contents page ("contents.html": nested lists of links) and every page that
    // it links to. Pages that are not there are left out; no folder gives no pages.
    explicit HelpPages(const QString& folder);

    const QString& Contents() const { return contents_; }          // path of the contents page
    const std::vector<HelpPage>& Pages() const { return pages_; }  // in the order of the contents

    // The page of a topic: the one with that file name, less its extension, or else the first with
    // that keyword; the contents page when there is none.
    QString PageOf(const QString& topic) const;

    // The pages that hold all words of a question, whatever their case, as positions: first those
    // with the words in title or keywords. Nothing for an empty question.
    std::vector<int> Search(const QString& question) const;

private:
    QString contents_;
    std::vector<HelpPage> pages_;
};

}  // namespace docbench
