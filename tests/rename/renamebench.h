// The rename pane on screen for a part of a small project, for its tests.
#pragma once

#include <QAction>
#include <QCheckBox>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <memory>

#include "panes/celllistview.h"
#include "rename/renamelist.h"
#include "rename/renameref.h"
#include "services/language.h"
#include "services/seams.h"
#include "services/texts.h"
#include "tests/shell/shellbench.h"
#include "tests/support/failingaccess.h"
#include "tests/support/fakespreadsheet.h"
#include "tests/support/filelockholder.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testlibrary.h"

namespace docbench {

// The pane on screen for a part of a small project: top -> left -> pin, right -> pin.
struct RenameBench {
    RenameBench() {
        LoadResources();
        pin = library.Make("pin.tfmprt");
        left = library.Make("left.tfmasm", {{pin}});
        right = library.Make("right.tfmasm", {{pin, 2}});
        top = library.Make("top.tfmasm", {{left}, {right}});
        pane = std::make_unique<renameRef>();
        pane->SetStatusBarControl(&status);
        pane->resize(700, 520);
        pane->show();
        if (!QTest::qWaitForWindowActive(pane.get()))
            qFatal("no active window");
    }
    void Load(bool replaces = false) {
        pane->SetPartName("pin", pin, QStringList({pin, left, top}).join(';'), replaces);
    }
    template <typename T = QWidget>
    T* Child(const char* name) {
        T* child = pane->findChild<T*>(QLatin1String(name));
        if (!child)
            qFatal("no %s", name);
        return child;
    }
    QLineEdit* NewName() { return Child<QLineEdit>("newname"); }
    QPushButton* Button(const char* name) { return Child<QPushButton>(name); }
    CellListView* List() { return Child<CellListView>("lv"); }
    const CellRow& Row(int row) { return List()->List().At(row); }
    void Find() { QTest::mouseClick(Button("Findnow"), Qt::LeftButton); }
    void Apply() { QTest::mouseClick(Button("apply"), Qt::LeftButton); }
    void Type(const QString& name) { NewName()->setText(name); }
    QString PathIn(const QString& holder) {
        const auto file = gSeams.documents->MakeDocumentFile();
        file->Open(holder);
        return file->GetComponent(0, QString()).path;
    }
    void ClickTick(int row) {
        CellList& list = List()->List();
        const auto state = list.At(row).ticked ? Qt::Unchecked : Qt::Checked;
        list.setData(list.index(row, 0), state, Qt::CheckStateRole);
    }

    TestLibrary library;
    TestDialogs dialogs;
    FakeStatusLine status;
    QString pin, left, right, top;
    std::unique_ptr<renameRef> pane;
};

}  // namespace docbench
