#include "platform/desktopdialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <optional>

#include "platform/filefilter.h"
#include "platform/passworddialog.h"
#include "services/texts.h"

namespace docbench {
namespace {

QMessageBox::Icon IconOf(Dialogs::Icon icon) {
    switch (icon) {
        case Dialogs::Icon::Stop:
            return QMessageBox::Critical;
        case Dialogs::Icon::Question:
            return QMessageBox::Question;
        case Dialogs::Icon::Exclamation:
            return QMessageBox::Warning;
        case Dialogs::Icon::Information:
            return QMessageBox::Information;
        case Dialogs::Icon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(Dialogs::Buttons buttons) {
    switch (buttons) {
        case Dialogs::Buttons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case Dialogs::Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case Dialogs::Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Dialogs::Buttons::Ok:
            break;
    }
    return QMessageBox::Ok;
}

Dialogs::Answer AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return Dialogs::Answer::Yes;
        case QMessageBox::No:
            return Dialogs::Answer::No;
        case QMessageBox::Cancel:
            return Dialogs::Answer::Cancel;
        default:
            return Dialogs::Answer::Ok;
    }
}

// The window that a dialog stands before: the active one, else the first that is shown. Never one
// that goes away when it is closed, since it would take the dialog with it.
QWidget* Owner() {
    QWidgetList windows{QApplication::activeModalWidget(), QApplication::activeWindow()};
    windows += QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        const bool stays =
            window && (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog) &&
            !window->testAttribute(Qt::WA_DeleteOnClose);
        if (stays && window->isVisible())
            return window;
    }
    return nullptr;
}

// A dialog has the normal cursor, also while something waits for its answer.
class NormalCursor {
public:
    NormalCursor() {
        if (const QCursor* cursor = QGuiApplication::overrideCursor())
            former_ = *cursor;
        while (QGuiApplication::overrideCursor())
            QGuiApplication::restoreOverrideCursor();
    }
    ~NormalCursor() {
        if (former_)
            QGuiApplication::setOverrideCursor(*former_);
    }
    NormalCursor(const NormalCursor&) = delete;
    NormalCursor& operator=(const NormalCursor&) = delete;

private:
    std::optional<QCursor> former_;
};

// The toolkit names its buttons in the desktop's language, which need not be that of the texts.
void NameButtons(QMessageBox& box) {
    const std::pair<QMessageBox::StandardButton, TextId<0>> names[] = {
        {QMessageBox::Ok, Text::Ok},
        {QMessageBox::Cancel, Text::Cancel},
        {QMessageBox::Yes, Text::Yes},
        {QMessageBox::No, Text::No}};
    for (const auto& [button, text] : names)
        if (QAbstractButton* shown = box.button(button); shown && !Tr(text).isEmpty())
            shown->setText(Tr(text));
}

}  // namespace

Dialogs::Answer DesktopDialogs::Box(const QString& text, Icon icon, const QString& title,
                                    Buttons buttons, const QString& detail) {
    const NormalCursor normal;
    QMessageBox box(IconOf(icon), title, text, ButtonsOf(buttons), Owner());
    box.setTextFormat(Qt::PlainText);  // a file name is no markup
    box.setDetailedText(detail);
    NameButtons(box);
    if (buttons == Buttons::YesNo)
        box.setEscapeButton(QMessageBox::No);
    return AnswerOf(box.exec());
}

QString DesktopDialogs::OpenFile(const QString& title, const QString& filter,
                                 const QString& start) {
    const NormalCursor normal;
    QFileDialog dialog(Owner(), title);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(NameFiltersOf(filter));
    if (!start.isEmpty())
        dialog.selectFile(start);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString DesktopDialogs::SaveFile(const QString& title, const QString& filter,
                                 const QString& start) {
    const NormalCursor normal;
    QFileDialog dialog(Owner(), title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setNameFilters(NameFiltersOf(filter));
    if (!start.isEmpty())
        dialog.selectFile(start);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString DesktopDialogs::BrowseFolder(const QString& title, const QString& start) {
    const NormalCursor normal;
    return QFileDialog::getExistingDirectory(Owner(), title, start);
}

std::optional<Dialogs::Password> DesktopDialogs::AskPassword(const QString& server,
                                                             const QString& realm, bool refused) {
    const NormalCursor normal;
    PasswordDialog dialog(server, realm, refused, Owner());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Answer();
}

}  // namespace docbench
