#include "platform/windowtexts.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTimer>
#include <QXmlStreamReader>

#include "docmodel/access.h"
#include "platform/desktopdialogs.h"
#include "platform/passworddialog.h"
#include "services/language.h"
#include "services/languagechoice.h"
#include "services/seams.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

// The words of a file by class and English text.
QMap<QString, QString> ReadWords(const QString& path) {
    QMap<QString, QString> words;
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        return words;
    QXmlStreamReader xml(&file);
    QString context;
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText() + QStringLiteral(": ");
        else if (xml.name() == QLatin1String("source"))
            source = xml.readElementText();
        else if (xml.name() == QLatin1String("translation"))
            words.insert(context + source, xml.readElementText());
    }
    return words;
}

QString Caption(const QWidget& dialog) {
    return dialog.findChild<QCheckBox*>(QStringLiteral("remember"))->text();
}

}  // namespace

class TestWindowTexts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { gSeams.documents = &library_; }
    void cleanup() { QVERIFY(ChooseLanguage(QString())); }
    void cleanupTestCase() { gSeams.documents = nullptr; }

    void aWindowSpeaksTheUsersLanguage();
    void theToolkitSpeaksTheSameLanguage();
    void theButtonsOfABoxAreThoseOfTheTexts();
    void aLanguageWithoutWordsIsEnglishAltogether();
    void everyLanguageHasTheWordsOfTheProgram_data();
    void everyLanguageHasTheWordsOfTheProgram();

private:
    docmodel::Access library_;
};

void TestWindowTexts::aWindowSpeaksTheUsersLanguage() {
    const QString english = Caption(PasswordDialog({}, {}, false, nullptr));
    QVERIFY(ChooseLanguage(QStringLiteral("german")));
    {
        WindowTexts texts;
        texts.Load(QCoreApplication::applicationDirPath());
        QCOMPARE(Caption(PasswordDialog({}, {}, false, nullptr)),
                 QStringLiteral("Im &Schlüsselbund aufbewahren"));
    }
    QCOMPARE(Caption(PasswordDialog({}, {}, false, nullptr)), english);
}

void TestWindowTexts::theToolkitSpeaksTheSameLanguage() {
    for (const auto& [language, cancel] : {std::pair("german", "Abbrechen"),
                                           {"french", "Annuler"},
                                           {"japanese", "キャンセル"},
                                           {"chinese-simplified", "取消"}}) {
        QVERIFY(ChooseLanguage(QLatin1String(language)));
        WindowTexts texts;
        texts.Load(QCoreApplication::applicationDirPath());
        const QDialogButtonBox buttons(QDialogButtonBox::Cancel);
        QCOMPARE(buttons.button(QDialogButtonBox::Cancel)->text().remove(u'&'),
                 QString::fromUtf8(cancel));
    }
}

void TestWindowTexts::theButtonsOfABoxAreThoseOfTheTexts() {
    QVERIFY(ChooseLanguage(QStringLiteral("french")));
    LoadResources();
    QStringList captions;
    QTimer::singleShot(0, qApp, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        for (const auto button : {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel})
            captions.append(box->button(button)->text());
        box->button(QMessageBox::No)->click();
    });
    const Dialogs::Answer answer =
        DesktopDialogs().Box(QStringLiteral("?"), Dialogs::Icon::Question, QString(),
                             Dialogs::Buttons::YesNoCancel, QString());
    QCOMPARE(captions, QStringList({"&Oui", "&Non", "Annuler"}));
    QCOMPARE(answer, Dialogs::Answer::No);
    UnloadResources();
}

void TestWindowTexts::aLanguageWithoutWordsIsEnglishAltogether() {
    const QDialogButtonBox english(QDialogButtonBox::Cancel);
    QVERIFY(ChooseLanguage(QStringLiteral("spanish")));
    WindowTexts texts;
    texts.Load(QCoreApplication::applicationDirPath());
    const QDialogButtonBox buttons(QDialogButtonBox::Cancel);
    QCOMPARE(buttons.button(QDialogButtonBox::Cancel)->text(),
             english.button(QDialogButtonBox::Cancel)->text());
}

void TestWindowTexts::everyLanguageHasTheWordsOfTheProgram_data() {
    QTest::addColumn<QString>("language");
    for (const char* language : {"german", "french", "japanese", "chinese-simplified"})
        QTest::newRow(language) << language;
}

// What the program holds is read from its sources, with the tool that translators use.
void TestWindowTexts::everyLanguageHasTheWordsOfTheProgram() {
    QFETCH(QString, language);
    const QTemporaryDir folder;
    const QString found = folder.filePath(QStringLiteral("words.ts"));
    const QString sources = QStringLiteral(DOCBENCH_SOURCES);
    QProcess reader;
    reader.start(QStringLiteral(DOCBENCH_LUPDATE),
                 {QStringLiteral("-silent"), sources + QStringLiteral("/platform"),
                  sources + QStringLiteral("/services"), sources + QStringLiteral("/setup"),
                  QStringLiteral("-I"), sources,
                  QStringLiteral("-ts"), found});
    QVERIFY(reader.waitForFinished());
    QCOMPARE(reader.exitCode(), 0);

    const QMap<QString, QString> words =
        ReadWords(sources + QStringLiteral("/lang/%1/windows.ts").arg(language));
    QVERIFY(words.size() > 10);
    QCOMPARE(words.keys(), ReadWords(found).keys());
    static const QRegularExpression placeholder(QStringLiteral("%\\d"));
    for (auto word = words.begin(); word != words.end(); ++word) {
        QVERIFY2(!word.value().isEmpty(), qPrintable(word.key()));
        QVERIFY2(word.key().count(placeholder) == word.value().count(placeholder) &&
                     word.key().count(u'&') == word.value().count(u'&'),
                 qPrintable(word.value()));
    }
}

DOCBENCH_TEST_MAIN(QApplication, TestWindowTexts)
#include "tst_windowtexts.moc"
