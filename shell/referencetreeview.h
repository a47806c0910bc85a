// The view of the reference tree: tells of the nodes and mouse buttons that the user picks.
#pragma once

#include <QTreeView>

namespace docbench {

class CellTree;

class ReferenceTreeView : public QTreeView {
    Q_OBJECT

public:
    explicit ReferenceTreeView(QWidget* parent = nullptr);

    void SetTree(CellTree* tree);
    int SelectedNode() const;  // 0: none
    // Selects as the program does it: no NodeClick comes of it. Makes the node visible.
    void SelectNode(int node);
    void ShowNode(int node);  // opens the nodes above it
    void ExpandNode(int node);

Q_SIGNALS:
    void MousePressed(Qt::MouseButton button);  // before the node click that may come of it
    void NodeClick(int node);                   // picked by mouse or keyboard, also once more
    void PickedByKey(int node);  // behind the NodeClick: no MouseReleased will follow
    void MouseReleased(Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
                       QPoint globalPosition);
    void MenuKeyPressed(QPoint globalPosition);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;

private:
    void Pick(const QModelIndex& index);

    CellTree* tree_ = nullptr;
    bool programSelects_ = false;
    bool keyPressed_ = false;     // the event under way is a key's
    bool pickedByPress_ = false;  // the press under way has already told of a node
};

}  // namespace docbench
