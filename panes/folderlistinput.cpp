#include "panes/folderlistinput.h"

#include <QFileInfo>
#include <QFocusEvent>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QPushButton>

#include "cells/celllist.h"
#include "services/dialogs.h"
#include "services/folderlists.h"
#include "services/language.h"
#include "services/openexternal.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webdocument.h"
#include "shell/pathdrop.h"

namespace docbench {
namespace {

constexpr int kMostRows = 8;  // of the list that drops down

}  // namespace

FolderListInput::FolderListInput(const Controls& controls, OnLeaving onLeaving, QWidget* form,
                                 Drops drops)
    : QObject(form),
      controls_(controls),
      onLeaving_(onLeaving),
      form_(form),
      List1_(new QListView(form)),
      names_(new CellList(this)) {
    List1_->setObjectName(QStringLiteral("List1"));
    names_->SetHeaders({{}, {}});  // the name, and the marker of a list of the setup
    List1_->setModel(names_);
    List1_->setMouseTracking(true);  // entries highlight under the mouse at once
    List1_->setAccessibleName(QString(Tr(Text::FolderLists)).remove(QLatin1Char('&')));
    List1_->hide();
    List1_->installEventFilter(this);
    controls_.wuLookin->installEventFilter(this);
    controls_.wuLookin->setToolTip(Tr(Text::LookInTip));
    controls_.wuDrop1->setText(Tr(Text::FolderLists));
    controls_.wuDrop1->setToolTip(Tr(Text::FolderListsTip));
    controls_.wuDrop1->setAutoDefault(false);
    // A press takes no focus, else the list would hide before the press can tell that it was shown.
    controls_.wuDrop1->setFocusPolicy(Qt::TabFocus);
    controls_.browse->setText(Tr(Text::BrowseMore));
    connect(controls_.wuDrop1, &QPushButton::pressed, this, &FolderListInput::ToggleList);
    connect(controls_.browse, &QPushButton::clicked, this, &FolderListInput::Browse);
    connect(List1_, &QListView::entered, List1_, &QListView::setCurrentIndex);
    connect(List1_, &QListView::clicked, this,
            [this](const QModelIndex& index) { Pick(index.row()); });
    if (drops == Drops::Refuses)
        controls_.wuLookin->setAcceptDrops(false);
    else
        connect(new PathDrop(controls_.wuLookin, PathDrop::Takes::Files), &PathDrop::Dropped, this,
                &FolderListInput::Append);
    RefreshList();
}

QString FolderListInput::Text() const {
    return controls_.wuLookin->text();
}

void FolderListInput::Append(const QString& entry) {
    const QString text = Text();
    controls_.wuLookin->setText(text.isEmpty() ? entry : text + u';' + entry);
}

void FolderListInput::HideList() {
    List1_->hide();
}

void FolderListInput::RefreshList() {
    RefreshFolderList(*names_);
}

void FolderListInput::ToggleList() {
    if (!List1_->isHidden())
        return HideList();
    if (refillsOnShow_)
        RefreshList();
    const QLineEdit* field = controls_.wuLookin;
    const int rows = qBound(1, names_->Count(), kMostRows);
    const int height = rows * qMax(List1_->sizeHintForRow(0), form_->fontMetrics().height() + 4) +
                       2 * List1_->frameWidth();
    List1_->setGeometry(
        QRect(field->mapTo(form_, QPoint(0, field->height())), QSize(field->width(), height)));
    List1_->show();
    List1_->raise();
    List1_->setFocus();
    if (names_->Count() > 0)
        List1_->setCurrentIndex(names_->index(0, 0));
}

void FolderListInput::Browse() {
    const QPointer<FolderListInput> alive(this);
    const QString folder = browseTitle_.isEmpty()
                               ? BrowseForFolder(QString(), Tr(Text::LookInWhat))
                               : gSeams.dialogs->BrowseFolder(browseTitle_, QString());
    if (alive && !folder.isEmpty())
        Append(folder);
}

void FolderListInput::Pick(int row) {
    if (row < 0)
        return;
    Append(u' ' + names_->At(row).cells.front().text);
    HideList();
    controls_.wuLookin->setFocus();
}

bool FolderListInput::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        const bool leaves = reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
        if (watched == List1_ && leaves)
            HideList();
        if (watched == controls_.wuLookin && leaves && onLeaving_ == OnLeaving::TestsFolders) {
            // Not in the midst of a change of focus: a box comes up, and all may be gone behind it.
            isLeft_ = true;
            QMetaObject::invokeMethod(this, &FolderListInput::TestIfLeft, Qt::QueuedConnection);
        }
    }
    if (watched == List1_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
            return Pick(List1_->currentIndex().row()), true;
        if (key == Qt::Key_Escape)
            return HideList(), controls_.wuLookin->setFocus(), true;
    }
    return QObject::eventFilter(watched, event);
}

void FolderListInput::TestIfLeft() {
    if (std::exchange(isLeft_, false))
        TestFolders();
}

void FolderListInput::TestFolders() {
    if (gWebDocument || testing_ || Text().isEmpty())
        return;
    QStringList good;
    QStringList failed;
    for (const QString& entry : Text().split(u';')) {
        const bool named = entry.startsWith(u' ');
        (named || QFileInfo(entry).isDir() ? good : failed).append(entry);
    }
    controls_.wuLookin->setText(good.join(u';'));
    if (failed.isEmpty())
        return;
    const QPointer<FolderListInput> alive(this);
    testing_ = true;
    gSeams.dialogs->Box(Format(Text::FoldersNotFound, failed.join(u';')),
                        Dialogs::Icon::Exclamation, gAppTitle);
    if (alive)
        testing_ = false;
}

}  // namespace docbench
