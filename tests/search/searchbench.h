// The document search pane on screen over folders that a test fills, for its tests.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <memory>

#include "panes/celllistview.h"
#include "search/searchrules.h"
#include "search/srccontrol.h"
#include "services/language.h"
#include "services/texts.h"
#include "tests/support/fakepane.h"
#include "tests/support/fakequery.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testlibrary.h"

namespace docbench {

struct SearchBench {
    SearchBench() {
        LoadResources();
        pane = std::make_unique<srcControl>();
        pane->SetStatusBarControl(&status);
        pane->resize(760, 560);
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
    QComboBox* Name() { return Child<QComboBox>("srcName"); }
    QComboBox* Operator() { return Child<QComboBox>("srcOP"); }
    QLineEdit* Value() { return Child<QLineEdit>("srcValue"); }
    QLineEdit* LookIn() { return Child<QLineEdit>("srcLookin"); }
    QPushButton* Button(const char* name) { return Child<QPushButton>(name); }
    QPushButton* Start() { return Button("srcStart"); }
    CellListView* Rules() { return Child<CellListView>("searchlist"); }
    CellListView* Results() { return Child<CellListView>("srcResultlist"); }
    void Click(const char* name) { QTest::mouseClick(Button(name), Qt::LeftButton); }

    void Edit(const QString& name, int code, const QString& value) {
        Name()->setEditText(name);
        Value()->clear();
        Operator()->setCurrentIndex(code);
        if (code != kIsYes && code != kIsNo)
            Value()->setText(value);
    }
    void Add(const QString& name, int code, const QString& value) {
        Edit(name, code, value);
        Click("srcAddToList");
    }
    QStringList RuleTexts() {
        QStringList texts;
        for (const CellRow& row : Rules()->List().Rows()) {
            QStringList cells;
            for (const Cell& cell : row.cells)
                cells.append(cell.text);
            texts.append(cells.join('|'));
        }
        return texts;
    }
    void ClickRule(int row, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        const QModelIndex index = Rules()->List().index(row, 1);
        Rules()->scrollTo(index);
        const QRect where = Rules()->visualRect(index);
        QTest::mouseClick(Rules()->viewport(), Qt::LeftButton, keys, where.center());
    }

    QString File(const QString& name) {
        const QString path = root + '/' + name;
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("no file");
        return path;
    }
    // With a rule, if there is none.
    void Search() {
        if (Rules()->List().Count() == 0)
            Add("Title", kContains, "x");
        if (LookIn()->text().isEmpty())
            LookIn()->setText(root);
        Click("srcStart");
    }
    QStringList Found() {
        QStringList names;
        for (const CellRow& row : Results()->List().Rows())
            names.append(row.tag.mid(root.size() + 1));
        return names;
    }

    TestLibrary library;
    FakeQueryAccess access;
    TestDialogs dialogs;
    FakeStatusLine status;
    std::unique_ptr<srcControl> pane;
    QString root;
};

}  // namespace docbench
