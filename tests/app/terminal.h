// A terminal for tests: what a program prints to it is read here, and what is typed here is its
// input.
#pragma once

#include <QByteArray>
#include <QString>

namespace docbench {

class Terminal {
public:
    Terminal();
    ~Terminal();
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    QString Device() const { return device_; }  // to be opened as a standard stream
    void Type(const QByteArray& text);
    // Everything that came since the last call, up to and with `text`, for which it waits.
    QByteArray ReadUntil(const QByteArray& text);
    // What has come by now.
    QByteArray ReadAll();

private:
    bool Receive(int milliseconds);  // false when nothing came in that time

    int ours_ = -1;
    int theirs_ = -1;  // kept open, so that nothing is lost before and after the program
    QString device_;
    QByteArray received_;
};

}  // namespace docbench
