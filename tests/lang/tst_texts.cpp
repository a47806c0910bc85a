#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include "services/language.h"
#include "services/texts.h"
#include "tests/lang/languagefile.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

constexpr int kTexts = 370;

QSet<int> NotLoaded() {
    QSet<int> numbers{24, 50, 54, 56, 67, 71, 102, 112, 212, 215, 217, 224, 226, 228, 325, 330};
    for (int i = 384; i <= 393; ++i)
        numbers.insert(i);
    for (int i = 395; i <= 399; ++i)
        numbers.insert(i);
    return numbers;
}

QList<int> Range(int first, int last) {
    QList<int> numbers;
    for (int i = first; i <= last; ++i)
        numbers.append(i);
    return numbers;
}

QList<int> Numbers(const auto&... texts) {
    return {texts.number...};
}

const QList<int> kHeadings = Range(126, 133) + QList<int>{315, 316, 317};
const QList<int> kOperators = Range(296, 301);
const QList<int> kTypes = Range(164, 167);
const QList<int> kRelations = Range(147, 149);

// What a search rule can ask for; its texts are read back to know the property.
const QList<int> kRuleProperties =
    QList<int>{347, 161, 159, 157, 158, 160, 302, 303, 304, 179, 44} + Range(181, 204);

template <typename Id, typename... Value>
concept Formats = requires(Id text, Value... values) {
    Format(text, values...);
};

}  // namespace

class TestTexts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyNumberHasOneRoleAndNoOtherNumberHasOne();
    void everyRoleHasANameOfItsOwn();
    void aTextIsFormattedWithItsNumberOfValuesOnly();

    void everyLanguageHasEveryTextOnceAndNoOther_data() { Languages(); }
    void everyLanguageHasEveryTextOnceAndNoOther();
    void everyTextSaysWhereItIsShown_data() { Languages(); }
    void everyTextSaysWhereItIsShown();
    void everyTextTakesTheValuesOfItsRole_data() { Languages(); }
    void everyTextTakesTheValuesOfItsRole();
    void theLanguagesOfTheProgramAreComplete();
    void aTranslationKeepsTheFormOfTheText_data() { Languages(); }
    void aTranslationKeepsTheFormOfTheText();
    void aTranslationIsNotTheEnglishText_data() { Languages(); }
    void aTranslationIsNotTheEnglishText();
    void noTextIsCutByTheBuffer_data() { Languages(); }
    void noTextIsCutByTheBuffer();
    void captionsThatAreReadBackDiffer_data() { Languages(); }
    void captionsThatAreReadBackDiffer();
    void textsThatAreDataMarkNoKey_data() { Languages(); }
    void textsThatAreDataMarkNoKey();
    void aKeyIsMarkedOnceAndOnALetter_data() { Languages(); }
    void aKeyIsMarkedOnceAndOnALetter();
    void keysAreUniqueInAForm_data() { Languages(); }
    void keysAreUniqueInAForm();
    void aReadOnlyMarkFitsInFrontAndBehind_data() { Languages(); }
    void aReadOnlyMarkFitsInFrontAndBehind();
    void anOldAndANewNameAreTellable_data() { Languages(); }
    void anOldAndANewNameAreTellable();
    void relationsAreNoPaths_data() { Languages(); }
    void relationsAreNoPaths();
    void aSavedSearchCanHoldEveryRule_data() { Languages(); }
    void aSavedSearchCanHoldEveryRule();
    void fileFiltersArePairsOfLabelAndPatterns_data() { Languages(); }
    void fileFiltersArePairsOfLabelAndPatterns();
    void neutralTitlesFitBothFormsOfAColumn_data() { Languages(); }
    void neutralTitlesFitBothFormsOfAColumn();

private:
    static void Languages();
    static LanguageFile File();
    static bool AllDiffer(const QStringList& texts);
};

void TestTexts::Languages() {
    QTest::addColumn<QString>("language");
    QVERIFY(LanguageNames().contains(QLatin1String("english")));
    for (const QString& language : LanguageNames())
        QTest::newRow(qPrintable(language)) << language;
}

