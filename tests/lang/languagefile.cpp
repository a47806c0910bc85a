#include "tests/lang/languagefile.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

namespace docbench {

const QList<Role>& Roles() {
    static const QList<Role> roles{
#define TEXT(number, role, values) Role{number, #role, values},
#include "lang/texts.def"
#undef TEXT
    };
    return roles;
}

QStringList LanguageNames() {
    return QDir(QStringLiteral(DOCBENCH_LANG_DIR)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

QString LanguageFileOf(const QString& language) {
    return QStringLiteral(DOCBENCH_LANG_DIR "/%1/tessadocres.ts").arg(language);
}

QStringList LanguageFile::Of(const QList<int>& numbers) const {
    QStringList found;
    for (const int number : numbers)
        found.append(texts.value(number));
    return found;
}

LanguageFile ReadLanguageFile(const QString& file) {
    LanguageFile read;
    QFile source(file);
    if (!source.open(QFile::ReadOnly)) {
        read.error = file + u' ' + source.errorString();
        return read;
    }
    QXmlStreamReader xml(&source);
    int number = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("message")) {
            read.ids.append(xml.attributes().value(QLatin1String("id")).toString());
            number = read.ids.last().section(u'-', 1).toInt();
        } else if (xml.name() == QLatin1String("translation")) {
            read.texts.insert(number, xml.readElementText());
        } else if (xml.name() == QLatin1String("extracomment")) {
            read.comments.insert(number, xml.readElementText());
        }
    }
    if (xml.hasError())
        read.error = file + u' ' + xml.errorString();
    return read;
}

}  // namespace docbench
