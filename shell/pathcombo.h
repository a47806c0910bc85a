// The path box: a text to type a path into, and the list of paths that were opened.
#pragma once

#include <QComboBox>

namespace docbench {

class PathCombo : public QComboBox {
    Q_OBJECT

public:
    explicit PathCombo(QWidget* parent = nullptr);

    void InsertFirst(const QString& path);  // duplicates are kept

Q_SIGNALS:
    void Entered(const QString& text);  // the Enter key was pressed in the text
    void Chosen(const QString& text);   // an entry was picked from the list

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};

}  // namespace docbench