LanguageFile TestTexts::File() {
    QFETCH(QString, language);
    const LanguageFile file = ReadLanguageFile(LanguageFileOf(language));
    if (!file.error.isEmpty())
        QTest::qFail(qPrintable(file.error), __FILE__, __LINE__);
    return file;
}

bool TestTexts::AllDiffer(const QStringList& texts) {
    const QSet<QString> different(texts.begin(), texts.end());
    return different.size() == texts.size() && !different.contains(QString());
}

void TestTexts::everyNumberHasOneRoleAndNoOtherNumberHasOne() {
    const QList<int> all = Range(1, kLastText);
    const QSet<int> expected = QSet<int>(all.begin(), all.end()) - NotLoaded();
    QCOMPARE(expected.size(), kTexts);
    QSet<int> found;
    for (const Role& role : Roles())
        found.insert(role.number);
    QCOMPARE(found, expected);
    QCOMPARE(Roles().size(), kTexts);
}

void TestTexts::everyRoleHasANameOfItsOwn() {
    QStringList names;
    for (const Role& role : Roles())
        names.append(QLatin1String(role.name));
    QVERIFY(AllDiffer(names));
}

void TestTexts::aTextIsFormattedWithItsNumberOfValuesOnly() {
    using Two = TextId<2>;
    static_assert(Formats<Two, QString, QString>);
    static_assert(Formats<Two, QString, int>);
    static_assert(!Formats<Two, QString>);
    static_assert(!Formats<Two, QString, QString, QString>);
    static_assert(!Formats<TextId<0>, QString>);
    static_assert(std::is_same_v<decltype(Text::WalkError), const Two>);
    // A text that takes values can't be shown without them.
    static_assert(!std::is_invocable_v<decltype(Tr), Two>);
}

void TestTexts::everyLanguageHasEveryTextOnceAndNoOther() {
    const LanguageFile file = File();
    QCOMPARE(file.ids.size(), kTexts);
    const QSet<QString> ids(file.ids.begin(), file.ids.end());
    for (const Role& role : Roles()) {
        QVERIFY2(ids.contains(QStringLiteral("tessadocres-%1").arg(role.number)), role.name);
        QVERIFY2(!file.texts.value(role.number).isEmpty(), role.name);
    }
}

void TestTexts::everyTextSaysWhereItIsShown() {
    const LanguageFile file = File();
    for (const Role& role : Roles()) {
        const QString comment = file.comments.value(role.number);
        const QString name = QLatin1String(role.name) + QLatin1String(". ");
        QVERIFY2(comment.startsWith(name) && comment.size() > name.size(), role.name);
    }
}

void TestTexts::everyTextTakesTheValuesOfItsRole() {
    const LanguageFile file = File();
    for (const Role& role : Roles()) {
        const QString text = file.texts.value(role.number);
        QVERIFY2(text.count(QLatin1String("%s")) == role.values, role.name);
        QVERIFY2(text.count(u'%') == role.values, role.name);  // there is no other placeholder
    }
}

void TestTexts::theLanguagesOfTheProgramAreComplete() {
    QCOMPARE(LanguageNames(),
             QStringList({"chinese-simplified", "english", "french", "german", "japanese"}));
}

// Blanks at the ends are part of a text, the dots say that a dialog follows, and a caption without
// a key can't be reached from the keyboard.
void TestTexts::aTranslationKeepsTheFormOfTheText() {
    const LanguageFile file = File();
    const LanguageFile english = ReadLanguageFile(LanguageFileOf(QStringLiteral("english")));
    const auto form = [](const QString& text) {
        return QList<bool>{text.startsWith(u' '), text.endsWith(u' '),
                           text.endsWith(QLatin1String("...")), text.contains(u'&'),
                           text.contains(u'\n')};
    };
    for (const Role& role : Roles())
        QVERIFY2(form(file.texts.value(role.number)) == form(english.texts.value(role.number)),
                 role.name);
    for (const auto& filter : Numbers(Text::PartFilter, Text::AssemblyFilter, Text::DrawingFilter,
                                      Text::OpenFilter, Text::SavedSearchFilter)) {
        const QStringList pieces = file.texts.value(filter).split(u'|');
        const QStringList of = english.texts.value(filter).split(u'|');
        QCOMPARE(pieces.size(), of.size());
        for (qsizetype i = 1; i < of.size(); i += 2)
            QCOMPARE(pieces[i], of[i]);
    }
}

