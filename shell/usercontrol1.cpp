#include "shell/usercontrol1.h"
#include "setup/setup.h"

#include <QMenu>

#include "cells/celltree.h"
#include "copy/copyref.h"
#include "editors/editconfig.h"
#include "editors/edithyperlink.h"
#include "editors/editreference.h"
#include "editors/propertiesbox.h"
#include "rename/renameref.h"
#include "search/srccontrol.h"
#include "services/dialogs.h"
#include "services/docaccess.h"
#include "services/helpviewer.h"
#include "services/language.h"
#include "services/loggingmanager.h"
#include "services/openexternal.h"
#include "services/paths.h"
#include "services/scratch.h"
#include "services/seams.h"
#include "services/settingsstore.h"
#include "services/texts.h"
#include "services/webauthority.h"
#include "services/webcopies.h"
#include "services/webdocument.h"
#include "shell/languagefonts.h"
#include "shell/locking.h"
#include "shell/openurlfrm.h"
#include "shell/pane.h"
#include "shell/pathdrop.h"
#include "shell/picturestore.h"
#include "shell/previewpane.h"
#include "shell/referencetree.h"
#include "shell/waitcursor.h"
#include "ui_usercontrol1.h"
#include "whereused/whereused.h"

namespace docbench {

namespace {

constexpr int kRootNode = 1;

// The panes that write to the status line, in the order in which they are handed it.
constexpr PaneId kPanesWithStatus[] = {
    PaneId::WhereUsed, PaneId::Configurations, PaneId::Hyperlinks, PaneId::References,
    PaneId::Search,    PaneId::Rename,         PaneId::Copy,       PaneId::Setup};

// The panes that may be running when the control ends.
constexpr PaneId kPanesToRelease[] = {PaneId::WhereUsed, PaneId::Copy, PaneId::Rename,
                                      PaneId::Search};

Pane* MakePane(PaneId id) {
    switch (id) {
        case PaneId::Properties:
            return new PropertiesBox;
        case PaneId::References:
            return new editReference;
        case PaneId::Configurations:
            return new editConfig;
        case PaneId::Hyperlinks:
            return new EditHyperLink;
        case PaneId::WhereUsed:
            return new whereUsed;
        case PaneId::Rename:
            return new renameRef;
        case PaneId::Copy:
            return new copyRef;
        case PaneId::Search:
            return new srcControl;
        default:
            return nullptr;
    }
}

}  // namespace

UserControl1::UserControl1(QWidget* parent)
    : QWidget(parent),
      ui_(std::make_unique<Ui::UserControl1>()),
      tree_(std::make_unique<ReferenceTree>()) {
    LoadResources();
    ui_->setupUi(this);
    ui_->splitter->setStretchFactor(0, 1);
    ui_->splitter->setStretchFactor(1, 2);
    ui_->splitter->setSizes({300, 600});
    tree_->Model().SetPictures(PictureOf);
    ui_->tvw->SetTree(&tree_->Model());
    MakeMenu();
    SetCaptions();
    ApplyLanguageFonts(*this);
    ConnectTree();
    ConnectWaysIn();
    UseWebFolders();
    PrepareScratch();
    AddPane(PaneId::Preview, new PreviewPane);
    auto* options = new setup;  // tells the others of its options
    AddPane(PaneId::Setup, options);
    connect(options, &setup::SetupChanged, this, [this] { RefreshTree(QString()); });
}

// The others are made when they are first shown: together they take longer than all else at the
// start.
Pane* UserControl1::WantedPane(PaneId id) {
    if (Pane* pane = PaneOf(id))
        return pane;
    Pane* made = MakePane(id);
    if (!made)
        return nullptr;
    AddPane(id, made);
    const auto known = enabled_.constFind(id);
    if (known != enabled_.constEnd())
        made->Enable(*known);
    return made;
}

UserControl1::~UserControl1() {
    ReleasePanes();
}

void UserControl1::ReleasePanes() {
    for (const PaneId id : kPanesToRelease) {
        if (Pane* pane = PaneOf(id))
            pane->ReleaseAll();
    }
}

void UserControl1::MakeMenu() {
    mnEdit = new QMenu(this);
    mnEdit->setObjectName(QStringLiteral("mnEdit"));
    const auto add = [this](const char* name) {
        QAction* action = mnEdit->addAction(QString());
        action->setObjectName(QLatin1String(name));
        return action;
    };
    mnopen = add("mnopen");
    mnReplace = add("mnReplace");
    mnrename = add("mnrename");
    mncopy = add("mncopy");
    connect(mnopen, &QAction::triggered, this, &UserControl1::OpenSelected);
    connect(mnReplace, &QAction::triggered, this, &UserControl1::ReplaceSelected);
    connect(mnrename, &QAction::triggered, this,
            [this] { SetCurrentFunction(QStringLiteral("RENAME")); });
    connect(mncopy, &QAction::triggered, this,
            [this] { SetCurrentFunction(QStringLiteral("COPY")); });
}

void UserControl1::SetCaptions() {
    ui_->Command1->setText(Tr(Text::Browse));
    ui_->Label1->setText(Tr(Text::ChooseFunction));
    mnEdit->setTitle(QStringLiteral("mnEdit"));
    mnopen->setText(Tr(Text::MenuOpen));
    mnReplace->setText(Tr(Text::MenuReplace));
    mnrename->setText(Tr(Text::MenuRename));
    mncopy->setText(Tr(Text::CopyWord));
    ui_->filepathCombo->setAccessibleName(Tr(Text::OpenDocumentTitle));
    ui_->tvw->setAccessibleName(Tr(Text::References));
}

void UserControl1::ConnectTree() {
    connect(ui_->tvw, &ReferenceTreeView::MousePressed, this,
            [this](Qt::MouseButton button) { leftClickPending = button != Qt::RightButton; });
    connect(ui_->tvw, &ReferenceTreeView::NodeClick, this, &UserControl1::NodeClick);
    connect(ui_->tvw, &ReferenceTreeView::PickedByKey, this, &UserControl1::ReadLock);
    connect(ui_->tvw, &ReferenceTreeView::MouseReleased, this, &UserControl1::MouseUp);
    connect(ui_->tvw, &ReferenceTreeView::MenuKeyPressed, this, [this](QPoint globalPosition) {
        ReadLock(ui_->tvw->SelectedNode());
        ShowMenu(globalPosition);
    });
}

void UserControl1::ConnectWaysIn() {
    connect(ui_->Command1, &QPushButton::clicked, this, &UserControl1::Browse);
    connect(ui_->filepathCombo, &PathCombo::Entered, this, &UserControl1::OpenAndList);
    connect(ui_->filepathCombo, &PathCombo::Chosen, this, [this](const QString& path) {
        if (RefusesPassword(path))
            return;
        LeaveFileOperation();
        gWebDocument = IsWebPath(path);
        OpenDocument(path);
    });
    using Takes = PathDrop::Takes;
    const std::pair<QWidget*, Takes> targets[] = {{this, Takes::Files},
                                                  {ui_->filepathCombo, Takes::Files},
                                                  {ui_->filepathCombo->lineEdit(), Takes::Files},
                                                  {ui_->tvw->viewport(), Takes::FilesOrText}};
    for (const auto& [target, takes] : targets) {
        // Queued: the program that the files come from waits until the drop has been answered.
        connect(new PathDrop(target, takes), &PathDrop::Dropped, this, &UserControl1::OpenAndList,
                Qt::QueuedConnection);
    }
}

void UserControl1::showResult(const QString& request, const QString& path,
                              const QString& partName) {
    for (Pane* pane : panes_) {
        if (pane)
            pane->hide();
    }
    ui_->Label1->hide();
    const WaitCursor wait;
    const PaneCommand* command = FindPaneCommand(request);
    if (command)
        ui_->LabelInfo->setText(Tr(command->heading) + u' ');
    if (command && WantedPane(command->pane))
        ShowPane(*command, path, partName);
    else
        ui_->Label1->show();
}

void UserControl1::ShowPane(const PaneCommand& command, const QString& path,
                            const QString& partName) {
    Pane* pane = PaneOf(command.pane);
    if (command.takesChain)
        tree_->BuildReferencingChain(ui_->tvw->SelectedNode(), treeChainList);
    if (command.takesShowDesc)
        pane->SetShowDesc(ShowDesc());
    pane->show();
    const bool searches = command.pane == PaneId::Search;  // works on the current document alone
    const bool hands = command.handover == Handover::Always ||
                       (command.handover == Handover::IfAny && !path.isEmpty());
    if (searches && command.takesFocus)
        pane->setFocus();
    if (hands)
        pane->SetDocument({.partName = partName,
                           .path = searches ? m_partfilename : path,
                           .treeChain = command.takesChain ? treeChainList : QString(),
                           .actionReplace = command.actionReplace});
    if (command.followsLock)
        pane->Enable(!tree_->currentLocked);
    if (command.takesFocus && !searches)
        pane->setFocus();
}

void UserControl1::SetCurrentFunction(const QString& request) {
    Log([&](LoggingManager& log) { log.LogCommand(request); });
    if (request == QLatin1String("OPEN"))
        return Browse();
    if (request == QLatin1String("OPENURL"))
        return OpenFromWebFolder();
    if (request == QLatin1String("LOCK") || request == QLatin1String("UNLOCK"))
        return LockSelected(request == QLatin1String("LOCK"));
    if (request == QLatin1String("LOCKCHILDREN") || request == QLatin1String("UNLOCKCHILDREN"))
        return LockBelowSelected(request == QLatin1String("LOCKCHILDREN"));
    currentFunction_ = request;
    showResult(request, m_partfilename, currentTitle);
}

QString UserControl1::partfilename() {
    ui_->filepathCombo->setEditText(m_partfilename);
    return m_partfilename;
}

void UserControl1::StatusBar(QObject* statusBar) {
    statusBarTarget = statusBar;
    if (Pane* preview = PaneOf(PaneId::Preview))  // the shell's own part: it keeps the line
        preview->SetStatusBarControl(statusBar);
    PassStatusBar(statusBar);
}

void UserControl1::PassStatusBar(QObject* statusBar) {
    for (const PaneId id : kPanesWithStatus) {
        if (Pane* pane = PaneOf(id))
            pane->SetStatusBarControl(statusBar);
    }
}

QVariant UserControl1::GetLockState() {
    const int node = ui_->tvw->SelectedNode();
    if (node == 0)
        return {};
    const std::optional<bool> locked = ReadLockState(tree_->Nodes().At(node).tag);
    if (!locked)
        return {};
    tree_->currentLocked = *locked;
    return *locked;
}

void UserControl1::ReadProperties(const QVariantMap& saved) {
    caption_ = saved.value(QStringLiteral("Caption")).toString();
    m_partfilename = saved.value(QStringLiteral("partfilename")).toString();
    currentFunction_ = saved.value(QStringLiteral("Function")).toString();
    statusText_ = saved.value(QStringLiteral("statusText")).toString();
}

QVariantMap UserControl1::WriteProperties() {
    return {{QStringLiteral("Caption"), caption_},
            {QStringLiteral("partfilename"), m_partfilename},
            {QStringLiteral("Function"), currentFunction_},
            {QStringLiteral("statusText"), statusText_}};
}

void UserControl1::OpenPath(const QString& path) {
    OpenAndList(path);
}

void UserControl1::ShowHelpTopic() {
    const PaneCommand* command = FindPaneCommand(currentFunction_);
    const Pane* pane = command ? PaneOf(command->pane) : nullptr;
    if (gSeams.help)
        gSeams.help->Open(gHelpFile, pane ? pane->HelpTopic() : QString());
}

void UserControl1::AddPane(PaneId id, Pane* pane) {
    delete PaneOf(id);
    panes_[size_t(id)] = pane;
    pane->setParent(ui_->paneArea);
    ui_->paneLayout->addWidget(pane, 1);
    pane->hide();
    if (id == PaneId::Preview)
        pane->SetStatusBarControl(statusBarTarget);
    connect(pane, &Pane::FileUpdated, this, &UserControl1::RefreshTree);
    PassStatusBar(isVisible() ? statusBarTarget.data() : nullptr);
}

void UserControl1::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;  // the window is minimised or comes back, which is no show of the control
    PassStatusBar(statusBarTarget);
}

