#include "services/languagechoice.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "services/settingsstore.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

using Hive = SettingsKey::Hive;

void Store(Hive hive, const QString& language) {
    const auto key = SettingsKey::Open(hive, QLatin1String(kLanguageKey));
    QVERIFY(key && key->SetText(QLatin1String(kLanguageValue), language));
}

}  // namespace

class TestLanguageChoice : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        for (const Hive hive : {Hive::CurrentUser, Hive::LocalMachine})
            SettingsKey::Open(hive, QLatin1String(kLanguageKey))
                ->Delete(QLatin1String(kLanguageValue));
    }

    void withoutAChoiceTheLocaleDecides();
    void aChoiceIsKeptUntilItIsTakenBack();
    void theChoiceForAllUsersIsTheLastWord();
    void onlyANameOfAFolderIsAChoice_data();
    void onlyANameOfAFolderIsAChoice();
    void aLocaleNamesTheFolderOfItsLanguage_data();
    void aLocaleNamesTheFolderOfItsLanguage();
    void theLanguagesOnOfferAreThoseWithTextsByTheirOwnNames();
};

void TestLanguageChoice::withoutAChoiceTheLocaleDecides() {
    QCOMPARE(ChosenLanguage(), QString());
}

void TestLanguageChoice::aChoiceIsKeptUntilItIsTakenBack() {
    QVERIFY(ChooseLanguage(QStringLiteral("german")));
    QCOMPARE(ChosenLanguage(), QStringLiteral("german"));
    QVERIFY(ChooseLanguage(QString()));
    QCOMPARE(ChosenLanguage(), QString());
}

void TestLanguageChoice::theChoiceForAllUsersIsTheLastWord() {
    Store(Hive::LocalMachine, QStringLiteral("french"));
    QCOMPARE(ChosenLanguage(), QStringLiteral("french"));
    QVERIFY(ChooseLanguage(QStringLiteral("japanese")));
    QCOMPARE(ChosenLanguage(), QStringLiteral("japanese"));
}

void TestLanguageChoice::onlyANameOfAFolderIsAChoice_data() {
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("chosen");
    QTest::newRow("as it is") << "chinese-simplified"
                              << "chinese-simplified";
    QTest::newRow("typed by hand") << " German "
                                   << "german";
    QTest::newRow("a path upwards") << "../../somewhere"
                                    << "";
    QTest::newRow("an absolute path") << "/tmp"
                                      << "";
    QTest::newRow("another script") << QString::fromUtf8("日本語") << "";
    QTest::newRow("blanks") << "  "
                            << "";
}

void TestLanguageChoice::onlyANameOfAFolderIsAChoice() {
    QFETCH(QString, stored);
    Store(Hive::CurrentUser, stored);
    QTEST(ChosenLanguage(), "chosen");
}

void TestLanguageChoice::aLocaleNamesTheFolderOfItsLanguage_data() {
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("folder");
    const auto row = [](const char* locale, const char* folder) {
        QTest::newRow(locale) << locale << folder;
    };
    row("C", "english");
    row("en_GB", "english");
    row("de_AT", "german");
    row("fr_CA", "french");
    row("ja_JP", "japanese");
    row("zh_CN", "chinese-simplified");
    row("zh_SG", "chinese-simplified");
    row("zh_TW", "chinese-traditional");
}

void TestLanguageChoice::aLocaleNamesTheFolderOfItsLanguage() {
    QFETCH(QString, locale);
    QTEST(LanguageFolderOf(QLocale(locale)), "folder");
}

void TestLanguageChoice::theLanguagesOnOfferAreThoseWithTextsByTheirOwnNames() {
    const QTemporaryDir program;
    QVERIFY(OfferedLanguages(program.path()).isEmpty());
    for (const char* folder : {"japanese", "chinese-simplified", "german", "english", "french",
                               "chinese-traditional", "house-style", "no texts", "empty"}) {
        const QDir language(program.filePath(QStringLiteral("lang/") + QLatin1String(folder)));
        QVERIFY(language.mkpath(QStringLiteral(".")));
        if (qstrcmp(folder, "empty") == 0)
            continue;
        QFile texts(language.filePath(QStringLiteral("tessadocres.qm")));
        QVERIFY(texts.open(QFile::WriteOnly));
    }
    QStringList found;
    for (const OfferedLanguage& language : OfferedLanguages(program.path()))
        found.append(language.folder + u' ' + language.name);
    QCOMPARE(found, QStringList({QStringLiteral("chinese-simplified 简体中文"),
                                 QStringLiteral("chinese-traditional 繁體中文"), "english English",
                                 QStringLiteral("french Français"), "german Deutsch",
                                 "house-style house-style", QStringLiteral("japanese 日本語")}));
}

DOCBENCH_TEST_MAIN(QCoreApplication, TestLanguageChoice)
#include "tst_languagechoice.moc"
