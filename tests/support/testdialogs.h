// The dialogs of a test: expected messages with their answers, in order.
#pragma once

#include <QList>
#include <QString>
#include <functional>

#include "services/dialogs.h"

namespace docbench {

// Fails the running test on a message that was not expected, that differs from the expected one,
// and, when it is destroyed, on one that did not come.
class TestDialogs : public Dialogs {
public:
    TestDialogs();  // makes itself the program's dialogs until it is destroyed
    ~TestDialogs() override;

    // `text` is the whole message; with a "*" at its end, its beginning.
    void Expect(const QString& text, Icon icon = Icon::Exclamation, Answer answer = Answer::Ok);
    void ExpectOpenFile(const QString& answer);
    void ExpectSaveFile(const QString& answer);
    void ExpectBrowseFolder(const QString& answer);
    // The password dialog comes next; none stands for its cancel.
    void ExpectPassword(const std::optional<Password>& answer);
    // What happens while the next dialog, of any kind, is on screen.
    void Meanwhile(std::function<void()> action) { meanwhile_ = std::move(action); }
    bool AllCame() const { return expected_.isEmpty(); }
    const QString& LastTitle() const { return lastTitle_; }    // of the last dialog of any kind
    const QString& LastDetail() const { return lastDetail_; }  // of the last box
    const QString& LastFilter() const { return lastFilter_; }  // of the last file dialog
    const QString& LastStart() const { return lastStart_; }
    Buttons LastButtons() const { return lastButtons_; }

    Answer Box(const QString& text, Icon icon, const QString& title, Buttons buttons,
               const QString& detail) override;
    QString OpenFile(const QString& title, const QString& filter, const QString& start) override;
    QString SaveFile(const QString& title, const QString& filter, const QString& start) override;
    QString BrowseFolder(const QString& title, const QString& start) override;
    std::optional<Password> AskPassword(const QString& server, const QString& realm,
                                        bool refused) override;

private:
    enum class Kind { Box, OpenFile, SaveFile, BrowseFolder, Password };
    struct Expected {
        Kind kind;
        QString text;
        Icon icon;
        Answer answer;
    };
    Expected Take(Kind kind, const QString& what);

    QList<Expected> expected_;
    std::function<void()> meanwhile_;
    QList<std::optional<Password>> passwords_;
    QString lastTitle_;
    QString lastDetail_;
    QString lastFilter_;
    QString lastStart_;
    Buttons lastButtons_ = Buttons::Ok;
    Dialogs* former_;
};

}  // namespace docbench
