// Packages that others wrote open here, are changed here, and are read by others afterwards.

#include <QTemporaryDir>

#include "tests/docmodel/documenttools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

namespace {

// Writes a package as an office program does: other prefixes, other part names, all kinds of
// values. The second argument is the name of the core properties' part, the third "relationships"
// or "none".
constexpr char kMakePackage[] = R"(
import sys, zipfile
path, core_name, mode = sys.argv[1:4]
types = '''<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<t:Types xmlns:t="http://schemas.openxmlformats.org/package/2006/content-types">
<t:Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>
<t:Default Extension="psmdcp" ContentType="application/vnd.openxmlformats-package.core-properties+xml"/>
<t:Default Extension="xml" ContentType="application/xml"/></t:Types>'''
rels = '''<?xml version="1.0"?>
<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">
<Relationship Id="rId1" Type="http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties" Target="/%s"/>
<Relationship Id="rId2" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/custom-properties" Target="docProps/custom.xml"/>
</Relationships>''' % core_name
core = '''<?xml version="1.0" encoding="utf-8"?>
<c:coreProperties xmlns:c="http://schemas.openxmlformats.org/package/2006/metadata/core-properties"
 xmlns:d="http://purl.org/dc/elements/1.1/" xmlns:q="http://purl.org/dc/terms/"
 xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">
<d:title>Foreign</d:title><c:category>kept</c:category><d:language>de</d:language>
<c:keywords>one<c:value xml:lang="de">zwei</c:value></c:keywords>
<creator xmlns="http://purl.org/dc/elements/1.1/">Ada</creator>
<q:created xsi:type="q:W3CDTF">2004-05-31T12:00:00Z</q:created>
<c:revision>7</c:revision></c:coreProperties>'''
custom = '''<?xml version="1.0"?>
<p:Properties xmlns:p="http://schemas.openxmlformats.org/officeDocument/2006/custom-properties"
 xmlns:v="http://schemas.openxmlformats.org/officeDocument/2006/docPropsVTypes">
<p:property fmtid="{D5CDD505-2E9C-101B-9397-08002B2CF9AE}" pid="2" name="Whole"><v:i4>42</v:i4></p:property>
<p:property fmtid="{D5CDD505-2E9C-101B-9397-08002B2CF9AE}" pid="5" name="Text"><v:lpstr>plain</v:lpstr></p:property>
<p:property fmtid="{D5CDD505-2E9C-101B-9397-08002B2CF9AE}" pid="9" name="Id" linkTarget="Mark"><v:clsid>{00000000-0000-0000-0000-000000000001}</v:clsid></p:property>
<p:property fmtid="{D5CDD505-2E9C-101B-9397-08002B2CF9AE}" pid="3" name="When"><v:filetime>2004-05-31T12:00:00Z</v:filetime></p:property>
<p:property fmtid="{D5CDD505-2E9C-101B-9397-08002B2CF9AE}" pid="4" name="Flag"><v:bool>1</v:bool></p:property>
<p:property fmtid="{D5CDD505-2E9C-101B-9397-08002B2CF9AE}" pid="6" name="Bad"><v:i4>x</v:i4></p:property>
</p:Properties>'''
with zipfile.ZipFile(path, 'w', zipfile.ZIP_DEFLATED) as z:
    if mode == 'relationships':
        z.writestr('[Content_Types].xml', types)
        z.writestr('_rels/.rels', rels)
    z.writestr(core_name, core)
    z.writestr('docProps/custom.xml', custom)
    z.writestr('word/document.bin', bytes(range(256)) * 100)
)";

// Prints the texts of a part's elements, by their names without namespace, one a line.
constexpr char kReadPart[] = R"(
import sys, zipfile
import xml.etree.ElementTree as tree
z = zipfile.ZipFile(sys.argv[1])
assert z.testzip() is None
for element in tree.fromstring(z.read(sys.argv[2])).iter():
    name = element.tag.split('}')[-1]
    attributes = ' '.join(element.get(key) for key in ('name', 'pid', 'Target', 'PartName') if element.get(key))
    print(name, attributes, (element.text or '').strip(), sep='|')
)";

}  // namespace

class TestForeignPackages : public QObject {
    Q_OBJECT

private:
    QTemporaryDir temporary_;
    QString path_ = temporary_.filePath("foreign.tfmprt");
    static constexpr char kOfficeCore[] = "docProps/core.xml";
    static constexpr char kOtherCore[] = "package/services/metadata/core-properties/1a2b.psmdcp";

