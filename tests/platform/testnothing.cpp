// A plug-in with the viewer's program id whose factory can make nothing.

#include "services/component.h"

class TestNothingFactory : public QObject, public docbench::ComponentFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID DocbenchComponent_iid FILE "testviewer.json")
    Q_INTERFACES(docbench::ComponentFactory)

public:
    QObject* Create() override { return nullptr; }
};

#include "testnothing.moc"
