// A process that is killed at a given call that changes the disk.
#pragma once

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <functional>

#include "docmodel/fileops.h"
#include "services/filesystem.h"
#include "services/seams.h"

namespace docbench {

// Counts the calls that change the disk; the process does not outlive the n-th.
class LastCall {
public:
    explicit LastCall(int nth) : nth_(nth) {}
    bool Comes() { return ++count_ == nth_; }
    int Count() const { return count_; }
    [[noreturn]] static void Die() {
        ::kill(::getpid(), SIGKILL);
        ::_exit(1);
    }
    void DieIfItComes() {
        if (Comes())
            Die();
    }

private:
    const int nth_;
    int count_ = 0;
};

class MortalDisk : public docmodel::FileOps {
public:
    explicit MortalDisk(LastCall& last) : last_(last), former_(docmodel::gFileOps) {
        docmodel::gFileOps = this;
    }
    ~MortalDisk() override { docmodel::gFileOps = former_; }

    // The last write gets half of its bytes to the disk.
    ssize_t Write(int file, const void* bytes, size_t count, off_t offset) override {
        if (last_.Comes()) {
            (void)FileOps::Write(file, bytes, count / 2, offset);
            LastCall::Die();
        }
        return FileOps::Write(file, bytes, count, offset);
    }
    int Sync(int) override {
        last_.DieIfItComes();
        return 0;
    }
    int SyncData(int) override {
        last_.DieIfItComes();
        return 0;
    }
    int Truncate(int file, off_t length) override {
        last_.DieIfItComes();
        return FileOps::Truncate(file, length);
    }
    int CreateNew(const char* path, unsigned mode) override {
        last_.DieIfItComes();
        return FileOps::CreateNew(path, mode);
    }
    int Rename(const char* from, const char* to) override {
        last_.DieIfItComes();
        return FileOps::Rename(from, to);
    }
    int RenameNoReplace(const char* from, const char* to) override {
        last_.DieIfItComes();
        return FileOps::RenameNoReplace(from, to);
    }
    int Unlink(const char* path) override {
        last_.DieIfItComes();
        return FileOps::Unlink(path);
    }

private:
    LastCall& last_;
    docmodel::FileOps* former_;
};

class MortalFiles : public FileSystem {
public:
    explicit MortalFiles(LastCall& last) : last_(last) { gSeams.files = this; }
    ~MortalFiles() override { gSeams.files = nullptr; }
    void Move(const QString& from, const QString& to) override {
        last_.DieIfItComes();
        FileSystem::Move(from, to);
    }
    // Dies before a copy, in the middle of it, with a part of it beside its place, or behind it.
    bool Copy(const QString& from, const QString& to, IfThere ifThere) override {
        last_.DieIfItComes();
        if (last_.Comes()) {
            QFile source(from);
            QFile part(QFileInfo(to).path() + "/.part.tmp");
            if (source.open(QIODevice::ReadOnly) && part.open(QIODevice::WriteOnly))
                part.write(source.read(source.size() / 2));
            part.flush();
            LastCall::Die();
        }
        return FileSystem::Copy(from, to, ifThere);
    }
    void Sync(const QStringList&) override { last_.DieIfItComes(); }

private:
    LastCall& last_;
};

// Runs an action in a process of its own, which dies at its n-th call that changes the disk. True
// if it did.
inline bool KilledAt(int nth, const std::function<void()>& action) {
    const pid_t child = ::fork();
    if (child == 0) {
        LastCall last(nth);
        const MortalDisk disk(last);
        const MortalFiles files(last);
        action();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

// The calls of an action that nothing ends.
inline int CallsThatChangeTheDisk(const std::function<void()>& action) {
    LastCall never(0);
    const MortalDisk disk(never);
    const MortalFiles files(never);
    action();
    return never.Count();
}

}  // namespace docbench
