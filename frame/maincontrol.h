// The main frame: toolbar, menus, icon bar and status line around the document pane shell.
#pragma once

#include <QHash>
#include <QWidget>
#include <memory>

#include "shell/export.h"

class QAction;
class QMenu;
class QToolButton;

namespace Ui {
class Maincontrol;
}

namespace docbench {

struct CommandGroup;
class UserControl1;

class DOCBENCH_EXPORT Maincontrol : public QWidget {
    Q_OBJECT

public:
    explicit Maincontrol(QWidget* parent = nullptr);
    ~Maincontrol() override;

    void RelaseAll() {}  // does nothing; hosts call it under this name
    void showResult(const QString& request, const QString& path, const QString& partName);
    void SetCurrentFunction(const QString& request);

    // Beyond the fixed members.
    UserControl1& Shell();
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void RouteCommand(const QString& code);
    void ShowHelp();
    void ShowHelpTopic();
    void FindHelpFile();  // takes the shorter name for good when there is none under the name
    void MakeGroup(const CommandGroup& group);
    QMenu* MakeMenu(const CommandGroup& group, const QString& name);
    void MakeShortcuts(const CommandGroup& group);
    void FillIconBar();
    void ApplyRenameRule(QMenu& menu);
    void PopUp(const QToolButton& button, QMenu& menu);
    void ScrollIconBar(int value);
    void ShowIconBarItem(const QRect& item);  // in the bar's pixels
    void LayOutIconBar();

    std::unique_ptr<Ui::Maincontrol> ui_;
    QHash<QString, QMenu*> popups_;  // by the key of their toolbar button
    bool hadFocus_ = false;
};

}  // namespace docbench
