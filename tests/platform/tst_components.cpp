// Components as plug-ins, and the preview's viewer as one of them.

#include <QBuffer>
#include <QCheckBox>
#include <QImage>
#include <QTest>

#include "platform/componentplugins.h"
#include "services/language.h"
#include "services/scratch.h"
#include "services/settingsstore.h"
#include "shell/openurlfrm.h"
#include "shell/picturebox.h"
#include "shell/previewpane.h"
#include "shell/viewer.h"
#include "tests/support/fakeoutside.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

const QString kFolder = QStringLiteral(TEST_COMPONENTS "/viewer");
const QString kNothingFolder = QStringLiteral(TEST_COMPONENTS "/nothing");
const QString kNoWidgetFolder = QStringLiteral(TEST_COMPONENTS "/nowidget");

QByteArray Picture() {
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    return bytes;
}

}  // namespace

class TestComponents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        gViewerChecked = false;
        gViewerPresent = false;
        UseViewer = true;
    }

    void aComponentIsFoundByItsProgramId() {
        const auto viewer = CreateComponent(kFolder, QLatin1String(kViewerProgramId));
        QVERIFY(qobject_cast<QWidget*>(viewer.get()));
        QVERIFY(!CreateComponent(kFolder, QStringLiteral("Other.Component")));
        QVERIFY(!CreateComponent(QStringLiteral("/nowhere"), QLatin1String(kViewerProgramId)));
    }

    void whatIsNoPlugInIsPassedOver() {
        const QTemporaryDir folder;
        QFile broken(folder.filePath(QStringLiteral("broken.so")));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("no library");
        broken.close();
        QVERIFY(!CreateComponent(folder.path(), QLatin1String(kViewerProgramId)));
    }

    void aFactoryThatMakesNothingIsNoComponent() {
        QVERIFY(QFile::exists(kNothingFolder + QStringLiteral("/testnothing.so")));
        QVERIFY(!CreateComponent(kNothingFolder, QLatin1String(kViewerProgramId)));
        FakeOutside outside;
        outside.make = [](const QString& id) { return CreateComponent(kNothingFolder, id); };
        QVERIFY(!IsViewerAvailable());
        QVERIFY(!UseViewer);
    }

    void aComponentThatIsNoWidgetIsPassedOver() {
        TestLibrary library;
        const TestDialogs dialogs;
        LoadResources();
        PrepareScratch();
        FakeOutside outside;
        int alive = 0;  // objects that the plug-in has made
        outside.make = [&](const QString&) {
            auto made = CreateComponent(kNoWidgetFolder, QLatin1String(kViewerProgramId));
            alive += made ? 1 : 0;
            QObject::connect(made.get(), &QObject::destroyed, [&alive] { --alive; });
            return made;
        };
        const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
        library.SetPreview(pin, Picture());
        PreviewPane pane;
        pane.resize(600, 400);
        pane.show();
        pane.ShowPreview(pin);
        QVERIFY(!pane.findChild<QObject*>(QStringLiteral("vistamodel1")));
        QCOMPARE(pane.findChild<QWidget*>(QStringLiteral("Image1A_0"))->toolTip(), pin);
        const OpenURLFrm form;
        QVERIFY(!form.HasPicker());
        QVERIFY(outside.created.size() > 2);
        QCOMPARE(alive, 0);
    }

    void theViewerIsAskedForOncePerProcess() {
        FakeOutside outside;
        QVERIFY(!IsViewerAvailable());
        QVERIFY(!UseViewer);  // forced off
        QVERIFY(!IsViewerAvailable());
        QCOMPARE(outside.created.size(), 1);
    }

    void aPresentViewerIsUsedUnlessTheSettingsSayNo() {
        FakeOutside outside;
        outside.make = [](const QString& id) { return CreateComponent(kFolder, id); };
        UseViewer = false;
        ReadUseViewer();
        QVERIFY(UseViewer);
        const auto key = SettingsKey::Open(SettingsKey::Hive::CurrentUser, kExtReferencesKey);
        QVERIFY(key->SetNumber(QLatin1String(kUseViewerValue), 0));
        ReadUseViewer();
        QVERIFY(!UseViewer);
        QVERIFY(key->Delete(QLatin1String(kUseViewerValue)));
    }

    void theViewerShowsTheDocumentInTheGrid() {
        TestLibrary library;
        const TestDialogs dialogs;
        LoadResources();
        PrepareScratch();
        FakeOutside outside;
        outside.make = [](const QString& id) { return CreateComponent(kFolder, id); };
        const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
        library.SetPreview(pin, Picture());
        PreviewPane pane;
        pane.resize(600, 400);
        pane.show();
        auto* viewer = pane.findChild<QWidget*>(QStringLiteral("vistamodel1"));
        QVERIFY(viewer);
        QCOMPARE(viewer->property("EnableFeatures").toInt(), 8193);
        QVERIFY(viewer->isHidden());

        pane.ShowPreview(pin);
        QVERIFY(viewer->isVisible());
        QCOMPARE(viewer->toolTip(), pin);
        QCOMPARE(viewer->property("opened").toString(), pin + QStringLiteral(" 001"));
        QCOMPARE(viewer->geometry(),
                 pane.findChild<QWidget*>(QStringLiteral("Image1A_0"))->geometry());

        pane.findChild<QCheckBox*>(QStringLiteral("chkUseFullScreen"))->click();
        const QString bolt = library.Make(QStringLiteral("bolt.tfmprt"));
        library.SetPreview(bolt, Picture());
        pane.ShowPreview(bolt);
        const auto boxOf = [&](int i) {
            return pane.findChild<QWidget*>(QStringLiteral("Image1A_%1").arg(i))->geometry();
        };
        QCOMPARE(viewer->geometry(), boxOf(1));
        pane.ShowPreview(pin);  // is in the grid, and is opened again all the same
        QCOMPARE(viewer->property("opened").toString(), pin + QStringLiteral(" 001"));
        QCOMPARE(viewer->geometry(), boxOf(0));
        pane.resize(500, 300);
        QCoreApplication::processEvents();
        QCOMPARE(viewer->geometry(), boxOf(0));

        UseViewer = false;
        pane.ShowPreview(pin);
        QVERIFY(viewer->isHidden());
        QCOMPARE(viewer->toolTip(), QString());
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestComponents)
#include "tst_components.moc"
