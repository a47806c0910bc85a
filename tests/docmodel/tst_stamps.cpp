// Who may save after somebody else has: stamps of tables and property sets, and what refuses what.

#include <QTemporaryDir>

#include "tests/docmodel/documenttools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;
using docbench::PropertyGroup;
using docbench::Table;

class TestStamps : public QObject {
    Q_OBJECT

private:
    QTemporaryDir temporary_;
    QString path_;
    static constexpr int kDelete = 2;
    static constexpr Table kTables[] = {Table::Components, Table::ExternalReferences,
                                        Table::Configurations, Table::Hyperlinks};

    // The tables whose stamps differ, as letters.
    static QString Differences(DocumentFile& one, DocumentFile& other) {
        QString differences;
        for (const Table table : kTables)
            if (one.GetStamp(table) != other.GetStamp(table))
                differences += QLatin1Char("CEGH"[int(table)]);
        return differences;
    }
    QString Refusal(const std::function<void()>& save) const {
        const QByteArray before = FileBytes(path_);
        const QString error = ErrorOf(save);
        if (error.isEmpty() || FileBytes(path_) != before)
            return "saved";
        return error.contains(path_) && error.contains("Open it again") ? "refused" : error;
    }

private Q_SLOTS:
    void init() {
        path_ = temporary_.filePath(QString("%1.tfmasm").arg(QTest::currentTestFunction()));
        DocumentBuilder document = DocumentBuilder::New(path_, DocumentBuilder::IfThere::Replace);
        document.AddComponent("/lib/a.tfmprt");
        document.AddComponent("/lib/b.tfmprt");
        document.AddExternal("/lib/c.tfmprt", "derived");
        document.AddConfiguration("A", 0, {{"p", 1.0, 0}});
        document.AddConfiguration("B");
        document.AddHyperlink("x");
        document.SetTitle("title");
        document.SetCustomProperty("p", "q");
        document.Save();
    }

    void AStampFollowsItsOwnTableAlone() {
        const auto before = OpenFile(path_);
        auto writer = OpenFile(path_);
        writer->Save();
        QCOMPARE(Differences(*before, *OpenFile(path_)), "");
        writer->SetComponentPath(0, "/x.tfmprt");
        writer->Save();
        QCOMPARE(Differences(*before, *OpenFile(path_)), "C");
        writer->SetExternalReferencePath(0, "/x.tfmprt");
        writer->Save();
        QCOMPARE(Differences(*before, *OpenFile(path_)), "CE");
        writer->SetHyperlink(0, "y");
        writer->SaveHyperlinks();
        QCOMPARE(Differences(*before, *OpenFile(path_)), "CEH");
        writer->RenameConfiguration(0, "z");
        writer->Save();
        QCOMPARE(Differences(*before, *OpenFile(path_)), "CEGH");
    }

    void AStampIsOfTheStateAtOpenUntilTheOwnSave() {
        const auto file = OpenFile(path_);
        const QByteArray atOpen = file->GetStamp(Table::Components);
        file->SetComponentPath(0, "/x.tfmprt");
        QCOMPARE(file->GetStamp(Table::Components), atOpen);
        file->Save();
        QVERIFY(file->GetStamp(Table::Components) != atOpen);
        QCOMPARE(file->GetStamp(Table::Components), OpenFile(path_)->GetStamp(Table::Components));
    }

    void RowsThatAreExchangedHaveAnotherStamp() {
        const auto file = OpenFile(path_);
        const QByteArray before = file->GetStamp(Table::Components);
        file->SetComponentPath(0, "/lib/b.tfmprt");
        file->SetComponentPath(1, "/lib/a.tfmprt");
        file->Save();
        QVERIFY(file->GetStamp(Table::Components) != before);
    }

    void AChangedTableRefusesTheSave() {
        const auto late = OpenFile(path_);
        const auto early = OpenFile(path_);
        early->SetComponentPath(0, "/early.tfmprt");
        early->Save();
        late->SetComponentPath(1, "/late.tfmprt");
        QCOMPARE(Refusal([&] { late->Save(); }), "refused");
        QCOMPARE(OpenFile(path_)->GetComponent(0, QString()).path, "/early.tfmprt");
        late->Open(path_);
        late->SetComponentPath(1, "/late.tfmprt");
        late->Save();
        const auto both = OpenFile(path_);
        QCOMPARE(ComponentPaths(*both), QStringList({"/early.tfmprt", "/late.tfmprt"}));
    }

