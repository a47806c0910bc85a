// What the shell asks of every pane, and the status line that panes write to.
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

namespace docbench {

// The document that a pane is handed.
struct PaneDocument {
    QString partName = {};   // title: the file name without extension
    QString path = {};       // path or address; empty when there is no document
    QString treeChain = {};  // all documents above the selected node, joined by ";"
    bool actionReplace = false;
};

class Pane : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    // Shows or hides the description strip.
    virtual void SetShowDesc(bool show) = 0;
    virtual void SetDocument(const PaneDocument& document) = 0;

    virtual void Enable(bool) {}                      // editing, by the document's lock
    virtual void ReloadProperties(const QString&) {}  // the document's record has changed
    virtual void ForgetDocuments() {}                 // another document is about to be opened
    virtual void ReleaseAll() {}  // stops a running search and frees what it holds
    virtual QString HelpTopic() const {
        return {};
    }  // its page in the help, perhaps with "#section"; empty: the contents

    // The object whose property "Caption" shows the pane's status; null for none.
    virtual void SetStatusBarControl(QObject* statusBarControl) {
        statusBarControl_ = statusBarControl;
    }
    QObject* StatusBarControl() const { return statusBarControl_; }
    void SetStatusText(const QString& text);

Q_SIGNALS:
    // The pane has changed documents on disk; `newfilename` is the new path of the one that it
    // shows, or empty.
    void FileUpdated(const QString& newfilename);

private:
    QPointer<QObject> statusBarControl_;
};

// Sets the property "Caption" of a status line. Without one the text is dropped.
void ShowStatus(QObject* statusLine, const QString& text);

}  // namespace docbench
