#include <QProcess>
#include <QTest>
#include <stdexcept>

#include "services/helpviewer.h"
#include "services/openexternal.h"
#include "services/outsideobjects.h"
#include "services/seams.h"
#include "services/settingsstore.h"
#include "services/shellexecute.h"
#include "services/texts.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

constexpr char kAskWhetherHosted[] = "--hosted";

QString Shown(const QVariantList& arguments) {
    QStringList texts;
    for (const QVariant& argument : arguments)
        texts.append(argument.toString());
    return texts.join(u',');
}

// Writes down what it is asked for; answers with failure if it is told to.
class Recorder : public OutsideObjects, public ShellExecute, public HelpViewer {
public:
    class Cad : public OutsideObject {
    public:
        explicit Cad(Recorder& recorder) : recorder_(recorder) {}
        bool Call(const QString& method, const QVariantList& arguments) override {
            return recorder_.Note(method + u'(' + Shown(arguments) + u')');
        }
        bool SetProperty(const QString& name, const QVariant& value) override {
            return recorder_.Note(name + u'=' + value.toString());
        }

    private:
        Recorder& recorder_;
    };

    Recorder() {
        gSeams.outside = this;
        gSeams.shell = this;
        gSeams.help = this;
    }
    ~Recorder() override { gSeams = Seams(); }

    std::unique_ptr<OutsideObject> Start(const QString&) override { return nullptr; }
    std::unique_ptr<QObject> Create(const QString&) override { return nullptr; }
    std::unique_ptr<OutsideObject> Attach(const QString& programId) override {
        Note("attach " + programId);
        return cadRuns ? std::make_unique<Cad>(*this) : nullptr;
    }
    bool Execute(const QString& verb, const QString& file, const QString& parameters,
                 const QString& folder, int showCommand) override {
        if (shellThrows)
            throw std::runtime_error("no desktop");
        return Note("execute " + Shown({verb, file, parameters, folder, showCommand}));
    }
    bool StartProgram(const QString& program, const QStringList& arguments) override {
        return Note("start " + program + u' ' + arguments.join(u'|'));
    }
    bool Has(const QString&) const override { return true; }
    void Open(const QString& helpFile, const QString&) override { Note("help " + helpFile); }
    bool IsOpen() const override { return false; }
    void Close() override {}

    bool cadRuns = false;
    bool callsFail = false;
    bool shellThrows = false;
    QStringList notes;

private:
    bool Note(const QString& note) {
        notes.append(note);
        return !callsFail;
    }
};

void Open(const QString& file) {
    OpenDocumentExternally("Open", file, "0", "0", 1);
}

void Register(const QString& keyPath, const QString& value) {
    const auto key = SettingsKey::Open(SettingsKey::Hive::ClassesRoot, keyPath);
    QVERIFY(key->SetText("", value));
}

}  // namespace

