#include "shell/openurlfrm.h"

#include <QVBoxLayout>

#include "services/language.h"
#include "services/outsideobjects.h"
#include "services/seams.h"
#include "services/texts.h"
#include "shell/languagefonts.h"
#include "shell/twips.h"

namespace docbench {
namespace {

const char kPickerProgramId[] = "URLFileOpenControl.URLFileOpen";

// The kinds of documents that the picker offers, as it wants them told.
const char* const kFileTypes[] = {
    "Tessaforma files(*.tfmasm, *.tfmprt, *.tfmdrw)",
    "Part files(*.tfmprt, *.prt)",
    "Assembly files(*.tfmasm, *.asm)",
    "Drawing files(*.tfmdrw, *.drw)",
};

}  // namespace

OpenURLFrm::OpenURLFrm(QWidget* parent) : QDialog(parent) {
    LoadResources();
    setObjectName(QStringLiteral("OpenURLFrm"));
    setWindowTitle(Tr(Text::OpenWebFolder));
    ApplyLanguageFonts(*this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    resize(TwipsToPixels(6555), TwipsToPixels(4155));
    std::unique_ptr<QObject> made =
        gSeams.outside ? gSeams.outside->Create(QLatin1String(kPickerProgramId)) : nullptr;
    URLFileOpen = qobject_cast<QWidget*>(made.get());
    if (!URLFileOpen)
        return;
    made.release();
    URLFileOpen->setObjectName(QStringLiteral("URLFileOpen"));
    layout->addWidget(URLFileOpen);
    connect(URLFileOpen, SIGNAL(Event(QString)), this, SLOT(OnPickerEvent(QString)));
    QMetaObject::invokeMethod(URLFileOpen, "SetType", Q_ARG(QString, QStringLiteral("open")));
    for (const char* type : kFileTypes)
        QMetaObject::invokeMethod(URLFileOpen, "AddFileType", Q_ARG(QString, QLatin1String(type)));
    resize(size().expandedTo(sizeHint()));
}

void OpenURLFrm::OnPickerEvent(const QString& name) {
    if (name == QLatin1String("FileTypeChangeEvent"))
        return;
    const QString picked = URLFileOpen->property("url").toString();
    url_ = name == QLatin1String("OpenEvent") ? picked : QString();
    accept();
}

QString PickWebDocument(QWidget* parent) {
    OpenURLFrm form(parent);
    if (form.HasPicker())
        form.exec();
    return form.Url();
}

}  // namespace docbench
