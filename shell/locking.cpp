#include "shell/locking.h"

#include "services/dialogs.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/language.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/username.h"
#include "services/webcopies.h"
#include "shell/treepictures.h"

namespace docbench {

namespace {

constexpr int kMayBeWritten = 0;
constexpr int kReadOnly = 2;
constexpr int kInUse = 3;

void Warn(const QString& text) {
    gSeams.dialogs->Box(text, Dialogs::Icon::Exclamation, gAppTitle);
}

// Changes the record of an opened document as far as the user may; gives the lock state afterwards.
bool ChangeLock(DocumentInfo& info, bool wantLocked, const QString& path) {
    if (!info.GetLocked()) {
        if (wantLocked) {
            info.SetLocked(true);
            info.SetLockedBy(CurrentUserName());
        }
        return wantLocked;
    }
    const QString lockedBy = info.GetLockedBy();
    if (!IsOwnLock(lockedBy)) {
        Warn(Format(Text::LockedByOther, path, lockedBy));
        return true;
    }
    if (!wantLocked) {
        info.SetLocked(false);
        info.SetLockedBy(QString());
    }
    return wantLocked;
}

}  // namespace

bool IsOwnLock(const QString& lockedBy) {
    return CurrentUserName().startsWith(lockedBy);
}

std::optional<bool> ReadLockState(const QString& path) {
    std::optional<bool> locked;
    // Whatever keeps the record from being read, it was not opened: the caller's state stays.
    ErrorState().Run([&] {
        const auto info = Documents().MakeDocumentInfo();
        if (info->Open(LocalCopyOf(path)))
            locked = info->GetLocked();
    });
    return locked;
}

QString AccessStateText(int code, const QString& path) {
    switch (code) {
        case kReadOnly:
            return Format(Text::AccessReadOnly, path);
        case kInUse:
            return Format(Text::AccessInUse, path);
        default:
            return Format(Text::AccessRefused, path);
    }
}

void ReportAccessState(int code, const QString& path) {
    Warn(AccessStateText(code, path));
}

void ApplyLock(ReferenceTree& tree, bool wantLocked, int node) {
    const QString path = tree.Nodes().At(node).tag;
    try {
        const QString local = LocalCopyOf(path);
        const int code = Documents().MakeDocumentFile()->GetAccessState(local);
        if (code != kMayBeWritten)
            return ReportAccessState(code, path);
        const auto info = Documents().MakeDocumentInfo();
        if (!info->Open(local))
            return;
        const bool locked = ChangeLock(*info, wantLocked, path);
        info->Save();  // writes the record whether or not the lock changed
        UploadIfWeb(path);
        tree.currentLocked = locked;
    } catch (const std::exception& error) {
        return Warn(DescriptionOf(error));
    }
    const QString picture = DocumentPicture(path, tree.currentLocked);
    if (!picture.isEmpty())
        tree.Model().SetImage(node, picture);
}

void ApplyLockToChildren(ReferenceTree& tree, bool wantLocked, int node) {
    const int last = tree.Nodes().LastBelow(node);
    for (int i = node + 1; i <= last; ++i)
        ApplyLock(tree, wantLocked, i);
}

void ApplyLockToMarked(ReferenceTree& tree, bool wantLocked, int node) {
    const int last = tree.Nodes().LastBelow(node);
    for (int i = node; i <= last; ++i) {
        if (!IsMarked(tree, i))
            continue;
        ApplyLock(tree, wantLocked, i);
        if (i != node)  // a child's turn comes once from its parent and once from itself
            ApplyLock(tree, wantLocked, i);
    }
}

void MarkNode(ReferenceTree& tree, int node) {
    tree.Model().SetBackColor(node, kColorMarked);
}

bool IsMarked(const ReferenceTree& tree, int node) {
    return tree.Nodes().At(node).backColor == kColorMarked;
}

void ClearMarks(ReferenceTree& tree, int node) {
    const int last = tree.Nodes().LastBelow(node);
    for (int i = node; i <= last; ++i) {
        if (IsMarked(tree, i))
            tree.Model().SetBackColor(i, kColorWhite);
    }
}

}  // namespace docbench
