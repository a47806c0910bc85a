// The document pane shell on screen, with a small library, for its tests.
#pragma once

#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>
#include <QUrl>

#include "shell/referencetree.h"
#include "shell/referencetreeview.h"
#include "shell/usercontrol1.h"
#include "tests/support/fakepane.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testlibrary.h"

namespace docbench {

// A shell on screen with a document of its own: top(1) -> left(2) -> pin(3), top -> lost(4,
// missing).
struct ShellBench {
    ShellBench() {
        shell.StatusBar(&status);
        shell.resize(800, 500);
        shell.show();
        pin = library.Make(QStringLiteral("pin.tfmprt"));
        left = library.Make(QStringLiteral("left.tfmasm"), {{pin}});
        lost = library.Path(QStringLiteral("lost.tfmprt"));
        top = library.Make(QStringLiteral("top.tfmasm"), {{left}, {lost}});
    }

    FakePane* Add(PaneId id, const QString& name = QStringLiteral("pane")) {
        auto* pane = new FakePane;
        pane->setObjectName(name);
        shell.AddPane(id, pane);
        return pane;
    }
    template <typename T>
    T* Child(const char* name) {
        T* child = shell.findChild<T*>(QLatin1String(name));
        if (!child)
            qFatal("no %s", name);
        return child;
    }
    ReferenceTreeView* Tree() { return Child<ReferenceTreeView>("tvw"); }
    QComboBox* PathBox() { return Child<QComboBox>("filepathCombo"); }
    void Open() { shell.OpenPath(top); }
    void Click(int node, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        Tree()->expandAll();
        const QRect where = Tree()->visualRect(shell.Tree().Model().IndexOf(node));
        QTest::mouseClick(Tree()->viewport(), button, modifiers, where.center());
    }
    void Type(const QString& path) {
        PathBox()->lineEdit()->setText(path);
        QTest::keyClick(PathBox(), Qt::Key_Return);
    }
    QString Heading() { return Child<QLabel>("LabelInfo")->text(); }
    bool ShowsLabel() { return !Child<QLabel>("Label1")->isHidden(); }

    TestLibrary library;
    TestDialogs dialogs;
    FakeStatusLine status;
    UserControl1 shell;
    QString top, left, pin, lost;
};

inline void Drop(QWidget* target, QMimeData& data) {
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &drop);
    QCoreApplication::processEvents();  // documents are opened behind the drop
}

inline void DropFiles(QWidget* target, const QStringList& paths) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths)
        urls.append(QUrl::fromLocalFile(path));
    data.setUrls(urls);
    Drop(target, data);
}

}  // namespace docbench
