#include "copy/copywalk.h"

#include <QHash>
#include <QSet>
#include <memory>
#include <vector>

#include "copy/copylist.h"
#include "services/dialogs.h"
#include "services/docaccess.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"

namespace docbench {
namespace {

struct Reference {
    QString path;
    bool isComponent;
    bool missing;
    QString relativeFolder;
    CellRow row;
};

// What the list needs to know of a document, as far as it could be read.
struct Document {
    std::vector<Reference> references;  // in the order of their rows
    bool complete = false;              // false: the walk ends with its rows
};

// The library gives the name of a file that is no document with its extension.
QString FileNameFrom(const QString& name, const QString& extension) {
    const QString end = u'.' + extension;
    return extension.isEmpty() || name.endsWith(end, Qt::CaseInsensitive) ? name : name + end;
}

// Reads each document once, and looks once for each file.
class KnownDocuments {
public:
    explicit KnownDocuments(const CopyWalk& walk) : walk_(walk), base_(FolderOf(walk.document)) {}

    const Document& Of(const QString& path) {
        std::shared_ptr<Document>& known = documents_[path];
        if (known)
            return *known;
        if (walk_.progress)
            walk_.progress(int(documents_.size()) - 1, path);
        known = std::make_shared<Document>();
        ErrorState untold;  // a missing document has its red row; another one none below it
        if (IsThere(path))
            untold.Run([&] { Read(path, *known); });
        return *known;
    }

private:
    void Read(const QString& path, Document& document) {
        const auto file = Documents().MakeDocumentFile();
        file->Open(LocalCopyOf(path));
        const QString webFolder = IsWebPath(path) ? UrlFolder(path) : QString();
        const bool isPart = DocTypeOf(path) == DocType::Part;
        const int components = file->GetComponentCount();
        const int externals = file->GetExternalReferenceCount();
        for (int i = 0; i < components; ++i) {
            const ComponentRow row = file->GetComponent(i, webFolder);
            document.references.push_back(
                MakeReference(FileNameFrom(row.name, row.extension), row.path, true));
        }
        for (int i = 0; i < externals; ++i) {
            const ExternalRow row = file->GetExternalReference(i, webFolder);
            // In context: the part was made in that assembly and does not consist of it.
            if (!isPart || DocTypeOf(row.path) != DocType::Assembly)
                document.references.push_back(
                    MakeReference(FileNameFrom(row.name, row.extension), row.path, false));
        }
        document.complete = true;
    }

    Reference MakeReference(const QString& fileName, const QString& path, bool isComponent) {
        const QString relative = RelativeFolder(base_, path);
        const QString name = relative + CopyName(walk_.affixes, fileName);
        // Behind a web folder, only that of a component is an address's own separator; the others
        // are sent as one.
        const bool backslash = !isComponent && IsWebPath(walk_.targetFolder);
        const QString target =
            backslash ? walk_.targetFolder + u'\\' + name : TargetIn(walk_.targetFolder, name);
        const bool missing = !IsThere(path);
        return {.path = path,
                .isComponent = isComponent,
                .missing = missing,
                .relativeFolder = relative,
                .row = MakeCopyRow(fileName, path, target, missing)};
    }

    bool IsThere(const QString& path) {
        const auto known = there_.constFind(path);
        if (known != there_.cend())
            return *known;
        const bool there = FileExists(LocalCopyOf(path));
        there_.insert(path, there);
        return there;
    }

    const CopyWalk& walk_;
    const QString base_;
    QHash<QString, std::shared_ptr<Document>> documents_;
    QHash<QString, bool> there_;
};

// A recursion over documents, with its levels on the heap: a chain of references may be longer than
// the stack is deep.
class Walk {
public:
    Walk(const CopyWalk& walk, CopyWalkResult& result)
        : walk_(walk), result_(result), documents_(walk) {}

    std::vector<CellRow> Run() {
        Enter(walk_.document);
        while (!levels_.empty()) {
            if (!Descend()) {
                onTheWay_.remove(levels_.back().path);
                levels_.pop_back();
            }
        }
        return std::move(rows_);
    }

    const QStringList& Circles() const { return circles_; }
    const QString& FirstInCircle() const { return firstInCircle_; }
    bool IsFull() const { return full_; }

private:
    struct Level {
        QString path;
        const Document* document;
        size_t next = 0;
    };

    void Enter(const QString& path) {
        const Document& document = documents_.Of(path);
        for (const Reference& reference : document.references) {
            full_ = full_ || int(rows_.size()) >= walk_.maximumRows;
            if (full_)
                return;
            AddRow(reference);
        }
        if (!document.complete)
            return;
        onTheWay_.insert(path);
        levels_.push_back({path, &document});
    }

    // Enters the next reference of the innermost level; false when there is none left.
    bool Descend() {
        Level& level = levels_.back();
        while (!full_ && level.next < level.document->references.size()) {
            const Reference& reference = level.document->references[level.next++];
            if (!reference.isComponent && DocTypeOf(reference.path) != DocType::Part)
                continue;
            if (onTheWay_.contains(reference.path)) {
                NoteCircle(level.path, reference.path);
                continue;
            }
            Enter(reference.path);  // moves the levels: nothing of `level` is touched behind it
            return true;
        }
        return false;
    }

    void NoteCircle(const QString& holder, const QString& reference) {
        const QString circle = QStringLiteral("%1 \u2192 %2").arg(holder, reference);
        if (noted_.contains(circle))
            return;
        noted_.insert(circle);
        circles_.append(circle);
        if (firstInCircle_.isEmpty())
            firstInCircle_ = reference;
    }

    void AddRow(const Reference& reference) {
        result_.missing += reference.missing ? 1 : 0;
        result_.rowFolders.append(reference.relativeFolder);
        rows_.push_back(reference.row);
    }

    const CopyWalk& walk_;
    CopyWalkResult& result_;
    KnownDocuments documents_;
    std::vector<Level> levels_;
    QSet<QString> onTheWay_;  // the documents of `levels_`
    std::vector<CellRow> rows_;
    QSet<QString> noted_;
    QStringList circles_;
    QString firstInCircle_;
    bool full_ = false;
};

void TellOfTrouble(const Walk& walk, const CopyWalk& of) {
    if (!walk.Circles().isEmpty())
        gSeams.dialogs->Box(Format(Text::CircularReference, walk.FirstInCircle()),
                            Dialogs::Icon::Stop, gAppTitle, Dialogs::Buttons::Ok,
                            walk.Circles().join(u'\n'));
    if (walk.IsFull())
        gSeams.dialogs->Box(
            QStringLiteral("The document %1 has more than %2 references below it. Those beyond are "
                           "not listed, and would not be copied. Copy its subassemblies one by "
                           "one.")
                .arg(of.document)
                .arg(of.maximumRows),
            Dialogs::Icon::Exclamation, gAppTitle);
}

}  // namespace

CopyWalkResult ListReferences(const CopyWalk& walk, CellList& list) {
    CopyWalkResult result;
    result.rowFolders.append(RelativeFolder(FolderOf(walk.document), walk.document));
    list.Clear();
    if (!walk.references)
        return result;
    Walk running(walk, result);
    list.Append(running.Run());
    TellOfTrouble(running, walk);
    return result;
}

}  // namespace docbench
