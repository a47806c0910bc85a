#include "editors/edittree.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QStyledItemDelegate>
#include <QUrl>
#include <limits>
#include <utility>

#include "editors/pendingtext.h"
#include "shell/picturestore.h"

namespace docbench {
namespace {

// The first file of what is dragged; empty when there is none.
QString FileIn(const QMimeData& data) {
    for (const QUrl& url : data.urls())
        if (url.isLocalFile())
            return url.toLocalFile();
    return {};
}

}  // namespace

// The tags are the program's own and no tool tips.
class EditTree::Model : public CellTree {
public:
    explicit Model(EditTree& view) : view_(view) {}
    Qt::ItemFlags flags(const QModelIndex& index) const override {
        const bool editable = index.isValid() && view_.textToEdit_(NodeOf(index)).has_value();
        return CellTree::flags(index) | (editable ? Qt::ItemIsEditable : Qt::NoItemFlags);
    }
    QVariant data(const QModelIndex& index, int role) const override {
        return CellTree::data(index, role == Qt::ToolTipRole ? Qt::DisplayRole : role);
    }

private:
    EditTree& view_;
};

class EditTree::Delegate : public QStyledItemDelegate {
public:
    explicit Delegate(EditTree& view) : QStyledItemDelegate(&view), view_(view) {}
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&,
                          const QModelIndex& index) const override {
        auto* box = new QLineEdit(parent);
        box->setObjectName(QStringLiteral("labelEdit"));
        box->setMaxLength(std::numeric_limits<int>::max());
        box->setText(view_.textToEdit_(view_.tree_->NodeOf(index)).value_or(QString()));
        view_.editor_ = box;
        return box;
    }
    // Once is enough: a change of the node's text must not undo what is being typed.
    void setEditorData(QWidget*, const QModelIndex&) const override {}
    // What becomes of it is decided when the box is closed. A message that came up before would
    // take the focus from the box, which would commit it again.
    void setModelData(QWidget* editor, QAbstractItemModel*,
                      const QModelIndex& index) const override {
        view_.typed_ = {view_.tree_->NodeOf(index), static_cast<QLineEdit*>(editor)->text()};
    }

private:
    EditTree& view_;
};

EditTree::EditTree(QWidget* parent)
    : QTreeView(parent),
      tree_(std::make_unique<Model>(*this)),
      textToEdit_([](int) { return std::optional<QString>(); }) {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setTextElideMode(Qt::ElideMiddle);
    setEditTriggers(SelectedClicked | EditKeyPressed);
    setAcceptDrops(true);
    tree_->SetPictures(PictureOf);
    setModel(tree_.get());
    setItemDelegate(new Delegate(*this));
    connect(this, &QTreeView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT Opened(tree_->NodeOf(index)); });
}

EditTree::~EditTree() = default;

int EditTree::SelectedNode() const {
    const QModelIndex current = currentIndex();
    return selectionModel()->isSelected(current) ? tree_->NodeOf(current) : 0;
}

void EditTree::SetTextToEdit(std::function<std::optional<QString>(int)> textToEdit) {
    textToEdit_ = std::move(textToEdit);
}

void EditTree::BeginEdit(int node, const std::optional<QString>& text) {
    const QModelIndex index = tree_->IndexOf(node);
    setCurrentIndex(index);
    if (!index.isValid() || !textToEdit_(node))
        return;
    edit(index);
    if (text && editor_)
        editor_->setText(*text);
}

// F2 edits the node before it is a shortcut of the window, which would leave the editor. So it does
// nothing on a node that can't be edited, but for the document's.
bool EditTree::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_F2 && SelectedNode() > kDocumentNode)
        event->accept();
    return QTreeView::event(event);
}

// The edit box hands on what it has no use for, such as Enter.
void EditTree::keyPressEvent(QKeyEvent* event) {
    const int node = state() == EditingState ? 0 : SelectedNode();
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (node != 0 && event->key() == Qt::Key_Delete)
        Q_EMIT DeletePressed(node);
    else if (node != 0 && enter)
        Q_EMIT Opened(node);
    else
        QTreeView::keyPressEvent(event);
}

void EditTree::mouseReleaseEvent(QMouseEvent* event) {
    QTreeView::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton)
        Q_EMIT MenuRequested(event->globalPosition().toPoint());
}

// Of the mouse, the release counts and not the press.
void EditTree::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT MenuRequested(viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
}

void EditTree::dragEnterEvent(QDragEnterEvent* event) {
    if (!FileIn(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void EditTree::dragMoveEvent(QDragMoveEvent* event) {
    if (!FileIn(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void EditTree::dropEvent(QDropEvent* event) {
    const QString file = FileIn(*event->mimeData());
    const QModelIndex target = indexAt(event->position().toPoint());
    if (file.isEmpty() || !target.isValid())
        return;
    event->acceptProposedAction();
    activateWindow();
    BeginEdit(tree_->NodeOf(target), file);
}

void EditTree::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint) {
    QTreeView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    if (const std::optional<Typed> typed = std::exchange(typed_, std::nullopt))
        Q_EMIT EditEnded(typed->node, typed->text);
}

}  // namespace docbench
