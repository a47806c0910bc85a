// The tables of a document: the part docmodel/document.xml, read and edited in place.
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QSet>
#include <QString>

#include "docmodel/propertyset.h"
#include "docmodel/referencepath.h"
#include "docmodel/xml.h"
#include "services/docaccess.h"

namespace docmodel {

using docbench::Table;

struct StoredComponent {
    StoredPath target;
    int count = 1;
};

struct StoredExternal {
    StoredPath target;
    QString kind;
};

struct StoredConfiguration {
    int id = 0;  // unique in the document and never used again
    QString name;
    int type = 0;
};

struct StoredHyperlink {
    QString text;
};

struct LockRecord {
    bool locked = false;
    QString user;
};

QByteArray StampOf(const QList<StoredComponent>& rows);
QByteArray StampOf(const QList<StoredExternal>& rows);
QByteArray StampOf(const QList<StoredConfiguration>& rows);
QByteArray StampOf(const QList<StoredHyperlink>& rows);

// What the part holds that is not told here (elements and attributes of later writers of the same
// version) stays when it is edited.
class DocumentPart {
public:
    DocumentPart();  // empty tables of the current format
    // `file` stands in error texts. Raises DocumentError when the bytes can't be understood, or
    // when a later version of the library wrote them.
    DocumentPart(QByteArray bytes, const QString& file, const QByteArray& part);

    bool IsCurrentFormat() const { return isCurrent_; }  // else the tables read as empty
    bool ReferencesLocked() const;
    LockRecord Lock() const;
    QList<StoredComponent> Components() const;
    QList<StoredExternal> Externals() const;
    QList<StoredConfiguration> Configurations() const;
    std::optional<StoredConfiguration> Configuration(int index) const;  // none: there is no such
    QList<StoredHyperlink> Hyperlinks() const;
    // Of the configuration at `index`.
    QList<CustomProperty> ConfigurationProperties(int index) const;

    // By position; those beyond the table are left out. Positions hold until rows are deleted.
    void SetComponentTargets(const QMap<int, StoredPath>& targets);
    void SetExternalTargets(const QMap<int, StoredPath>& targets);
    void SetHyperlinks(const QMap<int, QString>& texts);
    void SetConfigurationNames(const QMap<int, QString>& names);
    void DeleteConfigurations(const QSet<int>& indices);
    // Carries the edits out on the properties of the configuration at `index`.
    void ChangeConfiguration(int index, const PropertySet& edits);
    void SetReferencesLocked(bool locked);
    void SetLock(const LockRecord& lock);

    // Add a row at the end.
    void AddComponent(const StoredComponent& row);
    void AddExternal(const StoredExternal& row);
    int AddConfiguration(const QString& name, int type);  // gives its position
    void AddHyperlink(const QString& text);

    QByteArray Bytes() const { return xml_.Bytes(); }

private:
    bool Is(pugi::xml_node node, const char* name) const;
    pugi::xml_node TableElement(const char* name) const;
    pugi::xml_node AddTo(const char* table, const char* row);
    pugi::xml_node Append(pugi::xml_node parent, const char* name);
    pugi::xml_node ConfigurationElement(int index) const;
    StoredConfiguration ConfigurationOf(pugi::xml_node row) const;
    // Calls `visit(node, index)` for each row, in order.
    template <typename Visit>
    void ForEachRow(const char* table, const char* row, Visit visit) const;
    void SetTargets(const char* table, const char* row, const QMap<int, StoredPath>& targets);
    void SetRows(const char* table, const char* row, const char* attribute,
                 const QMap<int, QString>& values);
    StoredPath TargetOf(pugi::xml_node row) const;
    int Number(pugi::xml_node row, const char* attribute, int least, int missing) const;

    XmlPart xml_;
    QString file_;
    QByteArray prefix_;  // of the part's own elements, with its colon; usually empty
    bool isCurrent_ = true;
};

}  // namespace docmodel
