#include "rename/renamechecks.h"

#include <QFileInfo>

#include "cells/celllist.h"
#include "rename/renamelist.h"
#include "services/dialogs.h"
#include "services/docaccess.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"
#include "shell/locking.h"

namespace docbench {
namespace {

constexpr int kVisits = 50;  // documents that the walk below a replacement may see

bool SameName(const QString& one, const QString& other) {
    return FileNameOf(one).compare(FileNameOf(other), Qt::CaseInsensitive) == 0;
}

bool Refuse(const QString& text) {
    gSeams.dialogs->Box(text, Dialogs::Icon::Exclamation, gAppTitle);
    return false;
}

// Walks what a replacement refers to, and ends where it meets a document above the place that the
// replacement would take.
class TargetWalk {
public:
    explicit TargetWalk(const RenameSubject& subject) : subject_(subject) {}

    bool Walk(const QString& current) {
        if (visitBudget_ == 0)
            return false;
        if (SameName(subject_.fullName, current))
            return true;  // what hangs below the replaced document goes away with it
        --visitBudget_;
        for (const QString& ancestor : subject_.ancestorChain) {
            if (SameName(ancestor, current))
                return Refuse(Format(Text::CircularReference, FileNameOf(current)));
        }
        QStringList below;
        ErrorState errors;
        if (!errors.Assign(below, [&] { return ReferencesOf(current); }))
            return Refuse(Format(Text::DocumentNotReadable, current));
        for (const QString& path : below) {
            if (!Walk(path))
                return false;
        }
        return true;
    }

private:
    static QStringList ReferencesOf(const QString& path) {
        const QString webFolder = IsWebPath(path) ? UrlFolder(path) : QString();
        const auto file = Documents().MakeDocumentFile();
        file->Open(LocalCopyOf(path));
        QStringList paths;
        for (int i = 0; i < file->GetComponentCount(); ++i)
            paths.append(file->GetComponent(i, webFolder).path);
        for (int i = 0; i < file->GetExternalReferenceCount(); ++i)
            paths.append(file->GetExternalReference(i, webFolder).path);
        return paths;
    }

    const RenameSubject& subject_;
    int visitBudget_ = kVisits;
};

bool TargetInAncestors(const RenameSubject& subject, const QString& target,
                       const ShowStatusLine& showStatus) {
    if (subject.ancestorChain.isEmpty())
        return false;
    showStatus(Format(Text::CheckingTarget, target));
    if (subject.replaces)
        return !TargetWalk(subject).Walk(target);
    for (const QString& ancestor : subject.ancestorChain) {
        if (SameName(ancestor, target))
            return true;
    }
    return false;
}

bool IsOnDisk(const RenameSubject& subject, const QString& path) {
    return subject.wildcards ? FileExists(path) : QFileInfo::exists(path);
}

bool Exists(const RenameSubject& subject, const QString& path, QString& trouble) {
    if (!IsWebPath(path) || !gWebFolder)
        return IsOnDisk(subject, path);
    const WebFolderClient::Presence presence = gWebFolder->Exists(path);
    if (presence == WebFolderClient::Presence::Unknown)
        trouble = gWebFolder->LastError();
    return presence == WebFolderClient::Presence::Present;
}

bool ValidateNewName(const RenameSubject& subject, const QString& target) {
    QString trouble;
    if (Exists(subject, target, trouble))
        return Refuse(Tr(Text::TargetExists));
    if (!trouble.isEmpty())
        return Refuse(trouble);
    if (FolderOf(target) != subject.folder)
        return Refuse(Tr(Text::TargetElsewhere));
    return true;
}

void RefuseRow(CellList& list, int row) {
    list.Change(row, [](CellRow& changed) {
        changed.cells[kHolderColumn].foreColor = kColorRed;
        changed.ticked = false;
    });
}

bool CheckHolder(CellList& list, int row, const RenameSubject& subject, const QString& newName,
                 const std::function<void(int row)>& show) {
    const QString holder = ReadRow(list.At(row)).holder;
    if (SameName(newName, holder)) {
        show(row);
        RefuseRow(list, row);
        return Refuse(Format(subject.replaces ? Text::HolderIsReplacement : Text::HolderHasNewName,
                             holder, newName));
    }
    if (IsWebPath(holder))
        return true;
    if (!MayBeWritten(holder)) {
        RefuseRow(list, row);
        return false;
    }
    if (list.At(row).cells[kHolderColumn].foreColor != kColorNormal)
        list.Change(
            row, [](CellRow& changed) { changed.cells[kHolderColumn].foreColor = kColorNormal; });
    return true;
}

}  // namespace

QString WithExtension(const QString& newName, const QString& oldName) {
    if (newName.isEmpty() || DocTypeOf(newName) != DocType::None)
        return newName;
    return newName + u'.' + ExtensionOf(oldName);
}

bool ValidateTarget(const RenameSubject& subject, const QString& target,
                    const ShowStatusLine& showStatus) {
    if (TargetInAncestors(subject, target, showStatus))
        return Refuse(Format(Text::TargetCollides, BaseNameOf(target)));
    if (DocTypeOf(target) == DocType::None)
        return Refuse(Format(Text::TargetTypeUnknown, target));
    if (target == subject.fullName)
        return Refuse(Tr(Text::TargetUnchanged));
    if (DocTypeOf(target) != DocTypeOf(subject.fullName))
        return Refuse(Tr(Text::TargetTypeDiffers));
    if (!subject.replaces)
        return ValidateNewName(subject, target);
    if (IsWebPath(target) || IsOnDisk(subject, target))
        return true;
    return Refuse(Format(Text::TargetMissing, target));
}

bool MayBeWritten(const QString& document) {
    const int code = Documents().MakeDocumentFile()->GetAccessState(LocalCopyOf(document));
    if (code != 0)
        ReportAccessState(code, document);
    return code == 0;
}

bool CheckHolders(CellList& list, const RenameSubject& subject, const QString& newName,
                  const std::function<void(int row)>& show) {
    for (int row = 0; row < list.Count(); ++row) {
        if (list.At(row).ticked && !CheckHolder(list, row, subject, newName, show))
            return false;
    }
    return true;
}

}  // namespace docbench
