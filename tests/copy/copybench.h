// The copy pane on screen, with a small project, for its tests.
#pragma once

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "copy/copylist.h"
#include "copy/copyref.h"
#include "copy/editdialog.h"
#include "copy/parentlist.h"
#include "panes/celllistview.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/texts.h"
#include "tests/support/fakepane.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testlibrary.h"

namespace docbench {

// top -> left -> pin, top -> sub/right -> pin; whole -> top, and a drawing of top.
struct CopyBench {
    CopyBench() {
        LoadResources();
        pin = library.Make("pin.tfmprt");
        left = library.Make("left.tfmasm", {{pin}});
        right = library.Make("sub/right.tfmasm", {{pin}});
        top = library.Make("top.tfmasm", {{left}, {right}});
        whole = library.Make("whole.tfmasm", {{top}});
        drawing = library.Make("top.tfmdrw", {{top}});
        folder = library.Path("new");
        QDir().mkpath(folder + "/sub");
        pane = new copyRef;
        pane->SetStatusBarControl(&status);
        pane->resize(700, 520);
        pane->show();
        if (!QTest::qWaitForWindowActive(pane))
            qFatal("no active window");
    }
    ~CopyBench() { delete pane; }

    // The document with its references, going to the folder as "x_NAME".
    void Load() {
        pane->SetPartName("top", top, top);
        Check("children");
        Line("targetPath")->setText(folder);
        Line("prefix")->setText("x_");
    }
    template <typename T = QWidget>
    T* Child(const char* name) {
        T* child = pane->findChild<T*>(QLatin1String(name));
        if (!child)
            qFatal("no %s", name);
        return child;
    }
    QLineEdit* Line(const char* name) { return Child<QLineEdit>(name); }
    QPushButton* Button(const char* name) { return Child<QPushButton>(name); }
    void Check(const char* name, bool ticked = true) { Child<QCheckBox>(name)->setChecked(ticked); }
    void Click(const char* name) { Button(name)->click(); }
    void Key(const char* name, Qt::Key key) { QTest::keyClick(Line(name), key); }
    CellListView* View(int index) { return Child<CellListView>(index == 0 ? "lv_0" : "lv_1"); }
    CellList& List(int index) { return View(index)->List(); }
    const Cell& Target(int row) { return List(0).At(row).cells[kCopyTarget]; }
    void ClickTick(int index, int row) {
        CellList& list = List(index);
        const auto state = list.At(row).ticked ? Qt::Unchecked : Qt::Checked;
        list.setData(list.index(row, 0), state, Qt::CheckStateRole);
    }
    bool IsEnabled(const char* name) { return Child(name)->isEnabled(); }
    bool IsShown(const char* name) { return !Child(name)->isHidden(); }
    QString FirstPathIn(const QString& holder) {
        const auto file = gSeams.documents->MakeDocumentFile();
        file->Open(holder);
        return file->GetComponent(0, {}).path;
    }
    // Is run in the next modal form, which it has to close.
    template <typename Form>
    void InForm(std::function<void(Form*)> act) {
        QTimer::singleShot(0, pane, [act = std::move(act)] {
            auto* form = qobject_cast<Form*>(QApplication::activeModalWidget());
            if (!form)
                qFatal("no form");
            act(form);
        });
    }

    TestLibrary library;
    TestDialogs dialogs;
    FakeStatusLine status;
    QString pin, left, right, top, whole, drawing, folder;
    QPointer<copyRef> pane;
};

}  // namespace docbench
