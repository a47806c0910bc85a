#include <QFile>
#include <stdexcept>

#include "manual/completion.h"
#include "manual/words.h"

namespace manual {

namespace {

QString Template() {
    QFile file(QStringLiteral(":/completion.bash"));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("The frame of the bash completion is missing.");
    return QString::fromUtf8(file.readAll());
}

QString NameOf(WordKind kind, const QString& value) {
    switch (kind) {
        case WordKind::Document:
            return QStringLiteral("document");
        case WordKind::Folder:
            return QStringLiteral("folder");
        case WordKind::NewName:
            return QStringLiteral("text");
        case WordKind::Choice:
            return value.contains(u'|') ? value : value + u'|';
        case WordKind::File:
            break;
    }
    return QStringLiteral("file");
}

// A branch of a "case" for each command, made by `line`.
template <typename Line>
QString Branches(const QList<HelpText>& program, Line line) {
    QString text;
    for (const HelpText& help : program)
        text += QStringLiteral("        '%1') %2 ;;\n").arg(help.command, line(help));
    return text;
}

QString OptionWords(const HelpText& help) {
    QStringList words;
    for (const HelpEntry& option : help.options)
        words += NamesOf(option).names;
    return QStringLiteral("echo '%1'").arg(words.join(u' '));
}

QString ArgumentKinds(const HelpText& help) {
    QStringList kinds;
    for (const QString& word : ArgumentsOf(help.usage))
        kinds.append(NameOf(KindOfArgument(word), word) +
                     (word.contains(QLatin1String("...")) ? QStringLiteral("+") : QString()));
    return QStringLiteral("echo '%1'").arg(kinds.join(u' '));
}

QString ValueKinds(const HelpText& help) {
    QString text;
    for (const HelpEntry& option : help.options) {
        const OptionNames names = NamesOf(option);
        if (!names.value.isEmpty())
            text += QStringLiteral("            %1) echo '%2' ;;\n")
                        .arg(names.names.join(u'|'), NameOf(KindOfValue(names.value), names.value));
    }
    return text.isEmpty() ? QStringLiteral(":")
                          : QStringLiteral("case $2 in\n%1        esac").arg(text);
}

}  // namespace

QString BashCompletion(const QList<HelpText>& program) {
    const QString name = program.first().program;
    QStringList commands;
    for (const HelpEntry& command : program.first().commands)
        commands.append(command.name);
    return Template()
        .replace(QLatin1String("@program@"), name)
        .replace(QLatin1String("@function@"), QString(name).replace(u'-', u'_'))
        .replace(QLatin1String("@extensions@"), DocumentExtensions().join(u' '))
        .replace(QLatin1String("@commands@"), commands.join(u' '))
        .replace(QLatin1String("@options@"), Branches(program, OptionWords))
        .replace(QLatin1String("@values@"), Branches(program, ValueKinds))
        .replace(QLatin1String("@words@"), Branches(program, ArgumentKinds));
}

}  // namespace manual
