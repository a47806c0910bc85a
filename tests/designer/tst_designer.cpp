#include <QApplication>
#include <QBuffer>
#include <QPluginLoader>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include "services/seams.h"
#include "tests/support/installation.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

class TestDesigner : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        QVERIFY2(install_.outcome.code == 0, qPrintable(install_.outcome.err));
        loader_.setFileName(QCoreApplication::applicationDirPath() +
                            QStringLiteral("/designer/libdocbench_designer.so"));
        auto* plugin = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader_.instance());
        QVERIFY2(plugin, qPrintable(loader_.errorString()));
        for (QDesignerCustomWidgetInterface* control : plugin->customWidgets())
            controls_.insert(control->name(), control);
    }

    void itOffersEveryExportedControl() {
        QStringList names = controls_.keys();
        for (QString& name : names)
            name.remove(QLatin1String("docbench::"));
        names.sort();
        QCOMPARE(names, QStringList({"DescControl", "EditHyperLink", "Maincontrol", "PropertiesBox",
                                     "UserControl1", "copyRef", "editConfig", "editReference",
                                     "renameRef", "srcControl", "whereUsed"}));
    }

    void aControlCanBePlacedOnAForm_data() {
        QTest::addColumn<QString>("name");
        for (const QString& name : controls_.keys())
            QTest::newRow(qPrintable(name)) << name;
    }

    void aControlCanBePlacedOnAForm() {
        QFETCH(QString, name);
        QDesignerCustomWidgetInterface* control = controls_.value(name);
        QVERIFY(!control->icon().pixmap(32).isNull());
        QVERIFY(!control->toolTip().isEmpty());
        QVERIFY(!control->isContainer());
        QWidget form;
        QWidget* widget = control->createWidget(&form);
        QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), name);
        QCOMPARE(widget->parentWidget(), &form);
        form.resize(800, 600);
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        // Its header is among those that hosts get.
        QVERIFY(QFile::exists(install_.Path("usr/include/docbench/") + control->includeFile()));
    }

    void theControlsAreMadeWithADesktopBehindThem() { QVERIFY(gSeams.documents); }

    void aFormKeepsThePropertiesOfTheShell() {
        QDesignerCustomWidgetInterface* control = controls_.value("docbench::UserControl1");
        QString dom = control->domXml();
        QVERIFY(dom.contains(QLatin1String("1024")));
        dom.replace(QLatin1String("</widget>"),
                    QLatin1String("<property name=\"Caption\" stdset=\"0\"><string>Gear</string>"
                                  "</property><property name=\"partfilename\" stdset=\"0\"><string>"
                                  "/work/gear.tfmasm</string></property></widget>"));
        dom.replace(QLatin1String("<ui language=\"c++\">"),
                    QLatin1String("<ui version=\"4.0\"><class>Form</class>"));
        QByteArray bytes = dom.toUtf8();
        QBuffer form(&bytes);
        QVERIFY(form.open(QIODevice::ReadOnly));
        QUiLoader forms;
        forms.addPluginPath(QCoreApplication::applicationDirPath() + QStringLiteral("/designer"));
        const std::unique_ptr<QWidget> widget(forms.load(&form));
        QVERIFY2(widget, qPrintable(forms.errorString()));
        QCOMPARE(widget->objectName(), QStringLiteral("userControl1"));
        QCOMPARE(widget->size(), QSize(1024, 700));
        QCOMPARE(widget->property("Caption").toString(), QStringLiteral("Gear"));
        QCOMPARE(widget->property("partfilename").toString(), QStringLiteral("/work/gear.tfmasm"));
    }

private:
    Installation install_{QStringLiteral("development")};
    QPluginLoader loader_;
    QMap<QString, QDesignerCustomWidgetInterface*> controls_;
};

DOCBENCH_TEST_MAIN(QApplication, TestDesigner)

#include "tst_designer.moc"
