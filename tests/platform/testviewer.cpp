// A small viewer plug-in: a widget that writes down what it is asked to open.

#include <QLabel>

#include "services/component.h"

class TestViewer : public QLabel {
    Q_OBJECT
    Q_PROPERTY(int EnableFeatures MEMBER features_)
    Q_PROPERTY(QString opened MEMBER opened_)

public:
    Q_INVOKABLE void OpenDoc(const QString& file, int a, int b, int c, const QString& options) {
        opened_ = QStringLiteral("%1 %2%3%4%5").arg(file).arg(a).arg(b).arg(c).arg(options);
    }

private:
    int features_ = 0;
    QString opened_;
};

class TestViewerFactory : public QObject, public docbench::ComponentFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID DocbenchComponent_iid FILE "testviewer.json")
    Q_INTERFACES(docbench::ComponentFactory)

public:
    QObject* Create() override { return new TestViewer; }
};

#include "testviewer.moc"
