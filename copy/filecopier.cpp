#include "copy/filecopier.h"

#include "services/dialogs.h"
#include "services/docaccess.h"
#include "services/errorstate.h"
#include "services/filesystem.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"

namespace docbench {
namespace {

using IfThere = FileSystem::IfThere;

bool Exists(const QString& target) {
    if (!IsWebPath(target))
        return FileExists(target);
    // A server that can't tell is not in the way: it refuses the upload if there is such a file.
    return gWebFolder && gWebFolder->Exists(target) == WebFolderClient::Presence::Present;
}

CopyStatus AskOverwrite(const QString& target) {
    switch (gSeams.dialogs->Box(Format(Text::OverwriteQuestion, target), Dialogs::Icon::Question,
                                Tr(Text::OverwriteTitle), Dialogs::Buttons::YesNoCancel)) {
        case Dialogs::Answer::Yes:
            return CopyStatus::Copied;
        case Dialogs::Answer::No:
            return CopyStatus::Kept;
        case Dialogs::Answer::Cancel:
        case Dialogs::Answer::Ok:
            break;
    }
    return CopyStatus::Cancelled;
}

CopyOutcome WebOutcome(bool done) {
    if (done)
        return {};
    return {.status = CopyStatus::Failed,
            .reason = gWebFolder ? gWebFolder->LastError() : QString()};
}

CopyOutcome Upload(const QString& source, const QString& target, IfThere ifThere) {
    const QString local = LocalCopyOf(source);
    if (ifThere == IfThere::Replace && gWebFolder)
        gWebFolder->AllowOverwrite(target);
    const CopyOutcome outcome =
        WebOutcome(gWebFolder && !local.isEmpty() && gWebFolder->PutFile(local, target));
    if (outcome.status == CopyStatus::Copied)
        gWebCopies.remove(target);  // what was there before
    return outcome;
}

CopyOutcome Download(const QString& source, const QString& target) {
    return WebOutcome(gWebFolder && gWebFolder->GetFile(source, target));
}

// Between folders. None when there is a file meanwhile that nobody was asked about.
std::optional<CopyOutcome> CopyOnDisk(const QString& source, const QString& target,
                                      IfThere ifThere) {
    ErrorState errors;
    bool copied = false;
    if (!errors.Assign(copied, [&] { return Files().Copy(source, target, ifThere); }))
        return CopyOutcome{.status = CopyStatus::Failed, .reason = errors.Description()};
    return copied ? std::optional(CopyOutcome{}) : std::nullopt;
}

QString ParentFolderOf(const QString& path) {
    return FolderNoSeparator(path);
}

}  // namespace

CopyOutcome FileCopier::CopyOneFile(const QString& source, const QString& target) {
    const bool toWeb = IsWebPath(target);
    if (!toWeb && !CreateFolderPath(FolderOf(target))) {
        const QString message = Format(Text::FolderNotMade, ParentFolderOf(target));
        return {.status = CopyStatus::Failed, .message = message, .reason = message};
    }
    if (toWeb)
        MakeWebFolder(UrlFolder(QString(target).replace(u'\\', u'/')));
    status_(Format(Text::CopyingTo, target));
    const CopyOutcome outcome = CopyAs(source, target);
    if (!toWeb)
        AllowWriting(target);
    return outcome;
}

CopyOutcome FileCopier::CopyAs(const QString& source, const QString& target) {
    // Twice: a file may appear between the first look and the copy.
    for (int tries = 0; tries < 2; ++tries) {
        IfThere ifThere = IfThere::Refuse;
        if (Exists(target)) {
            const CopyStatus answer = AskOverwrite(target);
            if (answer != CopyStatus::Copied)
                return {.status = answer};
            ifThere = IfThere::Replace;
        }
        if (IsWebPath(target))
            return Upload(source, target, ifThere);
        if (IsWebPath(source))
            return Download(source, target);
        if (const std::optional<CopyOutcome> outcome = CopyOnDisk(source, target, ifThere))
            return *outcome;
    }
    return {.status = CopyStatus::Failed,
            .reason = QStringLiteral("The file %1 can't be copied: there is something of the name "
                                     "%2 that can't be looked at. Choose another name.")
                          .arg(source, target)};
}

// A server makes a folder only in one that is there.
void FileCopier::MakeWebFolder(const QString& url) {
    if (!gWebFolder || webFolders_.contains(url))
        return;
    webFolders_.insert(url);
    if (gWebFolder->MakeFolder(url))
        return;
    const QString parent = UrlFolder(url.chopped(1));
    const bool isServer = parent.count(u'/') < 4;  // "http://host/"
    if (isServer || webFolders_.contains(parent))
        return;
    MakeWebFolder(parent);
    gWebFolder->MakeFolder(url);
}

}  // namespace docbench
