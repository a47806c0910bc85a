#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include "services/language.h"
#include "services/seams.h"
#include "services/texts.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

struct Role {
    int number;
    const char* name;
    int values;
};

const Role kRoles[] = {
#define TEXT(number, role, values) {number, #role, values},
#include "lang/texts.def"
#undef TEXT
};

class FakeLanguage : public LanguageSettings {
public:
    explicit FakeLanguage(QString folder) : folder_(std::move(folder)) {}
    QString GetLanguageFolder() override { return folder_; }
    void ApplyLocaleFont(QFont&) override {}

private:
    QString folder_;
};

// A document library that knows the user's language alone.
class FakeAccess : public DocumentAccess {
public:
    explicit FakeAccess(QString folder) : folder_(std::move(folder)) {
        UnloadResources();
        gSeams.documents = this;
    }
    ~FakeAccess() override {
        gSeams.documents = nullptr;
        UnloadResources();
    }
    std::unique_ptr<DocumentFile> MakeDocumentFile() override { return nullptr; }
    std::unique_ptr<DocumentInfo> MakeDocumentInfo() override { return nullptr; }
    std::unique_ptr<FolderSearcher> MakeFolderSearcher() override { return nullptr; }
    std::unique_ptr<PreviewExtractor> MakePreviewExtractor() override { return nullptr; }
    std::unique_ptr<LanguageSettings> MakeLanguageSettings() override {
        ++made;
        return std::make_unique<FakeLanguage>(folder_);
    }

    int made = 0;

private:
    QString folder_;
};

QSet<int> NotLoaded() {
    QSet<int> numbers{24, 50, 54, 56, 67, 71, 102, 112, 212, 215, 217, 224, 226, 228, 325, 330};
    for (int i = 384; i <= 393; ++i)
        numbers.insert(i);
    for (int i = 395; i <= 399; ++i)
        numbers.insert(i);
    return numbers;
}

// The texts of a language file by number, as its translators wrote them.
QMap<int, QString> TextsOf(const QString& file) {
    QMap<int, QString> texts;
    QFile source(file);
    if (!source.open(QFile::ReadOnly))
        return texts;
    QXmlStreamReader xml(&source);
    int number = 0;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("message"))
            number =
                xml.attributes().value(QLatin1String("id")).toString().section(u'-', 1).toInt();
        if (xml.name() == QLatin1String("translation"))
            texts.insert(number, xml.readElementText());
    }
    return texts;
}

}  // namespace

class TestLanguage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyNumberHasItsRoleAndNoOtherHasOne();
    void everyRoleHasANameOfItsOwn();
    void aLanguageFileHasEveryTextAndNoOther_data() { Languages(); }
    void aLanguageFileHasEveryTextAndNoOther();
    void everyTextTakesAsManyValuesAsItsRole_data() { Languages(); }
    void everyTextTakesAsManyValuesAsItsRole();
    void noTextIsLongerThanItsBuffer_data() { Languages(); }
    void noTextIsLongerThanItsBuffer();
    void textsThatTellStatesApartDiffer_data() { Languages(); }
    void textsThatTellStatesApartDiffer();
    void textsThatAreDataKeepTheirForm_data() { Languages(); }
    void textsThatAreDataKeepTheirForm();
    void fileFiltersArePairsOfLabelAndPatterns_data() { Languages(); }
    void fileFiltersArePairsOfLabelAndPatterns();

    void beforeTheLoadEveryTextIsEmpty();
    void loadingReadsEveryText();
    void theNamedTextsAreTheNumberedOnes();
    void aSecondLoadReadsNothing();
    void aMissingLanguageFolderFallsBackToEnglishButKeepsItsHelpFile();
    void theTextsBesideTheProgramAreTheLastResort();
    void withoutAnyTextsABoxSaysSo();
    void withoutTheDocumentLibraryABoxSaysWhy();
    void tooLongTextsAreCutAtAWholeCharacter();

    void valuesTakeThePlaceOfThePlaceholders();
    void aFormatWithoutValuesShowsTheBoxAndGivesNothing();
    void aValueWithoutPlaceholderShowsTheBoxAndIsLost();
    void tooFewValuesShowTheBoxAndTheRestIsAppended();
    void aRoleIsFormattedWithItsValues();