class tst_OpenExternal : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        QFile::remove(qEnvironmentVariable("XDG_CONFIG_DIRS") + "/Tessaforma/Classes.ini");
    }

    void ARunningCadApplicationOpensTheDocument_data() {
        QTest::addColumn<int>("type");
        QTest::newRow("/w/a.prt") << 1;
        QTest::newRow("/w/a.TfmPrt") << 1;
        QTest::newRow("/w/a.asm") << 2;
        QTest::newRow("/w/a.tfmasm") << 2;
        QTest::newRow("/w/a.drw") << 3;
        QTest::newRow("/w/a.tfmdrw") << 3;
    }

    void ARunningCadApplicationOpensTheDocument() {
        QFETCH(const int, type);
        const QString file = QString::fromUtf8(QTest::currentDataTag());
        Recorder recorder;
        recorder.cadRuns = true;
        Open(file);
        QCOMPARE(recorder.notes,
                 QStringList({"attach Tessacad.Application", "Visible=true", "UserControl=true",
                              QString("OpenDoc2(%1,%2,0,0,0,0)").arg(file).arg(type),
                              "ActivateDoc(" + file.mid(3) + ")"}));
    }

    void AStepThatFailsKeepsNoneFromBeingTriedAndIsNotReported() {
        const TestDialogs dialogs;
        Recorder recorder;
        recorder.cadRuns = true;
        recorder.callsFail = true;
        Open("/w/a.prt");
        QCOMPARE(recorder.notes.size(), 5);
    }

    void TheRegisteredProgramIsStartedWithTheFile() {
        Register("Tessacad.Application\\CLSID", QString("{12-34}") + QChar(0) + "rest");
        Register("CLSID\\{12-34}\\LocalServer32", QString("/opt/cad/tessacad") + QChar(0) + "rest");
        Recorder recorder;
        Open("/w/my part.prt");
        QCOMPARE(recorder.notes, QStringList({"attach Tessacad.Application",
                                              "start /opt/cad/tessacad /w/my part.prt"}));
    }

    void TheRegisteredProgramMayBeACommandLine() {
        Register("Tessacad.Application\\CLSID", "{1}");
        Register("CLSID\\{1}\\LocalServer32", "\"/opt/my cad/tessacad\" /automation");
        Recorder recorder;
        Open("/w/a.asm");
        QCOMPARE(recorder.notes.last(), QString("start /opt/my cad/tessacad /automation|/w/a.asm"));
    }

    void WithNoRegisteredProgramNothingHappens() {
        const TestDialogs dialogs;
        Recorder recorder;
        Open("/w/a.prt");
        Register("Tessacad.Application\\CLSID", "{1}");
        Open("/w/a.prt");
        Register("CLSID\\{1}\\LocalServer32", "");
        Open("/w/a.prt");
        QCOMPARE(recorder.notes, QStringList(3, "attach Tessacad.Application"));
    }

    void AHelpFileOpensInTheHelpWindow() {
        Recorder recorder;
        Open("/opt/lang/TFDocbench.chm");
        Open("/opt/lang/TFDocbench.CHM");
        QCOMPARE(recorder.notes,
                 QStringList({"help /opt/lang/TFDocbench.chm", "help /opt/lang/TFDocbench.CHM"}));
    }

    void AnyOtherFileGoesToTheDesktop() {
        Recorder recorder;
        Open("/w/list.xlsx");
        OpenDocumentExternally("Print", "/w/notes", "-x", "/w", 3);
        QCOMPARE(recorder.notes, QStringList({"execute Open,/w/list.xlsx,0,0,1",
                                              "execute Print,/w/notes,-x,/w,3"}));
    }

    void AnUnexpectedErrorIsShownAsItStands() {
        TestDialogs dialogs;
        Recorder recorder;
        gSeams.dialogs = &dialogs;
        recorder.shellThrows = true;
        dialogs.Expect("no desktop", Dialogs::Icon::None);
        Open("/w/list.xlsx");
        QVERIFY(dialogs.AllCame());
    }

    void TheTitleOfTheFolderDialogTellsWhatFor() {
        TestDialogs dialogs;
        gStrings[size_t(Text::ChooseFolder.number)] = "Choose a folder for %s here";
        dialogs.ExpectBrowseFolder("/w/parts");
        QCOMPARE(BrowseForFolder("/w", "parts"), QString("/w/parts"));
        QCOMPARE(dialogs.LastTitle(), QString("Choose a folder for parts here"));
        dialogs.ExpectBrowseFolder("");
        QCOMPARE(BrowseForFolder("/w", "parts"), QString());
    }

    void NothingOutsideIsNeeded() {
        Open("/w/a.prt");
        Open("/w/a.chm");
        Open("/w/a.txt");
    }

    void TheCommandLineTellsWhetherTheCadApplicationIsTheHost() {
        QVERIFY(!IsHostedByCad());
        const QString self = QCoreApplication::applicationFilePath();
        QCOMPARE(QProcess::execute(self, {kAskWhetherHosted, "C:\\cad\\TessaCAD.exe"}), 1);
        QCOMPARE(QProcess::execute(self, {kAskWhetherHosted, "tessacad"}), 0);
    }
};

int main(int argc, char* argv[]) {
    if (argc == 3 && QLatin1String(argv[1]) == QLatin1String(kAskWhetherHosted))
        return IsHostedByCad() ? 1 : 0;
    const TestEnvironment environment;
    QCoreApplication application(argc, argv);
    tst_OpenExternal test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_openexternal.moc"
