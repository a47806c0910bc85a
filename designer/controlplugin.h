// One control as Qt Designer offers it.
#pragma once

#include <QIcon>
#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace docbench {

struct DesignerControl {
    const char* className;  // with its namespace
    const char* header;     // below the folder of the installed headers
    const char* picture;    // file stem of its picture among those of the controls
    const char* toolTip;
    QSize size;  // pixels in a new form
    QWidget* (*make)(QWidget* parent);
};

class ControlPlugin : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    explicit ControlPlugin(const DesignerControl& control, QObject* parent = nullptr)
        : QObject(parent), control_(control) {}

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    QWidget* createWidget(QWidget* parent) override;
    QString domXml() const override;

private:
    const DesignerControl& control_;
};

}  // namespace docbench
