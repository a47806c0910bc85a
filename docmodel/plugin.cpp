// The plug-in that programs load. Loading it registers nothing else.

#include <QObject>

#include "docmodel/access.h"

class DocmodelPlugin : public QObject, public docmodel::Access {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID DocbenchDocumentAccess_iid)
    Q_INTERFACES(docbench::DocumentAccess)
};

#include "plugin.moc"
