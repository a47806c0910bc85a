// The world outside the process for a test: no program runs, and what is asked for is written down.
#pragma once

#include <QStringList>
#include <functional>

#include "services/outsideobjects.h"
#include "services/seams.h"
#include "services/shellexecute.h"

namespace docbench {

class FakeOutside : public OutsideObjects {
public:
    FakeOutside() { gSeams.outside = this; }
    ~FakeOutside() override { gSeams.outside = nullptr; }
    std::unique_ptr<OutsideObject> Attach(const QString& programId) override {
        asked.append(programId);
        return nullptr;
    }
    std::unique_ptr<OutsideObject> Start(const QString& programId) override {
        asked.append(programId);
        return start ? start(programId) : nullptr;
    }
    std::unique_ptr<QObject> Create(const QString& programId) override {
        created.append(programId);
        return make ? make(programId) : nullptr;
    }

    QStringList asked;    // ids of programs
    QStringList created;  // ids of components
    std::function<std::unique_ptr<OutsideObject>(const QString&)> start;
    std::function<std::unique_ptr<QObject>(const QString&)> make;
};

class FakeShellExecute : public ShellExecute {
public:
    FakeShellExecute() { gSeams.shell = this; }
    ~FakeShellExecute() override { gSeams.shell = nullptr; }
    bool Execute(const QString& verb, const QString& file, const QString& parameters,
                 const QString& folder, int showCommand) override {
        started.append(file);
        calls.append(
            QStringList{verb, file, parameters, folder, QString::number(showCommand)}.join(u'|'));
        return knows;
    }
    bool StartProgram(const QString& program, const QStringList&) override {
        started.append(program);
        return true;
    }

    QStringList started;
    QStringList calls;  // of Execute, with all that it was given
    bool knows = true;  // a program for the file
};

}  // namespace docbench
