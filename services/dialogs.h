// The modal dialogs of the program, behind one seam: no other file names a message or file dialog.
#pragma once

#include <QString>
#include <optional>

namespace docbench {

class Dialogs {
public:
    // The numbers are those that messages are told with.
    enum class Icon { None = 0, Stop = 16, Question = 32, Exclamation = 48, Information = 64 };
    enum class Buttons { Ok = 0, OkCancel = 1, YesNoCancel = 3, YesNo = 4 };
    enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

    virtual ~Dialogs() = default;

    // What closing a box without picking a button answers.
    static Answer AnswerOfClosing(Buttons buttons) {
        switch (buttons) {
            case Buttons::OkCancel:
            case Buttons::YesNoCancel:
                return Answer::Cancel;
            case Buttons::YesNo:
                return Answer::No;
            case Buttons::Ok:
                break;
        }
        return Answer::Ok;
    }

    // Shows a message and waits for the answer. Closing the box answers Cancel where there is such
    // a button, else No, else Ok. A
    // `detail`, such as the reason of a failure, `detail` as a reason can be opened below the text.
    virtual Answer Box(const QString& text, Icon icon, const QString& title,
                       Buttons buttons = Buttons::Ok, const QString& detail = {}) = 0;

    // `filter` is in the form "Label|*.a;*.b|Label|*.c". `start` is the file that is offered first,
    // if any. Empty on cancel.
    virtual QString OpenFile(const QString& title, const QString& filter,
                             const QString& start = {}) = 0;
    // The name of a file that is to be written, which may be there or not: nothing is asked about
    // one that is. `start` is what is offered first. Empty on cancel.
    virtual QString SaveFile(const QString& /*title*/, const QString& /*filter*/,
                             const QString& /*start*/) {
        return {};
    }
    virtual QString BrowseFolder(const QString& title,
                                 const QString& start) = 0;  // empty on cancel

    struct Password {
        QString user;
        QString password;
        bool remember = false;  // in the desktop's keyring
    };
    // Asks for user and password of a server ("https://host:port") and its realm; `refused` says
    // that the last answer was wrong. None on cancel.
    virtual std::optional<Password> AskPassword(const QString& server, const QString& realm,
                                                bool refused) = 0;
};

}  // namespace docbench
