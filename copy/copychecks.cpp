#include "copy/copychecks.h"

#include <QFileInfo>
#include <QSet>

#include "copy/copylist.h"
#include "copy/parentlist.h"
#include "services/dialogs.h"
#include "services/docaccess.h"
#include "services/documentlibrary.h"
#include "services/filesystem.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"
#include "shell/locking.h"

namespace docbench {
namespace {

bool Refuse(const QString& text) {
    gSeams.dialogs->Box(text, Dialogs::Icon::Exclamation, gAppTitle);
    return false;
}

// False on cancel: the row stays red.
bool BrowseMissingFile(const CopyChecks& checks, int row) {
    const QString missing = checks.copies.At(row).cells[kCopySource].tag;
    const QString chosen =
        gSeams.dialogs->OpenFile(Tr(Text::ChooseDocument), FilterFor(missing), FolderOf(missing));
    if (!checks.there() || chosen.isEmpty() || !FileExists(chosen))
        return false;
    checks.replacedFiles.insert(missing, chosen);
    checks.copies.Change(row, [&](CellRow& changed) {
        Cell& source = changed.cells[kCopySource];
        source.text = chosen;
        source.tag = chosen;
        source.toolTip = chosen;
        source.foreColor = kColorNormal;
    });
    return true;
}

bool CheckSources(const CopyChecks& checks) {
    enum Answer { kBrowse = 0, kSkip = 1, kSkipAll = 2 };
    for (int row = 0; row < checks.copies.Count(); ++row) {
        const CellRow& shown = checks.copies.At(row);
        if (!ReadCopyRow(shown).missing)
            continue;
        const int answer =
            checks.ask(Format(Text::SourceMissing, shown.cells[kCopySource].text),
                       {Tr(Text::Yes), Tr(Text::No), Tr(Text::NoToAll), Tr(Text::Cancel)});
        if (!checks.there())
            return false;
        switch (answer) {
            case kBrowse:
                if (!BrowseMissingFile(checks, row))
                    return false;
                break;
            case kSkip:
                break;
            case kSkipAll:
                return true;
            default:
                return false;
        }
    }
    return true;
}

bool CheckParents(const CopyChecks& checks) {
    QSet<QString> good;  // a document may have many rows
    for (int row = 0; row < checks.parents.Count(); ++row) {
        const ParentRow parent = ReadParentRow(checks.parents.At(row));
        const bool onlyCopied =
            DocTypeOf(parent.parent) == DocType::Drawing && parent.state == ParentState::Copy;
        if (!parent.ticked || onlyCopied || good.contains(parent.parent))
            continue;
        const int code = Documents().MakeDocumentFile()->GetAccessState(LocalCopyOf(parent.parent));
        if (!checks.there())
            return false;
        if (code == 0) {
            good.insert(parent.parent);
            continue;
        }
        RefuseParent(checks.parents, row);
        ReportAccessState(code, parent.parent);
        return false;
    }
    return true;
}

class FolderCheck {
public:
    explicit FolderCheck(const CopyChecks& checks) : checks_(checks) {}

    CheckOutcome Run() {
        if (IsReadOnly(checks_.target)) {
            Refuse(Format(Text::TargetFolderReadOnly, FolderNoSeparator(checks_.target)));
            return CheckOutcome::RefusedTarget;
        }
        for (const CellRow& row : checks_.copies.Rows()) {
            if (!MayBeUsed(ReadCopyRow(row).target))
                return CheckOutcome::Refused;
        }
        for (const CellRow& row : checks_.parents.Rows()) {
            if (IsCopied(row) && !MayBeUsed(row.tag))
                return CheckOutcome::Refused;
        }
        return CheckOutcome::Ok;
    }

private:
    static bool IsReadOnly(const QString& file) {
        return !IsWebPath(file) && IsReadOnlyFile(FolderOf(file));
    }

    // The folder of a file, which is made on request where it is missing.
    bool MayBeUsed(const QString& file) {
        const QString folder = FolderNoSeparator(file);
        if (folder.isEmpty() || IsWebPath(file) || good_.contains(folder))
            return true;
        if (!QFileInfo::exists(FolderOf(file)))
            return !checks_.makesFolders || createAll_ || AskCreateFolder(folder);
        if (IsReadOnly(file))
            return Refuse(Format(Text::TargetFolderReadOnly, folder));
        good_.insert(folder);
        return true;
    }

    bool AskCreateFolder(const QString& folder) {
        enum Answer { kCreate = 0, kCreateAll = 1 };
        const int answer = checks_.ask(Format(Text::CreateFolderQuestion, folder),
                                       {Tr(Text::Yes), Tr(Text::YesToAll), Tr(Text::No)});
        if (!checks_.there() || (answer != kCreate && answer != kCreateAll))
            return false;
        createAll_ = answer == kCreateAll;
        CreateFolderPath(folder);  // should that fail, the copy of each file tells it
        return true;
    }

    const CopyChecks& checks_;
    QSet<QString> good_;
    bool createAll_ = false;
};

}  // namespace

CheckOutcome CheckBeforeCopy(const CopyChecks& checks) {
    if (checks.target.isEmpty()) {
        Refuse(Tr(Text::NoTargetFile));
        return CheckOutcome::RefusedTarget;
    }
    if (DocTypeOf(checks.source) != DocTypeOf(checks.target)) {
        Refuse(Tr(Text::TargetOfOtherType));
        return CheckOutcome::RefusedTargetType;
    }
    if (!CheckSources(checks) || !CheckParents(checks))
        return CheckOutcome::Refused;
    return FolderCheck(checks).Run();
}

const QString& FilterFor(const QString& path) {
    switch (DocTypeOf(path)) {
        case DocType::Assembly:
            return Tr(Text::AssemblyFilter);
        case DocType::Part:
            return Tr(Text::PartFilter);
        default:
            return Tr(Text::DrawingFilter);
    }
}

}  // namespace docbench
