// The language folder and the fonts of the user's locale. Each locale is asked for in a process of
// its own, since Qt reads it once.

#include <QFont>
#include <QGuiApplication>
#include <QProcess>
#include <QTest>

#include "docmodel/access.h"
#include "services/languagechoice.h"
#include "services/localefont.h"
#include "tests/support/testenvironment.h"

namespace {

constexpr char kAskVariable[] = "DOCMODEL_TEST_LANGUAGE";

// What a process with these variables answers: the folder, the font's face and size.
QStringList Ask(const QList<std::pair<QString, QString>>& variables) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"LC_ALL", "LANG", "LANGUAGE", "LC_MESSAGES"})
        environment.remove(name);
    for (const auto& [name, value] : variables)
        environment.insert(name, value);
    environment.insert(kAskVariable, "1");
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), QStringList());
    if (!process.waitForFinished())
        return {"did not finish"};
    return QString::fromUtf8(process.readAllStandardOutput()).split('\n');
}

int Answer(int argc, char* argv[]) {
    const QGuiApplication application(argc, argv);
    const auto settings = docmodel::Access().MakeLanguageSettings();
    QFont font("Plain", 7);
    settings->ApplyLocaleFont(font);
    const QString answer = settings->GetLanguageFolder() + '\n' + font.family() + '\n' +
                           QString::number(font.pointSize());
    fputs(answer.toUtf8().constData(), stdout);
    return 0;
}

}  // namespace

class TestLanguageSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void TheFolderIsNamedAfterTheUsersLanguage_data() {
        QTest::addColumn<QString>("variable");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("answer");
        const QStringList plain = {"Plain", "7"};
        QTest::newRow("German") << "LANG"
                                << "de_DE.UTF-8" << (QStringList("/lang/german") + plain);
        QTest::newRow("English") << "LC_ALL"
                                 << "en_US.UTF-8" << (QStringList("/lang/english") + plain);
        QTest::newRow("C") << "LC_ALL"
                           << "C" << (QStringList("/lang/english") + plain);
        QTest::newRow("C.UTF-8") << "LC_ALL"
                                 << "C.UTF-8" << (QStringList("/lang/english") + plain);
        QTest::newRow("Taiwan") << "LC_ALL"
                                << "zh_TW.UTF-8"
                                << QStringList({"/lang/chinese-traditional",
                                                QString::fromUtf8("新細明體"), "9"});
        QTest::newRow("China") << "LC_ALL"
                               << "zh_CN.UTF-8"
                               << QStringList(
                                      {"/lang/chinese-simplified", QString::fromUtf8("宋体"), "9"});
        QTest::newRow("Hong Kong")
            << "LC_ALL"
            << "zh_HK.UTF-8" << (QStringList("/lang/chinese-traditional") + plain);
        QTest::newRow("Japan") << "LC_ALL"
                               << "ja_JP.UTF-8"
                               << QStringList({"/lang/japanese",
                                               QString::fromUtf8("ＭＳ Ｐゴシック"), "9"});
        QTest::newRow("Korea") << "LC_ALL"
                               << "ko_KR.UTF-8"
                               << QStringList({"/lang/korean", QString::fromUtf8("굴림"), "9"});
    }
    void TheFolderIsNamedAfterTheUsersLanguage() {
        QFETCH(QString, variable);
        QFETCH(QString, value);
        QFETCH(QStringList, answer);
        QCOMPARE(Ask({{variable, value}}), answer);
    }

    void TheFirstOfTheWantedLanguagesCounts() {
        QCOMPARE(Ask({{"LANG", "de_DE.UTF-8"}, {"LANGUAGE", "fr:de"}}).first(),
                 QString("/lang/french"));
    }

    // The fonts are those of the locale all the same.
    void AChosenLanguageComesBeforeTheLocale() {
        QVERIFY(docbench::ChooseLanguage("german"));
        QCOMPARE(Ask({{"LANG", "ja_JP.UTF-8"}}),
                 QStringList({"/lang/german", QString::fromUtf8("ＭＳ Ｐゴシック"), "9"}));
        QVERIFY(docbench::ChooseLanguage(QString()));
        QCOMPARE(Ask({{"LANG", "fr_FR.UTF-8"}}).first(), QString("/lang/french"));
    }

    void OnlyFourLocalesHaveAFontOfTheirOwn() {
        int withFont = 0;
        for (int id = 0; id < 0x10000; ++id)
            withFont += docbench::LocaleFontOf(id) ? 1 : 0;
        QCOMPARE(withFont, 4);
        QCOMPARE(docbench::LocaleFontOf(1028)->charset, 136);
        QCOMPARE(docbench::LocaleFontOf(1041)->charset, 128);
        QCOMPARE(docbench::LocaleFontOf(1042)->charset, 129);
        QCOMPARE(docbench::LocaleFontOf(2052)->charset, 134);
    }
};

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsSet(kAskVariable))
        return Answer(argc, argv);
    const docbench::TestEnvironment environment;
    QGuiApplication application(argc, argv);
    TestLanguageSettings test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_languagesettings.moc"
