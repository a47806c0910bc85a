// Saved searches: what is written is read again, and no file does harm.

#include <QDir>
#include <QFile>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTest>

#include "cells/celllist.h"
#include "search/savedsearch.h"
#include "search/searchrules.h"
#include "services/docaccess.h"
#include "services/language.h"
#include "tests/support/smallfiles.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

class TestSavedSearch : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder_;
    QString Path() const { return folder_.filePath("search.tdbs"); }

    void Put(const QByteArray& bytes) const {
        QFile file(Path());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QByteArray Bytes() const {
        QFile file(Path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static QStringList Texts(const CellList& rules) {
        QStringList texts;
        for (const CellRow& rule : rules.Rows()) {
            QStringList cells;
            for (const Cell& cell : rule.cells)
                cells.append(cell.text);
            texts.append(cells.join('|'));
        }
        return texts;
    }
    // The rules of a file with these bytes, one text each.
    QStringList Read(const QByteArray& bytes) const {
        Put(bytes);
        CellList rules;
        ReadSavedSearch(Path(), OperatorTexts(Operators::All), rules);
        return Texts(rules);
    }

private Q_SLOTS:
    void initTestCase() {
        const TestLibrary library;
        LoadResources();
    }

    void RulesAreOneALineInQuotedFields() {
        CellList rules;
        rules.Append(MakeRule("", "Title", "contains", "gear wheel", 2));
        rules.Append(MakeRule("OR", "Released", "is Yes", "", 9));
        WriteSavedSearch(Path(), rules);
        QCOMPARE(Bytes(), QByteArray("\"Title\" \"contains\" \"gear wheel\"\n"
                                     "\"OR\" \"Released\" \"is Yes\" \"\"\n"));
    }

    void WhatIsWrittenIsReadAgain() {
        CellList rules;
        rules.Append(MakeRule("", "Title", gStrings[298], QString::fromUtf8("Zahnräder 齿轮"), 2));
        rules.Append(MakeRule(gStrings[279], "Weight", ">=", "2", 8));
        rules.Append(MakeRule("", "Released", gStrings[300], "", 9));
        rules.Append(MakeRule("", "", gStrings[296], " blanks ", 0));
        WriteSavedSearch(Path(), rules);
        CellList read;
        ReadSavedSearch(Path(), OperatorTexts(Operators::All), read);
        QCOMPARE(Texts(read), Texts(rules));
        WriteSavedSearch(Path(), CellList());
        QCOMPARE(Bytes(), QByteArray());
    }

    void OperatorsOfAnotherLanguageGetTheFirstCode() {
        const QByteArray contains = gStrings[298].toUtf8();
        QCOMPARE(Read("\"Titel\" \"" + contains + "\" \"x\"\n\"Titel\" \"umfasst\" \"x\"\n"),
                 QStringList({"|Titel|" + gStrings[298] + "|x|2", "|Titel|umfasst|x|0"}));
    }

    void LinesThatAreNoRulesAreSkipped() {
        QCOMPARE(Read("\n\"P\" \"=\" \"1\"\n\n  \nplain\n\"P\" \"=\"\n\"P\" \"=\" \"a \"quote b\"\n"
                      "\"a\" \"b\" \"c\" \"d\" \"e\"\n\"\"\"\n\"OR\" \"P\" \"<\" \"2\"\n"),
                 QStringList({"|P|=|1|3", "OR|P|<|2|5"}));
    }

    void AFieldWithAQuoteIsLostAlone() {
        CellList rules;
        rules.Append(MakeRule("", "P", "=", "1", 3));
        rules.Append(MakeRule("", "P", "=", "2\"", 3));
        rules.Append(MakeRule("", "P", "=", "3", 3));
        WriteSavedSearch(Path(), rules);
        CellList read;
        ReadSavedSearch(Path(), OperatorTexts(Operators::All), read);
        QCOMPARE(Texts(read), QStringList({"|P|=|1|3", "|P|=|3|3"}));
    }

    void EveryLineEndIsTaken() {
        const QStringList both = {"|P|=|1|3", "|P|=|2|3"};
        QCOMPARE(Read("\"P\" \"=\" \"1\"\n\"P\" \"=\" \"2\""), both);
        QCOMPARE(Read("\"P\" \"=\" \"1\"\r\n\"P\" \"=\" \"2\"\r\n"), both);
        QCOMPARE(Read("\"P\" \"=\" \"1\"\r\n\"P\" \"=\" \"2\""), both);
    }

    void FilesInOtherEncodingsAreRead() {
        const QString line = QString::fromUtf8("\"Größe – “€”\" \"=\" \"1\"");
        const QString rule = QString::fromUtf8("|Größe – “€”|=|1|3");
        QCOMPARE(Read(line.toUtf8()), QStringList(rule));
        QCOMPARE(Read("\xEF\xBB\xBF" + line.toUtf8()), QStringList(rule));
        QCOMPARE(Read("\"Gr\xF6\xDF"
                      "e \x96 \x93\x80\x94\" \"=\" \"1\""),
                 QStringList(rule));
        for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE}) {
            QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
            QCOMPARE(Read(encoder(line)), QStringList(rule));
        }
    }

    void BinaryFilesHoldNoRules() {
        QByteArray bytes;
        for (int i = 0; i < 100'000; ++i)
            bytes += char(i * 7919 >> 3);
        for (const QByteArray& part : {bytes, QByteArray(1000, '\0'), QByteArray("\xFF\xFE\x22")}) {
            const QStringList rules = Read(part);
            QVERIFY(rules.size() < 100);  // and no crash
        }
        QCOMPARE(Read(QByteArray("\0\"P\" \"=\" \"a\0b\"", 14)).size(), 1);
    }

    void AHugeFileIsReadAsFarAsItGoes() {
        const QByteArray line = "\"P\" \"=\" \"1\"\n";
        Put(line.repeated(100'000));
        CellList rules;
        QVERIFY_THROWS_EXCEPTION(DocumentError, ReadSavedSearch(Path(), {"="}, rules));
        QCOMPARE(rules.Count(), (1 << 20) / int(line.size()));
        QCOMPARE(Read("\"P\" \"=\" \"" + QByteArray(1'000'000, 'x') + "\"").size(), 1);
    }

    // Without its end, a line of nine pieces has seven.
    void AHugeFileThatIsCutInTheMidstOfARuleLosesThatRule() {
        const QByteArray line = "\"OR\" \"P\" \"=\" \"1\"\n";
        for (int offset = 0; offset < line.size(); ++offset) {
            Put(QByteArray(offset, '\n') + line.repeated(100'000));
            CellList rules;
            QVERIFY_THROWS_EXCEPTION(DocumentError, ReadSavedSearch(Path(), {"="}, rules));
            QCOMPARE(rules.Count(), ((1 << 20) - offset) / int(line.size()));
            QCOMPARE(Texts(rules).last(), QString("OR|P|=|1|0"));
        }
    }

    void AHugeFileMayBeCutInTheMidstOfACharacter() {
        for (int offset = 0; offset < 3; ++offset) {
            Put("\"P\" \"=\" \"\xC3\xA9\"\n" + QByteArray(offset, ' ') +
                QByteArray("\xE9\xBD\xBF").repeated(400'000));
            CellList rules;
            QVERIFY_THROWS_EXCEPTION(DocumentError, ReadSavedSearch(Path(), {"="}, rules));
            QCOMPARE(Texts(rules), QStringList(QString::fromUtf8("|P|=|é|0")));
        }
    }

    void WhatCanNotBeReadIsAnError() {
        CellList rules;
        QVERIFY_THROWS_EXCEPTION(DocumentError,
                                 ReadSavedSearch(folder_.filePath("none.tdbs"), {}, rules));
        QVERIFY_THROWS_EXCEPTION(DocumentError, ReadSavedSearch(folder_.path(), {}, rules));
        QCOMPARE(rules.Count(), 0);
    }

    void AFailedWriteLeavesTheFileAsItWas() {
        Put("\"P\" \"=\" \"1\"\n");
        CellList rules;
        rules.Append(MakeRule("", "P", "=", "2", 3));
        QVERIFY_THROWS_EXCEPTION(DocumentError, WriteSavedSearch(folder_.path(), rules));
        QVERIFY_THROWS_EXCEPTION(DocumentError,
                                 WriteSavedSearch(folder_.filePath("no/such/folder.tdbs"), rules));
        {
            const SmallFiles full(4);
            QVERIFY_THROWS_EXCEPTION(DocumentError, WriteSavedSearch(Path(), rules));
        }
        QCOMPARE(Bytes(), QByteArray("\"P\" \"=\" \"1\"\n"));
        try {
            WriteSavedSearch(folder_.path(), rules);
        } catch (const DocumentError& error) {
            QVERIFY(error.Description().contains(folder_.path()));
        }
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestSavedSearch)
#include "tst_savedsearch.moc"
