// Summary, custom properties and the lock record.

#include <sys/stat.h>

#include <QLocale>
#include <QTemporaryDir>
#include <limits>

#include "docmodel/propertyvalue.h"
#include "tests/docmodel/documenttools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

class TestDocumentInfo : public QObject {
    Q_OBJECT

private:
    QTemporaryDir temporary_;
    QString path_;

    static QVariant Value(DocumentInfo& info, const QString& name) {
        for (int i = 0; i < info.GetCustomCount(); ++i)
            if (info.GetCustomProperty(i).name == name)
                return info.GetCustomProperty(i).value;
        return "missing";
    }
    static int Type(DocumentInfo& info, const QString& name) {
        for (int i = 0; i < info.GetCustomCount(); ++i)
            if (info.GetCustomProperty(i).name == name)
                return info.GetCustomProperty(i).type;
        return -1;
    }

    // Everything that needs a bound document.
    static QList<std::function<void()>> Operations(DocumentInfo& info) {
        return {[&] { info.GetTitle(); },
                [&] { info.SetTitle("x"); },
                [&] { info.GetAuthor(); },
                [&] { info.SetAuthor("x"); },
                [&] { info.GetComments(); },
                [&] { info.SetComments("x"); },
                [&] { info.GetKeywords(); },
                [&] { info.SetKeywords("x"); },
                [&] { info.GetSubject(); },
                [&] { info.SetSubject("x"); },
                [&] { info.GetCreated(); },
                [&] { info.GetLastSavedBy(); },
                [&] { info.GetLastSaved(); },
                [&] { info.GetCustomCount(); },
                [&] { info.GetCustomProperty(0); },
                [&] { info.SetCustomProperty("a", "b"); },
                [&] { info.DeleteCustomProperty("a"); },
                [&] { info.Save(); },
                [&] { info.GetLocked(); },
                [&] { info.SetLocked(true); },
                [&] { info.GetLockedBy(); },
                [&] { info.SetLockedBy("x"); },
                [&] { info.GetStamp(docbench::PropertyGroup::Custom); }};
    }

private Q_SLOTS:
    void init() {
        path_ = temporary_.filePath(QString("%1.tfmprt").arg(QTest::currentTestFunction()));
        DocumentBuilder::New(path_, DocumentBuilder::IfThere::Replace).Save();
    }

    // Others may have stored what a text must not hold; what is edited beside it can be saved.
    void ATextThatIsGivenBackIsNotChecked() {
        const QString foreign = QString("odd") + QChar(0xFFFE);
        PackageWriter::Create(
            path_,
            {{"docProps/core.xml",
              "<coreProperties xmlns='http://schemas.openxmlformats.org/package/2006/metadata/"
              "core-properties' xmlns:dc='http://purl.org/dc/elements/1.1/'><dc:description>" +
                  foreign.toUtf8() + "</dc:description></coreProperties>"}},
            true);
        const auto info = OpenInfo(path_);
        QCOMPARE(info->GetComments(), foreign);
        info->SetComments(foreign);
        QVERIFY_THROWS_EXCEPTION(docbench::DocumentError, info->SetComments(foreign + "x"));
        QVERIFY_THROWS_EXCEPTION(docbench::DocumentError, info->SetSubject(foreign));
        info->SetTitle("Dowel");
        info->Save();
        QCOMPARE(OpenInfo(path_)->GetComments(), foreign);
        QCOMPARE(OpenInfo(path_)->GetTitle(), QString("Dowel"));
    }

    void TheSummaryIsStored() {
        const auto info = OpenInfo(path_);
        info->SetTitle("Title <1>");
        info->SetAuthor("Eva & Co");
        info->SetComments("line\r\nnext\rlast\n");
        info->SetKeywords("a, b");
        info->SetSubject(QString::fromUtf8("Gr\u00f6\u00dfe \u4f53"));
        QCOMPARE(info->GetTitle(), "Title <1>");
        QCOMPARE(OpenInfo(path_)->GetTitle(), QString());
        info->Save();
        const auto again = OpenInfo(path_);
        QCOMPARE(again->GetTitle(), "Title <1>");
        QCOMPARE(again->GetAuthor(), "Eva & Co");
        QCOMPARE(again->GetComments(), "line\nnext\nlast\n");
        QCOMPARE(again->GetKeywords(), "a, b");
        QCOMPARE(again->GetSubject(), QString::fromUtf8("Gr\u00f6\u00dfe \u4f53"));
        QCOMPARE(info->GetComments(), again->GetComments());
        again->SetTitle(QString());
        again->Save();
        QCOMPARE(OpenInfo(path_)->GetTitle(), QString());
    }