void UserControl1::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;  // the window is minimised or comes back, which is no hide of the control
    PassStatusBar(nullptr);
}

bool UserControl1::ShowDesc() const {
    if (const auto* options = qobject_cast<const setup*>(PaneOf(PaneId::Setup)))
        return options->ShowDesc();
    const auto key = SettingsKey::Open(SettingsKey::Hive::CurrentUser, kExtReferencesKey);
    return !key || key->Number(QStringLiteral("Show Description")).value_or(1) != 0;
}

void UserControl1::OpenDocument(const QString& path) {
    for (Pane* pane : panes_) {
        if (pane)
            pane->ForgetDocuments();
    }
    LoadTree(path);
    showResult(currentFunction_, m_partfilename, currentTitle);
}

void UserControl1::Browse() {
    const QString name = gSeams.dialogs->OpenFile(Tr(Text::OpenDocumentTitle), gOpenFilter);
    if (!name.isEmpty() && DocTypeOf(name) != DocType::None) {
        Log([&](LoggingManager& log) { log.LogDocumentOpen(name); });
        ui_->filepathCombo->setEditText(name);
        gWebDocument = false;
        gWebCopies.clear();
        LeaveFileOperation();
        OpenDocument(name);
        ui_->filepathCombo->InsertFirst(ui_->filepathCombo->currentText());
    }
    ShiftPressed = false;
}

