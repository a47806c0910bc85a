#include "docmodel/siblingfile.h"

#include <QRandomGenerator>
#include <algorithm>
#include <cerrno>

#include "docmodel/filelock.h"

namespace docmodel {

namespace {

// From the system's numbers: a process and its fork would draw the same of their own.
QByteArray RandomSiblingName(const QByteArray& target) {
    constexpr qsizetype kLongestName = 255;
    const QByteArray name = target.mid(target.lastIndexOf('/') + 1);
    const QByteArray random =
        QByteArray::number(QRandomGenerator::system()->generate64(), 16).rightJustified(16, '0');
    const QByteArray end = '.' + random + ".tmp";
    return '.' + name.left(kLongestName - 1 - end.size()) + end;
}

}  // namespace

QByteArray FolderOf(const QByteArray& path) {
    const qsizetype slash = path.lastIndexOf('/');
    if (slash < 0)
        return QByteArrayLiteral(".");
    return path.left(std::max<qsizetype>(slash, 1));
}

SiblingFile::SiblingFile(const QByteArray& target, unsigned mode) : target_(target) {
    const QByteArray path = FolderOf(target) + '/' + RandomSiblingName(target);
    file_ = FileDescriptor(gFileOps->CreateNew(path.constData(), mode));
    if (!file_.IsOpen())
        return;
    path_ = path;
    if (!TryLock(file_.Get())) {
        const int error = errno;
        file_.Close();
        errno = error;
    }
}

SiblingFile::~SiblingFile() {
    if (!path_.isEmpty())
        gFileOps->Unlink(path_.constData());
}

bool SiblingFile::PlaceOver(bool& placed) {
    return FinishPlacing(gFileOps->Rename(path_.constData(), target_.constData()), placed);
}

bool SiblingFile::PlaceUnlessThere(bool& placed) {
    return FinishPlacing(gFileOps->RenameNoReplace(path_.constData(), target_.constData()), placed);
}

bool SiblingFile::PlaceUnsynced() {
    if (gFileOps->Rename(path_.constData(), target_.constData()) != 0)
        return false;
    path_.clear();
    return true;
}

bool SiblingFile::FinishPlacing(int renamed, bool& placed) {
    placed = renamed == 0;
    if (!placed)
        return false;
    path_.clear();
    return SyncFolder(FolderOf(target_).constData());
}

}  // namespace docmodel
