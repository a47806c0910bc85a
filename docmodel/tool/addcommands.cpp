// The commands that add one thing to a document, and the lock.

#include <QFile>

#include "app/exitcodes.h"
#include "docmodel/builder.h"
#include "docmodel/tool/command.h"
#include "services/username.h"

namespace docmodel::tool {

using docbench::kExitDone;

namespace {

const Position kFile = {QStringLiteral("FILE"), QStringLiteral("The document.")};

// Makes one change and saves it.
template <typename Change>
int ChangeDocument(const QString& path, Change change) {
    RequireDocument(path);
    DocumentBuilder document = DocumentBuilder::Edit(path);
    change(document);
    document.Save();
    return kExitDone;
}

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    constexpr qint64 kMaxPictureBytes = 64 << 20;
    if (!file.open(QIODevice::ReadOnly))
        throw DocumentError(
            QStringLiteral("The picture %1 can't be read: %2.").arg(path, file.errorString()));
    if (file.size() > kMaxPictureBytes)
        throw DocumentError(
            QStringLiteral("The picture %1 is too big. Take one below 64 MiB.").arg(path));
    return file.readAll();
}

int ConfigurationType(const QString& name) {
    if (name == QLatin1String("ordinary"))
        return kOrdinaryConfiguration;
    if (name == QLatin1String("lasting"))
        return kLastingConfiguration;
    if (name == QLatin1String("internal"))
        return kInternalConfiguration;
    throw UsageError(QStringLiteral("There is no type \"%1\".").arg(name));
}

// NAME=VALUE, both of any text; the first "=" separates.
QList<CustomProperty> PropertiesOf(const QStringList& texts) {
    QList<CustomProperty> properties;
    for (const QString& text : texts) {
        const qsizetype equals = text.indexOf(u'=');
        if (equals < 1)
            throw UsageError(QStringLiteral("\"%1\" does not read like NAME=VALUE.").arg(text));
        properties.append({text.left(equals), text.mid(equals + 1), 0});
    }
    return properties;
}

bool IsOn(const QString& text) {
    if (text != QLatin1String("on") && text != QLatin1String("off"))
        throw UsageError(QStringLiteral("\"%1\" is neither \"on\" nor \"off\".").arg(text));
    return text == QLatin1String("on");
}

}  // namespace

int RunAddReference(const QStringList& arguments) {
    const QString count = QStringLiteral("count");
    const QString external = QStringLiteral("external");
    Arguments given(QStringLiteral("add-reference"),
                    QStringLiteral("Adds a component or an external reference."),
                    {kFile,
                     {QStringLiteral("TARGET"),
                      QStringLiteral("The other document: an absolute path, one from the folder "
                                     "of FILE, or a URL.")}});
    given.Parser().addOptions({{count, QStringLiteral("How often a component is there."),
                                QStringLiteral("NUMBER"), QStringLiteral("1")},
                               {external,
                                QStringLiteral("Adds an external reference of this kind, such as "
                                               "\"derived\"."),
                                QStringLiteral("KIND")}});
    if (!given.Read(arguments))
        return kExitDone;
    if (given.IsSet(count) && given.IsSet(external))
        throw UsageError(QStringLiteral("An external reference has no count."));
    const int number = int(given.Number(count, 1, std::numeric_limits<int>::max()));
    return ChangeDocument(given.At(0), [&](DocumentBuilder& document) {
        if (given.IsSet(external))
            document.AddExternal(given.At(1), given.Value(external));
        else
            document.AddComponent(given.At(1), number);
    });
}

int RunSetPreview(const QStringList& arguments) {
    Arguments given(
        QStringLiteral("set-preview"),
        QStringLiteral("Stores a picture as the preview of a document."),
        {kFile, {QStringLiteral("PICTURE"), QStringLiteral("A PNG, JPEG or BMP file.")}});
    if (!given.Read(arguments))
        return kExitDone;
    return ChangeDocument(
        given.At(0), [&](DocumentBuilder& document) { document.SetPreview(BytesOf(given.At(1))); });
}

int RunAddConfiguration(const QStringList& arguments) {
    const QString type = QStringLiteral("type");
    const QString property = QStringLiteral("property");
    Arguments given(QStringLiteral("add-configuration"), QStringLiteral("Adds a configuration."),
                    {kFile, {QStringLiteral("NAME"), QStringLiteral("A name that is free.")}});
    given.Parser().addOptions(
        {{type, QStringLiteral("ordinary, lasting (may not be deleted) or internal."),
          QStringLiteral("TYPE"), QStringLiteral("ordinary")},
         {property, QStringLiteral("Gives it a property, a text. May be repeated."),
          QStringLiteral("NAME=VALUE")}});
    if (!given.Read(arguments))
        return kExitDone;
    const int number = ConfigurationType(given.Value(type));
    const QList<CustomProperty> properties = PropertiesOf(given.Parser().values(property));
    return ChangeDocument(given.At(0), [&](DocumentBuilder& document) {
        document.AddConfiguration(given.At(1), number, properties);
    });
}

int RunAddHyperlink(const QStringList& arguments) {
    Arguments given(QStringLiteral("add-hyperlink"), QStringLiteral("Adds a hyperlink."),
                    {kFile, {QStringLiteral("TEXT"), QStringLiteral("A file or an address.")}});
    if (!given.Read(arguments))
        return kExitDone;
    return ChangeDocument(given.At(0),
                          [&](DocumentBuilder& document) { document.AddHyperlink(given.At(1)); });
}

int RunLock(const QStringList& arguments) {
    const QString user = QStringLiteral("user");
    const QString off = QStringLiteral("off");
    const QString references = QStringLiteral("references");
    Arguments given(QStringLiteral("lock"),
                    QStringLiteral("Reserves a document for a user, or locks its references."),
                    {kFile});
    given.Parser().addOptions(
        {{user, QStringLiteral("Who reserves it; by default you."), QStringLiteral("NAME"),
          docbench::CurrentUserName()},
         {off, QStringLiteral("Takes the reservation off.")},
         {references, QStringLiteral("on: the references are not to be updated; off: they are."),
          QStringLiteral("on|off")}});
    if (!given.Read(arguments))
        return kExitDone;
    const bool isOff = given.IsSet(off);
    if (isOff && given.IsSet(user))
        throw UsageError(QStringLiteral("--off takes no user."));
    if (!isOff && given.Value(user).isEmpty())
        throw UsageError(QStringLiteral("Give a user."));
    const bool locksReferences = given.IsSet(references);
    const bool referencesOn = locksReferences && IsOn(given.Value(references));
    return ChangeDocument(given.At(0), [&](DocumentBuilder& document) {
        if (locksReferences)
            document.SetReferencesLocked(referencesOn);
        if (isOff || given.IsSet(user) || !locksReferences)
            document.SetLockedBy(isOff ? QString() : given.Value(user));
    });
}

}  // namespace docmodel::tool
