#include "designer/controlplugin.h"

#include "platform/desktopseams.h"
#include "services/seams.h"

namespace docbench {

namespace {

// A form that is loaded at run time belongs to a host that may have made its own.
void EnsureSeams() {
    if (gSeams.documents)
        return;
    // Lives as long as the process: nobody knows which control of which form goes last.
    static const DesktopSeams* const seams = new DesktopSeams;
    Q_UNUSED(seams);
}

}  // namespace

QString ControlPlugin::name() const {
    return QLatin1String(control_.className);
}

QString ControlPlugin::group() const {
    return QStringLiteral("Docbench");
}

QString ControlPlugin::toolTip() const {
    return QLatin1String(control_.toolTip);
}

QString ControlPlugin::whatsThis() const {
    return toolTip();
}

QString ControlPlugin::includeFile() const {
    return QLatin1String(control_.header);
}

QIcon ControlPlugin::icon() const {
    return QIcon(QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(control_.picture)));
}

QWidget* ControlPlugin::createWidget(QWidget* parent) {
    EnsureSeams();
    return control_.make(parent);
}

QString ControlPlugin::domXml() const {
    const QString stem = name().section(QLatin1String("::"), -1);
    return QStringLiteral(
               "<ui language=\"c++\"><widget class=\"%1\" name=\"%2\"><property name=\"geometry\">"
               "<rect><x>0</x><y>0</y><width>%3</width><height>%4</height></rect></property>"
               "</widget></ui>")
        .arg(name(), stem.left(1).toLower() + stem.mid(1))
        .arg(control_.size.width())
        .arg(control_.size.height());
}

}  // namespace docbench