void UserControl1::OpenFromWebFolder() {
    const QString url = PickWebDocument(this);
    if (url.isEmpty() || DocTypeOf(url) == DocType::None)
        return;
    Log([&](LoggingManager& log) { log.LogDocumentOpen(url); });
    ui_->filepathCombo->setEditText(url);
    gWebDocument = true;
    LeaveFileOperation();
    OpenDocument(url);
    ui_->filepathCombo->InsertFirst(url);
}

void UserControl1::OpenAndList(const QString& path) {
    if (path.isEmpty() || DocTypeOf(path) == DocType::None || RefusesPassword(path))
        return;
    LeaveFileOperation();
    gWebDocument = IsWebPath(path);
    OpenDocument(path);
    ui_->filepathCombo->InsertFirst(path);
}

// The address would go on into the tree, the messages, the path list and what the host saves.
bool UserControl1::RefusesPassword(const QString& path) {
    if (!HasPassword(path))
        return false;
    ui_->filepathCombo->setEditText(WithoutUser(path));
    gSeams.dialogs->Box(PasswordInAddressText(), Dialogs::Icon::Exclamation, gAppTitle);
    return true;
}

void UserControl1::LeaveFileOperation() {
    if (LeavesWithDocument(currentFunction_))
        currentFunction_ = QStringLiteral("PREVIEW");
}

