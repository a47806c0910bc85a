// The plug-in that Qt Designer, and the loader of its forms, find the controls through.

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include "copy/copyref.h"
#include "designer/controlplugin.h"
#include "editors/editconfig.h"
#include "editors/edithyperlink.h"
#include "editors/editreference.h"
#include "editors/propertiesbox.h"
#include "frame/desccontrol.h"
#include "frame/maincontrol.h"
#include "rename/renameref.h"
#include "search/srccontrol.h"
#include "shell/usercontrol1.h"
#include "whereused/whereused.h"

namespace docbench {

namespace {

template <typename Control>
QWidget* Make(QWidget* parent) {
    return new Control(parent);
}

constexpr QSize kFrameSize(1024, 700);
constexpr QSize kPaneSize(720, 520);

const DesignerControl kControls[] = {
    {"docbench::Maincontrol", "frame/maincontrol.h", "docbench",
     "The whole document manager: menus, toolbar and icon bar around the panes", kFrameSize,
     Make<Maincontrol>},
    {"docbench::UserControl1", "shell/usercontrol1.h", "picAsm",
     "One document: its reference tree, and the pane that a command names", kFrameSize,
     Make<UserControl1>},
    {"docbench::srcControl", "search/srccontrol.h", "PSRC",
     "Searches folders for documents by rules on their properties", kPaneSize, Make<srcControl>},
    {"docbench::whereUsed", "whereused/whereused.h", "WUSE",
     "Lists the documents that use a document", kPaneSize, Make<whereUsed>},
    {"docbench::PropertiesBox", "editors/propertiesbox.h", "PROP",
     "Shows and edits the properties of a document", kPaneSize, Make<PropertiesBox>},
    {"docbench::editConfig", "editors/editconfig.h", "ECON",
     "Shows and edits the configurations of a document", kPaneSize, Make<editConfig>},
    {"docbench::EditHyperLink", "editors/edithyperlink.h", "ELIK",
     "Shows and edits the hyperlinks of a document", kPaneSize, Make<EditHyperLink>},
    {"docbench::editReference", "editors/editreference.h", "EREF",
     "Lists what a document refers to", kPaneSize, Make<editReference>},
    {"docbench::renameRef", "rename/renameref.h", "RENAME",
     "Renames or replaces a document and rewrites every reference to it", kPaneSize,
     Make<renameRef>},
    {"docbench::copyRef", "copy/copyref.h", "COPY", "Copies a document with its references",
     kPaneSize, Make<copyRef>},
    {"docbench::DescControl", "frame/desccontrol.h", "help", "A strip with a description of a pane",
     QSize(480, 60), Make<DescControl>},
};

}  // namespace

class ControlCollection : public QObject, public QDesignerCustomWidgetCollectionInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    ControlCollection() {
        for (const DesignerControl& control : kControls)
            controls_.append(new ControlPlugin(control, this));
    }

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return controls_; }

private:
    QList<QDesignerCustomWidgetInterface*> controls_;
};

}  // namespace docbench

#include "plugin.moc"
