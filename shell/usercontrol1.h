// The document pane shell: the open document, its reference tree, and the pane that shows it.
#pragma once

#include <QMap>
#include <QPointer>
#include <QVariantMap>
#include <QWidget>
#include <array>
#include <memory>

#include "shell/export.h"
#include "shell/pane.h"
#include "shell/panetable.h"

class QAction;
class QMenu;

namespace Ui {
class UserControl1;
}

namespace docbench {

class ReferenceTree;

class DOCBENCH_EXPORT UserControl1 : public QWidget {
    Q_OBJECT
    // What a host saves; statusText is read only for it but is kept all the same.
    Q_PROPERTY(QString Caption READ Caption WRITE PutCaption)
    Q_PROPERTY(QString partfilename READ partfilename WRITE Putpartfilename)
    Q_PROPERTY(QString Function READ CurrentFunction WRITE PutCurrentFunction)
    Q_PROPERTY(QString statusText READ statusText)

public:
    explicit UserControl1(QWidget* parent = nullptr);
    ~UserControl1() override;

    // Shows the pane of `request` for the document at `path`, whose title is `partName`. A code
    // that is no pane's shows Label1. Does not change CurrentFunction.
    void showResult(const QString& request, const QString& path, const QString& partName);
    // Entry point of all commands: a pane code becomes the CurrentFunction and shows its pane, an
    // action code acts.
    void SetCurrentFunction(const QString& request);

    QString Caption() const { return caption_; }
    void PutCaption(const QString& caption) { caption_ = caption; }
    QString partfilename();  // also writes it into the path box
    void Putpartfilename(const QString& path) { m_partfilename = path; }
    QString CurrentFunction() const { return currentFunction_; }
    void PutCurrentFunction(const QString& function) { currentFunction_ = function; }
    QString statusText() const { return statusText_; }

    QString m_partfilename;     // path or address of the current document; empty when there is none
    bool ShiftPressed = false;  // tree nodes are marked for locking as a group

    // The object whose property "Caption" is the status line; null for none.
    void StatusBar(QObject* statusBar);
    // Reads whether the selected document is locked; an empty value when its record can't be opened
    // or nothing is selected.
    QVariant GetLockState();

    // Beyond the fixed members.

    // The four properties under the keys that a host saves them with.
    void ReadProperties(const QVariantMap& saved);
    QVariantMap WriteProperties();
    // Opens the document at a path or address as if it had been typed into the path box. Anything
    // that is no document is ignored.
    void OpenPath(const QString& path);
    // Stops what panes are running, as the end of the control does.
    void ReleasePanes();
    // Takes the pane for `id` into the control, in place of the one that it had.
    void AddPane(PaneId id, Pane* pane);
    // Opens the help window on the page of the pane on screen.
    void ShowHelpTopic();
    QString CurrentTitle() const { return currentTitle; }
    ReferenceTree& Tree() { return *tree_; }

Q_SIGNALS:
    void DocumentOpened();  // another document, or none after a failure, is the root of the tree

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void SetCaptions();
    void MakeMenu();
    void ConnectTree();
    void ConnectWaysIn();

    Pane* PaneOf(PaneId id) const { return panes_[size_t(id)]; }  // null if it was never shown
    Pane* WantedPane(PaneId id);
    void ShowPane(const PaneCommand& command, const QString& path, const QString& partName);
    void PassStatusBar(QObject* statusBar);
    bool ShowDesc() const;

    void OpenDocument(const QString& path);
    void Browse();
    void OpenFromWebFolder();
    void OpenAndList(const QString& path);  // typed or dropped
    bool RefusesPassword(const QString& path);
    void LeaveFileOperation();
    void LoadTree(const QString& path);
    void RefreshTree(const QString& newfilename);

    void NodeClick(int node);
    void MouseUp(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, QPoint globalPosition);
    void ReadLock(int node);
    void ShowMenu(QPoint globalPosition);
    void ReplaceSelected();
    void OpenSelected();
    void LockSelected(bool wantLocked);
    void LockBelowSelected(bool wantLocked);
    void EnableEditors(bool hyperlinks, bool configurations);

    void SetStatusText(const QString& text);

    std::unique_ptr<Ui::UserControl1> ui_;
    std::unique_ptr<ReferenceTree> tree_;
    std::array<QPointer<Pane>, kPaneCount> panes_;
    QMap<PaneId, bool>
        enabled_;  // what editors were told last, for those that are still to be made

    QMenu* mnEdit = nullptr;
    QAction* mnopen = nullptr;
    QAction* mnReplace = nullptr;
    QAction* mnrename = nullptr;
    QAction* mncopy = nullptr;

    QString caption_;
    QString currentFunction_;
    QString statusText_;
    QString currentTitle;  // of the current document: its file name without extension
    QPointer<QObject> statusBarTarget;
    QString treeChainList;         // documents above the selected node, for rename, replace, copy
    bool leftClickPending = true;  // the last button pressed on the tree was not the right one
};

}  // namespace docbench