    void Make(const char* coreName, const char* mode) const {
        QFile::remove(path_);
        const QByteArray output = RunPython(kMakePackage, {path_, coreName, mode});
        QVERIFY2(output.isEmpty(), output.constData());
    }
    QByteArray Read(const QString& part) const { return RunPython(kReadPart, {path_, part}); }

private Q_SLOTS:
    void TheirPropertiesAreRead_data() {
        QTest::addColumn<QByteArray>("core");
        QTest::addColumn<QByteArray>("mode");
        QTest::newRow("usual names") << QByteArray(kOfficeCore) << QByteArray("relationships");
        QTest::newRow("other names") << QByteArray(kOtherCore) << QByteArray("relationships");
        QTest::newRow("names alone") << QByteArray(kOfficeCore) << QByteArray("none");
    }
    void TheirPropertiesAreRead() {
        QFETCH(QByteArray, core);
        QFETCH(QByteArray, mode);
        Make(core.constData(), mode.constData());
        const auto info = OpenInfo(path_);
        QCOMPARE(info->GetTitle(), "Foreign");
        QCOMPARE(info->GetAuthor(), "Ada");
        QCOMPARE(info->GetKeywords(), "onezwei");
        QVERIFY(info->GetCreated().contains("2004") || info->GetCreated().contains("04"));
        QStringList shown;
        for (int i = 0; i < info->GetCustomCount(); ++i) {
            const docbench::CustomProperty property = info->GetCustomProperty(i);
            shown.append(QString("%1:%2:%3")
                             .arg(property.name)
                             .arg(property.type)
                             .arg(property.value.toString().left(10)));
        }
        QCOMPARE(shown.mid(0, 3), QStringList({"Whole:2:42", "Text:0:plain", "Id:0:{00000000-"}));
        QVERIFY(shown[3].startsWith("When:1:2004-05-31") || shown[3].startsWith("When:1:2004-06"));
        QCOMPARE(shown.mid(4), QStringList({"Flag:3:true", "Bad:0:x"}));
    }

    void WhatIsNotEditedStaysAsTheyStoredIt() {
        Make(kOfficeCore, "relationships");
        const auto info = OpenInfo(path_);
        info->SetSubject("ours");
        for (int i = 0; i < info->GetCustomCount(); ++i) {
            const docbench::CustomProperty property = info->GetCustomProperty(i);
            QVERIFY(info->SetCustomProperty(property.name, property.value));
        }
        QVERIFY(info->SetCustomProperty("Text", "edited"));
        QVERIFY(info->SetCustomProperty("New", 1.5));
        info->Save();
        const QByteArray custom = PartOf(path_, "docProps/custom.xml");
        for (const char* kept : {"<v:i4>42</v:i4>", "<v:clsid>", "linkTarget=\"Mark\"",
                                 "<v:filetime>2004-05-31T12:00:00Z</v:filetime>",
                                 "<v:bool>1</v:bool>", "<v:i4>x</v:i4>"})
            QVERIFY2(custom.contains(kept), kept);
        const QByteArray listed = Read("docProps/custom.xml");
        QVERIFY2(listed.contains("property|Text 5|\nlpwstr||edited"), listed.constData());
        QVERIFY2(listed.contains("property|New 10|\nr8||1.5"), listed.constData());
        const QByteArray core = Read("docProps/core.xml");
        for (const char* kept : {"title||Foreign", "category||kept", "language||de", "revision||7",
                                 "subject||ours", "value||zwei", "lastModifiedBy||", "modified||2"})
            QVERIFY2(core.contains(kept), kept);
    }

    void StoredLineEndsThatAreNotEditedStay() {
        const QByteArray custom =
            "<Properties xmlns='http://schemas.openxmlformats.org/officeDocument/2006/"
            "custom-properties' xmlns:vt='http://schemas.openxmlformats.org/officeDocument/2006/"
            "docPropsVTypes'><property pid='2' name='lines'><vt:lpwstr>one&#13;&#10;two&#13;"
            "</vt:lpwstr></property></Properties>";
        const QByteArray core =
            "<coreProperties xmlns='http://schemas.openxmlformats.org/package/2006/metadata/"
            "core-properties'><title xmlns='http://purl.org/dc/elements/1.1/'>one&#13;two</title>"
            "</coreProperties>";
        PackageWriter::Create(path_, {{"docProps/core.xml", core}, {"docProps/custom.xml", custom}},
                              true);
        const auto info = OpenInfo(path_);
        const QByteArray stamp = info->GetStamp(docbench::PropertyGroup::Custom);
        const QString lines = info->GetCustomProperty(0).value.toString();
        QCOMPARE(lines, "one\r\ntwo\r");
        QVERIFY(info->SetCustomProperty("lines", lines));
        QVERIFY(info->SetCustomProperty("lines", "one\ntwo\n"));  // as a text box gives it back
        info->SetTitle(info->GetTitle());
        info->Save();
        QCOMPARE(PartOf(path_, "docProps/custom.xml"), custom);
        QCOMPARE(OpenInfo(path_)->GetTitle(), "one\rtwo");
        QCOMPARE(OpenInfo(path_)->GetStamp(docbench::PropertyGroup::Custom), stamp);
        QVERIFY(info->SetCustomProperty("lines", "one\ntwo\nthree"));
        info->Save();
        QVERIFY(PartOf(path_, "docProps/custom.xml").contains("one\ntwo\nthree<"));
    }

