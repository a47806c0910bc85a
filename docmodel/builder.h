// Makes whole documents and adds to them: what the access objects, which only rewrite, can't do.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QVariant>
#include <memory>

#include "services/docaccess.h"

namespace docmodel {

using docbench::CustomProperty;
using docbench::DocumentError;

// The kinds of a configuration, as DocumentFile::GetConfigurationType gives them.
inline constexpr int kOrdinaryConfiguration = 0;
inline constexpr int kLastingConfiguration = 1;   // may be renamed, not deleted
inline constexpr int kInternalConfiguration = 2;  // not shown to the user

// One document that is being made or edited. Nothing is on disk before Save; destroyed without it,
// nothing changes. Texts that XML can't hold raise DocumentError where they are given.
//
//   DocumentBuilder pump = DocumentBuilder::New("/lib/pump.tfmasm");
//   pump.SetTitle("Pump");
//   pump.AddComponent("parts/rotor.tfmprt", 2);
//   pump.Save();
class DocumentBuilder {
public:
    enum class IfThere { Refuse, Replace };

    // A new, empty document that will stand at `path`. Its folder must be there at Save.
    static DocumentBuilder New(const QString& path, IfThere ifThere = IfThere::Refuse);
    // The newest state of the document at `path`, which is locked until the builder is destroyed.
    // Raises DocumentError when it can't be read or may not be written.
    static DocumentBuilder Edit(const QString& path);

    DocumentBuilder(DocumentBuilder&&) noexcept;
    DocumentBuilder& operator=(DocumentBuilder&&) noexcept;
    ~DocumentBuilder();

    void SetTitle(const QString& text);
    void SetAuthor(const QString& text);
    void SetSubject(const QString& text);
    void SetKeywords(const QString& text);
    void SetComments(const QString& text);
    // Both are the time of Save unless set; `user` is by default the user of the process.
    void SetCreated(const QDateTime& time);
    void SetLastSaved(const QDateTime& time, const QString& user);
    // As DocumentInfo's: the value's type is the stored one. False when it can't be stored.
    bool SetCustomProperty(const QString& name, const QVariant& value);
    bool DeleteCustomProperty(const QString& name);

    // Add a row at the end of a table and give its position. `target` is an absolute path, a path
    // relative to the document's folder, or a URL. `count` is at least 1.
    int AddComponent(const QString& target, int count = 1);
    int AddExternal(const QString& target, const QString& kind);
    // Raises when the name is empty or taken, in any case of letters. `properties` need name and
    // value; the value's type is the stored one.
    int AddConfiguration(const QString& name, int type = kOrdinaryConfiguration,
                         const QList<CustomProperty>& properties = {});
    int AddHyperlink(const QString& text);
    // The properties of an existing configuration; raise when there is none of that name.
    bool SetConfigurationProperty(const QString& configuration, const QString& name,
                                  const QVariant& value);
    // False when it has no such property.
    bool DeleteConfigurationProperty(const QString& configuration, const QString& name);

    void SetReferencesLocked(bool locked);
    // Writes the lock record: who reserved the document. An empty user takes the lock off.
    void SetLockedBy(const QString& user);

    // The bytes of a PNG, JPEG or BMP file; raises for anything else, and for a picture that is too
    // large to be read as a preview. Replaces the former preview.
    void SetPreview(const QByteArray& picture);
    // Stands for the model's geometry: `bytes` bytes, the same for the same seed, which do not
    // compress, as packed geometry doesn't.
    void SetModel(qint64 bytes, quint64 seed);

    // Writes the document. Raises DocumentError; the file is then as it was.
    void Save();

private:
    struct Data;
    explicit DocumentBuilder(std::unique_ptr<Data> data);
    std::unique_ptr<Data> data_;
};

}  // namespace docmodel
