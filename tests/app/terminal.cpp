#include "tests/app/terminal.h"

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <utility>

namespace docbench {

Terminal::Terminal() : ours_(posix_openpt(O_RDWR | O_NOCTTY)) {
    if (ours_ < 0 || grantpt(ours_) != 0 || unlockpt(ours_) != 0)
        qFatal("there is no terminal to be had");
    device_ = QString::fromLocal8Bit(ptsname(ours_));
    theirs_ = open(device_.toLocal8Bit().constData(), O_RDWR | O_NOCTTY);
    termios settings = {};
    if (theirs_ < 0 || tcgetattr(theirs_, &settings) != 0)
        qFatal("the terminal can't be opened");
    settings.c_lflag &= ~tcflag_t(ECHO);
    settings.c_oflag &= ~tcflag_t(OPOST);
    tcsetattr(theirs_, TCSANOW, &settings);
}

Terminal::~Terminal() {
    close(theirs_);
    close(ours_);
}

void Terminal::Type(const QByteArray& text) {
    if (write(ours_, text.constData(), size_t(text.size())) != text.size())
        qFatal("nothing can be typed");
}

QByteArray Terminal::ReadUntil(const QByteArray& text) {
    constexpr int kLongest = 60'000;  // a program that says nothing
    while (!received_.contains(text)) {
        if (!Receive(kLongest))
            return std::exchange(received_, {});
    }
    const qsizetype end = received_.indexOf(text) + text.size();
    QByteArray read = received_.left(end);
    received_.remove(0, end);
    return read;
}

QByteArray Terminal::ReadAll() {
    while (Receive(0))
        continue;
    return std::exchange(received_, {});
}

bool Terminal::Receive(int milliseconds) {
    pollfd waited{.fd = ours_, .events = POLLIN, .revents = 0};
    if (poll(&waited, 1, milliseconds) <= 0)
        return false;
    char buffer[4096];
    const ssize_t length = read(ours_, buffer, sizeof buffer);
    if (length <= 0)
        return false;
    received_.append(buffer, qsizetype(length));
    return true;
}

}  // namespace docbench
