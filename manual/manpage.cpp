#include "manual/manpage.h"

#include <QRegularExpression>
#include <utility>

namespace manual {

namespace {

// Text with nothing in it that roff takes for its own. `literal`: it is to be typed as it stands,
// so marks must not become typographic ones.
QString Escaped(const QString& text, bool literal) {
    QString escaped = text;
    escaped.replace(u'\\', QLatin1String("\\e"));
    if (literal) {
        static constexpr std::pair<char16_t, const char*> kMarks[] = {
            {u'-', "\\-"}, {u'\'', "\\(aq"}, {u'`', "\\(ga"}, {u'^', "\\(ha"}, {u'~', "\\(ti"}};
        for (const auto& [mark, name] : kMarks)
            escaped.replace(QChar(mark), QLatin1String(name));
    }
    if (escaped.startsWith(u'.') || escaped.startsWith(u'\''))
        escaped.prepend(QLatin1String("\\&"));
    return escaped;
}

// Prose: options in it are to be typed as they stand.
QString Prose(const QString& text) {
    static const QRegularExpression option(QStringLiteral("(?<![\\w-])--?[a-z0-9][a-z-]*"));
    QString result = Escaped(text, false);
    qsizetype from = 0;
    for (auto match = option.match(result, from); match.hasMatch();
         match = option.match(result, from)) {
        const QString typed = QStringLiteral("\\fB%1\\fR").arg(Escaped(match.captured(), true));
        result.replace(match.capturedStart(), match.capturedLength(), typed);
        from = match.capturedStart() + typed.size();
    }
    return result;
}

QString Bold(const QString& text) {
    return QStringLiteral("\\fB%1\\fR").arg(Escaped(text, true));
}

QString Italic(const QString& text) {
    return QStringLiteral("\\fI%1\\fR").arg(Escaped(text, true));
}

// A usage such as "[options] FILE...", whose words stand for others.
QString Usage(const QString& usage) {
    static const QRegularExpression word(QStringLiteral("[A-Za-z]+"));
    QString result;
    qsizetype from = 0;
    for (auto matches = word.globalMatch(usage); matches.hasNext();) {
        const auto match = matches.next();
        result +=
            Escaped(usage.mid(from, match.capturedStart() - from), true) + Italic(match.captured());
        from = match.capturedEnd();
    }
    result += Escaped(usage.mid(from), true);
    // A usage that begins with dots must not look like a request.
    return result.startsWith(u'.') ? QStringLiteral("\\&") + result : result;
}

QString OptionLine(const HelpEntry& option) {
    const OptionNames names = NamesOf(option);
    QStringList bold;
    for (const QString& name : names.names)
        bold.append(Bold(name));
    const QString line = bold.join(QLatin1String(", "));
    return names.value.isEmpty() ? line : line + u' ' + Italic(names.value);
}

QString Paragraphs(const QStringList& lines) {
    QString text;
    bool isExample = false;
    bool isNew = true;
    for (const QString& line : lines) {
        const bool indented = line.startsWith(u' ');
        if (isExample && !indented) {
            text += QLatin1String(".EE\n.RE\n");
            isExample = false;
            isNew = true;
        }
        if (line.isEmpty()) {
            isNew = true;
            continue;
        }
        if (indented && !isExample) {
            text += QLatin1String(".PP\n.RS 4\n.EX\n");
            isExample = true;
        } else if (!indented && isNew) {
            text += QLatin1String(".PP\n");
        }
        isNew = false;
        text += (indented ? Escaped(line.trimmed(), true) : Prose(line)) + u'\n';
    }
    return isExample ? text + QLatin1String(".EE\n.RE\n") : text;
}

QString Section(const char* title, const QString& text) {
    return text.isEmpty() ? text : QStringLiteral(".SH %1\n%2").arg(QLatin1String(title), text);
}

QString Tagged(const QString& tag, const QString& text) {
    return QStringLiteral(".TP\n%1\n%2\n").arg(tag, text);
}

QString Commands(const HelpText& help) {
    QString text;
    for (const HelpEntry& command : help.commands)
        text += Tagged(Bold(help.program + u' ' + command.name), Prose(command.text));
    return text;
}

QString SeeAlso(const QStringList& others) {
    QStringList names;
    for (const QString& other : others)
        names.append(QStringLiteral(".BR %1 (1)").arg(Escaped(other, true)));
    return names.isEmpty() ? QString() : names.join(QLatin1String(",\n")) + u'\n';
}

QString ExitStatus(const HelpText& help) {
    QString text;
    for (const QString& code : help.exitCodes)
        text += Tagged(Bold(code.left(1)), Prose(code.mid(2)));
    return text;
}

}  // namespace

QString PageName(const HelpText& help) {
    return help.command.isEmpty() ? help.program : help.program + u'-' + help.command;
}

QStringList OtherPages(const HelpText& help, const QList<HelpText>& all) {
    if (!help.command.isEmpty())
        return {help.program};
    QStringList names;
    for (const HelpText& page : all)
        if (page.program == help.program && !page.command.isEmpty())
            names.append(PageName(page));
    for (const HelpText& page : all)
        if (page.program != help.program && page.command.isEmpty())
            names.append(PageName(page));
    return names;
}

QString ManPage(const HelpText& help, const QStringList& others, const QString& version) {
    const QString name = PageName(help);
    QString options;
    for (const HelpEntry& option : help.options)
        options += Tagged(OptionLine(option), Prose(option.text));
    QString arguments;
    for (const HelpEntry& argument : help.arguments)
        arguments += Tagged(Usage(argument.name), Prose(argument.text));
    const QString called = help.command.isEmpty() ? name : help.program + u' ' + help.command;
    return QStringLiteral(
               ".\\\" Made from the help of %1.\n.TH %2 1 \"\" \"Docbench %3\" \"Docbench\"\n")
               .arg(called, Escaped(name.toUpper(), true), version) +
           Section("NAME",
                   Escaped(name, true) + QLatin1String(" \\- ") + Prose(help.summary) + u'\n') +
           Section("SYNOPSIS", Bold(called) + u' ' + Usage(help.usage) + u'\n') +
           Section("DESCRIPTION", Paragraphs(help.description)) + Section("ARGUMENTS", arguments) +
           Section("OPTIONS", options) + Section("COMMANDS", Commands(help)) +
           Section("EXIT STATUS", ExitStatus(help)) + Section("SEE ALSO", SeeAlso(others));
}

}  // namespace manual
