#include "shell/pathcombo.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>

namespace docbench {

PathCombo::PathCombo(QWidget* parent) : QComboBox(parent) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setDuplicatesEnabled(true);
    setCompleter(nullptr);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    // A text that equals an entry is still a typed one: the combo's own reaction to the end of
    // editing would report it as picked, a second time.
    lineEdit()->disconnect(SIGNAL(editingFinished()), this);
    connect(this, &QComboBox::textActivated, this, &PathCombo::Chosen);
}

void PathCombo::InsertFirst(const QString& path) {
    const QString shown = currentText();
    insertItem(0, path);
    setEditText(shown);
}

void PathCombo::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT Entered(currentText());
        event->accept();
        return;
    }
    QComboBox::keyPressEvent(event);
}

// The wheel would open one document after the other on its way through the list.
void PathCombo::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

}  // namespace docbench
