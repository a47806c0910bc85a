// The window of the help: contents and search on the left, a page on the right.
#pragma once

#include <QWidget>

#include "platform/helppages.h"

class QLineEdit;
class QTextBrowser;
class QTreeWidget;

namespace docbench {

class HelpBrowser : public QWidget {
    Q_OBJECT

public:
    HelpBrowser();

    void SetPages(HelpPages pages);
    void ShowPage(const QString& file, const QString& section = {});

private:
    void MakeTools(class QLayout& tools);
    void MakeShortcuts();
    void ListContents();
    // The pages that the question finds, or the contents for an empty one.
    void ListFound(const QString& question);
    void ListHits(const QString& question);
    // The page on the right has changed; the browser itself does not yet know its new source then.
    void Follow(const QUrl& page);

    HelpPages pages_;
    QLineEdit* search_;
    QTreeWidget* list_;  // the contents, or what the search has found
    QTextBrowser* page_;
};

}  // namespace docbench
