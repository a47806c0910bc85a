// The language files of the source tree, as their translators wrote them.
#pragma once

#include <QMap>
#include <QStringList>

namespace docbench {

struct Role {
    int number;
    const char* name;
    int values;
};

const QList<Role>& Roles();  // all of lang/texts.def, in its order

QStringList LanguageNames();  // the folders below lang/
QString LanguageFileOf(const QString& language);

struct LanguageFile {
    QStringList ids;              // of the messages, in the file's order
    QMap<int, QString> texts;     // by number
    QMap<int, QString> comments;  // for the translator, by number
    QString error;                // empty when the file could be read

    // The texts of the numbers, in the order asked for.
    QStringList Of(const QList<int>& numbers) const;
};

LanguageFile ReadLanguageFile(const QString& file);

}  // namespace docbench
