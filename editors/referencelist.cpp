#include "editors/referencelist.h"

#include <QFileInfo>
#include <QLocale>
#include <QSet>

#include "services/dialogs.h"
#include "services/docaccess.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/filefacts.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/relationlabel.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"

namespace docbench {
namespace {

const QString kLocked = QStringLiteral("(locked)");
const QString kLockedPicture = QStringLiteral("locked");

QString PictureOfType(const QString& path) {
    switch (DocTypeOf(path)) {
        case DocType::Assembly:
            return QStringLiteral("asm");
        case DocType::Part:
            return QStringLiteral("prt");
        default:
            return QStringLiteral("drw");
    }
}

class Lister {
public:
    explicit Lister(CellList& list) : list_(list) {}

    void AddDocument(const QString& path, const QString& local) {
        if (AddRow(path, QString()))
            AddReferences(path, local);
    }

private:
    // The first place of a document decides its row. False when it is missing.
    bool AddRow(const QString& path, const QString& relation) {
        if (listed_.contains(path))
            return true;
        listed_.insert(path);
        CellRow row{.cells = {{.text = ShownPath(list_, kReferencePath, path), .toolTip = path},
                              {},
                              {.text = relation},
                              {},
                              {}},
                    .tag = path,
                    .image = PictureOfType(path)};
        const bool found = IsWebPath(path) || FillFacts(row);
        for (Cell& cell : row.cells)
            cell.bold = list_.Count() == 0;
        list_.Append(std::move(row));
        return found;
    }

    static bool FillFacts(CellRow& row) {
        const QFileInfo file(row.tag);
        if (!file.exists()) {
            for (Cell& cell : row.cells)
                cell.foreColor = kColorRed;
            return false;
        }
        constexpr double kKilobyte = 1000;
        const FileFacts facts = FactsOf(row.tag);
        row.cells[kReferenceSize].text =
            Format(Text::Kilobytes, qRound64(double(facts.size) / kKilobyte));
        row.cells[kReferenceChanged].text =
            QLocale::c().toString(file.lastModified(), QStringLiteral("MM/dd/yy  hh:mm AP"));
        row.cells[kReferenceAttributes].text = FileAttributeText(facts.attributes);
        return true;
    }

    void AddReferences(const QString& path, const QString& local) {
        const QString webFolder = IsWebPath(path) ? UrlFolder(path) : QString();
        ErrorState errors;
        errors.Run([&] {
            const auto file = Documents().MakeDocumentFile();
            file->Open(local);
            if (file->GetReferencesLocked())
                ShowLocked();
            for (int index = 0, count = file->GetComponentCount(); index < count; ++index)
                AddRow(file->GetComponent(index, webFolder).path, gRelationDefault);
            for (int index = 0, count = file->GetExternalReferenceCount(); index < count; ++index) {
                const QString reference = file->GetExternalReference(index, webFolder).path;
                AddRow(reference, RelationLabel(path, reference));
            }
        });
        if (errors.Failed())
            gSeams.dialogs->Box(Format(Text::DocumentNotReadable, path), Dialogs::Icon::Exclamation,
                                gAppTitle, Dialogs::Buttons::Ok, errors.Description());
    }

    void ShowLocked() {
        list_.Change(list_.Count() - 1, [](CellRow& row) {
            row.cells[kReferenceRelation].text.prepend(kLocked);
            row.image = kLockedPicture;
        });
    }

    CellList& list_;
    QSet<QString> listed_;
};

}  // namespace

void PrepareReferenceList(CellList& list) {
    list.SetHeaders({{.text = Tr(Text::Path), .tag = QStringLiteral("L")},
                     {.text = Tr(Text::Size)},
                     {.text = Tr(Text::Type)},
                     {.text = Tr(Text::LastSaved)},
                     {.text = Tr(Text::Attributes)}});
}

PathColumn ReferencePathColumn() {
    return {kReferencePath, Tr(Text::FileColumn), Tr(Text::DocumentColumn)};
}

void ListReferences(CellList& list, const QString& document, const QString& local) {
    list.Clear();
    Lister(list).AddDocument(document, local);
}

}  // namespace docbench