    void TimesAreShownByTheUsersLocale() {
        const QDateTime created(QDate(2004, 5, 31), QTime(13, 14, 15), Qt::UTC);
        DocumentBuilder document = DocumentBuilder::Edit(path_);
        document.SetCreated(created);
        document.SetLastSaved(created.addDays(1), "eva");
        document.Save();
        const QLocale german(QLocale::German, QLocale::Germany);
        QLocale::setDefault(german);
        const auto info = OpenInfo(path_);
        QCOMPARE(info->GetCreated(), german.toString(created.toLocalTime(), QLocale::ShortFormat));
        QVERIFY(info->GetCreated().startsWith("31.05.04"));
        QVERIFY(info->GetLastSaved().startsWith("01.06.04"));
        QCOMPARE(info->GetLastSavedBy(), "eva");
        QLocale::setDefault(QLocale::system());
    }

    void TheTimeOfTheLastSaveIsRenewedByASave() {
        DocumentBuilder document = DocumentBuilder::Edit(path_);
        document.SetLastSaved(QDateTime(QDate(1999, 1, 1), QTime(1, 1), Qt::UTC), "former");
        document.Save();
        const auto info = OpenInfo(path_);
        QVERIFY(info->GetLastSaved().contains("99"));
        info->Save();
        QVERIFY(!info->GetLastSaved().contains("1999"));
        QVERIFY(info->GetLastSavedBy() != "former");
        QCOMPARE(OpenInfo(path_)->GetLastSaved(), info->GetLastSaved());
    }

    void APartialTimeIsShownAsItStands() {
        PackageWriter::Create(
            path_,
            {{"docProps/core.xml",
              "<coreProperties xmlns='http://schemas.openxmlformats.org/package/2006/metadata/"
              "core-properties' xmlns:dcterms='http://purl.org/dc/terms/'>"
              "<dcterms:created>2004</dcterms:created></coreProperties>"}},
            true);
        QCOMPARE(OpenInfo(path_)->GetCreated(), "2004");
        QCOMPARE(OpenInfo(path_)->GetLastSaved(), QString());
    }

    void ValuesKeepTheirTypes() {
        const QDateTime moment(QDate(2004, 5, 31), QTime(13, 14, 15), Qt::UTC);
        const auto info = OpenInfo(path_);
        QVERIFY(info->SetCustomProperty("text", " a  b "));
        QVERIFY(info->SetCustomProperty("empty", QString()));
        QVERIFY(info->SetCustomProperty("blank", " "));
        QVERIFY(info->SetCustomProperty("moment", moment));
        QVERIFY(info->SetCustomProperty("number", 0.1));
        QVERIFY(info->SetCustomProperty("whole", 7));
        QVERIFY(info->SetCustomProperty("yes", true));
        QVERIFY(info->SetCustomProperty("no", false));
        info->Save();
        const auto again = OpenInfo(path_);
        QCOMPARE(again->GetCustomCount(), 8);
        QCOMPARE(Value(*again, "text"), QVariant(" a  b "));
        QCOMPARE(Value(*again, "empty"), QVariant(QString()));
        QCOMPARE(Value(*again, "blank"), QVariant(" "));
        QCOMPARE(Value(*again, "moment").toDateTime(), moment);
        QCOMPARE(Value(*again, "number"), QVariant(0.1));
        QCOMPARE(Value(*again, "whole"), QVariant(7.0));
        QCOMPARE(Value(*again, "yes"), QVariant(true));
        QCOMPARE(Value(*again, "no"), QVariant(false));
        QList<int> types;
        for (int i = 0; i < 8; ++i)
            types.append(again->GetCustomProperty(i).type);
        QCOMPARE(types, QList<int>({0, 0, 0, 1, 2, 2, 3, 3}));
    }

    void ADateWithoutTimeIsTheSameDayEverywhere() {
        const QByteArray former = qgetenv("TZ");
        const auto inZone = [](const char* zone) {
            qputenv("TZ", zone);
            tzset();
        };
        inZone("Asia/Tokyo");
        const QDate day(2004, 5, 31);
        const auto info = OpenInfo(path_);
        QVERIFY(info->SetCustomProperty("day", day.startOfDay()));
        QVERIFY(info->SetCustomProperty("moment", QDateTime(day, QTime(9, 0))));  // midnight UTC
        info->Save();
        QCOMPARE(Value(*OpenInfo(path_), "day").toDateTime(), day.startOfDay());
        QCOMPARE(Value(*OpenInfo(path_), "moment").toDateTime(), QDateTime(day, QTime(9, 0)));
        inZone("America/New_York");
        const auto again = OpenInfo(path_);
        QCOMPARE(Value(*again, "day").toDateTime(), day.startOfDay());
        QCOMPARE(Value(*again, "moment").toDateTime(), QDateTime(day.addDays(-1), QTime(20, 0)));
        QCOMPARE(Type(*again, "day"), 1);
        if (former.isNull())
            qunsetenv("TZ");
        else
            qputenv("TZ", former);
        tzset();
    }

