#include "manual/completion.h"
#include "manual/words.h"

namespace manual {

namespace {

QString Quoted(const QString& text) {
    return u'\'' + QString(text).replace(u'\'', QLatin1String("'\\''")) + u'\'';
}

// A description within a rule, where brackets and colons separate.
QString Described(const QString& text) {
    QString escaped = text;
    for (const char16_t mark : {u'\\', u'[', u']', u':'})
        escaped.replace(QChar(mark), QStringLiteral("\\") + QChar(mark));
    return escaped;
}

QString Action(WordKind kind, const QString& value) {
    switch (kind) {
        case WordKind::Document: {
            const QString extensions = DocumentExtensions().join(u'|');
            return QStringLiteral("_files -g \"*.(#i)(%1)(-.)\"").arg(extensions);
        }
        case WordKind::Folder:
            return QStringLiteral("_files -/");
        case WordKind::Choice:
            return u'(' + QString(value).replace(u'|', u' ') + u')';
        case WordKind::NewName:
            return QStringLiteral(" ");
        case WordKind::File:
            break;
    }
    return QStringLiteral("_files");
}

// Options may be given several times where the help says so.
QString OptionRule(const HelpEntry& option) {
    const OptionNames names = NamesOf(option);
    const bool repeats = option.text.contains(QLatin1String("several times")) ||
                         option.text.contains(QLatin1String("repeated"));
    const QString what = QStringLiteral("[%1]").arg(Described(option.text));
    const QString value =
        names.value.isEmpty()
            ? QString()
            : QStringLiteral(":%1:%2").arg(names.value.toLower(),
                                           Action(KindOfValue(names.value), names.value));
    QStringList rules;
    for (const QString& name : names.names) {
        const QString before =
            repeats ? QStringLiteral("*") : QStringLiteral("(%1)").arg(names.names.join(u' '));
        // "--in FOLDER" and "--in=FOLDER".
        const QString joins = !value.isEmpty() && name.startsWith(QLatin1String("--"))
                                  ? QStringLiteral("=")
                                  : QString();
        rules.append(Quoted(before + name + joins + what + value));
    }
    return rules.join(QLatin1String(" \\\n        "));
}

QString ArgumentRule(const QString& word, int position) {
    const QString name =
        QString(word).remove(QLatin1String("...")).replace(u'|', QLatin1String(" or ")).toLower();
    const bool repeats = word.contains(QLatin1String("..."));
    return Quoted(QStringLiteral("%1:%2:%3")
                      .arg(repeats ? QStringLiteral("*") : QString::number(position), name,
                           Action(KindOfArgument(word), word)));
}

// The call that completes the words of one command.
QString Call(const HelpText& help) {
    QStringList rules;
    for (const HelpEntry& option : help.options)
        rules.append(OptionRule(option));
    int position = 0;
    for (const QString& word : ArgumentsOf(help.usage))
        rules.append(ArgumentRule(word, ++position));
    return QStringLiteral("_arguments -s -S \\\n        ") +
           rules.join(QLatin1String(" \\\n        "));
}

QString CommandList(const HelpText& help) {
    QString text;
    for (const HelpEntry& command : help.commands)
        text += QStringLiteral("        %1\n")
                    .arg(Quoted(command.name + u':' + Described(command.text)));
    return text;
}

}  // namespace

QString ZshCompletion(const QList<HelpText>& program) {
    const HelpText& main = program.first();
    QString branches;
    for (const HelpText& help : program)
        if (!help.command.isEmpty())
            branches += QStringLiteral(
                            "    %1)\n        shift words; ((CURRENT--))\n        %2\n"
                            "        ;;\n")
                            .arg(help.command, Call(help));
    const QString head =
        QStringLiteral("#compdef %1\n# zsh completion for %1, made from its help.\n")
            .arg(main.program);
    const QString first = QStringLiteral("    %1\n").arg(Call(main));
    if (branches.isEmpty())
        return head + QStringLiteral("\n") + Call(main) + u'\n';
    return head + QStringLiteral(
                      "\nlocal -a commands=(\n%1)\n"
                      "if ((CURRENT == 2)) && [[ $words[2] != -* ]]; then\n"
                      "    _describe command commands\n"
                      "fi\n"
                      "case $words[2] in\n%2    *)\n    %3\n        ;;\nesac\n")
                      .arg(CommandList(main), branches, first.trimmed());
}

}  // namespace manual
