// The where-used pane on screen over folders that a test fills.
#pragma once

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <memory>

#include "panes/celllistview.h"
#include "panes/listmenu.h"
#include "services/language.h"
#include "services/scratch.h"
#include "services/settingsstore.h"
#include "services/texts.h"
#include "services/webdocument.h"
#include "tests/shell/shellbench.h"
#include "tests/support/fakefinder.h"
#include "tests/support/fakeoutside.h"
#include "tests/support/fakespreadsheet.h"
#include "tests/support/fakewebclient.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testlibrary.h"
#include "whereused/whereused.h"

namespace docbench {

// The pane on screen over folders that a test fills.
struct WhereUsedBench {
    WhereUsedBench() {
        LoadResources();
        PrepareScratch();
        pane = std::make_unique<whereUsed>();
        pane->SetStatusBarControl(&status);
        pane->resize(760, 520);
        pane->show();
        pane->activateWindow();
        if (!QTest::qWaitForWindowActive(pane.get()))
            qFatal("no active window");
        root = library.Folder();
    }
    template <typename T = QWidget>
    T* Child(const char* name) {
        T* child = pane->findChild<T*>(QLatin1String(name));
        if (!child)
            qFatal("no %s", name);
        return child;
    }
    QLineEdit* Name() { return Child<QLineEdit>("wuName"); }
    QLineEdit* LookIn() { return Child<QLineEdit>("wuLookin"); }
    QPushButton* Find() { return Child<QPushButton>("wuFindNow"); }
    QPushButton* Stop() { return Child<QPushButton>("wuStop"); }
    CellListView* List() { return Child<CellListView>("whereList"); }
    QListView* Drop() { return Child<QListView>("List1"); }
    QCheckBox* Box(const char* name) { return Child<QCheckBox>(name); }
    const CellRow& Row(int row) { return List()->List().At(row); }
    void Add(const QString& folder, const QString& document, const QString& reference,
             bool inContext = false) {
        access.folders.rows[folder].append({.referenceIndex = 0,
                                            .inContext = inContext,
                                            .reference = reference,
                                            .document = document,
                                            .stamp = {}});
    }
    void Search(const QString& name = "gear") {
        Name()->setText(name);
        if (LookIn()->text().isEmpty())
            LookIn()->setText(root);
        QTest::mouseClick(Find(), Qt::LeftButton);
    }
    QString Sub(const QString& name) {
        const QString folder = root + '/' + name;
        QDir().mkpath(folder);
        return folder;
    }

    TestLibrary library;
    FakeFinderAccess access;
    TestDialogs dialogs;
    FakeStatusLine status;
    std::unique_ptr<whereUsed> pane;
    QString root;
};

}  // namespace docbench
