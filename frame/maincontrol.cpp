#include "frame/maincontrol.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>
#include <QShortcut>
#include <QToolButton>

#include "frame/commandtable.h"
#include "frame/frmabout.h"
#include "frame/olbar.h"
#include "frame/statusline.h"
#include "services/helpviewer.h"
#include "services/language.h"
#include "services/loggingmanager.h"
#include "services/openexternal.h"
#include "services/paths.h"
#include "services/scratch.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"
#include "shell/languagefonts.h"
#include "shell/picturestore.h"
#include "shell/twips.h"
#include "ui_maincontrol.h"

namespace docbench {

namespace {

constexpr int kBelowButton = TwipsToPixels(25);  // between a toolbar button and its popup

const QString kRename = QStringLiteral("RENAME");
const QString kReplace = QStringLiteral("REPLACE");
const QString kHelpGroup = QStringLiteral("ABOUT");
const QString kCopy = QStringLiteral("COPY");

}  // namespace

Maincontrol::Maincontrol(QWidget* parent)
    : QWidget(parent), ui_(std::make_unique<Ui::Maincontrol>()) {
    LoadResources();
    ui_->setupUi(this);
    ui_->StatusBar1->setSizeGripEnabled(false);
    ui_->Label1->setText(Tr(Text::IconBarHeading));
    for (const CommandGroup& group : CommandGroups())
        MakeGroup(group);
    ApplyLanguageFonts(*this);
    FillIconBar();
    ui_->UserControl11->SetCurrentFunction(QStringLiteral("PREVIEW"));
    connect(ui_->olbar1, &olbar::olBarClick, this, [this](int index) {
        if (size_t(index) < BarEntries().size())
            RouteCommand(BarEntries()[size_t(index)].code);
    });
    connect(ui_->olbar1, &olbar::ItemPicked, this, &Maincontrol::ShowIconBarItem);
    connect(ui_->olbar1, &olbar::Measured, this, &Maincontrol::LayOutIconBar);
    connect(ui_->VScroll1, &QScrollBar::valueChanged, this, &Maincontrol::ScrollIconBar);
    ui_->Picture1->installEventFilter(this);
    setFocusPolicy(Qt::StrongFocus);
}

Maincontrol::~Maincontrol() {
    if (gSeams.help && gSeams.help->IsOpen())
        gSeams.help->Close();
    ui_->UserControl11->ReleasePanes();  // before the local copies that they may work on go away
    DeleteScratch();
    gWebCopies.clear();  // their files are gone
    gLogger.reset();
}

void Maincontrol::showResult(const QString& request, const QString& path, const QString& partName) {
    ui_->UserControl11->showResult(request, path, partName);
}

void Maincontrol::SetCurrentFunction(const QString& request) {
    ui_->UserControl11->SetCurrentFunction(request);
}

UserControl1& Maincontrol::Shell() {
    return *ui_->UserControl11;
}

bool Maincontrol::eventFilter(QObject* watched, QEvent* event) {
    if (watched == ui_->Picture1 && event->type() == QEvent::Resize)
        LayOutIconBar();
    if (watched == ui_->Picture1 && event->type() == QEvent::Wheel)
        return QCoreApplication::sendEvent(ui_->VScroll1, event);
    return QWidget::eventFilter(watched, event);
}

void Maincontrol::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;  // the window is minimised or comes back, which is no show of the control
    ui_->UserControl11->StatusBar(ui_->StatusBar1);
    ui_->olbar1->setFocus();
    LayOutIconBar();
}

void Maincontrol::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;  // the window is minimised or comes back, which is no hide of the control
    ui_->UserControl11->StatusBar(nullptr);
}

// A click on itself, once, activates the window that a host has embedded the frame in.
void Maincontrol::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    ui_->olbar1->setFocus(event->reason());  // the frame itself has nothing to type into
    if (std::exchange(hadFocus_, true))
        return;
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
        QCoreApplication::postEvent(
            this, new QMouseEvent(type, QPointF(), mapToGlobal(QPointF()), Qt::LeftButton,
                                  type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                                  Qt::NoModifier));
}

void Maincontrol::RouteCommand(const QString& code) {
    if (code == QLatin1String("HELP") || code == QLatin1String("ABOUT"))
        Log([&](LoggingManager& log) { log.LogCommand(code); });
    if (code == QLatin1String("HELP"))
        return ShowHelp();
    if (code == QLatin1String("ABOUT"))
        return void(frmAbout(this).exec());
    if (IsFrameCommand(code))
        ui_->UserControl11->SetCurrentFunction(code);
}

// By key, help is about what is on screen.
void Maincontrol::ShowHelpTopic() {
    Log([](LoggingManager& log) { log.LogCommand(QStringLiteral("HELP")); });
    FindHelpFile();
    ui_->UserControl11->ShowHelpTopic();
}

void Maincontrol::ShowHelp() {
    FindHelpFile();
    OpenDocumentExternally(QStringLiteral("Open"), gHelpFile, QStringLiteral("0"),
                           QStringLiteral("0"), 1);
}

