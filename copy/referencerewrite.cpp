#include "copy/referencerewrite.h"

#include <QSet>

#include "copy/copylist.h"
#include "copy/parentlist.h"
#include "copy/referencemap.h"
#include "services/dialogs.h"
#include "services/docaccess.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/filesystem.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"

namespace docbench {
namespace {

Table TableOf(bool external) {
    return external ? Table::ExternalReferences : Table::Components;
}

QString WebFolderOf(const QString& path) {
    return IsWebPath(path) ? UrlFolder(QString(path).replace(u'\\', u'/')) : QString();
}

QString LocalFileOf(const QString& path) {
    QString local = LocalCopyOf(path);
    if (local.isEmpty())
        throw DocumentError(gWebFolder ? gWebFolder->LastError()
                                       : QStringLiteral("There is no way to %1.").arg(path));
    return local;
}

QString KeyOf(const QString& source, const QString& target) {
    return source + u'\n' + TargetKey(target);
}

// False: all that is left is to stay as it is.
bool AskToGoOn(const QString& question, const QString& reason) {
    return gSeams.dialogs->Box(question, Dialogs::Icon::Exclamation, gAppTitle,
                               Dialogs::Buttons::YesNo, reason) == Dialogs::Answer::Yes;
}

class Rewriter {
public:
    Rewriter(const CopyPlan& plan, const CopiedFiles& files, const CopyProgress& progress,
             Cell& targetCell)
        : plan_(plan),
          files_(files),
          progress_(progress),
          targetCell_(targetCell),
          map_(plan, files.madeFrom),
          sourceDoc_(Documents().MakeDocumentFile()),
          targetDoc_(Documents().MakeDocumentFile()) {}

    bool Run();

private:
    enum class Next { Row, End };

    Next RewriteSource();
    Next RewriteRow(int row);
    Next RewriteParent(int row);

    // A copy that was not made is the reason why it can't be opened.
    const QString& ReasonFor(const QString& error) const {
        return files_.sourceReason.isEmpty() ? error : files_.sourceReason;
    }
    DocumentFile& OpenCopy(const QString& source, const QString& target, bool sameTables);
    bool WasKept(const QString& target) const;
    void RequireMadeFrom(const QString& source, const QString& target) const;
    static void RequireReference(const QString& found, const QString& old, const QString& copy);
    bool PointToCopies(DocumentFile& writing, const QString& source, bool sameTables,
                       ErrorState& errors);
    bool PointParent(DocumentFile& writing, const ParentRow& row, ErrorState& errors);
    DocumentFile& OpenParent(const ParentRow& row);
    void RequireStamp(DocumentFile& file, const ParentRow& row, const QString& path) const;
    void Count(const QString& path);
    int CountAll() const;

