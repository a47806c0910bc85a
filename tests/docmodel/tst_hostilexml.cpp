// XML that is broken, huge, nested or malicious is refused with an error that names file and part.

#include <sys/resource.h>

#include <QTemporaryDir>

#include "docmodel/xml.h"
#include "tests/docmodel/documenttools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

namespace {

QByteArray Nested(int depth) {
    QByteArray text;
    for (int i = 0; i < depth; ++i)
        text += "<a>";
    for (int i = 0; i < depth; ++i)
        text += "</a>";
    return text;
}

QByteArray Utf16(const QByteArray& utf8, QSysInfo::Endian order) {
    QByteArray bytes = order == QSysInfo::LittleEndian ? "\xFF\xFE" : "\xFE\xFF";
    for (const QChar c : QString::fromUtf8(utf8)) {
        const char low = char(c.unicode() & 0xFF);
        const char high = char(c.unicode() >> 8);
        bytes += order == QSysInfo::LittleEndian ? low : high;
        bytes += order == QSysInfo::LittleEndian ? high : low;
    }
    return bytes;
}

qint64 PeakKilobytes() {
    rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

}  // namespace

class TestHostileXml : public QObject {
    Q_OBJECT

private:
    QTemporaryDir temporary_;
    QString path_ = temporary_.filePath("hostile.tfmasm");

private Q_SLOTS:
    void BrokenTablesAreRefused_data() {
        QTest::addColumn<QByteArray>("part");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("blank") << QByteArray(" \n ");
        QTest::newRow("text") << QByteArray("no markup");
        QTest::newRow("cut off") << Tables("<components>").chopped(20);
        QTest::newRow("crossed tags") << Tables("<components><component></components></component>");
        QTest::newRow("bare ampersand in tag") << Tables("<a b=&c></a>");
        QTest::newRow("two roots") << Tables("") + Tables("");
        QTest::newRow("text behind the root") << Tables("") + "x";
        QTest::newRow("text before the root") << "x" + Tables("");
        QTest::newRow("wrong root") << QByteArray("<html/>");
        QTest::newRow("wrong namespace") << QByteArray("<document xmlns='urn:x' version='1'/>");
        QTest::newRow("no namespace") << QByteArray("<document version='1'/>");
        QTest::newRow("no version") << QByteArray(
            "<document xmlns='http://schemas.tessaforma.com/docmodel/2004/document'/>");
        QTest::newRow("version no number") << Tables("", "one");
        QTest::newRow("version negative") << Tables("", "-1");
        QTest::newRow("version huge") << Tables("", "99999999999999999999");
        QTest::newRow("count no number")
            << Tables("<components><component count='x'/></components>");
        QTest::newRow("count empty") << Tables("<components><component count=''/></components>");
        QTest::newRow("count zero") << Tables("<components><component count='0'/></components>");
        QTest::newRow("count negative")
            << Tables("<components><component count='-3'/></components>");
        QTest::newRow("count beyond 32 bits")
            << Tables("<components><component count='4294967297'/></components>");
        QTest::newRow("count with more behind")
            << Tables("<components><component count='3 '/></components>");
        QTest::newRow("not UTF-8") << Tables("<a b='\xC3\x28'/>");
        QTest::newRow("overlong UTF-8") << Tables("<a b='\xC0\xAF'/>");
        QTest::newRow("Latin-1") << "<?xml version='1.0' encoding='iso-8859-1'?>" +
                                        Tables("<a b='\xFC'/>");
        QTest::newRow("UTF-16 cut off") << Utf16(Tables(""), QSysInfo::LittleEndian).chopped(1);
        QTest::newRow("nested") << Tables(Nested(100));
        QTest::newRow("nested deeply") << Tables(Nested(200'000));
        QTest::newRow("declaration of a document type") << "<!DOCTYPE document>" + Tables("");
        QTest::newRow("entity bomb")
            << "<!DOCTYPE document [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;&a;&a;&a;'>"
               "<!ENTITY c '&b;&b;&b;&b;&b;&b;'>]>" +
                   Tables("<a b='&c;'/>");
        QTest::newRow("outside entity")
            << "<!DOCTYPE document SYSTEM 'file:///etc/passwd' [<!ENTITY x SYSTEM "
               "'file:///etc/passwd'>]>" +
                   Tables("<a>&x;</a>");
    }
    void BrokenTablesAreRefused() {
        QFETCH(QByteArray, part);
        WriteTables(path_, part);
        const QByteArray before = FileBytes(path_);
        const QString error = ErrorOf([&] { OpenFile(path_); });
        QVERIFY2(error.contains(path_), qPrintable(error));
        const auto info = Access().MakeDocumentInfo();
        if (info->Open(path_))  // damage in the rows is no matter of the summary
            QVERIFY(error.contains("count"));
        QCOMPARE(FileBytes(path_), before);
    }

    void AConfigurationWithABadNumberIsRefusedWhenItIsAskedFor() {
        WriteTables(path_, Tables("<configurations><configuration id='x'/></configurations>"));
        const auto file = OpenFile(path_);
        QVERIFY(ErrorOf([&] { file->GetConfigurationCount(); }).contains(path_));
    }

    void BrokenPropertiesAreNoRecord_data() {
        QTest::addColumn<QByteArray>("part");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("wrong root") << QByteArray("<x/>");
        QTest::newRow("nested") << Nested(100);
        QTest::newRow("document type") << QByteArray("<!DOCTYPE x><x/>");
        QTest::newRow("binary") << QByteArray(1000, '\0');
    }
    void BrokenPropertiesAreNoRecord() {
        QFETCH(QByteArray, part);
        for (const char* name : {"docProps/core.xml", "docProps/custom.xml"}) {
            PackageWriter::Create(path_, {{name, part}, {kDocumentPart, Tables("")}}, true);
            QVERIFY(!Access().MakeDocumentInfo()->Open(path_));
        }
        // The references don't depend on them, but a save can't tell who saved.
        PackageWriter::Create(path_, {{"docProps/core.xml", part}, {kDocumentPart, Tables("")}},
                              true);
        const QByteArray before = FileBytes(path_);
        const auto file = OpenFile(path_);
        QVERIFY(ErrorOf([&] { file->Save(); }).contains(path_));
        QCOMPARE(FileBytes(path_), before);
    }

    void BrokenRelationshipsAreRefusedWhereTheyAreNeeded() {
        PackageWriter::Create(path_, {{"_rels/.rels", "<broken"}, {"a.txt", "x"}}, true);
        QVERIFY(ErrorOf([&] { OpenFile(path_); }).contains("_rels/.rels"));
        PackageWriter::Create(path_, {{"_rels/.rels", "<broken"}, {kDocumentPart, Tables("")}},
                              true);
        QVERIFY(ErrorOf([&] { OpenFile(path_); }).isEmpty());
    }

    void ARelationshipOutOfThePackageIsNotFollowed() {
        const QByteArray head =
            "<Relationships xmlns='http://schemas.openxmlformats.org/package/2006/relationships'>"
            "<Relationship Id='r' Type='http://schemas.openxmlformats.org/package/2006/"
            "relationships/metadata/core-properties' ";
        for (const char* target :
             {"Target='../../../../etc/passwd'/>", "Target='http://x/' TargetMode='External'/>",
              "/>", "Target=''/>"}) {
            PackageWriter::Create(
                path_, {{"_rels/.rels", head + target + "</Relationships>"}, {"a.txt", "x"}}, true);
            QVERIFY(!Access().MakeDocumentInfo()->Open(path_));
        }
    }

    void Utf16AndByteOrderMarksAreRead() {
        const QByteArray part =
            Tables("<components><component path='/\u00fc.tfmprt'/></components>");
        for (const QByteArray& bytes : {Utf16(part, QSysInfo::LittleEndian),
                                        Utf16(part, QSysInfo::BigEndian), "\xEF\xBB\xBF" + part}) {
            WriteTables(path_, bytes);
            QCOMPARE(ComponentPaths(*OpenFile(path_)),
                     QStringList(QString::fromUtf8("/\u00fc.tfmprt")));
        }
    }

    void CharacterReferencesAndSectionsAreRead() {
        WriteTables(path_, Tables("<components><component path='/&#x4f53;&amp;&lt;.tfmprt'/>"
                                  "</components><hyperlinks><hyperlink target='&#0;x'/>"
                                  "</hyperlinks>"));
        QCOMPARE(ComponentPaths(*OpenFile(path_)),
                 QStringList(QString::fromUtf8("/\u4f53&<.tfmprt")));
        OpenFile(path_)->GetHyperlink(0);
    }

    void AGiantPartIsRefused() {
        WriteTables(path_, Tables("<a>" + QByteArray(kMaxXmlBytes, ' ') + "</a>"));
        QVERIFY(!ErrorOf([&] { OpenFile(path_); }).isEmpty());
    }

    void APartOfCountlessElementsIsRefusedInLittleMemory() {
        const qint64 before = PeakKilobytes();
        QByteArray elements;
        while (elements.size() < kMaxXmlBytes - 1000)
            elements += "<a/><a/><a/><a/><a/><a/><a/><a/>";
        const QString error = ErrorOf([&] { XmlPart::Parse(Tables(elements), path_, "part"); });
        QVERIFY(error.contains("too many"));
        QByteArray attributes;
        while (attributes.size() < kMaxXmlBytes - 1000)
            attributes += " a='' a='' a='' a=''";
        QVERIFY(!ErrorOf([&] {
                     XmlPart::Parse(Tables("<a" + attributes + "/>"), path_, "part");
                 }).isEmpty());
        QVERIFY(PeakKilobytes() - before < 256 << 10);
    }

    // What a save may write is exactly what can be read again.
    void ASaveOfMoreThanCanBeReadIsRefusedAndWritesNothing() {
        DocumentBuilder document = DocumentBuilder::New(path_, DocumentBuilder::IfThere::Replace);
        document.SetTitle("x");
        document.AddHyperlink("x");
        document.AddConfiguration("x");
        document.Save();
        const auto fitting = qsizetype(kMaxXmlBytes) - PartOf(path_, "docProps/core.xml").size();
        const auto refuse = [&](const char* part, const std::function<void()>& save) {
            const QByteArray before = FileBytes(path_);
            const QString error = ErrorOf(save);
            QVERIFY2(error.contains(path_) && error.contains(part), qPrintable(error));
            QCOMPARE(FileBytes(path_), before);
        };
        const auto saveTitle = [&](const QString& title) {
            const auto info = OpenInfo(path_);
            info->SetTitle(title);
            info->Save();
        };
        const QString giant(kMaxXmlBytes, u'x');
        saveTitle(QString(fitting + 1, u'x'));
        QCOMPARE(OpenInfo(path_)->GetTitle().size(), fitting + 1);
        refuse("docProps/core.xml", [&] { saveTitle(QString(fitting + 2, u'x')); });
        refuse("docProps/core.xml", [&] { saveTitle(QString(6'000'000, u'=')); });
        refuse("docProps/custom.xml", [&] {
            const auto info = OpenInfo(path_);
            QVERIFY(info->SetCustomProperty("p", giant));
            info->Save();
        });
        refuse("docmodel/document.xml", [&] {
            const auto file = OpenFile(path_);
            file->SetHyperlink(0, giant);
            file->SaveHyperlinks();
        });
        refuse("docmodel/document.xml", [&] {
            const auto properties = OpenFile(path_)->GetCustomProperties(0);
            QVERIFY(properties->SetCustomProperty("p", giant));
            properties->Save();
        });
        QCOMPARE(OpenFile(path_)->GetHyperlink(0), "x");
    }

    void ANewDocumentOfMoreThanCanBeReadIsNotMade() {
        QFile::remove(path_);
        DocumentBuilder document = DocumentBuilder::New(path_);
        document.AddHyperlink(QString(kMaxXmlBytes, u'x'));
        const QString error = ErrorOf([&] { document.Save(); });
        QVERIFY2(error.contains(path_) && error.contains("too big"), qPrintable(error));
        QVERIFY(!QFile::exists(path_));
    }

    void TextsThatXmlCantHoldAreTold() {
        QVERIFY(IsXmlText(QString::fromUtf8("a\tb\nc\r\u00fc\u4f53\U0001F527")));
        QVERIFY(IsXmlText(QString()));
        for (const char16_t bad :
             {u'\0', u'\1', u'\x1f', u'\xFFFE', u'\xFFFF', u'\xD800', u'\xDC00'})
            QVERIFY2(!IsXmlText(QString("a") + QChar(bad) + 'b'), qPrintable(QString::number(bad)));
        QVERIFY(!IsXmlText(QString(QChar(0xD83D))));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestHostileXml)
#include "tst_hostilexml.moc"