    void EachTableIsRefusedForItself() {
        const QList<std::function<void(DocumentFile&)>> changes = {
            [](DocumentFile& file) { file.SetComponentPath(0, "/x.tfmprt"); },
            [](DocumentFile& file) { file.SetExternalReferencePath(0, "/x.tfmprt"); },
            [](DocumentFile& file) { file.RenameConfiguration(0, "new"); },
            [](DocumentFile& file) { file.SetHyperlink(0, "new"); },
        };
        for (int first = 0; first < changes.size(); ++first) {
            for (int second = 0; second < changes.size(); ++second) {
                init();
                const auto early = OpenFile(path_);
                const auto late = OpenFile(path_);
                changes[first](*early);
                changes[second](*late);
                early->Save();
                QCOMPARE(Refusal([&] { late->Save(); }), first == second ? "refused" : "saved");
            }
        }
    }

    void WritersOfDifferentThingsNeverRefuseEachOther() {
        const auto components = OpenFile(path_);
        const auto configurations = OpenFile(path_);
        const auto hyperlinks = OpenFile(path_);
        const auto summary = OpenInfo(path_);
        const auto custom = OpenInfo(path_);
        const auto lock = OpenInfo(path_);
        const auto ofConfiguration = OpenFile(path_)->GetCustomProperties(0);
        for (int round = 0; round < 3; ++round) {
            const QString text = QString("/round%1").arg(round);
            components->SetComponentPath(0, text);
            components->Save();
            QCOMPARE(configurations->RenameConfiguration(1, text), 0);
            configurations->Save();
            hyperlinks->SetHyperlink(0, text);
            hyperlinks->SaveHyperlinks();
            summary->SetTitle(text);
            summary->Save();
            QVERIFY(custom->SetCustomProperty("p", text));
            custom->Save();
            lock->SetLocked(true);
            lock->SetLockedBy(text);
            lock->Save();
            QVERIFY(ofConfiguration->SetCustomProperty("p", text));
            ofConfiguration->Save();
        }
        const auto file = OpenFile(path_);
        const auto info = OpenInfo(path_);
        QCOMPARE(file->GetComponent(0, QString()).path, "/round2");
        QCOMPARE(file->GetConfiguration(1), "/round2");
        QCOMPARE(file->GetHyperlink(0), "/round2");
        QCOMPARE(info->GetTitle(), "/round2");
        QCOMPARE(info->GetCustomProperty(0).value.toString(), "/round2");
        QCOMPARE(info->GetLockedBy(), "/round2");
        QCOMPARE(file->GetCustomProperties(0)->GetCustomProperty(0).value.toString(), "/round2");
    }

    void ChangedPropertiesRefuseTheSave() {
        const auto early = OpenInfo(path_);
        const auto late = OpenInfo(path_);
        QVERIFY(early->SetCustomProperty("new", 1.0));
        early->Save();
        QVERIFY(late->SetCustomProperty("other", 1.0));
        QCOMPARE(Refusal([&] { late->Save(); }), "refused");
        const auto third = OpenInfo(path_);
        const auto fourth = OpenInfo(path_);
        third->SetTitle("third");
        third->Save();
        fourth->SetSubject("fourth");
        QCOMPARE(Refusal([&] { fourth->Save(); }), "refused");
    }

    void AnInfosStampsLeaveOutTimesAndLock() {
        const auto stamps = [](DocumentInfo& info) {
            return std::pair(info.GetStamp(PropertyGroup::Summary),
                             info.GetStamp(PropertyGroup::Custom));
        };
        const auto before = stamps(*OpenInfo(path_));
        DocumentBuilder document = DocumentBuilder::Edit(path_);
        document.SetLockedBy("eva");
        document.SetCreated(QDateTime(QDate(2000, 1, 1), QTime(1, 1), Qt::UTC));
        document.SetLastSaved(QDateTime(QDate(2001, 1, 1), QTime(1, 1), Qt::UTC), "eva");
        document.Save();
        QCOMPARE(stamps(*OpenInfo(path_)), before);
        const auto info = OpenInfo(path_);
        info->SetTitle("new");
        QCOMPARE(stamps(*info), before);
        info->Save();
        const auto titled = stamps(*info);
        QVERIFY(titled.first != before.first);
        QCOMPARE(titled.second, before.second);
        QCOMPARE(titled, stamps(*OpenInfo(path_)));
        QVERIFY(info->SetCustomProperty("p", 1.0));
        info->Save();
        QCOMPARE(stamps(*info).first, titled.first);
        QVERIFY(stamps(*info).second != titled.second);
    }

    void TheLastWriterOfTheLockWins() {
        const auto one = OpenInfo(path_);
        const auto other = OpenInfo(path_);
        one->SetLocked(true);
        one->SetLockedBy("one");
        one->Save();
        other->SetLockedBy("other");
        other->Save();
        QCOMPARE(OpenInfo(path_)->GetLockedBy(), "other");
        QVERIFY(OpenInfo(path_)->GetLocked());
    }