    void PropertiesWhoseNamesDifferInCaseAloneAreTwo() {
        const QByteArray head =
            "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
            "<Properties xmlns=\"http://schemas.openxmlformats.org/officeDocument/2006/"
            "custom-properties\" xmlns:vt=\"http://schemas.openxmlformats.org/officeDocument/2006/"
            "docPropsVTypes\">\n";
        const auto property = [](const char* name, const char* pid, const char* text) {
            return QByteArray("<property fmtid=\"{D5CDD505-2E9C-101B-9397-08002B2CF9AE}\" pid=\"") +
                   pid + "\" name=\"" + name + "\">\n<vt:lpwstr>" + text +
                   "</vt:lpwstr>\n</property>\n";
        };
        const QByteArray first = property("State", "2", "one");
        const QByteArray second = property("STATE", "3", "two");
        const QByteArray part = head + first + second + "</Properties>\n";
        PackageWriter::Create(path_, {{"docProps/custom.xml", part}}, true);
        const auto info = OpenInfo(path_);
        for (int i = 0; i < info->GetCustomCount(); ++i)
            QVERIFY(info->SetCustomProperty(info->GetCustomProperty(i).name,
                                            info->GetCustomProperty(i).value));
        info->Save();
        QCOMPARE(PartOf(path_, "docProps/custom.xml"), part);
        QVERIFY(info->SetCustomProperty("STATE", "new"));
        info->Save();
        QCOMPARE(PartOf(path_, "docProps/custom.xml"),
                 head + first + property("STATE", "3", "new") + "</Properties>\n");
        QVERIFY(!ErrorOf([&] { info->SetCustomProperty("state", "any"); }).isEmpty());
        QVERIFY(info->DeleteCustomProperty("STATE"));
        QVERIFY(info->SetCustomProperty("state", "any"));  // which is one now
        info->Save();
        QCOMPARE(PartOf(path_, "docProps/custom.xml"),
                 head + property("State", "2", "any") + "</Properties>\n");
    }

    void PropertiesOfAConfigurationWhoseNamesDifferInCaseAloneAreTwo() {
        const auto tables = [](const char* first, const char* second) {
            return Tables(
                "<configurations><configuration id=\"1\" name=\"A\">"
                "<property name=\"State\" type=\"text\">" +
                QByteArray(first) + "</property><property name=\"STATE\" type=\"text\">" + second +
                "</property></configuration></configurations>");
        };
        WriteTables(path_, tables("one", "two"));
        const auto set = OpenFile(path_)->GetCustomProperties(0);
        QVERIFY(set->SetCustomProperty("State", "one"));
        QVERIFY(set->SetCustomProperty("STATE", "new"));
        set->Save();
        QByteArray saved = PartOf(path_, kDocumentPart);
        saved.remove(0, saved.indexOf('\n') + 1);
        QCOMPARE(saved.replace("\n", ""), tables("one", "new"));
    }

    void TheirPartsStayByteForByte() {
        Make(kOtherCore, "relationships");
        const QByteArray before = PartOf(path_, "word/document.bin");
        DocumentBuilder document = DocumentBuilder::Edit(path_);
        document.AddComponent("a.tfmprt");
        document.SetTitle("Ours");
        document.Save();
        QCOMPARE(PartOf(path_, "word/document.bin"), before);
        QVERIFY(!Package::Open(path_).HasPart("docProps/core.xml"));
        QCOMPARE(OpenInfo(path_)->GetTitle(), "Ours");
        QVERIFY(Read(kOtherCore).contains("title||Ours"));
        QCOMPARE(OpenFile(path_)->GetComponentCount(), 1);
    }

