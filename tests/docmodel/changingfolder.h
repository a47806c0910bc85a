// A folder of documents that is changed at random, with all the tricks that files and their times
// can play: what tests of the index search again and again.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <functional>

#include "tests/docmodel/documenttools.h"

namespace docmodel {

class Times {
public:
    explicit Times(const QString& path) : path_(QFile::encodeName(path)) {
        struct stat status = {};
        stat(path_.constData(), &status);
        times_[0] = status.st_atim;
        times_[1] = status.st_mtim;
    }
    void Restore(const QString& to) const {
        utimensat(AT_FDCWD, QFile::encodeName(to).constData(), times_, 0);
    }

private:
    QByteArray path_;
    timespec times_[2];
};

// A folder of documents that is changed at random.
class ChangingFolder {
public:
    // How the documents of a test are made. All may raise DocumentError.
    struct Maker {
        std::function<void(const QString& path, QRandomGenerator& random)> write;
        std::function<void(const QString& path, QRandomGenerator& random)> edit;
        // Another document that is likely to have the same size.
        std::function<void(const QString& path, const QString& twin, QRandomGenerator& random)>
            twin;
        // Documents of the folder that come and go without any other being written; may be empty.
        QStringList others = {};
    };

    ChangingFolder(const QString& folder, quint32 seed, Maker maker)
        : folder_(folder), random_(seed), maker_(std::move(maker)) {
        QDir().mkpath(folder_ + "/elsewhere");
        for (int i = 0; i < kDocuments; ++i)
            Write(folder_ + '/' + NewName());
    }

    // One change; its name, for a failing test to tell.
    const char* Change() {
        switch (random_.bounded(maker_.others.isEmpty() ? 12 : 13)) {
            case 0:
                Write(folder_ + '/' + NewName());
                return "write a document";
            case 1:
                QFile::remove(Any());
                return "remove";
            case 2:
                Rename(Any(), folder_ + '/' + NewName());
                return "rename";
            case 3:
                Rename(Any(), Any());
                return "rename over another";
            case 4:
                Swap(Any(), Any());
                return "swap names";
            case 5:
                Copy(Any(), folder_ + '/' + NewName());
                return "copy";
            case 6:
                EditInPlace(Any());
                return "edit through the library";
            case 7:
                PatchInPlace(Any());
                return "patch bytes, size and times as before";
            case 8:
                ReplaceWithOldTimes(Any());
                return "replace, times as before";
            case 9:
                Touch(Any());
                return "set times";
            case 10:
                Spoil(Any());
                return "spoil";
            case 11:
                LinkTo(folder_ + '/' + NewName());
                return "link";
            default:
                return ComeOrGo(folder_ + '/' + Pick(maker_.others));
        }
    }

private:
    static constexpr int kDocuments = 12;

    QString Pick(const QStringList& of) { return of[random_.bounded(int(of.size()))]; }
    QString NewName() {
        return QString("doc%1.%2")
            .arg(random_.bounded(20))
            .arg(Pick({"tfmprt", "tfmasm", "tfmdrw"}));
    }
    QString Any() {
        const QStringList names = QDir(folder_).entryList(QDir::Files | QDir::System);
        return folder_ + '/' + (names.isEmpty() ? NewName() : Pick(names));
    }

    void Write(const QString& path) {
        QFile::remove(path);
        maker_.write(path, random_);
    }
    void Rename(const QString& from, const QString& to) {
        ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData());
    }
    void Swap(const QString& one, const QString& other) {
        const QString aside = folder_ + "/elsewhere/aside";
        Rename(one, aside);
        Rename(other, one);
        Rename(aside, other);
    }
    void Copy(const QString& from, const QString& to) {
        QFile::remove(to);
        QFile::copy(from, to);
        Times(from).Restore(to);
    }
    void EditInPlace(const QString& path) {
        try {
            maker_.edit(path, random_);
        } catch (const DocumentError&) {
            Write(path);  // a spoiled one is made anew
        }
    }
    // Another document of the same size in the same file, and its old times.
    void PatchInPlace(const QString& path) {
        const QByteArray former = FileBytes(path);
        const QString other = folder_ + "/elsewhere/other.tfmprt";
        QFile::remove(other);
        try {
            maker_.twin(path, other, random_);
        } catch (const DocumentError&) {
            return;
        }
        const QByteArray bytes = FileBytes(other);
        const Times times(path);
        const int file = open(QFile::encodeName(path).constData(), O_WRONLY);
        if (file >= 0 && pwrite(file, bytes.constData(), size_t(bytes.size()), 0) > 0)
            (void)!ftruncate(file, bytes.size());
        close(file);
        times.Restore(path);
        sameSize += bytes.size() == former.size() ? 1 : 0;
    }
    void ReplaceWithOldTimes(const QString& path) {
        const Times times(path);
        const QString other = folder_ + "/elsewhere/other.tfmprt";
        Write(other);
        times.Restore(other);
        Rename(other, path);
    }
    void Touch(const QString& path) {
        const qint64 seconds = random_.bounded(2) ? 0 : 4'000'000'000;  // long ago, or to come
        const timespec times[2] = {{time_t(seconds), 0}, {time_t(seconds), 0}};
        utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0);
    }
    void Spoil(const QString& path) {
        const Times times(path);
        QFile::resize(path, random_.bounded(100));
        times.Restore(path);
    }
    const char* ComeOrGo(const QString& path) {
        if (QFile::remove(path))
            return "a target goes";
        Write(path);
        return "a target comes";
    }
    void LinkTo(const QString& path) {
        const QString other = folder_ + "/elsewhere/linked.tfmasm";
        Write(other);
        QFile::remove(path);
        QFile::link(other, path);
    }

    const QString folder_;
    QRandomGenerator random_;
    const Maker maker_;

public:
    int sameSize = 0;  // patches that left size and modified time as they were
};

}  // namespace docmodel
