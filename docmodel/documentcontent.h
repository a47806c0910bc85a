// The parts of one document that the library understands, for changing them: read when they are
// asked for, and handed back as bytes.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <optional>
#include <utility>

#include "docmodel/coreproperties.h"
#include "docmodel/customproperties.h"
#include "docmodel/documentpart.h"
#include "docmodel/opc.h"
#include "docmodel/package.h"

namespace docmodel {

// The tables, the summary and the custom properties of a package; none where it has no such part.
std::optional<DocumentPart> ReadTables(const PartFinder& parts);
std::optional<CoreProperties> ReadCore(const PartFinder& parts);
std::optional<CustomProperties> ReadCustom(const PartFinder& parts);

class DocumentContent {
public:
    using Parts = QList<std::pair<QByteArray, QByteArray>>;  // names and bytes

    // `package` must outlive the content; null for a document that is not on disk yet. `file`
    // stands in error texts.
    DocumentContent(const Package* package, const QString& file);

    // What is not there yet is made, empty. Raise DocumentError when the part is damaged.
    DocumentPart& Tables();
    CoreProperties& Core();
    CustomProperties& Custom();
    // Puts any other part and makes it the package's part of that kind. The former one goes away.
    void Put(const PartKind& kind, const QByteArray& name, const QByteArray& type,
             const QByteArray& bytes);

    // The parts that changed, the package's own ones first, without the tables. A part that is new
    // is entered among the content types and relationships. Raises DocumentError when one has
    // become larger than what is read, as TablesBytes does.
    Parts Changed();
    // The parts to remove; complete after Changed.
    const QList<QByteArray>& Removed() const { return removed_; }
    QByteArray TablesBytes();

private:
    struct OtherPart {
        QByteArray name;
        QByteArray bytes;
    };
    void Enter(const PartKind& kind, const QByteArray& name, const QByteArray& type);
    QByteArray Checked(const QByteArray& name, const QByteArray& bytes) const;
    void EnterIfThere(const PartKind& kind);
    void Remove(const QByteArray& name);
    QByteArray Find(const PartKind& kind) const;     // in the package; empty if not there
    QByteArray NameFor(const PartKind& kind) const;  // the same, or the name of a new one

    const Package* package_;
    std::optional<PartFinder> finder_;  // of the package, if there is one
    QString file_;
    std::optional<DocumentPart> tables_;
    std::optional<CoreProperties> core_;
    std::optional<CustomProperties> custom_;
    QList<OtherPart> others_;
    QList<QByteArray> removed_;
    std::optional<ContentTypes> types_;  // read when a part is new
    std::optional<Relationships> relationships_;
};

}  // namespace docmodel
