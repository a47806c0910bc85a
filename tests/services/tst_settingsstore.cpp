#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTest>
#include <memory>

#include "services/inifile.h"
#include "services/settingsstore.h"
#include "tests/support/smallfiles.h"
#include "tests/support/testenvironment.h"

using docbench::SettingsKey;
using Hive = SettingsKey::Hive;

namespace {

constexpr char kWriter[] = "--writer";
constexpr int kWrites = 25;
const QString kKey = QLatin1String(docbench::kExtReferencesKey);

QString UserFile() {
    return qEnvironmentVariable("XDG_CONFIG_HOME") +
           QStringLiteral("/Tessaforma/TessaformaDocbench.ini");
}

QByteArray Content() {
    QFile file(UserFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Fill(const QByteArray& content) {
    QDir().mkpath(QFileInfo(UserFile()).path());
    QFile file(UserFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

std::unique_ptr<SettingsKey> OpenUser(const QString& keyPath = kKey) {
    return SettingsKey::Open(Hive::CurrentUser, keyPath);
}

// What a process running side by side does: writes values of its own, one after the other.
int WriteValues(const QString& prefix) {
    for (int i = 0; i < kWrites; ++i) {
        const auto key = OpenUser();
        if (!key || !key->SetNumber(prefix + QString::number(i), quint32(i)))
            return 1;
    }
    return 0;
}

}  // namespace

class tst_SettingsStore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        QFile::setPermissions(UserFile(), QFile::ReadOwner | QFile::WriteOwner);
        QFile::remove(UserFile());
        QDir().rmdir(UserFile());  // one test has a folder there
    }

    void AnyNameAndValueComeBackAsTheyWere_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");
        const auto row = [](const char* tag, const QString& name, const QString& value) {
            QTest::newRow(tag) << name << value;
        };
        row("plain", "Show Description", "1");
        row("folder list", "Parts TDB-Key", "C:\\y;C:\\x");
        row("leading blank", " Parts", " /parts ");
        row("trailing blank", "Parts ", "\t");
        row("slash", "a/b", "/a/b");
        row("double slash", "//a//", "//server//share");
        row("backslash", "a\\b", "\\\\server\\share\\");
        row("percent", "100%25", "100%25 %U0041");
        row("equals", "a=b", "x=y");
        row("brackets", "[a]", "[b]");
        row("semicolon", ";a", ";b");
        row("hash", "#a", "#b");
        row("quotes", "\"a\"", "say \"no\"");
        row("unicode", QString::fromUtf8("Teile ä 部品 🙂"),
            QString::fromUtf8("Größe 部品 🙂"));
        row("comma", "a,b", "one, two,three");
        row("newline", "a\nb", "one\ntwo\r\nthree\\n");
        row("at", "@", "@Invalid()");
        row("at at", "@@", "@@x");
        row("byte array", "@a", "@ByteArray(x)");
        row("default value", "", "{5E1C9F0A-0000}");
        row("empty value", "empty", "");
        row("control characters", QString(QChar(1)) + "a",
            QStringLiteral("\x01") + "12f" + QChar(0));
        row("General", "General", "General");
        row("dot dot", "..", "..");
    }

    void AnyNameAndValueComeBackAsTheyWere() {
        QFETCH(const QString, name);
        QFETCH(const QString, value);
        const auto key = OpenUser();
        QVERIFY(key->SetText(name, value));
        QCOMPARE(key->Text(name), std::optional(value));
        QCOMPARE(key->ValueNames(), QStringList{name});
        QVERIFY(key->SetText(name, value + u'2'));
        QCOMPARE(OpenUser()->Text(name), std::optional(QString(value + u'2')));
        QCOMPARE(key->ValueNames(), QStringList{name});
        QVERIFY(key->Delete(name));
        QVERIFY(!key->Text(name));
    }

    void AMissingValueIsNone() {
        const auto key = OpenUser();
        QVERIFY(key);
        QVERIFY(!key->Text("Show Description"));
        QVERIFY(!key->Number("Show Description"));
        QVERIFY(!key->Delete("Show Description"));
        QCOMPARE(key->ValueNames(), QStringList());
        QVERIFY(!QFile::exists(UserFile()));
    }

    void ANumberIsReadAsTextAndNumber() {
        const auto key = OpenUser();
        QVERIFY(key->SetNumber("largest", 0xffffffff));
        QCOMPARE(key->Number("largest"), std::optional<quint32>(0xffffffff));
        QCOMPARE(key->Text("largest"), std::optional(QString("4294967295")));
        for (const char* text : {"", "4294967296", "-1", "one", "1;2"}) {
            QVERIFY(key->SetText("text", text));
            QVERIFY2(!key->Number("text"), text);
        }
    }

    void ValuesBelongToTheirKeyAlone() {
        QVERIFY(OpenUser("Software\\A")->SetText("x", "of A"));
        QVERIFY(OpenUser("Software\\A\\B")->SetText("x", "of B"));
        QVERIFY(OpenUser("Software\\A")->SetText("B\\x", "with a separator"));
        QVERIFY(OpenUser("Software/A")->SetText("x", "of a name with a slash"));
        QVERIFY(OpenUser("")->SetText("x", "of the root"));
        QVERIFY(OpenUser("General")->SetText("x", "of General"));
        QCOMPARE(OpenUser("Software\\A")->ValueNames(), QStringList({"x", "B\\x"}));
        QCOMPARE(OpenUser("Software\\A")->Text("x"), std::optional(QString("of A")));
        QCOMPARE(OpenUser("\\Software\\A\\B\\")->Text("x"), std::optional(QString("of B")));
        QCOMPARE(OpenUser("Software")->ValueNames(), QStringList());
        QCOMPARE(OpenUser("")->Text("x"), std::optional(QString("of the root")));
        QCOMPARE(OpenUser("General")->Text("x"), std::optional(QString("of General")));
    }

    void NamesComeInTheOrderOfTheFile() {
        const auto key = OpenUser();
        for (const char* name : {"z", "a", "m"})
            QVERIFY(key->SetText(name, "1"));
        QVERIFY(key->SetText("z", "2"));
        QCOMPARE(key->ValueNames(), QStringList({"z", "a", "m"}));
    }

    void AHandEditedFileIsReadAsItWasMeant() {
        Fill(
            "; my lists\r\n"
            "[Software\\Tessaforma\\Tessaforma 2004\\ExtReferences]\r\n"
            "Parts TDB-Key = /work/a, b;/work/c ; d\r\n"
            "Vendors TDB-Key=\"C:\\\\y;C:\\\\x\"\n"
            "Old=C:\\temp\\new\n"
            "Twice=1\nTwice=2\n"
            "# the end");
        const auto key = OpenUser();
        QCOMPARE(key->Text("Parts TDB-Key"), std::optional(QString("/work/a, b;/work/c ; d")));
        QCOMPARE(key->Text("Vendors TDB-Key"), std::optional(QString("C:\\y;C:\\x")));
        QCOMPARE(key->Text("Old"), std::optional(QString("C:\\temp\\new")));
        QCOMPARE(key->Text("Twice"), std::optional(QString("2")));
        QCOMPARE(key->ValueNames().count("Twice"), 1);
    }

    void WhatIsNotChangedKeepsItsBytes() {
        Fill("; by hand\n[Software\\Other]\nName = a, b\n\n[Window]\nx=1\n; end\n");
        QVERIFY(OpenUser("Software\\Other")->SetText("New", "2"));
        QCOMPARE(Content(),
                 "; by hand\n[Software\\Other]\nName = a, b\nNew=2\n\n[Window]\nx=1\n; end\n");
        QVERIFY(OpenUser("Window")->SetText("x", "3"));
        QVERIFY(OpenUser("Software\\Other")->Delete("New"));
        QCOMPARE(Content(), "; by hand\n[Software\\Other]\nName = a, b\n\n[Window]\nx=3\n; end\n");
    }

    void QSettingsReadsTheSameFile() {
        const QString folders = QString::fromUtf8("C:\\y;C:\\x, ä\n@");
        QVERIFY(OpenUser()->SetText(" Parts TDB-Key", folders));
        QVERIFY(OpenUser()->SetText("at", "@x"));
        const QSettings settings(UserFile(), QSettings::IniFormat);
        const QString group = "Software/Tessaforma/Tessaforma 2004/ExtReferences/";
        QCOMPARE(settings.value(group + " Parts TDB-Key").toString(), folders);
        QCOMPARE(settings.value(group + "at").toString(), QString("@x"));
    }

    void WhatQSettingsWroteIsRead() {
        const QString folders = QString::fromUtf8(
            "C:\\y;C:\\x, \"ä\"\n\x01"
            "5");
        {
            QSettings settings(UserFile(), QSettings::IniFormat);
            settings.beginGroup("Software/Tessaforma/Tessaforma 2004/ExtReferences");
            settings.setValue(QString::fromUtf8(" Ä TDB-Key"), folders);
            settings.setValue("Show Description", 1);
            settings.setValue("at", "@x");
        }
        const auto key = OpenUser();
        QCOMPARE(key->Text(QString::fromUtf8(" Ä TDB-Key")), std::optional(folders));
        QCOMPARE(key->Number("Show Description"), std::optional<quint32>(1));
        QCOMPARE(key->Text("at"), std::optional(QString("@x")));
    }

    // It stands in another section, with the levels of the key in its name.
    void WhatQSettingsWroteIsChangedInItsPlace() {
        {
            QSettings settings(UserFile(), QSettings::IniFormat);
            settings.beginGroup("Software/Tessaforma/Tessaforma 2004/ExtReferences");
            settings.setValue("Vendors TDB-Key", "/a;/b");
            settings.setValue("Other", "/x");
        }
        QVERIFY(OpenUser()->SetText("Vendors TDB-Key", "/a;/b;/c"));
        QCOMPARE(OpenUser()->Text("Vendors TDB-Key"), std::optional(QString("/a;/b;/c")));
        QCOMPARE(OpenUser()->Text("Other"), std::optional(QString("/x")));
        QSettings settings(UserFile(), QSettings::IniFormat);
        settings.beginGroup("Software/Tessaforma/Tessaforma 2004/ExtReferences");
        QCOMPARE(settings.value("Vendors TDB-Key").toString(), QString("/a;/b;/c"));
        QVERIFY(OpenUser()->Delete("Vendors TDB-Key"));
        QVERIFY(!OpenUser()->Text("Vendors TDB-Key"));
    }

    void AFileWhoseReadFailsIsNoEmptyOne() {
        QVERIFY(!docbench::IniFile().Load("/proc/self/mem"));  // opens, and can't be read at its begin
    }

    void ARefusedWriteLeavesNoTrace() {
        QVERIFY(OpenUser()->SetText("kept", "old"));
        const auto key = OpenUser();
        QVERIFY(QFile::setPermissions(UserFile(), QFile::ReadOwner));
        QVERIFY(!key->SetText("kept", "new"));
        QVERIFY(!key->SetText("more", "new"));
        QVERIFY(!key->Delete("kept"));
        QCOMPARE(key->Text("kept"), std::optional(QString("old")));
        QVERIFY(QFile::setPermissions(UserFile(), QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(key->SetText("other", "new"));
        QCOMPARE(OpenUser()->Text("kept"), std::optional(QString("old")));
        QVERIFY(!OpenUser()->Text("more"));
    }

    void AReadOnlyFolderRefusesWrites() {
        const QString folder = QFileInfo(UserFile()).path();
        QVERIFY(QDir().mkpath(folder));
        const QFile::Permissions before = QFile::permissions(folder);
        QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
        const auto key = OpenUser();
        QVERIFY(key);
        QVERIFY(!key->SetText("x", "1"));
        QVERIFY(QFile::setPermissions(folder, before));
        QVERIFY(key->SetText("x", "1"));
    }

    void ABrokenFileIsNeverWrittenTo_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("zero bytes") << QByteArray("[a]\nx=\0\n", 8);
        QTest::newRow("not UTF-8") << QByteArray("[a]\nx=\xff\xfe\n");
        QTest::newRow("no name") << QByteArray("[a]\n=x\n");
        QTest::newRow("no value") << QByteArray("[a]\nx\n");
        QTest::newRow("torn section") << QByteArray("[a\nx=1\n");
        QTest::newRow("another format") << QByteArray("<?xml version=\"1.0\"?>\n<a/>\n");
    }

    void ABrokenFileIsNeverWrittenTo() {
        QFETCH(const QByteArray, content);
        const auto before = OpenUser("a");
        Fill(content);
        for (int time = 0; time < 2; ++time) {
            QVERIFY(!OpenUser("a"));
            QVERIFY(!before->Text("x"));
            QCOMPARE(before->ValueNames(), QStringList());
            QVERIFY(!before->SetText("y", "1"));
            QVERIFY(!before->Delete("x"));
            QCOMPARE(Content(), content);
        }
    }

    void AFullDiskCostsNoValue() {
        const auto key = OpenUser();
        QVERIFY(key->SetText("x", "1"));
        const QByteArray before = Content();
        for (const rlim_t room : {rlim_t(0), rlim_t(4), rlim_t(before.size())}) {
            const docbench::SmallFiles full(room);
            QVERIFY(!key->SetText("y", "a value that needs some room"));
            QCOMPARE(Content(), before);
        }
        QVERIFY(key->SetText("y", "2"));
    }

    void AFolderInPlaceOfTheFileIsAStoreThatCantBeRead() {
        const auto before = OpenUser();
        QVERIFY(QDir().mkpath(UserFile()));
        QVERIFY(!OpenUser());
        QVERIFY(!before->SetText("x", "1"));
    }

    void AnOpenKeySeesWhatOthersWrite() {
        const auto one = OpenUser();
        const auto other = OpenUser();
        for (const char* value : {"1", "0", "1", "0"}) {  // of one size, in one tick of the clock
            QVERIFY(one->SetText("Show Description", value));
            QCOMPARE(other->Text("Show Description"), std::optional(QString(value)));
        }
    }

    void ProgramsSideBySideLoseNothing() {
        std::vector<std::unique_ptr<QProcess>> writers;
        const QStringList prefixes = {"a", "b", "c"};
        for (const QString& prefix : prefixes) {
            writers.push_back(std::make_unique<QProcess>());
            writers.back()->start(QCoreApplication::applicationFilePath(), {kWriter, prefix});
        }
        for (const auto& writer : writers) {
            QVERIFY(writer->waitForFinished());
            QCOMPARE(writer->exitCode(), 0);
        }
        QCOMPARE(OpenUser()->ValueNames().size(), prefixes.size() * kWrites);
    }

    void TheHivesAreFilesOfTheirOwn() {
        QVERIFY(OpenUser("K")->SetText("x", "user"));
        QVERIFY(SettingsKey::Open(Hive::LocalMachine, "K")->SetText("x", "machine"));
        QVERIFY(SettingsKey::Open(Hive::ClassesRoot, "K")->SetText("x", "classes"));
        QCOMPARE(OpenUser("K")->Text("x"), std::optional(QString("user")));
        QCOMPARE(SettingsKey::Open(Hive::LocalMachine, "K")->Text("x"),
                 std::optional(QString("machine")));
        QCOMPARE(SettingsKey::Open(Hive::ClassesRoot, "K")->Text("x"),
                 std::optional(QString("classes")));
        QVERIFY(OpenUser("K")->Delete("x"));
        QVERIFY(!OpenUser("K")->Text("x"));  // nobody else's value stands in for it
        const QDir system(qEnvironmentVariable("XDG_CONFIG_DIRS") + "/Tessaforma");
        QCOMPARE(system.entryList({"*.ini"}),
                 QStringList({"Classes.ini", "TessaformaDocbench.ini"}));
    }
};

int main(int argc, char* argv[]) {
    if (argc == 3 && QLatin1String(argv[1]) == QLatin1String(kWriter))
        return WriteValues(QString::fromLocal8Bit(argv[2]));
    const docbench::TestEnvironment environment;
    QCoreApplication application(argc, argv);
    tst_SettingsStore test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_settingsstore.moc"