void UserControl1::LoadTree(const QString& path) {
    const WaitCursor wait;
    const bool found = tree_->Load(path);
    if (found) {
        for (const int circular : tree_->CircularNodes())
            ui_->tvw->ShowNode(circular);
        ui_->tvw->ExpandNode(kRootNode);
        ui_->tvw->SelectNode(kRootNode);
    } else {
        SetStatusText(Format(Text::DocumentNotFound, path));
    }
    m_partfilename = found ? path : QString();
    currentTitle = found ? BaseNameOf(path) : QString();
    ui_->filepathCombo->setEditText(m_partfilename);
    Q_EMIT DocumentOpened();
}

void UserControl1::RefreshTree(const QString& newfilename) {
    const int selected = ui_->tvw->SelectedNode();
    if (selected == 0)
        return;
    const QString root = tree_->Nodes().At(kRootNode).tag;
    const bool rootRenamed = !newfilename.isEmpty() && tree_->Nodes().At(selected).tag == root;
    const QString path = rootRenamed ? newfilename : root;
    gWebDocument = IsWebPath(path);
    LoadTree(path);
}

void UserControl1::NodeClick(int node) {
    const CellNode& clicked = tree_->Nodes().At(node);
    const QString tag = clicked.tag;
    if (tag == m_partfilename)
        return;
    if (clicked.foreColor == kColorRed && currentFunction_ != QLatin1String("REPLACE")) {
        m_partfilename.clear();
        showResult(currentFunction_, QString(), QString());
        SetStatusText(Format(Text::NodeMissing, tag));
        return;
    }
    m_partfilename = tag;
    currentTitle = BaseNameOf(tag);
    if (leftClickPending)
        showResult(currentFunction_, tag, currentTitle);
}

