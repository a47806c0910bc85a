#include "app/commands/console.h"

#include <unistd.h>
#include <wchar.h>

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>

#include "app/exitcodes.h"

namespace docbench {

namespace {

constexpr int kJsonVersion = 1;
const QString kDryRunOption = QStringLiteral("dry-run");
const QString kYesOption = QStringLiteral("yes");

// The columns that a text takes on a terminal, where many characters of East Asia take two.
qsizetype WidthOf(const QString& text) {
    qsizetype width = 0;
    for (const char32_t one : text.toUcs4()) {
        const int columns = wcwidth(wchar_t(one));
        width += columns < 0 ? 1 : columns;  // the system knows no better
    }
    return width;
}

std::vector<qsizetype> Widths(const TextTable& table) {
    std::vector<qsizetype> widths;
    for (const auto& row : table) {
        widths.resize(std::max(widths.size(), size_t(row.size())));
        for (size_t i = 0; i < size_t(row.size()); ++i)
            widths[i] = std::max(widths[i], WidthOf(OneLine(row[i])));
    }
    return widths;
}

void WriteTable(const TextTable& table, QTextStream& stream, bool boldHeaders) {
    const std::vector<qsizetype> widths = Widths(table);
    for (size_t row = 0; row < table.size(); ++row) {
        QString line;
        for (size_t i = 0; i < size_t(table[row].size()); ++i) {
            const QString cell = OneLine(table[row][i]);
            line += cell + QString(widths[i] + 2 - WidthOf(cell), u' ');
        }
        while (line.endsWith(u' '))
            line.chop(1);
        if (row == 0 && boldHeaders)
            line = QStringLiteral("\x1b[1m") + line + QStringLiteral("\x1b[0m");
        stream << line << '\n';
    }
}

// The columns that hold whole numbers.
bool IsNumberColumn(const QString& header) {
    return header == QLatin1String("Position") || header == QLatin1String("Size");
}

}  // namespace

QString OneLine(QString text) {
    for (QChar& c : text) {
        if (c.category() == QChar::Other_Control)
            c = u'\ufffd';
    }
    return text;
}

Console::Console(const QString& command, Format format)
    : command_(command),
      format_(format),
      out_(stdout),
      err_(stderr),
      watched_(isatty(STDERR_FILENO) == 1),
      coloured_(isatty(STDOUT_FILENO) == 1 && qEnvironmentVariableIsEmpty("NO_COLOR")) {}

Console::~Console() {
    ShowProgress(QString());
}

void Console::PrintTable(const TextTable& table) {
    ShowProgress(QString());
    if (format_ == Format::Json)
        return;
    if (format_ == Format::Null) {
        for (size_t row = 1; row < table.size(); ++row)
            out_ << table[row].front() << QChar(u'\0');
        return;
    }
    WriteTable(table, out_, coloured_);
}

// On standard error, as the question is: standard output may lead to a file, or take JSON.
void Console::ShowPlan(const TextTable& table) {
    ShowProgress(QString());
    WriteTable(table, err_, false);
}

void Console::PrintJson(QJsonObject result) {
    ShowProgress(QString());
    if (format_ != Format::Json)
        return;
    result.insert(QStringLiteral("version"), kJsonVersion);
    result.insert(QStringLiteral("command"), command_);
    out_ << QString::fromUtf8(QJsonDocument(result).toJson(QJsonDocument::Compact)) << '\n';
}

bool Console::Finish() {
    ShowProgress(QString());
    out_.flush();
    if (out_.status() == QTextStream::Ok)
        return true;
    Warn(QStringLiteral("The output can't be written."));
    return false;
}

void Console::ShowProgress(const QString& text) {
    if (!watched_ || (text.isEmpty() && !progressShown_))
        return;
    err_ << "\r\x1b[K" << OneLine(text);
    err_.flush();
    progressShown_ = !text.isEmpty();
}

void Console::Warn(const QString& text) {
    ShowProgress(QString());
    out_.flush();
    err_ << text << '\n';
    err_.flush();
}

void Console::WarnOfUnread(int documents) {
    if (documents == 1)
        Warn(QStringLiteral("1 document could not be read."));
    else if (documents > 1)
        Warn(QStringLiteral("%1 documents could not be read.").arg(documents));
}

bool Console::Ask(const QString& question) {
    out_.flush();
    err_ << question << " [y/N] ";
    err_.flush();
    QTextStream in(stdin);
    return in.readLine().trimmed().compare(QLatin1String("y"), Qt::CaseInsensitive) == 0;
}

bool Console::IsInteractive() {
    return isatty(STDIN_FILENO) == 1 && isatty(STDERR_FILENO) == 1;
}

QList<QCommandLineOption> ChangeOptions() {
    return {{kDryRunOption, QStringLiteral("Prints what would be written, and changes nothing.")},
            {{QStringLiteral("y"), kYesOption},
             QStringLiteral("Doesn't ask. Needed where nobody can be asked.")}};
}

bool IsDryRun(const QCommandLineParser& line) {
    return line.isSet(kDryRunOption);
}

Decision DecideAbout(const TextTable& plan, const QCommandLineParser& line, Console& console) {
    if (IsDryRun(line)) {
        console.PrintTable(plan);
        console.PrintJson(
            {{QStringLiteral("dryRun"), true}, {QStringLiteral("changes"), RowsAsJson(plan)}});
        return Decision::DryRun;
    }
    if (line.isSet(kYesOption))
        return Decision::Go;
    if (!Console::IsInteractive())
        return Decision::NeedsYes;
    console.ShowPlan(plan);
    return console.Ask(QStringLiteral("Write this?")) ? Decision::Go : Decision::No;
}

int ExitCodeOf(Decision decision, Console& console) {
    switch (decision) {
        case Decision::NeedsYes:
            console.Warn(
                QStringLiteral("Nothing was changed: nobody can be asked here. Add --yes, "
                               "or --dry-run to see what would be written."));
            return kExitUsage;
        case Decision::No:
            console.Warn(QStringLiteral("Nothing was changed."));
            return kExitPartly;
        case Decision::DryRun:
        case Decision::Go:
            break;
    }
    return kExitDone;
}

int TellChanged(const QString& document, bool isChanged, bool done, Console& console) {
    const TextTable outcome = {{QStringLiteral("Document"), QStringLiteral("Status")},
                               {document, !isChanged ? QStringLiteral("unchanged")
                                          : done     ? QStringLiteral("updated")
                                                     : QStringLiteral("failed")}};
    console.PrintTable(outcome);
    console.PrintJson({{QStringLiteral("rows"), RowsAsJson(outcome)}});
    return done ? kExitDone : kExitPartly;
}

QJsonArray RowsAsJson(const TextTable& table) {
    QJsonArray rows;
    for (size_t row = 1; row < table.size(); ++row) {
        QJsonObject object;
        for (size_t i = 0; i < size_t(table[row].size()); ++i)
            object.insert(table.front()[i].toLower(), IsNumberColumn(table.front()[i])
                                                          ? QJsonValue(table[row][i].toLongLong())
                                                          : QJsonValue(table[row][i]));
        rows.append(object);
    }
    return rows;
}

}  // namespace docbench
