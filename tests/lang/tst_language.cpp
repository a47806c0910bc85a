#include "services/language.h"

#include <QDir>
#include <QFile>
#include <QFont>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <cstdio>

#include "services/docaccess.h"
#include "services/localefont.h"
#include "services/seams.h"
#include "services/texts.h"
#include "tests/lang/languagefile.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

constexpr char kPrintFont[] = "--print-font";

QString Program() {
    return QCoreApplication::applicationDirPath();
}

class FakeLanguage : public LanguageSettings {
public:
    FakeLanguage(QString folder, QString error)
        : folder_(std::move(folder)), error_(std::move(error)) {}
    QString GetLanguageFolder() override {
        if (!error_.isEmpty())
            throw DocumentError(error_);
        return folder_;
    }
    void ApplyLocaleFont(QFont&) override {}

private:
    QString folder_;
    QString error_;
};

// A document library that knows the user's language alone, in a process that has loaded no texts.
class FakeAccess : public DocumentAccess {
public:
    explicit FakeAccess(QString folder, QString error = {})
        : folder_(std::move(folder)), error_(std::move(error)) {
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
    std::unique_ptr<PropertyQuery> MakePropertyQuery(const QueryWords&) override { return nullptr; }
    std::unique_ptr<PreviewExtractor> MakePreviewExtractor() override { return nullptr; }
    std::unique_ptr<LanguageSettings> MakeLanguageSettings() override {
        ++made;
        return std::make_unique<FakeLanguage>(folder_, error_);
    }

    int made = 0;

private:
    QString folder_;
    QString error_;
};

// A program folder of the test's own.
class ProgramFolder {
public:
    QString Path() const { return folder_.path(); }

    // Puts compiled texts, the title of which is `title`, below the folder ("" for beside it).
    void AddTexts(const QString& folder, const QString& title) const {
        Write(
            folder, QStringLiteral("tessadocres.ts"),
            QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?><TS version=\"2.1\"><context>"
                           "<name></name><message id=\"tessadocres-122\"><source></source>"
                           "<translation>%1</translation></message></context></TS>")
                .arg(title)
                .toUtf8());
        const QDir place(folder_.path() + folder);
        QCOMPARE(QProcess::execute(
                     QStringLiteral(DOCBENCH_LRELEASE),
                     {QStringLiteral("-silent"), QStringLiteral("-idbased"),
                      place.filePath(QStringLiteral("tessadocres.ts")), QStringLiteral("-qm"),
                      place.filePath(QStringLiteral("tessadocres.qm"))}),
                 0);
    }

