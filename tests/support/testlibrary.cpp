#include "tests/support/testlibrary.h"

#include <QDir>
#include <QFileInfo>

#include "docmodel/access.h"
#include "docmodel/builder.h"
#include "services/seams.h"

namespace docbench {

namespace {

using docmodel::DocumentBuilder;

}  // namespace

TestLibrary::TestLibrary() : former_(gSeams.documents) {
    static const std::unique_ptr<DocumentAccess> library = std::make_unique<docmodel::Access>();
    gSeams.documents = library.get();
}

TestLibrary::~TestLibrary() {
    gSeams.documents = former_;
}

QString TestLibrary::Make(const QString& name, const QList<Component>& components,
                          const QList<External>& externals) {
    QString path = Path(name);
    QDir().mkpath(QFileInfo(path).path());
    DocumentBuilder document = DocumentBuilder::New(path, DocumentBuilder::IfThere::Replace);
    for (const Component& component : components)
        document.AddComponent(component.path, component.count);
    for (const External& external : externals)
        document.AddExternal(external.path, external.kind);
    document.Save();
    return path;
}

QString TestLibrary::MakeBroken(const QString& name) {
    QString path = Path(name);
    QFile file(path);
    if (!file.open(QFile::WriteOnly) || file.write("no package\n") < 0)
        qFatal("can't write %s", qPrintable(path));
    return path;
}

void TestLibrary::LockReferences(const QString& path) {
    DocumentBuilder document = DocumentBuilder::Edit(path);
    document.SetReferencesLocked(true);
    document.Save();
}

void TestLibrary::SetPreview(const QString& path, const QByteArray& picture) {
    DocumentBuilder document = DocumentBuilder::Edit(path);
    document.SetPreview(picture);
    document.Save();
}

void TestLibrary::Lock(const QString& path, const QString& user) {
    DocumentBuilder document = DocumentBuilder::Edit(path);
    document.SetLockedBy(user);
    document.Save();
}

bool TestLibrary::IsLocked(const QString& path) const {
    const auto info = gSeams.documents->MakeDocumentInfo();
    return info->Open(path) && info->GetLocked();
}

QString TestLibrary::LockedBy(const QString& path) const {
    const auto info = gSeams.documents->MakeDocumentInfo();
    return info->Open(path) ? info->GetLockedBy() : QStringLiteral("(no record)");
}

}  // namespace docbench
