// A tree of cells whose nodes are edited in place: the view of the editors.
#pragma once

#include <QPointer>
#include <QTreeView>
#include <functional>
#include <memory>
#include <optional>

#include "cells/celltree.h"

class QLineEdit;

namespace docbench {

class EditTree : public QTreeView {
    Q_OBJECT

public:
    explicit EditTree(QWidget* parent = nullptr);
    ~EditTree() override;

    CellTree& Tree() { return *tree_; }
    int SelectedNode() const;  // 0: none

    // The text that the editing of a node begins with, whatever the node shows; none for a node
    // that can't be edited.
    void SetTextToEdit(std::function<std::optional<QString>(int node)> textToEdit);
    // Selects the node and opens the edit box on it, with `text` in place of what it begins with.
    // Nothing happens on a node that can't be edited.
    void BeginEdit(int node, const std::optional<QString>& text = std::nullopt);

Q_SIGNALS:
    // The edit box has been closed with a text, by Enter or by leaving it. The node shows what it
    // did before.
    void EditEnded(int node, const QString& typed);
    void DeletePressed(int node);               // the key
    void Opened(int node);                      // double click or Enter
    void MenuRequested(QPoint globalPosition);  // right button released, or the menu key

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    class Model;
    class Delegate;
    struct Typed {
        int node;
        QString text;
    };

    std::unique_ptr<CellTree> tree_;
    std::function<std::optional<QString>(int)> textToEdit_;
    QPointer<QLineEdit> editor_;
    std::optional<Typed> typed_;  // committed by the edit box that is being closed
};

}  // namespace docbench