void Maincontrol::FindHelpFile() {
    if (!gSeams.help || !gSeams.help->Has(gHelpFile))
        gHelpFile.replace(QLatin1String("Tessaforma Docbench"), QLatin1String("Tessaforma"));
}

// A button opens the group's popup; the arrow beside it opens a drop-down with the same entries.
void Maincontrol::MakeGroup(const CommandGroup& group) {
    QMenu* popup = MakeMenu(group, group.menuName);
    QMenu* dropDown = MakeMenu(group, QStringLiteral("dropDown_") + group.key);
    auto* button = new QToolButton(ui_->Toolbar1);
    button->setObjectName(QStringLiteral("Toolbar1_") + group.key);
    button->setText(Tr(group.caption));
    button->setToolTip(QString(Tr(group.caption)).remove(QLatin1Char('&')));
    button->setIcon(PictureOf(group.key));
    button->setPopupMode(QToolButton::MenuButtonPopup);
    button->setMenu(dropDown);
    button->setToolButtonStyle(ui_->Toolbar1->toolButtonStyle());
    ui_->Toolbar1->addWidget(button);
    connect(button, &QToolButton::clicked, this, [this, button, popup] { PopUp(*button, *popup); });
    popups_.insert(group.key, popup);
    MakeShortcuts(group);
}

QMenu* Maincontrol::MakeMenu(const CommandGroup& group, const QString& name) {
    auto* menu = new QMenu(this);
    menu->setObjectName(name);
    int item = 0;
    for (const CommandEntry& entry : group.entries) {
        ++item;
        if (entry.code.isEmpty()) {
            menu->addSeparator();
            continue;
        }
        QAction* action = menu->addAction(Tr(entry.text));
        action->setObjectName(name + QStringLiteral("_%1").arg(item));
        action->setData(QString(entry.code));
        // Shown here; what reacts to the keys is a shortcut of the frame, since the menus are
        // popups.
        action->setShortcut(entry.shortcut);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this,
                [this, code = QString(entry.code)] { RouteCommand(code); });
    }
    if (group.key == kRename)
        connect(menu, &QMenu::aboutToShow, this, [this, menu] { ApplyRenameRule(*menu); });
    return menu;
}

void Maincontrol::MakeShortcuts(const CommandGroup& group) {
    QMenu* popup = popups_[group.key];
    for (QAction* action : popup->actions()) {
        if (action->shortcut().isEmpty())
            continue;
        auto* shortcut = new QShortcut(action->shortcut(), this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);  // a host has keys of its own
        connect(shortcut, &QShortcut::activated, this, [this, popup, action, key = group.key] {
            if (key == kRename)
                ApplyRenameRule(*popup);
            if (key == kHelpGroup)
                ShowHelpTopic();
            else
                action->trigger();
        });
    }
}

void Maincontrol::FillIconBar() {
    for (const BarEntry& entry : BarEntries())
        ui_->olbar1->addItem(PictureOf(entry.pictureKey), Tr(entry.caption));
    ui_->olbar1->Redraw();
    ui_->olbar1->setAccessibleName(Tr(Text::IconBarHeading));
}

// Without a document, replace and copy stay as they were, except that replace is on.
void Maincontrol::ApplyRenameRule(QMenu& menu) {
    const DocType type = DocTypeOf(ui_->UserControl11->m_partfilename);
    for (QAction* action : menu.actions()) {
        const QString code = action->data().toString();
        if (code == kRename)
            action->setEnabled(type != DocType::None);
        else if (code == kReplace)
            action->setEnabled(type != DocType::Drawing);
        else if (code == kCopy && type != DocType::None)
            action->setEnabled(true);
    }
}

void Maincontrol::PopUp(const QToolButton& button, QMenu& menu) {
    menu.popup(button.mapToGlobal(QPoint(0, button.height() + kBelowButton)));
}

void Maincontrol::ScrollIconBar(int value) {
    const QSize room = ui_->Picture1->size();
    ui_->olbar1->setGeometry(0, -value, room.width(), room.height() + value);
}

void Maincontrol::ShowIconBarItem(const QRect& item) {
    const int shown = ui_->VScroll1->value();
    const int lowest = item.bottom() + 1 - ui_->Picture1->height();
    ui_->VScroll1->setValue(qMin(item.top(), qMax(shown, lowest)));
}

// The bar scrolls where the frame is too short for its items.
void Maincontrol::LayOutIconBar() {
    const int width = ui_->olbar1->sizeHint().width();
    ui_->Picture1->setFixedWidth(width);
    const int hidden = qMax(0, ui_->olbar1->ContentHeight() - ui_->Picture1->height());
    ui_->VScroll1->setVisible(hidden > 0);
    ui_->VScroll1->setRange(0, hidden);
    ui_->VScroll1->setPageStep(qMax(1, ui_->Picture1->height()));
    ui_->VScroll1->setSingleStep(TwipsToPixels(300));
    ScrollIconBar(ui_->VScroll1->value());
}

}  // namespace docbench