// A sentence that reads as in English was forgotten; single words may be the same.
void TestTexts::aTranslationIsNotTheEnglishText() {
    QFETCH(QString, language);
    if (language == QLatin1String("english"))
        return;
    const LanguageFile file = File();
    const LanguageFile english = ReadLanguageFile(LanguageFileOf(QStringLiteral("english")));
    for (const Role& role : Roles()) {
        const QString text = english.texts.value(role.number);
        const bool hasSentence = text.trimmed().endsWith(u'.') || text.trimmed().endsWith(u'?');
        QVERIFY2(!hasSentence || file.texts.value(role.number) != text, role.name);
    }
}

void TestTexts::noTextIsCutByTheBuffer() {
    const LanguageFile file = File();
    for (const Role& role : Roles())
        QVERIFY2(file.texts.value(role.number).toUtf8().size() <= kLongestText, role.name);
}

// The program reads captions, types and conditions back to know what they stand for.
void TestTexts::captionsThatAreReadBackDiffer() {
    const LanguageFile file = File();
    const QList<QList<int>> groups{Numbers(Text::Stop, Text::FindAgain, Text::FindNow),
                                   Numbers(Text::Change, Text::AddProperty),
                                   Numbers(Text::Change, Text::AddFolderList),
                                   Numbers(Text::ClearAll, Text::SelectAll),
                                   Numbers(Text::CopyWord, Text::UpdateWord),
                                   Numbers(Text::ValueYes, Text::ValueNo),
                                   kTypes,
                                   kOperators,
                                   kRelations,
                                   kRuleProperties};
    for (const QList<int>& group : groups) {
        const QStringList texts = file.Of(group);
        QVERIFY2(AllDiffer(texts), qPrintable(texts.join(u'|')));
    }
    for (const char* literal : {"=", "<", "<=", ">", ">="})
        QVERIFY(!file.Of(kOperators).contains(QLatin1String(literal)));
}

// Headings show a "&" as it stands, and a style may move the mark of a caption that has one.
void TestTexts::textsThatAreDataMarkNoKey() {
    const LanguageFile file = File();
    const QList<int> data =
        kHeadings + kOperators + kTypes + kRelations + kRuleProperties +
        Numbers(Text::Stop, Text::FindAgain, Text::FindNow, Text::Change, Text::AddProperty,
                Text::AddFolderList, Text::ClearAll, Text::SelectAll, Text::CopyWord,
                Text::UpdateWord, Text::ValueYes, Text::ValueNo, Text::RuleOr, Text::Help,
                Text::About, Text::OpenWebFolder, Text::MenuReplace, Text::MenuRename,
                Text::ParentDocuments, Text::ReadOnlyMark, Text::BecomesMark, Text::AppTitle);
    for (const int number : data)
        QVERIFY2(!file.texts.value(number).contains(u'&'), qPrintable(file.texts.value(number)));
}

void TestTexts::aKeyIsMarkedOnceAndOnALetter() {
    const LanguageFile file = File();
    static const QRegularExpression marked(QStringLiteral("^[^&]*&[\\p{L}\\p{N}][^&]*$"));
    for (const QString& text : file.texts)
        QVERIFY2(!text.contains(u'&') || marked.match(text).hasMatch(), qPrintable(text));
}

