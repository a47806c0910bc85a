// The strip at the head of a pane: an icon, what the pane does, and a help button.
#pragma once

#include <QIcon>
#include <QWidget>

#include "shell/export.h"

class QFrame;
class QLabel;
class QPushButton;

namespace docbench {

class DOCBENCH_EXPORT DescControl : public QWidget {
    Q_OBJECT

public:
    explicit DescControl(QWidget* parent = nullptr);

    void text(const QString& tx);  // shown with one blank behind it
    void icon(const QIcon& ic);
    // The page that the help button opens: of the help file `fname`, the topic `key`. Shows the
    // button.
    void SetHelpFile(const QString& fname, const QString& key);

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Layout();
    void ShowHelp();

    QFrame* DescriptionBox;
    QLabel* descriptionIcon;
    QLabel* labDescription;
    QPushButton* helpbutton;
    QString helpFileName;
    QString helpKey;
};

}  // namespace docbench
