// The tool as a user calls it: what each command does, says and answers.

#include <QBuffer>
#include <QDirIterator>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include "tests/docmodel/documenttools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

class TestTool : public QObject {
    Q_OBJECT

private:
    QTemporaryDir temporary_;
    QString path_;
    QString output_;
    QString errors_;

    int Call(const QStringList& arguments) {
        QProcess tool;
        tool.start(QCoreApplication::applicationDirPath() + "/docmodel", arguments);
        if (!tool.waitForFinished(60'000))
            return -1;
        output_ = QString::fromUtf8(tool.readAllStandardOutput());
        errors_ = QString::fromUtf8(tool.readAllStandardError());
        return tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -2;
    }
    QJsonObject Shown() {
        Call({"show", "--json", path_});
        return QJsonDocument::fromJson(output_.toUtf8()).object();
    }

private Q_SLOTS:
    void init() {
        path_ = temporary_.filePath(QString("%1.tfmasm").arg(QTest::currentTestFunction()));
        QFile::remove(path_);
        QCOMPARE(Call({"new", path_, "--title", "Pump", "--author", "Eva"}), 0);
    }

    void NewMakesADocumentOnce() {
        QCOMPARE(OpenInfo(path_)->GetTitle(), "Pump");
        QCOMPARE(Call({"new", path_}), 1);
        QVERIFY(errors_.contains(path_));
        QCOMPARE(Call({"new", path_, "--replace", "--payload", "100"}), 0);
        QCOMPARE(OpenInfo(path_)->GetTitle(), QString());
        QCOMPARE(PartOf(path_, "model/geometry.bin").size(), 100);
    }

    void PropertiesAreSetInTheirTypes() {
        QCOMPARE(Call({"set-property", path_, "Material", "Steel"}), 0);
        QCOMPARE(Call({"set-property", path_, "Weight", "1.5", "--type", "number"}), 0);
        QCOMPARE(Call({"set-property", path_, "Day", "2004-05-31", "--type", "date"}), 0);
        QCOMPARE(Call({"set-property", path_, "Done", "yes", "--type", "yesno"}), 0);
        QCOMPARE(Call({"set-property", path_, "subject", "Water", "--summary"}), 0);
        const auto info = OpenInfo(path_);
        QCOMPARE(info->GetCustomCount(), 4);
        for (int type = 0; type < 4; ++type)
            QCOMPARE(info->GetCustomProperty(type).type, (QList<int>{0, 2, 1, 3})[type]);
        QCOMPARE(info->GetSubject(), "Water");
        QCOMPARE(Call({"set-property", path_, "material", "--delete"}), 0);
        QCOMPARE(OpenInfo(path_)->GetCustomCount(), 3);
        QCOMPARE(Call({"set-property", path_, "material", "--delete"}), 1);
        QVERIFY(errors_.contains("material"));
    }

    void ConfigurationsHaveProperties() {
        QCOMPARE(Call({"add-configuration", path_, "Default", "--type", "lasting", "--property",
                       "Finish=a=b", "--property", "Size=1"}),
                 0);
        QCOMPARE(Call({"set-property", path_, "Weight", "2", "--type", "number", "--configuration",
                       "default"}),
                 0);
        QCOMPARE(Call({"set-property", path_, "Size", "--delete", "--configuration", "Default"}),
                 0);
        const auto set = OpenFile(path_)->GetCustomProperties(0);
        QCOMPARE(set->GetCustomCount(), 2);
        QCOMPARE(set->GetCustomProperty(0).value.toString(), "a=b");
        QCOMPARE(set->GetCustomProperty(1).value, QVariant(2.0));
        QCOMPARE(Call({"add-configuration", path_, "DEFAULT"}), 1);
        QCOMPARE(Call({"set-property", path_, "a", "b", "--configuration", "none"}), 1);
    }

    void ReferencesAreAddedAndShown() {
        QCOMPARE(Call({"add-reference", path_, "sub/a.tfmprt", "--count", "3"}), 0);
        QCOMPARE(Call({"add-reference", path_, "/lib/b.tfmprt", "--external", "derived"}), 0);
        QCOMPARE(Call({"add-hyperlink", path_, "http://server/"}), 0);
        QCOMPARE(Call({"show", path_}), 0);
        QVERIFY(output_.contains("3 x " + temporary_.filePath("sub/a.tfmprt") + "  (missing)"));
        QVERIFY(output_.contains("/lib/b.tfmprt (derived)"));
        QVERIFY(output_.contains("http://server/"));
        const QJsonObject shown = Shown();
        QCOMPARE(shown["title"].toString(), "Pump");
        QCOMPARE(shown["components"][0]["count"].toInt(), 3);
        QCOMPARE(shown["components"][0]["missing"].toBool(), true);
        QCOMPARE(shown["externalReferences"][0]["kind"].toString(), "derived");
        QCOMPARE(shown["hyperlinks"][0].toString(), "http://server/");
        QCOMPARE(shown["preview"].toBool(), false);
    }

    void APreviewIsStored() {
        const QString picture = temporary_.filePath("picture.png");
        QVERIFY(QImage(4, 4, QImage::Format_RGB32).save(picture));
        QCOMPARE(Call({"set-preview", path_, picture}), 0);
        QVERIFY(Shown()["preview"].toBool());
        QCOMPARE(Call({"set-preview", path_, path_}), 1);
        QCOMPARE(Call({"set-preview", path_, temporary_.filePath("none.png")}), 1);
    }

    void TheLockIsPutOnAndTakenOff() {
        QCOMPARE(Call({"lock", path_, "--user", "eva"}), 0);
        QCOMPARE(OpenInfo(path_)->GetLockedBy(), "eva");
        QCOMPARE(Call({"lock", path_, "--references", "on"}), 0);
        QCOMPARE(OpenInfo(path_)->GetLockedBy(), "eva");
        QVERIFY(OpenFile(path_)->GetReferencesLocked());
        QCOMPARE(Call({"lock", path_, "--off", "--references", "off"}), 0);
        QVERIFY(!OpenInfo(path_)->GetLocked());
        QVERIFY(!OpenFile(path_)->GetReferencesLocked());
        QCOMPARE(Call({"lock", path_}), 0);
        QVERIFY(!OpenInfo(path_)->GetLockedBy().isEmpty());
    }

    void CheckFindsDamage() {
        QCOMPARE(Call({"check", path_}), 0);
        QVERIFY(output_.contains("sound"));
        QByteArray bytes = FileBytes(path_);
        const qsizetype content = bytes.indexOf("docProps/core.xml") + 40;
        bytes[content] = char(bytes[content] ^ 1);
        const QString damaged = temporary_.filePath("damaged.tfmprt");
        WriteBytes(damaged, bytes);
        QCOMPARE(Call({"check", damaged, path_}), 1);
        QVERIFY(errors_.contains(damaged));
        QVERIFY(output_.contains(path_ + ": sound"));
        QCOMPARE(Call({"check", path_, temporary_.filePath("missing")}), 3);
        WriteTables(damaged, Tables("<components><component count='x'/></components>"));
        QCOMPARE(Call({"check", damaged}), 1);
    }

    void CompactTakesFormerStatesOut() {
        for (int i = 0; i < 3; ++i)
            OpenFile(path_)->Save();
        const qint64 before = QFileInfo(path_).size();
        QCOMPARE(Call({"compact", path_}), 0);
        QVERIFY(QFileInfo(path_).size() < before);
        QCOMPARE(Package::Open(path_).DeadBytes(), 0);
        QCOMPARE(OpenInfo(path_)->GetTitle(), "Pump");
    }

    void ADocumentThatCantBeOpenedIsAnAnswerOfItsOwn() {
        const QString missing = temporary_.filePath("missing.tfmprt");
        const QList<QStringList> calls = {{"show", missing},
                                          {"set-property", missing, "a", "b"},
                                          {"add-reference", missing, "a"},
                                          {"set-preview", missing, "a"},
                                          {"add-configuration", missing, "a"},
                                          {"add-hyperlink", missing, "a"},
                                          {"lock", missing},
                                          {"check", missing},
                                          {"compact", missing}};
        for (const QStringList& call : calls) {
            QCOMPARE(Call(call), 3);
            QVERIFY2(errors_.contains(missing), qPrintable(call.first()));
        }
        QVERIFY(!QFile::exists(missing));
    }

    void WrongUsageIsToldAndChangesNothing() {
        const QByteArray before = FileBytes(path_);
        const QList<QStringList> calls = {{},
                                          {"unknown"},
                                          {"new"},
                                          {"new", path_, "--payload", "-1"},
                                          {"show"},
                                          {"show", path_, path_},
                                          {"show", path_, "--unknown"},
                                          {"set-property", path_, "a"},
                                          {"set-property", path_, "a", "b", "--delete"},
                                          {"set-property", path_, "a", "b", "--type", "x"},
                                          {"set-property", path_, "a", "x", "--type", "number"},
                                          {"set-property", path_, "a", "x", "--type", "date"},
                                          {"set-property", path_, "a", "x", "--type", "yesno"},
                                          {"set-property", path_, "a", "x", "--summary"},
                                          {"add-reference", path_, "a", "--count", "0"},
                                          {"add-reference", path_, "a", "--count", "9999999999"},
                                          {"add-configuration", path_, "a", "--type", "x"},
                                          {"add-configuration", path_, "a", "--property", "x"},
                                          {"lock", path_, "--references", "x"},
                                          {"lock", path_, "--off", "--user", "x"},
                                          {"make-library"},
                                          {"make-library", path_, "--documents", "0"}};
        for (const QStringList& call : calls) {
            QVERIFY2(Call(call) == 2, qPrintable(call.join(' ')));
            QVERIFY2(!errors_.isEmpty() && output_.isEmpty(), qPrintable(call.join(' ')));
        }
        QCOMPARE(FileBytes(path_), before);
    }

    void HelpIsThereForTheToolAndEachCommand() {
        QCOMPARE(Call({"--help"}), 0);
        const QString list = output_;
        for (const char* command :
             {"new", "show", "set-property", "add-reference", "set-preview", "add-configuration",
              "add-hyperlink", "lock", "check", "compact", "make-library"}) {
            QVERIFY2(list.contains(command), command);
            QCOMPARE(Call({command, "--help"}), 0);
            QVERIFY2(output_.contains(QString(command) + " [options]"), qPrintable(output_));
        }
    }

    void ALibraryIsTheSameForTheSameSeedAndHasNoCircles() {
        const auto make = [&](const QString& name, const QString& seed) {
            const QString folder = temporary_.filePath(name);
            QDir(folder).removeRecursively();
            const int code = Call({"make-library", folder, "--documents", "450", "--references",
                                   "5", "--payload", "100", "--seed", seed});
            return code == 0 ? folder : "failed: " + errors_;
        };
        const QString one = make("one", "1");
        QStringList documents;
        QDirIterator files(one, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            documents.append(files.next());
        QCOMPARE(documents.size(), 450);
        QCOMPARE(QDir(one).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 3);

        const auto numberOf = [](const QString& path) {
            return path.right(13).left(6).toInt();  // behind the kind, before ".tfmxxx"
        };
        int references = 0;
        for (const QString& document : documents) {
            const auto file = OpenFile(document);
            QStringList targets = ComponentPaths(*file);
            for (int i = 0; i < file->GetExternalReferenceCount(); ++i)
                targets.append(file->GetExternalReference(i, QString()).path);
            for (const QString& target : targets) {
                QVERIFY2(QFile::exists(target), qPrintable(target));
                QVERIFY(numberOf(target) < numberOf(document));
            }
            references += int(targets.size());
        }
        QVERIFY(references > 450);

        const auto content = [](const QString& folder, const QByteArray& part) {
            return PartOf(folder + "/0002/assembly000443.tfmasm", part);
        };
        const QByteArray tables = content(one, kDocumentPart);
        const QByteArray model = content(one, "model/geometry.bin");
        make("one", "1");
        QCOMPARE(content(one, kDocumentPart), tables);
        QCOMPARE(content(one, "model/geometry.bin"), model);
        make("one", "2");
        QVERIFY(content(one, kDocumentPart) != tables);
        QVERIFY(content(one, "model/geometry.bin") != model);
        QCOMPARE(Call({"make-library", one, "--documents", "10"}), 1);  // they are there already
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestTool)
#include "tst_tool.moc"