    const CopyPlan& plan_;
    const CopiedFiles& files_;
    const CopyProgress& progress_;
    Cell& targetCell_;
    const ReferenceMap map_;
    std::unique_ptr<DocumentFile> sourceDoc_;
    std::unique_ptr<DocumentFile> targetDoc_;
    std::unique_ptr<DocumentFile> parentCopy_;
    QSet<QString> done_;     // copies (by KeyOf) that need no second visit
    QSet<QString> written_;  // targets (their keys) whose tables are our own work by now
    // The stamps that tables got by our own writes, by file and table.
    QHash<std::pair<QString, bool>, QByteArray> stamps_;
    int counted_ = 0;
    int all_ = 0;
};

bool Rewriter::Run() {
    all_ = CountAll();
    if (RewriteSource() == Next::End)
        return true;
    for (int row = 0; row < plan_.copies.Count(); ++row) {
        if (HasCopy(plan_.copies.At(row)) && RewriteRow(row) == Next::End)
            return true;
    }
    for (int row = 0; row < plan_.parents.Count(); ++row) {
        if (!plan_.parents.At(row).ticked)
            continue;
        if (RewriteParent(row) == Next::End)
            return true;
        if (!progress_.yield())
            return false;
    }
    return true;
}

int Rewriter::CountAll() const {
    int count = 1;
    for (const CellRow& row : plan_.copies.Rows())
        count += HasCopy(row) ? 1 : 0;
    for (const CellRow& row : plan_.parents.Rows())
        count += row.ticked ? 1 : 0;
    return count;
}

void Rewriter::Count(const QString& path) {
    progress_.step(++counted_, all_, path);
}

// Opens both, and gives the one that is written. `sameTables`: the copy must still be one.
DocumentFile& Rewriter::OpenCopy(const QString& source, const QString& target, bool sameTables) {
    sourceDoc_->Open(LocalFileOf(source));
    if (source == target)
        return *sourceDoc_;
    targetDoc_->Open(LocalFileOf(target));
    const bool ours = written_.contains(TargetKey(target));
    for (const Table table : {Table::Components, Table::ExternalReferences}) {
        if (sameTables && !ours && sourceDoc_->GetStamp(table) != targetDoc_->GetStamp(table))
            throw DocumentError(QStringLiteral("The references of %1 are not those of %2, which "
                                               "was changed meanwhile. Copy it again.")
                                    .arg(target, source));
    }
    return *targetDoc_;
}

// What stands at the target of a row is no copy: it was there before, and the user kept it.
bool Rewriter::WasKept(const QString& target) const {
    return !files_.madeFrom.contains(TargetKey(target)) && !IsWebPath(target) && FileExists(target);
}

// Two rows with one target: what stands there is the copy of one of them.
void Rewriter::RequireMadeFrom(const QString& source, const QString& target) const {
    const QString made = files_.madeFrom.value(TargetKey(target), source);
    if (made != source)
        throw DocumentError(QStringLiteral("It was not copied: %1 is the copy of %2. Give each "
                                           "document a target of its own, and copy again.")
                                .arg(target, made));
}

// In a kept file the same position may be another reference by now, which is left alone.
void Rewriter::RequireReference(const QString& found, const QString& old, const QString& copy) {
    const QString name = FileNameOf(found);
    if (name != FileNameOf(old) && name != FileNameOf(copy))
        throw DocumentError(QStringLiteral("A reference to %1 stands where one to %2 was expected: "
                                           "it was left alone.")
                                .arg(found, old));
}

// Points every reference that leads to a copied document to the copy. What fails keeps its path,
// and the others go on.
bool Rewriter::PointToCopies(DocumentFile& writing, const QString& source, bool sameTables,
                             ErrorState& errors) {
    const QString webFolder = WebFolderOf(source);
    bool modified = false;
    int count = 0;
    errors.Assign(count, [&] { return sourceDoc_->GetComponentCount(); });
    for (int i = 0; i < count; ++i) {
        errors.Run([&] {
            const QString old = sourceDoc_->GetComponent(i, webFolder).path;
            if (const auto path = map_.MapReferencePath(old)) {
                if (!sameTables)
                    RequireReference(writing.GetComponent(i, webFolder).path, old, *path);
                writing.SetComponentPath(i, *path);
                modified = true;
            }
        });
    }
    count = 0;
    errors.Assign(count, [&] { return sourceDoc_->GetExternalReferenceCount(); });
    for (int i = 0; i < count; ++i) {
        errors.Run([&] {
            const QString old = sourceDoc_->GetExternalReference(i, webFolder).path;
            if (const auto path = map_.MapReferencePath(old)) {
                if (!sameTables)
                    RequireReference(writing.GetExternalReference(i, webFolder).path, old, *path);
                writing.SetExternalReferencePath(i, *path);
                modified = true;
            }
        });
    }
    return modified;
}

Rewriter::Next Rewriter::RewriteSource() {
    Count(plan_.target);
    ErrorState errors;
    // A file that the user kept is written as it is: it is meant to be an earlier copy.
    const bool sameTables = files_.sourceStatus != CopyStatus::Kept;
    DocumentFile* writing = nullptr;
    bool modified = false;
    if (!errors.Run([&] { writing = &OpenCopy(plan_.source, plan_.target, sameTables); })) {
        if (!AskToGoOn(Format(Text::CopyNotOpened, plan_.target), ReasonFor(errors.Description())))
            return Next::End;
    } else {
        modified = PointToCopies(*writing, plan_.source, sameTables, errors);
    }
    const QString untold = ReasonFor(errors.Description());
    errors.Clear();
    if (modified)
        errors.Run([&] {
            writing->Save();
            written_.insert(TargetKey(plan_.target));
            UploadIfWeb(plan_.target);
        });
    if (!errors.Failed()) {
        targetCell_.foreColor = kColorBlue;
        if (untold.isEmpty())
            done_.insert(KeyOf(plan_.source, plan_.target));
        else
            targetCell_.toolTip = Format(Text::NotUpdatedTip, untold);
        return Next::Row;
    }
    targetCell_.foreColor = kColorRed;
    targetCell_.toolTip = Format(Text::NotUpdatedTip, errors.Description());
    return AskToGoOn(Format(Text::NotSaved, plan_.target, errors.Description()), QString())
               ? Next::Row
               : Next::End;
}

Rewriter::Next Rewriter::RewriteRow(int index) {
    const CopyRow row = ReadCopyRow(plan_.copies.At(index));
    const QString key = KeyOf(row.source, row.target);
    Count(row.target);
    if (WasKept(row.target))
        return Next::Row;
    if (done_.contains(key))
        return Next::Row;  // a copy that several use: it would get the same paths again
    progress_.status(Format(Text::UpdatingReferences, row.target));
    const auto tell = [&](const QString& description) {
        plan_.copies.Change(index, [&](CellRow& changed) {
            changed.cells[kCopyTarget].toolTip = Format(Text::NotUpdatedTip, description);
        });
    };
    const auto paint = [&](CellColor color) {
        plan_.copies.Change(
            index, [&](CellRow& changed) { changed.cells[kCopyTarget].foreColor = color; });
    };
    ErrorState errors;
    DocumentFile* writing = nullptr;
    if (!errors.Run([&] {
            RequireMadeFrom(row.source, row.target);
            writing = &OpenCopy(row.source, row.target, true);
        })) {
        tell(errors.Description());
        progress_.rowInQuestion(CopyProgress::List::Copies, index);
        return AskToGoOn(Format(Text::NotOpened, row.source, errors.Description()), QString())
                   ? Next::Row
                   : Next::End;
    }
    const bool modified = PointToCopies(*writing, row.source, true, errors);
    const bool complete = !errors.Failed();
    if (!complete)
        tell(errors.Description());
    errors.Clear();
    if (modified)
        errors.Run([&] {
            writing->Save();
            written_.insert(TargetKey(row.target));
        });
    if (!errors.Failed()) {
        if (complete)
            done_.insert(key);
        paint(kColorBlue);
        return Next::Row;
    }
    paint(kColorRed);
    tell(errors.Description());
    progress_.rowInQuestion(CopyProgress::List::Copies, index);
    return AskToGoOn(Format(Text::NotSaved, row.target, errors.Description()), QString())
               ? Next::Row
               : Next::End;
}

// The position of a row is good for one state of the table: the one that the search saw, or the
// one that our own last write left.
void Rewriter::RequireStamp(DocumentFile& file, const ParentRow& row, const QString& path) const {
    const QByteArray expected = stamps_.value({PathWithoutLinks(path), row.external}, row.stamp);
    if (!expected.isEmpty() && file.GetStamp(TableOf(row.external)) != expected)
        throw DocumentError(QStringLiteral("The references of %1 were changed since they were "
                                           "looked for. Look for them again.")
                                .arg(path));
}

// Opens the parent, and gives the document that is written: itself or its copy.
DocumentFile& Rewriter::OpenParent(const ParentRow& row) {
    if (row.state == ParentState::Copy) {
        parentCopy_ = Documents().MakeDocumentFile();
        parentCopy_->Open(LocalFileOf(row.target));
        RequireStamp(*parentCopy_, row, row.target);
    }
    sourceDoc_->Open(LocalFileOf(row.parent));
    RequireStamp(*sourceDoc_, row, row.parent);
    return row.state == ParentState::Copy ? *parentCopy_ : *sourceDoc_;
}

bool Rewriter::PointParent(DocumentFile& writing, const ParentRow& row, ErrorState& errors) {
    const QString webFolder = WebFolderOf(row.parent);
    bool modified = false;
    errors.Run([&] {
        const QString path = row.external
                                 ? sourceDoc_->GetExternalReference(row.number, webFolder).path
                                 : sourceDoc_->GetComponent(row.number, webFolder).path;
        const auto copy = map_.MapReferencePath(path);
        if (!copy)
            return;
        if (row.external)
            writing.SetExternalReferencePath(row.number, *copy);
        else
            writing.SetComponentPath(row.number, *copy);
        modified = true;
    });
    return modified;
}

Rewriter::Next Rewriter::RewriteParent(int index) {
    const ParentRow row = ReadParentRow(plan_.parents.At(index));
    const QString saved = row.state == ParentState::Copy ? row.target : row.parent;
    Count(saved);
    const auto show = [&](CellColor color, const QString& toolTip) {
        plan_.parents.Change(index, [&](CellRow& changed) {
            changed.cells[kParentHolder].foreColor = color;
            if (!toolTip.isEmpty())
                changed.cells[kParentHolder].toolTip = toolTip;
        });
        if (color == kColorRed)
            progress_.rowInQuestion(CopyProgress::List::Parents, index);
        else
            progress_.rowDone(CopyProgress::List::Parents, index);
    };
    ErrorState errors;
    DocumentFile* writing = nullptr;
    errors.Run([&] { writing = &OpenParent(row); });
    progress_.status(Format(Text::UpdatingReferences, saved));
    if (errors.Failed()) {
        show(kColorRed, Format(Text::ParentNotOpenedTip, errors.Description()));
        return AskToGoOn(Format(Text::NotOpened, row.parent, errors.Description()), QString())
                   ? Next::Row
                   : Next::End;
    }
    const bool modified = PointParent(*writing, row, errors);
    const QString untold = errors.Description();
    errors.Clear();
    if (modified)
        errors.Run([&] {
            writing->Save();
            stamps_[{PathWithoutLinks(saved), row.external}] =
                writing->GetStamp(TableOf(row.external));
            UploadIfWeb(saved);
        });
    if (!errors.Failed()) {
        show(kColorBlue, untold.isEmpty() ? QString() : Format(Text::NotUpdatedTip, untold));
        return Next::Row;
    }
    show(kColorRed, Format(Text::NotUpdatedTip, errors.Description()));
    return AskToGoOn(Format(Text::NotSaved, saved, errors.Description()), QString()) ? Next::Row
                                                                                     : Next::End;
}

}  // namespace

bool RewriteReferences(const CopyPlan& plan, const CopiedFiles& files, const CopyProgress& progress,
                       Cell& targetCell) {
    return Rewriter(plan, files, progress, targetCell).Run();
}

}  // namespace docbench