private:
    static void Languages();
};

void TestLanguage::Languages() {
    QTest::addColumn<QString>("file");
    const QDir lang(QStringLiteral(DOCBENCH_SOURCE_DIR "/lang"));
    for (const QString& language : lang.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        QTest::newRow(qPrintable(language))
            << lang.filePath(language + QStringLiteral("/tessadocres.ts"));
}

void TestLanguage::everyNumberHasItsRoleAndNoOtherHasOne() {
    QSet<int> expected;
    for (int i = 1; i <= kLastText; ++i)
        expected.insert(i);
    expected -= NotLoaded();
    QCOMPARE(expected.size(), 370);
    QSet<int> found;
    for (const Role& role : kRoles)
        found.insert(role.number);
    QCOMPARE(found, expected);
    QCOMPARE(std::size(kRoles), 370u);
}

void TestLanguage::everyRoleHasANameOfItsOwn() {
    QSet<QString> names;
    for (const Role& role : kRoles)
        names.insert(QLatin1String(role.name));
    QCOMPARE(names.size(), qsizetype(std::size(kRoles)));
}

void TestLanguage::aLanguageFileHasEveryTextAndNoOther() {
    QFETCH(QString, file);
    const QMap<int, QString> texts = TextsOf(file);
    QCOMPARE(texts.size(), 370);
    for (const Role& role : kRoles)
        QVERIFY2(!texts.value(role.number).isEmpty(), role.name);
}

void TestLanguage::everyTextTakesAsManyValuesAsItsRole() {
    QFETCH(QString, file);
    const QMap<int, QString> texts = TextsOf(file);
    for (const Role& role : kRoles) {
        const QString text = texts.value(role.number);
        QVERIFY2(text.count(QLatin1String("%s")) == role.values, role.name);
        QVERIFY2(text.count(u'%') == role.values, role.name);
    }
}

void TestLanguage::noTextIsLongerThanItsBuffer() {
    QFETCH(QString, file);
    const QMap<int, QString> texts = TextsOf(file);
    for (const Role& role : kRoles)
        QVERIFY2(texts.value(role.number).toUtf8().size() <= kLongestText, role.name);
}

// The program reads captions back to know what state a button or a rule is in.
void TestLanguage::textsThatTellStatesApartDiffer() {
    QFETCH(QString, file);
    const QMap<int, QString> texts = TextsOf(file);
    const std::pair<int, int> pairs[] = {{53, 17}, {53, 270}, {163, 337}, {4, 49},
                                         {5, 19},  {17, 270}, {339, 340}};
    for (const auto& [one, other] : pairs)
        QVERIFY2(texts[one] != texts[other], qPrintable(QString::number(one)));
    QSet<QString> types;
    for (int i = 164; i <= 167; ++i)
        types.insert(texts[i]);
    QCOMPARE(types.size(), 4);
    QSet<QString> operators;
    for (int i = 296; i <= 301; ++i)
        operators.insert(texts[i]);
    QCOMPARE(operators.size(), 6);
}

void TestLanguage::textsThatAreDataKeepTheirForm() {
    QFETCH(QString, file);
    const QMap<int, QString> texts = TextsOf(file);
    QVERIFY(texts[78].startsWith(u' ') && texts[78].endsWith(u' ') && texts[78].size() > 2);
    QVERIFY(!texts[92].isEmpty());
    for (int i = 147; i <= 149; ++i) {
        for (const QChar separator : {u'/', u'\\', u':'})
            QVERIFY(!texts[i].contains(separator));
    }
    for (const int heading : {126, 127, 128, 129, 130, 131, 132, 133, 315, 316, 317})
        QVERIFY(!texts[heading].contains(u'&'));  // shown as a heading, where no key is marked
}

void TestLanguage::fileFiltersArePairsOfLabelAndPatterns() {
    QFETCH(QString, file);
    const QMap<int, QString> texts = TextsOf(file);
    for (const int filter : {35, 36, 39, 145, 287}) {
        const QStringList parts = texts[filter].split(u'|');
        QCOMPARE(parts.size() % 2, 0);
        for (qsizetype i = 1; i < parts.size(); i += 2)
            QVERIFY2(parts[i].startsWith(QLatin1String("*.")), qPrintable(parts[i]));
    }
}

void TestLanguage::beforeTheLoadEveryTextIsEmpty() {
    UnloadResources();
    for (const QString& text : gStrings)
        QCOMPARE(text, QString());
    QVERIFY(!gResourcesLoaded);
    QCOMPARE(gAppTitle, QString());
}

void TestLanguage::loadingReadsEveryText() {
    const TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/english"));
    LoadResources();
    QVERIFY(gResourcesLoaded);
    const QMap<int, QString> texts =
        TextsOf(QStringLiteral(DOCBENCH_SOURCE_DIR "/lang/english/tessadocres.ts"));
    for (int i = 0; i <= kLastText; ++i)
        QCOMPARE(gStrings[size_t(i)], texts.value(i));
    QCOMPARE(gHelpFile, QCoreApplication::applicationDirPath() +
                            QStringLiteral("/lang/english/TFDocbench.chm"));
}

void TestLanguage::theNamedTextsAreTheNumberedOnes() {
    const TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/english"));
    LoadResources();
    QCOMPARE(gAppTitle, gStrings[122]);
    QCOMPARE(gPreviewHelp, gStrings[135]);
    QCOMPARE(gOpenFilter, gStrings[145]);
    QCOMPARE(gOldFormatText, gStrings[146]);
    QCOMPARE(gRelationDefault, gStrings[147]);
    QCOMPARE(gRelationAssembly, gStrings[148]);
    QCOMPARE(gRelationPart, gStrings[149]);
}

void TestLanguage::aSecondLoadReadsNothing() {
    const TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/english"));
    LoadResources();
    gStrings[1] = QStringLiteral("changed");
    LoadResources();
    QCOMPARE(access.made, 1);
    QCOMPARE(gStrings[1], QStringLiteral("changed"));
}

void TestLanguage::aMissingLanguageFolderFallsBackToEnglishButKeepsItsHelpFile() {
    const TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/klingon"));
    LoadResources();
    QCOMPARE(gAppTitle, QStringLiteral("Tessaforma Docbench"));
    QCOMPARE(gHelpFile, QCoreApplication::applicationDirPath() +
                            QStringLiteral("/lang/klingon/TFDocbench.chm"));
}

void TestLanguage::theTextsBesideTheProgramAreTheLastResort() {
    const TestDialogs dialogs;
    const FakeAccess access{QString()};
    const QTemporaryDir program;
    QVERIFY(QFile::copy(
        QCoreApplication::applicationDirPath() + QStringLiteral("/lang/english/tessadocres.qm"),
        program.filePath(QStringLiteral("tessadocres.qm"))));
    LoadResources(program.path());
    QCOMPARE(gAppTitle, QStringLiteral("Tessaforma Docbench"));
    QCOMPARE(gHelpFile, program.path() + QStringLiteral("/TFDocbench.chm"));
}

void TestLanguage::withoutAnyTextsABoxSaysSo() {
    TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/english"));
    const QTemporaryDir program;
    dialogs.Expect(QStringLiteral("Failed to load resources.  Please check the installation."));
    LoadResources(program.path());
    QCOMPARE(dialogs.LastTitle(), QString());
    QCOMPARE(gStrings[122], QString());
    QVERIFY(gResourcesLoaded);
    QCOMPARE(gHelpFile, program.path() + QStringLiteral("/lang/english/TFDocbench.chm"));
}

void TestLanguage::withoutTheDocumentLibraryABoxSaysWhy() {
    TestDialogs dialogs;
    UnloadResources();
    dialogs.Expect(QStringLiteral("Failed to load resources, Error: *"));
    LoadResources();
    QCOMPARE(gAppTitle, QString());
    UnloadResources();
}

void TestLanguage::tooLongTextsAreCutAtAWholeCharacter() {
    const TestDialogs dialogs;
    const FakeAccess access{QString()};
    const QTemporaryDir program;
    QFile source(program.filePath(QStringLiteral("long.ts")));
    QVERIFY(source.open(QFile::WriteOnly));
    source.write(
        "<?xml version=\"1.0\" encoding=\"utf-8\"?><TS version=\"2.1\"><context><name></name>"
        "<message id=\"tessadocres-122\"><source></source><translation>");
    source.write(QString(300, QChar(u'\u00e4')).toUtf8());  // two bytes each
    source.write("</translation></message></context></TS>");
    source.close();
    QProcess compiler;
    compiler.start(QStringLiteral(DOCBENCH_LRELEASE),
                   {QStringLiteral("-idbased"), source.fileName(), QStringLiteral("-qm"),
                    program.filePath(QStringLiteral("tessadocres.qm"))});
    QVERIFY(compiler.waitForFinished());
    QCOMPARE(compiler.exitCode(), 0);
    LoadResources(program.path());
    QCOMPARE(gAppTitle, QString(255, QChar(u'\u00e4')));
}

void TestLanguage::valuesTakeThePlaceOfThePlaceholders() {
    const TestDialogs dialogs;
    QCOMPARE(sprintf(QStringLiteral("a%sb"), {QStringLiteral("x")}), QStringLiteral("axb"));
    QCOMPARE(sprintf(QStringLiteral("%s, %s"), {QStringLiteral("%s"), QStringLiteral("y")}),
             QStringLiteral("%s, y"));
    QCOMPARE(sprintf(QStringLiteral("100 %d"), {}), QStringLiteral("100 %d"));
}

void TestLanguage::aFormatWithoutValuesShowsTheBoxAndGivesNothing() {
    TestDialogs dialogs;
    dialogs.Expect(QStringLiteral("Error in sprintf: Format mismatch, please report as a bug. "
                                  "Format = %s"),
                   Dialogs::Icon::None);
    QCOMPARE(sprintf(QStringLiteral("%s"), {}), QString());
    QCOMPARE(dialogs.LastTitle(), QString());
}

void TestLanguage::aValueWithoutPlaceholderShowsTheBoxAndIsLost() {
    TestDialogs dialogs;
    dialogs.Expect(QStringLiteral("Error in sprintf: Format mismatch, please report as a bug. "
                                  "Format = plain"),
                   Dialogs::Icon::None);
    QCOMPARE(sprintf(QStringLiteral("plain"), {QStringLiteral("x")}), QStringLiteral("plain"));
}

void TestLanguage::tooFewValuesShowTheBoxAndTheRestIsAppended() {
    TestDialogs dialogs;
    dialogs.Expect(QStringLiteral("Error in sprintf*"), Dialogs::Icon::None);
    QCOMPARE(sprintf(QStringLiteral("a%sb%sc"), {QStringLiteral("x")}), QStringLiteral("axbc"));
}

void TestLanguage::aRoleIsFormattedWithItsValues() {
    const TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/english"));
    LoadResources();
    const QString text =
        Format(Text::WalkError, QStringLiteral("/a.tfmprt"), QStringLiteral("It is broken."));
    QVERIFY(text.contains(QLatin1String("/a.tfmprt")));
    QVERIFY(text.contains(QLatin1String("It is broken.")));
}

DOCBENCH_TEST_MAIN(QCoreApplication, TestLanguage)
#include "tst_language.moc"