    void Write(const QString& folder, const QString& name, const QByteArray& bytes) const {
        const QDir place(folder_.path() + folder);
        QVERIFY(place.mkpath(QStringLiteral(".")));
        QFile file(place.filePath(name));
        QVERIFY(file.open(QFile::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

private:
    QTemporaryDir folder_;
};

QString Mismatch(const QString& format) {
    return QStringLiteral("Error in sprintf: Format mismatch, please report as a bug. Format = ") +
           format;
}

}  // namespace

class TestLanguage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void beforeTheLoadEveryTextIsEmpty();
    void everyCompiledLanguageHasItsTextsAndNoOther_data();
    void everyCompiledLanguageHasItsTextsAndNoOther();
    void theNamedTextsAreTheNumberedOnes();
    void theNextControlLoadsNothing();
    void theUsersLanguageComesBeforeEnglish();
    void englishComesBeforeTheTextsBesideTheProgram();
    void theTextsBesideTheProgramAreTheLastResort();
    void aMissingLanguageFolderGivesEnglishButKeepsItsHelpFile();
    void aDamagedLanguageFileGivesEnglish();
    void noOtherFileIsTakenForTheTexts();
    void withoutTextsABoxSaysSoAndTheProgramGoesOn();
    void withoutTheDocumentLibraryABoxSaysWhy();
    void anErrorOfTheDocumentLibraryIsQuoted();
    void afterAFailureNothingIsTriedAgain();
    void aTooLongTextIsCutAtAWholeCharacter();
    void unloadingForgetsEverything();

    void valuesTakeThePlaceOfThePlaceholdersInOrder();
    void aValueIsNeverReadAsAFormat();
    void onlyPercentSIsAPlaceholder();
    void aPlaceholderWithoutValueShowsTheBoxAndStaysEmpty();
    void aValueWithoutPlaceholderShowsTheBoxAndIsLost();
    void textBehindMissingValuesIsKept();
    void aTextTakesItsValuesByRole();
    void aWrongTranslationShowsTheBoxAndStillReads();

    void fourLocalesHaveAFontOfTheirOwn_data();
    void fourLocalesHaveAFontOfTheirOwn();
    void theUsersLocaleDecidesOnTheFont();
};

void TestLanguage::beforeTheLoadEveryTextIsEmpty() {
    UnloadResources();
    for (const QString& text : gStrings)
        QCOMPARE(text, QString());
    QVERIFY(!gResourcesLoaded);
    QCOMPARE(gAppTitle, QString());
    QCOMPARE(Tr(Text::NoPreview), QString());
}

void TestLanguage::everyCompiledLanguageHasItsTextsAndNoOther_data() {
    QTest::addColumn<QString>("language");
    for (const QString& language : LanguageNames())
        QTest::newRow(qPrintable(language)) << language;
}

void TestLanguage::everyCompiledLanguageHasItsTextsAndNoOther() {
    QFETCH(QString, language);
    const QString folder = QStringLiteral("/lang/") + language;
    const TestDialogs dialogs;
    const FakeAccess access(folder);
    LoadResources();
    QVERIFY(gResourcesLoaded);
    const QMap<int, QString> texts = ReadLanguageFile(LanguageFileOf(language)).texts;
    for (int i = 0; i <= kLastText; ++i)
        QCOMPARE(gStrings[size_t(i)], texts.value(i));

    QTranslator compiled;
    QVERIFY(compiled.load(Program() + folder + QStringLiteral("/tessadocres.qm")));
    for (int i = 0; i <= 2 * kLastText; ++i) {
        const QByteArray id = "tessadocres-" + QByteArray::number(i);
        QCOMPARE(compiled.translate(nullptr, id.constData()), texts.value(i));
    }
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
    QVERIFY(!gAppTitle.isEmpty());
}

void TestLanguage::theNextControlLoadsNothing() {
    const TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/english"));
    LoadResources();
    gStrings[1] = QStringLiteral("changed");
    gHelpFile = QStringLiteral("elsewhere");
    LoadResources();
    QCOMPARE(access.made, 1);
    QCOMPARE(gStrings[1], QStringLiteral("changed"));
    QCOMPARE(gHelpFile, QStringLiteral("elsewhere"));
}

void TestLanguage::theUsersLanguageComesBeforeEnglish() {
    const TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/german"));
    const ProgramFolder program;
    program.AddTexts(QStringLiteral("/lang/german"), QStringLiteral("Deutsch"));
    program.AddTexts(QStringLiteral("/lang/english"), QStringLiteral("English"));
    program.AddTexts(QString(), QStringLiteral("Beside"));
    LoadResources(program.Path());
    QCOMPARE(gAppTitle, QStringLiteral("Deutsch"));
    QCOMPARE(gHelpFile, program.Path() + QStringLiteral("/lang/german/TFDocbench.chm"));
}

void TestLanguage::englishComesBeforeTheTextsBesideTheProgram() {
    const TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/german"));
    const ProgramFolder program;
    program.AddTexts(QStringLiteral("/lang/english"), QStringLiteral("English"));
    program.AddTexts(QString(), QStringLiteral("Beside"));
    LoadResources(program.Path());
    QCOMPARE(gAppTitle, QStringLiteral("English"));
}

void TestLanguage::theTextsBesideTheProgramAreTheLastResort() {
    const TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/german"));
    const ProgramFolder program;
    program.AddTexts(QString(), QStringLiteral("Beside"));
    LoadResources(program.Path());
    QCOMPARE(gAppTitle, QStringLiteral("Beside"));
}

void TestLanguage::aMissingLanguageFolderGivesEnglishButKeepsItsHelpFile() {
    const TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/nowhere"));
    LoadResources();
    QCOMPARE(gAppTitle, QStringLiteral("Tessaforma Docbench"));
    QCOMPARE(gHelpFile, Program() + QStringLiteral("/lang/nowhere/TFDocbench.chm"));
}

void TestLanguage::aDamagedLanguageFileGivesEnglish() {
    const TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/german"));
    const ProgramFolder program;
    program.Write(QStringLiteral("/lang/german"), QStringLiteral("tessadocres.qm"), "no texts");
    program.AddTexts(QStringLiteral("/lang/english"), QStringLiteral("English"));
    LoadResources(program.Path());
    QCOMPARE(gAppTitle, QStringLiteral("English"));
}

void TestLanguage::noOtherFileIsTakenForTheTexts() {
    TestDialogs dialogs;
    const FakeAccess access{QString()};
    const ProgramFolder program;
    program.AddTexts(QString(), QStringLiteral("Beside"));
    QVERIFY(QFile::rename(program.Path() + QStringLiteral("/tessadocres.qm"),
                          program.Path() + QStringLiteral("/tessadocres.qm.qm")));
    dialogs.Expect(QStringLiteral("Failed to load resources.  *"));
    LoadResources(program.Path());
    QCOMPARE(gAppTitle, QString());
}

void TestLanguage::withoutTextsABoxSaysSoAndTheProgramGoesOn() {
    TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/english"));
    const ProgramFolder program;
    dialogs.Expect(QStringLiteral("Failed to load resources.  Please check the installation."));
    LoadResources(program.Path());
    QCOMPARE(dialogs.LastTitle(), QString());
    for (const QString& text : gStrings)
        QCOMPARE(text, QString());
    QVERIFY(gResourcesLoaded);
    QCOMPARE(gHelpFile, program.Path() + QStringLiteral("/lang/english/TFDocbench.chm"));
}

void TestLanguage::withoutTheDocumentLibraryABoxSaysWhy() {
    TestDialogs dialogs;
    UnloadResources();
    dialogs.Expect(QStringLiteral("Failed to load resources, Error: *"));
    LoadResources();
    QCOMPARE(dialogs.LastTitle(), QString());
    QCOMPARE(gStrings[122], QString());
    UnloadResources();
}

void TestLanguage::anErrorOfTheDocumentLibraryIsQuoted() {
    TestDialogs dialogs;
    const FakeAccess access(QString(), QStringLiteral("The settings can't be read."));
    dialogs.Expect(QStringLiteral("Failed to load resources, Error: The settings can't be read."));
    LoadResources();
    QCOMPARE(gStrings[122], QString());
}

void TestLanguage::afterAFailureNothingIsTriedAgain() {
    TestDialogs dialogs;
    const FakeAccess access(QString(), QStringLiteral("Broken."));
    dialogs.Expect(QStringLiteral("Failed to load resources, Error: Broken."));
    LoadResources();
    LoadResources();
    QCOMPARE(access.made, 1);
}

void TestLanguage::aTooLongTextIsCutAtAWholeCharacter() {
    const TestDialogs dialogs;
    const FakeAccess access{QString()};
    const ProgramFolder program;
    program.AddTexts(QString(), QString(300, QChar(u'\u00e4')));  // two bytes each
    LoadResources(program.Path());
    QCOMPARE(gAppTitle, QString(255, QChar(u'\u00e4')));
}

void TestLanguage::unloadingForgetsEverything() {
    const TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/english"));
    LoadResources();
    UnloadResources();
    QCOMPARE(gStrings[122], QString());
    QCOMPARE(gAppTitle, QString());
    QCOMPARE(gHelpFile, QString());
    LoadResources();
    QCOMPARE(access.made, 2);
    QCOMPARE(gAppTitle, QStringLiteral("Tessaforma Docbench"));
}

void TestLanguage::valuesTakeThePlaceOfThePlaceholdersInOrder() {
    const TestDialogs dialogs;
    QCOMPARE(sprintf(QStringLiteral("a%sb"), {QStringLiteral("x")}), QStringLiteral("axb"));
    QCOMPARE(sprintf(QStringLiteral("%s%s"), {QStringLiteral("x"), QStringLiteral("y")}),
             QStringLiteral("xy"));
    QCOMPARE(sprintf(QString(), {}), QString());
}

void TestLanguage::aValueIsNeverReadAsAFormat() {
    const TestDialogs dialogs;
    QCOMPARE(sprintf(QStringLiteral("%s, %s"), {QStringLiteral("%s"), QStringLiteral("100 %")}),
             QStringLiteral("%s, 100 %"));
}

void TestLanguage::onlyPercentSIsAPlaceholder() {
    const TestDialogs dialogs;
    QCOMPARE(sprintf(QStringLiteral("%d %5s %S %%"), {}), QStringLiteral("%d %5s %S %%"));
}

void TestLanguage::aPlaceholderWithoutValueShowsTheBoxAndStaysEmpty() {
    TestDialogs dialogs;
    dialogs.Expect(Mismatch(QStringLiteral("%s")), Dialogs::Icon::None);
    QCOMPARE(sprintf(QStringLiteral("%s"), {}), QString());
    QVERIFY(dialogs.AllCame());
    QCOMPARE(dialogs.LastTitle(), QString());
}

void TestLanguage::aValueWithoutPlaceholderShowsTheBoxAndIsLost() {
    TestDialogs dialogs;
    dialogs.Expect(Mismatch(QStringLiteral("plain")), Dialogs::Icon::None);
    QCOMPARE(sprintf(QStringLiteral("plain"), {QStringLiteral("x")}), QStringLiteral("plain"));
    QVERIFY(dialogs.AllCame());
}

void TestLanguage::textBehindMissingValuesIsKept() {
    TestDialogs dialogs;
    dialogs.Expect(Mismatch(QStringLiteral("a%sb%sc")), Dialogs::Icon::None);
    QCOMPARE(sprintf(QStringLiteral("a%sb%sc"), {QStringLiteral("x")}), QStringLiteral("axbc"));
}

void TestLanguage::aTextTakesItsValuesByRole() {
    const TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/english"));
    LoadResources();
    gStrings[size_t(Text::WalkError.number)] = QStringLiteral("<%s|%s>");
    QCOMPARE(Format(Text::WalkError, QStringLiteral("a.tfmprt"), QStringLiteral("Broken.")),
             QStringLiteral("<a.tfmprt|Broken.>"));
    QCOMPARE(Format(Text::WalkError, 12, qsizetype(-3)), QStringLiteral("<12|-3>"));
    QCOMPARE(Tr(Text::AppTitle), gStrings[122]);
}

void TestLanguage::aWrongTranslationShowsTheBoxAndStillReads() {
    TestDialogs dialogs;
    const FakeAccess access(QStringLiteral("/lang/english"));
    LoadResources();
    gStrings[size_t(Text::NodeMissing.number)] = QStringLiteral("It is missing.");
    dialogs.Expect(Mismatch(QStringLiteral("It is missing.")), Dialogs::Icon::None);
    QCOMPARE(Format(Text::NodeMissing, QStringLiteral("a")), QStringLiteral("It is missing."));
}

void TestLanguage::fourLocalesHaveAFontOfTheirOwn_data() {
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("face");  // empty: the font stays
    QTest::newRow("Taiwan") << "zh_TW" << QStringLiteral(u"新細明體");
    QTest::newRow("Japan") << "ja_JP" << QStringLiteral(u"ＭＳ Ｐゴシック");
    QTest::newRow("Korea") << "ko_KR" << QStringLiteral(u"굴림");
    QTest::newRow("China") << "zh_CN" << QStringLiteral(u"宋体");
    QTest::newRow("Hong Kong") << "zh_HK" << QString();
    QTest::newRow("Germany") << "de_DE" << QString();
    QTest::newRow("United States") << "en_US" << QString();
    QTest::newRow("none") << "C" << QString();
}

void TestLanguage::fourLocalesHaveAFontOfTheirOwn() {
    QFETCH(QString, locale);
    QFETCH(QString, face);
    const QFont before(QStringLiteral("Some Face"), 17);
    QFont font = before;
    ApplyFontOfLocale(font, QLocale(locale));
    QCOMPARE(font, face.isEmpty() ? before : QFont(face, 9));
}

// The user's locale is fixed for a process, so another one is asked.
void TestLanguage::theUsersLocaleDecidesOnTheFont() {
    const auto fontIn = [](const QString& locale) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), locale + QStringLiteral(".UTF-8"));
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), {QLatin1String(kPrintFont)});
        process.waitForFinished();
        return QString::fromUtf8(process.readAllStandardOutput());
    };
    QCOMPARE(fontIn(QStringLiteral("ja_JP")), QStringLiteral(u"ＭＳ Ｐゴシック 9"));
    QCOMPARE(fontIn(QStringLiteral("zh_TW")), QStringLiteral(u"新細明體 9"));
    QCOMPARE(fontIn(QStringLiteral("de_DE")), QStringLiteral("Some Face 17"));
}

int main(int argc, char* argv[]) {
    if (argc == 2 && qstrcmp(argv[1], kPrintFont) == 0) {
        QFont font(QStringLiteral("Some Face"), 17);
        ApplyLanguageFont(font);
        const QString line = font.family() + u' ' + QString::number(font.pointSize());
        return std::fputs(line.toUtf8().constData(), stdout) < 0 ? 1 : 0;
    }
    const TestEnvironment environment;
    const QCoreApplication application(argc, argv);
    TestLanguage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_language.moc"
