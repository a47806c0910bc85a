#include "services/seams.h"

#include <QDebug>

#include "services/dialogs.h"

namespace docbench {

namespace {

// A host that sets no dialogs of its own has nobody who could answer: messages go to the log.
class LoggedDialogs : public Dialogs {
public:
    Answer Box(const QString& text, Icon, const QString&, Buttons buttons,
               const QString& detail) override {
        qWarning().noquote() << text << detail;
        return AnswerOfClosing(buttons);
    }
    QString OpenFile(const QString&, const QString&, const QString&) override { return {}; }
    QString BrowseFolder(const QString&, const QString&) override { return {}; }
    std::optional<Password> AskPassword(const QString&, const QString&, bool) override {
        return std::nullopt;
    }
};

LoggedDialogs gLoggedDialogs;

}  // namespace

Seams gSeams{.dialogs = &gLoggedDialogs};

}  // namespace docbench
