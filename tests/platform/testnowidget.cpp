// A plug-in with the viewer's program id that makes an object which can't be shown.

#include "services/component.h"

class TestNoWidgetFactory : public QObject, public docbench::ComponentFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID DocbenchComponent_iid FILE "testviewer.json")
    Q_INTERFACES(docbench::ComponentFactory)

public:
    QObject* Create() override { return new QObject; }
};

#include "testnowidget.moc"