    void TheirPartsAreFoundByRelationshipAlsoWhenOthersHaveTheUsualNames() {
        const QByteArray core =
            "<coreProperties xmlns='http://schemas.openxmlformats.org/package/2006/metadata/"
            "core-properties'><title xmlns='http://purl.org/dc/elements/1.1/'>";
        const QByteArray custom =
            "<Properties xmlns='http://schemas.openxmlformats.org/officeDocument/2006/"
            "custom-properties' xmlns:vt='http://schemas.openxmlformats.org/officeDocument/2006/"
            "docPropsVTypes'><property pid='2' name='";
        const QByteArray customEnd = "'><vt:bool>1</vt:bool></property></Properties>";
        Relationships relationships(nullptr);
        relationships.Set(kCoreKind, "their/core.xml");
        relationships.Set(kCustomKind, "their/custom.xml");
        relationships.Set(kThumbnailKind, "their/picture.png");
        const NamedParts unrelated = {
            {"docProps/core.xml", core + "unrelated</title></coreProperties>"},
            {"docProps/custom.xml", custom + "unrelated" + customEnd},
            {"docProps/thumbnail.png", "no picture"}};
        PackageWriter::Create(
            path_,
            NamedParts{{Relationships::kPart, relationships.Bytes()},
                       {"their/core.xml", core + "theirs</title></coreProperties>"},
                       {"their/custom.xml", custom + "theirs" + customEnd},
                       {"their/picture.png", "no picture"}} +
                unrelated,
            true);
        for (int round = 0; round < 3; ++round) {
            const auto info = OpenInfo(path_);
            QCOMPARE(info->GetTitle(), round == 0 ? "theirs" : "ours");
            QCOMPARE(info->GetCustomProperty(0).name, "theirs");
            info->SetTitle("ours");
            QVERIFY(info->SetCustomProperty("round", round));
            info->Save();
            const Package package = Package::Open(path_);
            QCOMPARE(FindPart(package, kThumbnailKind), "their/picture.png");
            for (const auto& [name, bytes] : unrelated)
                QCOMPARE(package.ReadPart(name, 1000), bytes);
        }
        QVERIFY(Read("their/core.xml").contains("title||ours"));
        QVERIFY(Read("their/custom.xml").contains("property|round"));
    }

    void OurPartsAreMadeKnownToThem() {
        for (const char* mode : {"relationships", "none"}) {
            Make(kOfficeCore, mode);
            OpenFile(path_)->Save();
            const QByteArray relationships = Read("_rels/.rels");
            QVERIFY(relationships.contains("docmodel/document.xml"));
            QVERIFY(relationships.contains("docProps/core.xml"));
            QVERIFY(relationships.contains("docProps/custom.xml"));
            QCOMPARE(relationships.count("Relationship|"), 3);
            const QByteArray types = Read("[Content_Types].xml");
            QVERIFY(types.contains("Override|/docmodel/document.xml|"));
            QVERIFY(types.contains("Default|"));
        }
    }

    void APackageWithoutPropertiesGetsThem() {
        PackageWriter::Create(path_, {{"a.txt", "x"}}, true);
        QVERIFY(!Access().MakeDocumentInfo()->Open(path_));
        OpenFile(path_)->Save();
        const auto info = OpenInfo(path_);
        info->SetTitle("new");
        QVERIFY(info->SetCustomProperty("a", true));
        info->Save();
        QVERIFY(Read("docProps/core.xml").contains("title||new"));
        QVERIFY(Read("docProps/custom.xml").contains("property|a 2|\nbool||true"));
        QVERIFY(Read("_rels/.rels").contains("docProps/custom.xml"));
    }

    void AnyZipReaderReadsOurs() {
        DocumentBuilder document = DocumentBuilder::New(path_, DocumentBuilder::IfThere::Replace);
        document.SetTitle("Ours");
        document.AddComponent("a.tfmprt");
        document.SetModel(100'000, 1);
        document.Save();
        for (int i = 0; i < 3; ++i)
            OpenFile(path_)->Save();
        const QByteArray unzip = Run("unzip", {"-t", path_});
        QVERIFY2(unzip.contains("No errors detected"), unzip.constData());
        QVERIFY(Read("docmodel/document.xml").contains("component||"));
    }

    void TheStrictNamesAreKnown() {
        PackageWriter::Create(
            path_,
            {{"_rels/.rels",
              "<Relationships xmlns='http://schemas.openxmlformats.org/package/2006/relationships'>"
              "<Relationship Id='r' Target='props/c.xml' Type='http://purl.oclc.org/ooxml/"
              "officeDocument/relationships/customProperties'/></Relationships>"},
             {"props/c.xml",
              "<Properties xmlns='http://purl.oclc.org/ooxml/officeDocument/customProperties' "
              "xmlns:vt='http://purl.oclc.org/ooxml/officeDocument/docPropsVTypes'>"
              "<property name='a' pid='2'><vt:r8>2.5</vt:r8></property></Properties>"}},
            true);
        const auto info = OpenInfo(path_);
        QCOMPARE(info->GetCustomProperty(0).value, QVariant(2.5));
        QVERIFY(info->SetCustomProperty("b", "x"));
        info->Save();
        QVERIFY(Read("props/c.xml").contains("property|b 3|\nlpwstr||x"));
        QVERIFY(!PartOf(path_, "props/c.xml").contains("schemas.openxmlformats.org"));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestForeignPackages)
#include "tst_foreignpackages.moc"