    void AConfigurationsSetIsFoundAgainInTheNewestState() {
        const auto set = OpenFile(path_)->GetCustomProperties(1);
        const auto file = OpenFile(path_);
        QCOMPARE(file->DeleteConfiguration(0, kDelete), 0);
        file->Save();
        QVERIFY(set->SetCustomProperty("p", "of B"));
        set->Save();
        QCOMPARE(OpenFile(path_)->GetCustomProperties(0)->GetCustomProperty(0).value.toString(),
                 "of B");
    }

    void AConfigurationsSetIsSavedAlsoWhenItWasRenamed() {
        const auto set = OpenFile(path_)->GetCustomProperties(0);
        const auto file = OpenFile(path_);
        QCOMPARE(file->RenameConfiguration(0, "C"), 0);
        QCOMPARE(file->RenameConfiguration(1, "A"), 0);
        file->Save();
        QVERIFY(set->SetCustomProperty("p", 2.0));
        set->Save();
        const auto saved = OpenFile(path_);
        QCOMPARE(ConfigurationNames(*saved), QStringList({"C", "A"}));
        QCOMPARE(saved->GetCustomProperties(0)->GetCustomProperty(0).value, QVariant(2.0));
        QCOMPARE(saved->GetCustomProperties(1)->GetCustomCount(), 0);
    }

    void AConfigurationWithoutAnIdIsKnownByItsName() {
        WriteTables(path_, Tables("<configurations><configuration name='A'/>"
                                  "<configuration name='B'/></configurations>"));
        const auto kept = OpenFile(path_)->GetCustomProperties(1);
        const auto renamed = OpenFile(path_)->GetCustomProperties(0);
        QVERIFY(kept->SetCustomProperty("p", "of B"));
        kept->Save();
        QCOMPARE(OpenFile(path_)->GetCustomProperties(1)->GetCustomCount(), 1);
        QCOMPARE(OpenFile(path_)->GetCustomProperties(0)->GetCustomCount(), 0);
        const auto file = OpenFile(path_);
        QCOMPARE(file->RenameConfiguration(0, "C"), 0);
        file->Save();
        QVERIFY(renamed->SetCustomProperty("p", 1.0));
        QCOMPARE(Refusal([&] { renamed->Save(); }), "refused");
    }

    void AConfigurationThatIsGoneOrChangedRefusesItsSet() {
        const auto deleted = OpenFile(path_)->GetCustomProperties(0);
        const auto file = OpenFile(path_);
        QCOMPARE(file->DeleteConfiguration(0, kDelete), 0);
        QCOMPARE(file->RenameConfiguration(1, "A"), 0);
        file->Save();
        QCOMPARE(ConfigurationNames(*file), QStringList("A"));  // another one of that name
        QVERIFY(deleted->SetCustomProperty("p", 1.0));
        QCOMPARE(Refusal([&] { deleted->Save(); }), "refused");
        const auto one = OpenFile(path_)->GetCustomProperties(0);
        const auto other = OpenFile(path_)->GetCustomProperties(0);
        QCOMPARE(one->GetStamp(PropertyGroup::Custom), other->GetStamp(PropertyGroup::Custom));
        QVERIFY(one->SetCustomProperty("p", 1.0));
        one->Save();
        QVERIFY(other->SetCustomProperty("p", 2.0));
        QCOMPARE(Refusal([&] { other->Save(); }), "refused");
    }

    void AConfigurationWhosePropertiesChangedIsNotDeleted() {
        const auto file = OpenFile(path_);
        const auto set = OpenFile(path_)->GetCustomProperties(0);
        QVERIFY(set->SetCustomProperty("p", "somebody's work"));
        set->Save();
        QCOMPARE(file->DeleteConfiguration(0, kDelete), 0);
        QCOMPARE(Refusal([&] { file->Save(); }), "refused");
    }

    void AnOwnSaveRenewsTheTableThatItWroteAlone() {
        const auto file = OpenFile(path_);
        const auto other = OpenFile(path_);
        other->SetHyperlink(0, "by the other");
        other->SaveHyperlinks();
        for (const char* path : {"/x.tfmprt", "/y.tfmprt"}) {
            file->SetComponentPath(0, path);
            file->Save();
            QCOMPARE(file->GetComponent(0, QString()).path, path);
        }
        QCOMPARE(Differences(*file, *OpenFile(path_)), "H");
        QCOMPARE(file->GetHyperlink(0), "x");
        file->SetHyperlink(0, "mine");
        QCOMPARE(Refusal([&] { file->Save(); }), "refused");
        QCOMPARE(Refusal([&] { file->SaveHyperlinks(); }), "refused");
        QCOMPARE(OpenFile(path_)->GetHyperlink(0), "by the other");
    }