void UserControl1::MouseUp(Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
                           QPoint globalPosition) {
    const int node = ui_->tvw->SelectedNode();
    if (node == 0)
        return;
    if (button == Qt::LeftButton && modifiers == Qt::ShiftModifier) {
        MarkNode(*tree_, node);
        ShiftPressed = true;
    } else if (button == Qt::LeftButton && ShiftPressed && !(modifiers & Qt::ShiftModifier)) {
        ClearMarks(*tree_, kRootNode);
        ShiftPressed = false;
    }
    ReadLock(node);
    if (button == Qt::RightButton)
        ShowMenu(globalPosition);
}

void UserControl1::ReadLock(int node) {
    const std::optional<bool> locked = ReadLockState(tree_->Nodes().At(node).tag);
    if (!locked)
        return;
    tree_->currentLocked = *locked;
    EnableEditors(!tree_->currentLocked, !tree_->currentLocked);
}

void UserControl1::ShowMenu(QPoint globalPosition) {
    const int node = ui_->tvw->SelectedNode();
    if (node == 0)
        return;
    const CellNode& selected = tree_->Nodes().At(node);
    const bool missing = selected.foreColor == kColorRed;
    if (!missing)  // for a missing document it stays as it was
        mnopen->setEnabled(true);
    mnrename->setEnabled(!missing);
    mncopy->setEnabled(!missing);
    mnReplace->setEnabled(DocTypeOf(selected.tag) != DocType::Drawing);  // has no holder in a tree
    mnEdit->popup(globalPosition);
}

void UserControl1::OpenSelected() {
    const int node = ui_->tvw->SelectedNode();
    if (node != 0 && tree_->Nodes().At(node).foreColor != kColorRed)
        OpenDocumentExternally(QStringLiteral("Open"), tree_->Nodes().At(node).tag,
                               QStringLiteral("0"), QStringLiteral("0"), 1);
}

void UserControl1::ReplaceSelected() {
    const int node = ui_->tvw->SelectedNode();
    if (node == 0)
        return;
    currentFunction_ = QStringLiteral("REPLACE");
    Log([&](LoggingManager& log) { log.LogCommand(currentFunction_); });
    // Not the current document: a missing one, which is what is replaced most, never becomes it.
    showResult(currentFunction_, tree_->Nodes().At(node).tag, currentTitle);
}

void UserControl1::LockSelected(bool wantLocked) {
    const int node = ui_->tvw->SelectedNode();
    if (node == 0)
        return;
    ApplyLock(*tree_, wantLocked, node);
    if (ShiftPressed)
        ApplyLockToMarked(*tree_, wantLocked, kRootNode);
    // Hyperlinks stay disabled after an unlock too, until the next click in the tree reads the
    // state.
    EnableEditors(false, !wantLocked);
    if (Pane* properties = PaneOf(PaneId::Properties))
        properties->ReloadProperties(tree_->Nodes().At(node).tag);
}

void UserControl1::LockBelowSelected(bool wantLocked) {
    if (const int node = ui_->tvw->SelectedNode())
        ApplyLockToChildren(*tree_, wantLocked, node);
}

void UserControl1::EnableEditors(bool hyperlinks, bool configurations) {
    enabled_ = {{PaneId::Hyperlinks, hyperlinks}, {PaneId::Configurations, configurations}};
    for (auto editor = enabled_.cbegin(); editor != enabled_.cend(); ++editor) {
        if (Pane* pane = PaneOf(editor.key()))
            pane->Enable(editor.value());
    }
}

void UserControl1::SetStatusText(const QString& text) {
    ShowStatus(statusBarTarget, text);
}

}  // namespace docbench
