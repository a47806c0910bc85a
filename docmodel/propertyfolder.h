// The properties of one folder's documents, for a search: from the index where it knows them, else
// from the documents, and then into the index.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <memory>
#include <optional>

#include "docmodel/fileops.h"
#include "docmodel/indexentry.h"
#include "docmodel/propertyreadahead.h"
#include "docmodel/referenceindex.h"

namespace docmodel {

class PropertyFolder {
public:
    // `prefix` is what the documents' paths begin with: the folder and one separator, or nothing
    // for the working folder. Raises DocumentError when the folder can't be opened.
    PropertyFolder(ReferenceIndex& index, const QString& prefix);
    ~PropertyFolder();  // stores what was learned
    PropertyFolder(const PropertyFolder&) = delete;
    PropertyFolder& operator=(const PropertyFolder&) = delete;

    const QString& Prefix() const { return prefix_; }
    // These are asked for next, in this order.
    void ReadAhead(const QStringList& names);
    // The packed properties of a document as they are now. Raises DocumentError.
    QByteArray Read(const QString& name);

private:
    // A document that the index knows or that was learned of.
    struct Known {
        FileState state;
        QByteArray record;  // may share the bytes of packed_
        bool isAsked = false;
    };
    void LoadKnown();
    void StartReadingAhead();
    QByteArray ReadNew(const QByteArray& name);
    bool Learn(const QByteArray& name, const ReadProperties& read);
    bool IsVanished(const QByteArray& name, const Known& known) const;
    void Store();

    ReferenceIndex& index_;
    const QString prefix_;
    const FileDescriptor folder_;
    const QByteArray path_;  // the folder's in the index
    const std::optional<qint64> grain_;
    const qint64 readAt_;  // before any document was read
    const QByteArray packed_;
    QHash<QByteArray, Known> known_;
    QStringList expected_;                      // by ReadAhead
    std::unique_ptr<PropertyReadAhead> ahead_;  // made when the first of them must be read
    bool isChanged_ = false;
};

}  // namespace docmodel