    void WhatCantBeStoredIsRefused() {
        const auto info = OpenInfo(path_);
        QVERIFY(!info->SetCustomProperty(QString(), "x"));
        QVERIFY(!info->SetCustomProperty("a\x01", "x"));
        QVERIFY(!info->SetCustomProperty("a", "x\x01"));
        QVERIFY(!info->SetCustomProperty("a", QDateTime()));
        QVERIFY(!info->SetCustomProperty("a", std::numeric_limits<double>::quiet_NaN()));
        QVERIFY(!info->SetCustomProperty("a", std::numeric_limits<double>::infinity()));
        QCOMPARE(info->GetCustomCount(), 0);
        QVERIFY(ErrorOf([&] { info->SetTitle("a\x01"); }).contains(path_));
        QVERIFY(!ErrorOf([&] { info->SetAuthor("a\x1f"); }).isEmpty());
        QVERIFY(!ErrorOf([&] { info->SetLockedBy("a\x1f"); }).isEmpty());
        QCOMPARE(info->GetTitle(), QString());
    }

    void NamesAreTheSameInAnyCase() {
        const auto info = OpenInfo(path_);
        QVERIFY(info->SetCustomProperty("Weight", 1.0));
        QVERIFY(info->SetCustomProperty("WEIGHT", 2.0));
        QCOMPARE(info->GetCustomCount(), 1);
        QCOMPARE(info->GetCustomProperty(0).name, "Weight");
        info->Save();
        QVERIFY(OpenInfo(path_)->DeleteCustomProperty("weight"));
    }

    // As packages of others may have them: the exact one goes first, and what could hit either is
    // refused.
    void AnEditOfANameThatIsThereTwiceIsRefused() {
        const auto property = [](const QByteArray& name, const QByteArray& value) {
            return "<property name='" + name + "' type='text'>" + value + "</property>";
        };
        const QByteArray twins =
            property("a", "1") + property("a", "2") + property("b", "1") + property("B", "2");
        WriteTables(path_, Tables("<configurations><configuration id='1' name='Short'>" + twins +
                                  "</configuration></configurations>"));
        const auto set = OpenFile(path_)->GetCustomProperties(0);
        for (const char* name : {"a", "A"}) {
            QVERIFY(ErrorOf([&] { set->SetCustomProperty(name, "3"); }).contains(path_));
            QVERIFY(ErrorOf([&] { set->DeleteCustomProperty(name); }).contains(path_));
        }
        QVERIFY(set->SetCustomProperty("a", "1"));  // given back
        QVERIFY(set->SetCustomProperty("a", "2"));
        QVERIFY(set->SetCustomProperty("B", "3"));
        set->Save();
        const QByteArray part = PartOf(path_, kDocumentPart);
        QVERIFY(part.contains("\"B\" type=\"text\">3<"));
        const auto saved = OpenFile(path_)->GetCustomProperties(0);
        QStringList values;
        for (int index = 0; index < saved->GetCustomCount(); ++index)
            values.append(saved->GetCustomProperty(index).value.toString());
        QCOMPARE(values, QStringList({"1", "2", "1", "3"}));
    }

    void APropertyThatIsDeletedAndSetAgainComesLast() {
        const auto info = OpenInfo(path_);
        for (const char* name : {"a", "b", "c"})
            QVERIFY(info->SetCustomProperty(name, name));
        info->Save();
        QVERIFY(info->DeleteCustomProperty("a"));
        QVERIFY(!info->DeleteCustomProperty("a"));
        QVERIFY(info->SetCustomProperty("a", "new"));
        QVERIFY(info->DeleteCustomProperty("b"));
        info->Save();
        const auto again = OpenInfo(path_);
        QCOMPARE(again->GetCustomCount(), 2);
        QCOMPARE(again->GetCustomProperty(0).name, "c");
        QCOMPARE(again->GetCustomProperty(1).value.toString(), "new");
    }

    void PositionsBeyondTheSetRaise() {
        const auto info = OpenInfo(path_);
        QVERIFY(ErrorOf([&] { info->GetCustomProperty(0); }).contains(path_));
        QVERIFY(info->SetCustomProperty("a", "b"));
        QCOMPARE(info->GetCustomProperty(0).name, "a");
        for (const int index : {-1, 1, 1000})
            QVERIFY(ErrorOf([&] { info->GetCustomProperty(index); }).contains(path_));
    }