void TestTexts::keysAreUniqueInAForm() {
    const LanguageFile file = File();
    const QList<QList<int>> forms{
        Numbers(Text::ToolbarOpen, Text::ToolbarRename, Text::ToolbarView, Text::Browse,
                Text::UseFullScreen),
        Numbers(Text::MenuOpen, Text::MenuExport),
        Numbers(Text::Yes, Text::No, Text::NoToAll),
        Numbers(Text::Yes, Text::YesToAll, Text::No),
        Numbers(Text::MatchCase, Text::FindNext, Text::ReplaceButton, Text::ReplaceAll),
        Numbers(Text::ReplaceButton, Text::BrowseMore, Text::CopyReferencesToo, Text::Browse,
                Text::AsPrefix, Text::AsSuffix, Text::Apply, Text::Reset, Text::MenuSearchScope),
        Numbers(Text::FindMirrored, Text::FolderLists, Text::WithSubfolders, Text::FindReferences,
                Text::FindInContext, Text::BrowseMore, Text::NewSearch),
        Numbers(Text::FolderLists, Text::WithSubfolders, Text::BrowseMore, Text::NewSearch,
                Text::AddRule, Text::DeleteRule, Text::SaveSearch, Text::LoadSearch,
                Text::RuleAndOption, Text::RuleOrOption),
        Numbers(Text::UseSearchRules, Text::ShowDescription, Text::UseViewer, Text::UseLogging,
                Text::AddFolder, Text::RemoveFolder, Text::MoveUp, Text::MoveDown,
                Text::DeleteFolderList, Text::ClearFolders),
        Numbers(Text::Apply, Text::Reset, Text::RemoveProperty)};
    for (const QList<int>& form : forms) {
        QStringList keys;
        for (const QString& text : file.Of(form)) {
            const qsizetype mark = text.indexOf(u'&');
            if (mark >= 0)
                keys.append(text.sliced(mark + 1, 1).toUpper());
        }
        QVERIFY2(AllDiffer(keys), qPrintable(file.Of(form).join(u'|')));
    }
}

void TestTexts::aReadOnlyMarkFitsInFrontAndBehind() {
    const QString mark = File().texts.value(Text::ReadOnlyMark.number);
    QVERIFY(mark.startsWith(u' ') && mark.endsWith(u' ') && !mark.trimmed().isEmpty());
}

void TestTexts::anOldAndANewNameAreTellable() {
    QVERIFY(!File().texts.value(Text::BecomesMark.number).isEmpty());
}

// A relation goes through the path helpers like a path in a web folder's results.
void TestTexts::relationsAreNoPaths() {
    for (const QString& text : File().Of(kRelations))
        QVERIFY2(!text.contains(QRegularExpression(QStringLiteral("[/\\\\:]"))), qPrintable(text));
}

void TestTexts::aSavedSearchCanHoldEveryRule() {
    for (const QString& text : File().Of(kRuleProperties + kOperators + Numbers(Text::RuleOr)))
        QVERIFY2(!text.isEmpty() && !text.contains(u'"'), qPrintable(text));
}

void TestTexts::fileFiltersArePairsOfLabelAndPatterns() {
    static const QRegularExpression patterns(QStringLiteral("^\\*\\.[\\w*]+(;\\*\\.[\\w*]+)*$"));
    const LanguageFile file = File();
    for (const QString& filter :
         file.Of(Numbers(Text::PartFilter, Text::AssemblyFilter, Text::DrawingFilter,
                         Text::OpenFilter, Text::SavedSearchFilter))) {
        const QStringList pieces = filter.split(u'|');
        QCOMPARE(pieces.size() % 2, 0);
        for (qsizetype i = 0; i < pieces.size(); i += 2) {
            QVERIFY2(!pieces[i].isEmpty(), qPrintable(filter));
            QVERIFY2(patterns.match(pieces[i + 1]).hasMatch(), qPrintable(filter));
        }
    }
    const QString extension = file.texts.value(Text::SavedSearchExtension.number);
    QVERIFY(file.texts.value(Text::SavedSearchFilter.number)
                .contains(QStringLiteral("|*.") + extension));
}

// They head long columns in some lists and short ones in others, so they are no words of either.
void TestTexts::neutralTitlesFitBothFormsOfAColumn() {
    const LanguageFile file = File();
    const QStringList neutral = file.Of(Numbers(Text::DocumentColumn, Text::FileColumn));
    QVERIFY(AllDiffer(neutral));
    for (const int ofOneForm :
         Numbers(Text::Path, Text::SourcePath, Text::TargetPath, Text::FileNameColumn))
        QVERIFY(!neutral.contains(file.texts.value(ofOneForm)));
}

DOCBENCH_TEST_MAIN(QCoreApplication, TestTexts)
#include "tst_texts.moc"
