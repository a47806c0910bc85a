#include "tests/support/testdialogs.h"

#include <QTest>

#include "services/seams.h"

namespace docbench {

TestDialogs::TestDialogs() : former_(gSeams.dialogs) {
    gSeams.dialogs = this;
}

TestDialogs::~TestDialogs() {
    gSeams.dialogs = former_;
    for (const Expected& missing : expected_)
        QTest::qFail(qPrintable(QStringLiteral("dialog did not come: ") + missing.text), __FILE__,
                     __LINE__);
}

void TestDialogs::Expect(const QString& text, Icon icon, Answer answer) {
    expected_.append({Kind::Box, text, icon, answer});
}

void TestDialogs::ExpectOpenFile(const QString& answer) {
    expected_.append({Kind::OpenFile, answer, Icon::None, Answer::Ok});
}

void TestDialogs::ExpectSaveFile(const QString& answer) {
    expected_.append({Kind::SaveFile, answer, Icon::None, Answer::Ok});
}

void TestDialogs::ExpectBrowseFolder(const QString& answer) {
    expected_.append({Kind::BrowseFolder, answer, Icon::None, Answer::Ok});
}

Dialogs::Answer TestDialogs::Box(const QString& text, Icon icon, const QString& title,
                                 Buttons buttons, const QString& detail) {
    lastTitle_ = title;
    lastDetail_ = detail;
    lastButtons_ = buttons;
    const Expected expected = Take(Kind::Box, text);
    const bool fits = expected.text.endsWith(u'*')
                          ? text.startsWith(QStringView(expected.text).chopped(1))
                          : text == expected.text;
    if (!fits || icon != expected.icon)
        QTest::qFail(qPrintable(QStringLiteral("box \"%1\" (%2) instead of \"%3\" (%4)")
                                    .arg(text)
                                    .arg(int(icon))
                                    .arg(expected.text)
                                    .arg(int(expected.icon))),
                     __FILE__, __LINE__);
    return expected.answer;
}

QString TestDialogs::OpenFile(const QString& title, const QString& filter, const QString& start) {
    lastTitle_ = title;
    lastFilter_ = filter;
    lastStart_ = start;
    return Take(Kind::OpenFile, title).text;
}

QString TestDialogs::SaveFile(const QString& title, const QString& filter, const QString& start) {
    lastTitle_ = title;
    lastFilter_ = filter;
    lastStart_ = start;
    return Take(Kind::SaveFile, title).text;
}

QString TestDialogs::BrowseFolder(const QString& title, const QString&) {
    lastTitle_ = title;
    return Take(Kind::BrowseFolder, title).text;
}

void TestDialogs::ExpectPassword(const std::optional<Password>& answer) {
    expected_.append({Kind::Password, QStringLiteral("password"), Icon::None, Answer::Ok});
    passwords_.append(answer);
}

std::optional<Dialogs::Password> TestDialogs::AskPassword(const QString& server,
                                                          const QString& realm, bool) {
    lastTitle_ = server + u' ' + realm;
    Take(Kind::Password, lastTitle_);
    return passwords_.isEmpty() ? std::nullopt : passwords_.takeFirst();
}

TestDialogs::Expected TestDialogs::Take(Kind kind, const QString& what) {
    if (const auto action = std::exchange(meanwhile_, {}))
        action();
    if (!expected_.isEmpty() && expected_.first().kind == kind)
        return expected_.takeFirst();
    QTest::qFail(qPrintable(QStringLiteral("unexpected dialog: ") + what), __FILE__, __LINE__);
    return {kind, QString(), Icon::None, Answer::Ok};
}

}  // namespace docbench