    void TheLockRecordIsStored() {
        const auto info = OpenInfo(path_);
        QVERIFY(!info->GetLocked());
        QCOMPARE(info->GetLockedBy(), QString());
        info->SetLocked(true);
        info->SetLockedBy("eva");
        info->Save();
        const auto again = OpenInfo(path_);
        QVERIFY(again->GetLocked());
        QCOMPARE(again->GetLockedBy(), "eva");
        again->SetLocked(false);
        again->SetLockedBy(QString());
        again->Save();
        QVERIFY(!OpenInfo(path_)->GetLocked());
        QCOMPARE(OpenInfo(path_)->GetLockedBy(), QString());
    }

    void OpenTellsWhetherThereIsARecord() {
        const auto info = Access().MakeDocumentInfo();
        QVERIFY(!info->Open(temporary_.filePath("missing.tfmprt")));
        QVERIFY(!info->Open(temporary_.path()));
        WriteBytes(path_, "");
        QVERIFY(!info->Open(path_));
        WriteBytes(path_, "no package");
        QVERIFY(!info->Open(path_));
        PackageWriter::Create(path_, {{"a.txt", "x"}}, true);
        QVERIFY(!info->Open(path_));
        PackageWriter::Create(path_, {{"docProps/core.xml", "<broken"}}, true);
        QVERIFY(!info->Open(path_));
        PackageWriter::Create(path_, {{"docProps/custom.xml", "<wrong/>"}}, true);
        QVERIFY(!info->Open(path_));
        WriteTables(path_, Tables(""));
        QVERIFY(info->Open(path_));
        QCOMPARE(info->GetTitle(), QString());
    }

    void AFailedOpenUnbindsTheObject() {
        const auto info = OpenInfo(path_);
        info->SetTitle("never");
        const QByteArray before = FileBytes(path_);
        const QString missing = temporary_.filePath("missing.tfmprt");
        QVERIFY(!info->Open(missing));
        for (const auto& operation : Operations(*info))
            QVERIFY(ErrorOf(operation).contains(missing));
        QCOMPARE(FileBytes(path_), before);
    }

    void NothingWorksBeforeOpen() {
        const auto info = Access().MakeDocumentInfo();
        for (const auto& operation : Operations(*info))
            QVERIFY(ErrorOf(operation).contains("No document is open"));
    }

    void AFailedSaveKeepsTheChangesForAnother() {
        const auto info = OpenInfo(path_);
        info->SetTitle("later");
        QCOMPARE(chmod(qPrintable(path_), 0444), 0);
        QVERIFY(ErrorOf([&] { info->Save(); }).contains(path_));
        QCOMPARE(chmod(qPrintable(path_), 0644), 0);
        QCOMPARE(OpenInfo(path_)->GetTitle(), QString());
        info->Save();
        QCOMPARE(OpenInfo(path_)->GetTitle(), "later");
    }

    void ASaveWritesOnlyWhatWasChanged() {
        const auto info = OpenInfo(path_);
        info->SetTitle("same");
        QVERIFY(info->SetCustomProperty("a", 1.0));
        info->Save();
        const QByteArray custom = PartOf(path_, "docProps/custom.xml");
        info->SetTitle("same");
        QVERIFY(info->SetCustomProperty("a", 1.0));
        QVERIFY(OpenInfo(path_)->SetCustomProperty("a", 1.0));
        const auto other = OpenInfo(path_);
        other->SetTitle("other");
        other->Save();
        info->Save();  // what was given anew is what was there, so the other's title stays
        QCOMPARE(OpenInfo(path_)->GetTitle(), "other");
        QCOMPARE(PartOf(path_, "docProps/custom.xml"), custom);
    }

    void NumbersAndDatesAreReadLeniently() {
        QCOMPARE(NumberFromText(" 1.5e3 ").value_or(0), 1500.0);
        QVERIFY(!NumberFromText("1,5"));
        QVERIFY(!NumberFromText("inf"));
        QVERIFY(!NumberFromText(""));
        QCOMPARE(NumberToText(0.1), "0.1");
        QCOMPARE(NumberFromText(NumberToText(1.0 / 3)).value_or(0), 1.0 / 3);
        QVERIFY(DateFromText("2004-05-31").isValid());
        QVERIFY(DateFromText("2004-05-31T12:13:14.5+02:00").isValid());
        QVERIFY(!DateFromText("2004-13-31").isValid());
        QVERIFY(!DateFromText("31.5.2004").isValid());
        QVERIFY(!DateFromText("").isValid());
        QVERIFY(YesNoFromText(" TRUE ") && YesNoFromText("1"));
        QVERIFY(!YesNoFromText("yes") && !YesNoFromText(""));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestDocumentInfo)
#include "tst_documentinfo.moc"
