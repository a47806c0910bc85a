// Pictures of the program at work on the sample library, for the documentation and for looking at
// what was changed: docbench-screenshots DOCUMENT FOLDER [SCENE...]

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDirIterator>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTextStream>
#include <functional>

#include "app/consoledialogs.h"
#include "app/theme.h"
#include "copy/editdialog.h"
#include "editors/edittree.h"
#include "frame/frmabout.h"
#include "frame/maincontrol.h"
#include "platform/desktopseams.h"
#include "rename/renameref.h"
#include "search/searchrules.h"
#include "services/folderlists.h"
#include "services/helpviewer.h"
#include "services/language.h"
#include "services/seams.h"
#include "services/texts.h"
#include "setup/folderlisteditor.h"
#include "shell/previewpane.h"
#include "shell/usercontrol1.h"
#include "whereused/filemissingdialog.h"
#include "whereused/searchdialog.h"
#include "whereused/whereused.h"

namespace {

using namespace docbench;

// A part with configurations and hyperlinks.
const QString kScrew = QStringLiteral("fasteners/hex screw M6.tfmprt");

// What a scene works with: the frame on screen with the main assembly open, and the library.
struct Stage {
    Maincontrol& frame;
    QDir library;

    template <typename T>
    T* Find(const char* name) const {
        return frame.findChild<T*>(QLatin1String(name));
    }
    QStringList Documents(int most) const {
        QStringList paths;
        QDirIterator files(library.path(), {"*.tfm*"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            paths.append(files.next());
        paths.sort();
        return paths.mid(0, most);
    }
};

// Gives the widget that is to be seen.
using Scene = std::function<QWidget*(Stage&)>;

Scene Previews(int count) {
    return [count](Stage& stage) -> QWidget* {
        auto* pane = stage.Find<PreviewPane>("preview");
        if (count > 1)
            stage.Find<QCheckBox>("chkUseFullScreen")->click();
        const QStringList paths = stage.Documents(count);
        for (const QString& path : paths)
            pane->ShowPreview(path);
        return &stage.frame;
    };
}

QWidget* WhereUsedOfAScrew(Stage& stage) {
    stage.frame.SetCurrentFunction(QStringLiteral("WHERE"));
    auto* pane = stage.Find<whereUsed>("whereUsed");
    pane->SetPartNameToSearch(stage.library.filePath(QStringLiteral("hex screw M6.tfmprt")), {});
    pane->Findnow();
    return &stage.frame;
}

QWidget* SearchByProperties(Stage& stage) {
    stage.frame.SetCurrentFunction(QStringLiteral("SEARCH"));
    const auto add = [&stage](const QString& property, int code, const QString& value) {
        stage.Find<QLineEdit>("srcValue")->clear();
        stage.Find<QComboBox>("srcName")->setEditText(property);
        stage.Find<QComboBox>("srcOP")->setCurrentIndex(code);
        stage.Find<QLineEdit>("srcValue")->setText(value);
        stage.Find<QPushButton>("srcAddToList")->click();
    };
    add(QStringLiteral("Material"), kContains, QStringLiteral("steel"));
    add(QStringLiteral("Mass"), kLess, QString::number(1));
    stage.Find<QRadioButton>("srcOR")->click();
    add(Tr(Text::Title), kContains, QStringLiteral("gear"));
    stage.Find<QCheckBox>("srcRecursive")->click();
    stage.Find<QPushButton>("srcStart")->click();
    return &stage.frame;
}

// After a search for the holders of a part.
Scene RenamingAPlate(bool replaces) {
    return [replaces](Stage& stage) -> QWidget* {
        stage.frame.SetCurrentFunction(replaces ? QStringLiteral("REPLACE")
                                                : QStringLiteral("RENAME"));
        const QString plate = stage.library.filePath(QStringLiteral("cover/cover plate.tfmprt"));
        const QString unit = stage.library.filePath(QStringLiteral("cover/cover unit.tfmasm"));
        auto* pane = stage.Find<renameRef>("renameRef");
        pane->SetPartName({}, plate, plate + u';' + unit, replaces);
        pane->findChild<QLineEdit*>(QStringLiteral("newname"))
            ->setText(replaces ? stage.library.filePath(QStringLiteral("cover/bearing cap.tfmprt"))
                               : QStringLiteral("ribbed cover plate.tfmprt"));
        pane->findChild<QPushButton*>(QStringLiteral("Findnow"))->click();
        return &stage.frame;
    };
}

// Of a part that has configurations.
Scene PropertiesTab(int tab) {
    return [tab](Stage& stage) -> QWidget* {
        stage.frame.Shell().OpenPath(stage.library.filePath(kScrew));
        stage.frame.SetCurrentFunction(QStringLiteral("SUMMARY"));
        stage.Find<QTabWidget>("TabStrip1")->setCurrentIndex(tab);
        if (auto* list = stage.Find<QListWidget>("List1"); tab == 2 && list->count() > 0)
            list->setCurrentRow(0);
        return &stage.frame;
    };
}

QWidget* Setup(Stage& stage) {
    const QString folders = QStringLiteral("/work/gearbox;/work/fasteners;/work/library/bearings");
    for (const char* name : {"Gearboxes", "Vendors"})
        WriteFolderList(QLatin1String(name) + QLatin1String(kFolderListMarker), folders);
    stage.Find<FolderListEditor>("lists")->ReloadNames();
    stage.frame.SetCurrentFunction(QStringLiteral("SETUP"));
    stage.Find<QLineEdit>("wuKey")->setText(QStringLiteral("Vendors"));
    return &stage.frame;
}

// Edits that are not saved yet.
QWidget* Configurations(Stage& stage) {
    stage.frame.Shell().OpenPath(stage.library.filePath(kScrew));
    stage.frame.SetCurrentFunction(QStringLiteral("EDIT"));
    auto* tree = stage.Find<EditTree>("tvwconfig");
    Q_EMIT tree->EditEnded(2, QStringLiteral("M6x25"));
    Q_EMIT tree->DeletePressed(3);
    return &stage.frame;
}

QWidget* Hyperlinks(Stage& stage) {
    stage.frame.Shell().OpenPath(stage.library.filePath(kScrew));
    stage.frame.SetCurrentFunction(QStringLiteral("LINK"));
    Q_EMIT stage.Find<EditTree>("tvwhlink")
        ->EditEnded(3, QStringLiteral("https://www.example.org/fasteners/m6-zinc"));
    return &stage.frame;
}

QWidget* References(Stage& stage) {
    stage.frame.Shell().OpenPath(stage.library.filePath(QStringLiteral("missing.tfmasm")));
    stage.frame.SetCurrentFunction(QStringLiteral("REF"));
    return &stage.frame;
    return &stage.frame;
}

// The main assembly with its references and users.
QWidget* CopyList(Stage& stage) {
    stage.frame.SetCurrentFunction(QStringLiteral("COPY"));
    auto* pane = stage.Find<QWidget>("copyRef");
    for (const char* box : {"children", "whereused"})
        pane->findChild<QCheckBox*>(QLatin1String(box))->setChecked(true);
    pane->findChild<QLineEdit*>(QStringLiteral("prefix"))->setText(QStringLiteral("B-"));
    pane->findChild<QPushButton*>(QStringLiteral("Findnow"))->click();
    return &stage.frame;
}

QWidget* ReplaceInTargets(Stage& stage) {
    CopyList(stage);
    auto* form = new editDialog(&stage.frame);
    form->findChild<QLineEdit*>(QStringLiteral("FindtextBox"))->setText(QStringLiteral("B-"));
    form->findChild<QLineEdit*>(QStringLiteral("replaceTextBox"))->setText(QStringLiteral("C-"));
    form->show();
    return form;
}

QWidget* ScopeOfASearch(Stage& stage) {
    static SearchScope scope;
    auto* form = new SearchDialog(scope, &stage.frame);
    form->init(stage.library.path(), true, true, true, true);
    form->show();
    return form;
}

QWidget* MissingDocument(Stage& stage) {
    auto* form = new FileMissingDialog(&stage.frame);
    form->init(
        Format(Text::SourceMissing, stage.library.filePath("cover/lost bearing cap.tfmprt")));
    form->show();
    return form;
}

QWidget* About(Stage& stage) {
    auto* box = new frmAbout(&stage.frame);
    box->show();
    return box;
}

QWidget* Help(Stage&) {
    gSeams.help->Open(gHelpFile, QStringLiteral("preview"));
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("HelpWindow"))
            return window;
    }
    return nullptr;
}

const std::vector<std::pair<QString, Scene>>& Scenes() {
    static const std::vector<std::pair<QString, Scene>> scenes = {
        {QStringLiteral("preview-1"), Previews(1)},
        {QStringLiteral("preview-4"), Previews(4)},
        {QStringLiteral("preview-25"), Previews(25)},
        {QStringLiteral("about"), About},
        {QStringLiteral("help"), Help},
        {QStringLiteral("where-used"), WhereUsedOfAScrew},
        {QStringLiteral("search"), SearchByProperties},
        {QStringLiteral("rename"), RenamingAPlate(false)},
        {QStringLiteral("replace"), RenamingAPlate(true)},
        {QStringLiteral("setup"), Setup},
        {QStringLiteral("configurations"), Configurations},
        {QStringLiteral("hyperlinks"), Hyperlinks},
        {QStringLiteral("references"), References},
        {QStringLiteral("properties-summary"), PropertiesTab(0)},
        {QStringLiteral("properties-custom"), PropertiesTab(1)},
        {QStringLiteral("properties-configuration"), PropertiesTab(2)},
        {QStringLiteral("copy"), CopyList},
        {QStringLiteral("copy-replace"), ReplaceInTargets},
        {QStringLiteral("search-scope"), ScopeOfASearch},
        {QStringLiteral("missing-document"), MissingDocument},
    };
    return scenes;
}

bool Shoot(const QString& name, const Scene& scene, const QString& document, const QDir& folder) {
    Maincontrol frame;
    frame.resize(1024, 700);
    frame.show();
    frame.Shell().OpenPath(document);
    Stage stage{frame, QFileInfo(document).dir()};
    QWidget* seen = scene(stage);
    QApplication::processEvents();
    QApplication::processEvents();  // what the first round has put off
    const QString file = folder.filePath(name + QStringLiteral(".png"));
    if (!seen || !seen->grab().save(file))
        return false;
    QTextStream(stdout) << file << '\n';
    return true;
}

}  // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3) {
        QTextStream(stderr) << "usage: docbench-screenshots DOCUMENT FOLDER [SCENE...]\n";
        return 2;
    }
    ApplyTheme(qEnvironmentVariable("DOCBENCH_THEME", QStringLiteral("light")));
    const DesktopSeams seams;
    ConsoleDialogs unattended{QString()};
    gSeams.dialogs = &unattended;
    const QDir folder(arguments[2]);
    QDir().mkpath(folder.path());
    const QStringList wanted = arguments.mid(3);
    int failed = 0;
    for (const auto& [name, scene] : Scenes()) {
        if (wanted.isEmpty() || wanted.contains(name))
            failed +=
                Shoot(name, scene, QFileInfo(arguments[1]).absoluteFilePath(), folder) ? 0 : 1;
    }
    return failed == 0 ? 0 : 1;
}
