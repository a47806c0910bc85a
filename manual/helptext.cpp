#include "manual/helptext.h"

#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <stdexcept>

namespace manual {

namespace {

const QRegularExpression kHeading(QStringLiteral("^(Options|Arguments|Commands)( \\(.*\\))?:$"));

QString Problem(const QString& program, const QString& command, const QString& what) {
    return QStringLiteral("The help of %1 %2 %3.").arg(program, command, what);
}

// "Shows the documents." as "shows the documents"; words in capitals stay.
QString AsSummary(const QString& sentence) {
    QString summary = sentence;
    if (const qsizetype end = summary.indexOf(QLatin1String(". ")); end > 0)
        summary.truncate(end);
    while (summary.endsWith(u'.'))
        summary.chop(1);
    if (summary.size() > 1 && summary[1].isLower())
        summary[0] = summary[0].toLower();
    return summary;
}

// Takes a table's lines; what is indented deeper than a name continues the line before.
void AddToTable(QList<HelpEntry>& table, const QString& line) {
    static const QRegularExpression columns(QStringLiteral("^  (\\S.*?)(?:  +(.*))?$"));
    if (const auto match = columns.match(line); match.hasMatch()) {
        table.append({match.captured(1), match.captured(2)});
    } else if (!table.isEmpty()) {
        QString& text = table.last().text;
        text += (text.isEmpty() ? QString() : QStringLiteral(" ")) + line.trimmed();
    }
}

QList<HelpEntry>& TableOf(HelpText& help, const QString& heading) {
    if (heading == QLatin1String("Options"))
        return help.options;
    return heading == QLatin1String("Arguments") ? help.arguments : help.commands;
}

// "Exit codes: 0 done, 2 wrong usage." as one line a code.
QStringList ExitCodes(const QString& paragraph) {
    static const QRegularExpression code(QStringLiteral("\\b([0-9]) (.*?)(?=, [0-9] |\\.?$)"));
    QStringList codes;
    for (auto match = code.globalMatch(paragraph); match.hasNext();)
        codes.append(match.next().captured());
    return codes;
}

// What stands behind the tables: the exit codes, and remarks for who reads it in a terminal.
void ReadEnd(HelpText& help, const QStringList& lines) {
    static const QString mark = QStringLiteral("Exit codes: ");
    const QString text = lines.join(u' ');
    if (const qsizetype begin = text.indexOf(mark); begin >= 0)
        help.exitCodes = ExitCodes(text.mid(begin + mark.size()).trimmed());
}

void TrimLines(QStringList& lines) {
    while (!lines.isEmpty() && lines.last().trimmed().isEmpty())
        lines.removeLast();
    while (!lines.isEmpty() && lines.first().trimmed().isEmpty())
        lines.removeFirst();
}

QString FirstParagraph(const QStringList& lines) {
    QStringList paragraph;
    for (const QString& line : lines) {
        if (line.isEmpty())
            break;
        paragraph.append(line);
    }
    return paragraph.join(u' ');
}

QString OutputOf(const QString& file, const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    process.setProcessEnvironment(environment);
    process.start(file, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        throw std::runtime_error(QStringLiteral("%1 %2 failed: %3")
                                     .arg(file, arguments.join(u' '), process.errorString())
                                     .toStdString());
    return QString::fromUtf8(process.readAllStandardOutput());
}

}  // namespace

HelpText ParseHelp(const QString& text, const QString& program, const QString& command) {
    static const QRegularExpression usage(QStringLiteral("^Usage: \\S+ ?(.*)$"));
    QStringList lines = text.split(u'\n');
    const auto begin = usage.match(lines.takeFirst());
    if (!begin.hasMatch())
        throw std::runtime_error(
            Problem(program, command, QStringLiteral("does not begin with its usage"))
                .toStdString());
    HelpText help = {.program = program, .command = command, .usage = begin.captured(1)};
    if (!command.isEmpty() && help.usage.startsWith(command + u' '))
        help.usage.remove(0, command.size() + 1);
    QList<HelpEntry>* table = nullptr;
    QStringList end;
    for (const QString& line : lines) {
        if (const auto heading = kHeading.match(line); heading.hasMatch())
            table = &TableOf(help, heading.captured(1));
        else if (!table)
            help.description.append(line);
        else if (line.startsWith(QLatin1String("  ")))
            AddToTable(*table, line);
        else
            end.append(line);
    }
    TrimLines(help.description);
    ReadEnd(help, end);
    help.summary = AsSummary(FirstParagraph(help.description));
    return help;
}

OptionNames NamesOf(const HelpEntry& option) {
    static const QRegularExpression value(QStringLiteral(" <(.*)>$"));
    OptionNames result;
    QString names = option.name;
    if (const auto match = value.match(names); match.hasMatch()) {
        result.value = match.captured(1);
        names.truncate(match.capturedStart());
    }
    result.names = names.split(QStringLiteral(", "));
    return result;
}

QList<HelpText> HelpOfProgram(const QString& file) {
    const QString program = QFileInfo(file).fileName();
    const QString option = QStringLiteral("--help");
    QList<HelpText> all = {ParseHelp(OutputOf(file, {option}), program, {})};
    const QList<HelpEntry> commands = all.first().commands;
    for (const HelpEntry& command : commands) {
        HelpText help = ParseHelp(OutputOf(file, {command.name, option}), program, command.name);
        help.summary = AsSummary(command.text);
        help.exitCodes = all.first().exitCodes;
        all.append(help);
    }
    return all;
}

}  // namespace manual