    void SavingHyperlinksRenewsThemAlone() {
        const auto file = OpenFile(path_);
        const auto other = OpenFile(path_);
        other->SetComponentPath(0, "/by/the/other.tfmprt");
        QCOMPARE(other->RenameConfiguration(0, "by the other"), 0);
        other->Save();
        for (const char* text : {"mine", "mine again"}) {
            file->SetHyperlink(0, text);
            file->SaveHyperlinks();
            QCOMPARE(file->GetHyperlink(0), text);
        }
        QCOMPARE(Differences(*file, *OpenFile(path_)), "CG");
        QCOMPARE(file->GetConfiguration(0), "A");
        file->SetComponentPath(0, "/mine.tfmprt");
        QCOMPARE(Refusal([&] { file->Save(); }), "refused");
    }

    void ASaveOfTheTitleDoesNotRenewTheProperties() {
        const auto mine = OpenInfo(path_);
        const auto other = OpenInfo(path_);
        QVERIFY(other->SetCustomProperty("p", "by the other"));
        other->Save();
        mine->SetTitle("mine");
        QCOMPARE(Refusal([&] { mine->Save(); }), "saved");
        QCOMPARE(mine->GetCustomProperty(0).value.toString(), "q");
        QVERIFY(mine->SetCustomProperty("p", "mine"));
        QCOMPARE(Refusal([&] { mine->Save(); }), "refused");
        QCOMPARE(OpenInfo(path_)->GetCustomProperty(0).value.toString(), "by the other");
    }

    void ASaveOfPropertiesDoesNotRenewTheSummary() {
        const auto mine = OpenInfo(path_);
        const auto other = OpenInfo(path_);
        other->SetTitle("by the other");
        other->Save();
        for (const char* text : {"mine", "mine again"}) {
            QVERIFY(mine->SetCustomProperty("p", text));
            mine->SetLocked(true);
            QCOMPARE(Refusal([&] { mine->Save(); }), "saved");
        }
        QVERIFY(mine->GetLocked());
        QCOMPARE(mine->GetTitle(), "title");
        mine->SetSubject("mine");
        QCOMPARE(Refusal([&] { mine->Save(); }), "refused");
        QCOMPARE(OpenInfo(path_)->GetTitle(), "by the other");
    }

    void ASaveOfNothingDoesNotRenewAConfigurationsProperties() {
        const auto mine = OpenFile(path_)->GetCustomProperties(0);
        const auto other = OpenFile(path_)->GetCustomProperties(0);
        QVERIFY(other->SetCustomProperty("p", "by the other"));
        other->Save();
        mine->Save();
        QVERIFY(mine->SetCustomProperty("p", "mine"));
        QCOMPARE(Refusal([&] { mine->Save(); }), "refused");
    }

    void PropertiesThatChangedBeforeAnOwnSaveStillKeepTheirConfiguration() {
        const auto file = OpenFile(path_);
        const auto set = OpenFile(path_)->GetCustomProperties(0);
        QVERIFY(set->SetCustomProperty("p", "somebody's work"));
        set->Save();
        QCOMPARE(file->RenameConfiguration(1, "new"), 0);
        file->Save();
        QCOMPARE(file->GetConfiguration(1), "new");
        QCOMPARE(file->DeleteConfiguration(0, kDelete), 0);
        QCOMPARE(Refusal([&] { file->Save(); }), "refused");
    }

    void SavingTwiceIsRefusedWhenSomebodyElseWroteTheSameTableBetween() {
        const auto file = OpenFile(path_);
        const auto other = OpenFile(path_);
        file->SetComponentPath(0, "/first.tfmprt");
        file->Save();
        other->Open(path_);
        other->SetComponentPath(0, "/by/the/other.tfmprt");
        other->Save();
        file->SetComponentPath(0, "/second.tfmprt");
        QCOMPARE(Refusal([&] { file->Save(); }), "refused");
        QCOMPARE(OpenFile(path_)->GetComponent(0, QString()).path, "/by/the/other.tfmprt");
    }

    void AnotherProcessIsNoticedLikeAnotherObject() {
        const auto file = OpenFile(path_);
        QCOMPARE(InChild([&] {
                     const auto other = OpenFile(path_);
                     other->SetComponentPath(0, "/child.tfmprt");
                     other->Save();
                 }),
                 0);
        file->SetComponentPath(0, "/parent.tfmprt");
        QCOMPARE(Refusal([&] { file->Save(); }), "refused");
        QCOMPARE(OpenFile(path_)->GetComponent(0, QString()).path, "/child.tfmprt");
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestStamps)
#include "tst_stamps.moc"
