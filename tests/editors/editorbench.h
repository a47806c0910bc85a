// A tree editor on screen with a library of its own, and its tree through real keys and clicks.
#pragma once

#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QUrl>

#include "docmodel/builder.h"
#include "docmodel/package.h"
#include "editors/edittree.h"
#include "services/language.h"
#include "services/scratch.h"
#include "services/seams.h"
#include "services/texts.h"
#include "tests/support/fakepane.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testlibrary.h"

namespace docbench {

template <typename EditorPane>
struct EditorBench {
    explicit EditorBench(const char* tree) : treeName(QLatin1String(tree)) {
        LoadResources();
        PrepareScratch();  // for local copies of web documents
        pane = std::make_unique<EditorPane>();
        pane->SetStatusBarControl(&status);
        pane->resize(600, 400);
        pane->show();
        if (!QTest::qWaitForWindowActive(pane.get()))
            qFatal("no active window");
    }
    template <typename T>
    T* Child(const QString& name) {
        T* child = pane->template findChild<T*>(name);
        if (!child)
            qFatal("no %s", qPrintable(name));
        return child;
    }
    EditTree* View() { return Child<EditTree>(treeName); }
    CellTree& Tree() { return View()->Tree(); }
    const CellNode& Node(int node) { return Tree().Nodes().At(node); }
    // The shown texts in order, without the root's.
    QStringList Texts() {
        QStringList texts;
        for (int node = 2; node <= Tree().Count(); ++node)
            texts.append(Node(node).text);
        return texts;
    }
    QPushButton* SaveButton() { return Child<QPushButton>(QStringLiteral("ecSave")); }
    QPushButton* ResetButton() { return Child<QPushButton>(QStringLiteral("ecReset")); }
    bool CanSave() { return SaveButton()->isEnabled(); }
    QPoint CentreOf(int node) { return View()->visualRect(Tree().IndexOf(node)).center(); }

    QLineEdit* EditBox() {
        return View()->template findChild<QLineEdit*>(QStringLiteral("labelEdit"));
    }
    // Opens the edit box by the keyboard; null when the node can't be edited.
    QLineEdit* BeginEdit(int node) {
        View()->setFocus();
        View()->setCurrentIndex(Tree().IndexOf(node));
        QTest::keyClick(View(), Qt::Key_F2);
        return EditBox();
    }
    void Type(int node, const QString& text) {
        QLineEdit* box = BeginEdit(node);
        if (!box)
            qFatal("node %d can't be edited", node);
        box->setText(text);
        QTest::keyClick(box, Qt::Key_Return);
        Settle();
    }
    // Enter closes the edit box from the event loop, and it goes away there.
    static void Settle() {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();  // the message of a refused name
    }
    void PressDelete(int node) {
        View()->setFocus();
        View()->setCurrentIndex(Tree().IndexOf(node));
        QTest::keyClick(View(), Qt::Key_Delete);
    }
    // Whether the tree takes what is dragged.
    bool Drop(const QMimeData& data, QPoint where) {
        QDragEnterEvent enter(where, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(View()->viewport(), &enter);
        QDropEvent drop(where, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(View()->viewport(), &drop);
        return enter.isAccepted();
    }
    bool Drop(int node, const QStringList& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        return Drop(data, CentreOf(node));
    }
    void Save() { QTest::mouseClick(SaveButton(), Qt::LeftButton); }
    void Reset() { QTest::mouseClick(ResetButton(), Qt::LeftButton); }
    bool ShowsOldFormat() {
        const auto* label = Child<QLabel>(QStringLiteral("Labelnon2000"));
        return label->isVisible() && label->text() == gStrings[146] &&
               Child<QWidget>(QStringLiteral("editBox1"))->isHidden();
    }

    TestLibrary library;
    TestDialogs dialogs;
    FakeStatusLine status;
    QString treeName;
    std::unique_ptr<EditorPane> pane;
};

// A document in the format before the tables.
inline QString MakeOldDocument(const TestLibrary& library, const QString& name) {
    QString path = library.Path(name);
    docmodel::PackageWriter::Create(
        path,
        {{"docmodel/document.xml",
          "<document xmlns='http://schemas.tessaforma.com/docmodel/2004/document' version='0'/>"}},
        true);
    return path;
}

}  // namespace docbench
