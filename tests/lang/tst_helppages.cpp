// The help pages of every language, held against the English ones and against the language's texts.

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include "platform/helppages.h"
#include "tests/lang/languagefile.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

// Captions in English that are also keys of the keyboard, which a page may tell instead.
const QStringList kKeyNames{QStringLiteral("Delete")};

QDir PagesOf(const QString& language) {
    return QDir(QStringLiteral(DOCBENCH_LANG_DIR "/%1/help").arg(language));
}

QString ReadPage(const QDir& folder, const QString& name) {
    QFile file(folder.filePath(name));
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList AllOf(const QString& html, const char* pattern) {
    QStringList found;
    const QRegularExpression expression(QLatin1String(pattern),
                                        QRegularExpression::DotMatchesEverythingOption);
    for (auto match = expression.globalMatch(html); match.hasNext();)
        found.append(match.next().captured(1).simplified());
    return found;
}

// As a page shows it: without the mark of a key and with dots for the values.
QString CaptionOf(QString text) {
    static const QRegularExpression keyInBrackets(QStringLiteral("\\(&.\\)"));
    text.remove(keyInBrackets).remove(u'&').replace(QLatin1String("%s"), QLatin1String("..."));
    return text.toHtmlEscaped().simplified();
}

// The numbers that have a caption in English.
QMultiHash<QString, int> EnglishCaptions() {
    QMultiHash<QString, int> numbers;
    const LanguageFile file = ReadLanguageFile(LanguageFileOf(QStringLiteral("english")));
    for (auto text = file.texts.begin(); text != file.texts.end(); ++text)
        numbers.insert(CaptionOf(text.value()), text.key());
    return numbers;
}

}  // namespace

class TestHelpPages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyLanguageHasEveryPage_data() { Languages(); }
    void everyLanguageHasEveryPage();
    void everyPageIsInTheContentsAndSaysSomething_data() { Languages(); }
    void everyPageIsInTheContentsAndSaysSomething();
    void aTranslatedPageHasThePartsAndLinksOfTheEnglishOne_data() { Languages(); }
    void aTranslatedPageHasThePartsAndLinksOfTheEnglishOne();
    void aPageNamesWhatIsOnTheScreenAsItIsThere_data() { Languages(); }
    void aPageNamesWhatIsOnTheScreenAsItIsThere();
    void noParagraphIsLeftInEnglish_data() { Languages(); }
    void noParagraphIsLeftInEnglish();

private:
    static void Languages();
    const QDir english_ = PagesOf(QStringLiteral("english"));
    const QStringList names_ = english_.entryList({QStringLiteral("*.html")});
};

void TestHelpPages::Languages() {
    QTest::addColumn<QString>("language");
    for (const QString& language : LanguageNames())
        QTest::newRow(qPrintable(language)) << language;
}

void TestHelpPages::everyLanguageHasEveryPage() {
    QFETCH(QString, language);
    QVERIFY(names_.size() > 10);
    QCOMPARE(PagesOf(language).entryList({QStringLiteral("*.html")}), names_);
}

void TestHelpPages::everyPageIsInTheContentsAndSaysSomething() {
    QFETCH(QString, language);
    const HelpPages pages(PagesOf(language).path());
    QCOMPARE(qsizetype(pages.Pages().size()) + 1, names_.size());
    QSet<QString> titles;
    for (const HelpPage& page : pages.Pages()) {
        QVERIFY2(!page.title.isEmpty() && !titles.contains(page.title), qPrintable(page.file));
        titles.insert(page.title);
        QVERIFY2(!page.keywords.isEmpty(), qPrintable(page.file));
        QVERIFY2(page.text.size() > 300, qPrintable(page.file));
    }
}

void TestHelpPages::aTranslatedPageHasThePartsAndLinksOfTheEnglishOne() {
    QFETCH(QString, language);
    const auto parts = [](const QString& html) {
        return AllOf(html, "<(/?(?:title|h1|h2|p|ul|ol|li|table|tr|th|td|pre))\\b");
    };
    const auto links = [](const QString& html) {
        QStringList targets = AllOf(html, "href=\"([^\"]+)\"");
        targets.sort();
        return targets;
    };
    for (const QString& name : names_) {
        const QString english = ReadPage(english_, name);
        const QString translated = ReadPage(PagesOf(language), name);
        QVERIFY2(parts(translated) == parts(english), qPrintable(name));
        QVERIFY2(links(translated) == links(english), qPrintable(name));
        QVERIFY2(AllOf(translated, "id=\"([^\"]+)\"") == AllOf(english, "id=\"([^\"]+)\""),
                 qPrintable(name));
        QVERIFY2(AllOf(translated, "<pre>(.*?)</pre>") == AllOf(english, "<pre>(.*?)</pre>"),
                 qPrintable(name));
    }
}

// What is in bold is a caption: where the English page has one, this has that of the same text.
void TestHelpPages::aPageNamesWhatIsOnTheScreenAsItIsThere() {
    QFETCH(QString, language);
    const QMultiHash<QString, int> numbers = EnglishCaptions();
    const LanguageFile file = ReadLanguageFile(LanguageFileOf(language));
    for (const QString& name : names_) {
        const QStringList told = AllOf(ReadPage(PagesOf(language), name), "<b>(.*?)</b>");
        for (const QString& caption : AllOf(ReadPage(english_, name), "<b>(.*?)</b>")) {
            if (!numbers.contains(caption) || kKeyNames.contains(caption))
                continue;
            bool found = false;
            for (const int number : numbers.values(caption))
                found = found || told.contains(CaptionOf(file.texts.value(number)));
            QVERIFY2(found, qPrintable(name + u' ' + caption));
        }
    }
}

void TestHelpPages::noParagraphIsLeftInEnglish() {
    QFETCH(QString, language);
    if (language == QLatin1String("english"))
        return;
    for (const QString& name : names_) {
        const QStringList translated = AllOf(ReadPage(PagesOf(language), name), "<p>(.*?)</p>");
        for (const QString& paragraph : AllOf(ReadPage(english_, name), "<p>(.*?)</p>"))
            QVERIFY2(!translated.contains(paragraph), qPrintable(name + u' ' + paragraph));
    }
}

DOCBENCH_TEST_MAIN(QGuiApplication, TestHelpPages)
#include "tst_helppages.moc"
