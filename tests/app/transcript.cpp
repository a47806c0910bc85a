#include "tests/app/transcript.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <algorithm>
#include <utility>

namespace docbench {

namespace {

const QString kUnchanged = QStringLiteral("= unchanged");

// The columns of a table that holds the folder's path, which is as long as it is.
QString WithoutPadding(const QString& line) {
    static const QRegularExpression padding(QStringLiteral("(?<=\\S)  +"));
    return QString(line).replace(padding, QStringLiteral("  "));
}

bool AgreeInLine(const QString& expected, const QString& printed) {
    const QLatin1String glob(" (glob)");
    if (!expected.endsWith(glob)) {
        const bool hasNoPadding = WithoutPadding(printed) == printed;
        return expected == printed || (hasNoPadding && WithoutPadding(expected) == printed);
    }
    QString pattern = QRegularExpression::escape(expected.chopped(glob.size()));
    pattern.replace(QLatin1String("\\*"), QLatin1String(".*"));
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern))
        .match(printed)
        .hasMatch();
}

QProcessEnvironment EnvironmentIn(const QString& settings) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const auto set = [&](const char* name, const QString& value) {
        environment.insert(QLatin1String(name), value);
    };
    set("PATH", QCoreApplication::applicationDirPath() + QStringLiteral(":/usr/bin:/bin"));
    set("XDG_CONFIG_HOME", settings);
    set("QT_QPA_PLATFORM", QStringLiteral("offscreen"));
    set("LC_ALL", QStringLiteral("C.UTF-8"));
    set("TZ", QStringLiteral("UTC"));
    set("TERM", QStringLiteral("dumb"));
    environment.remove(QStringLiteral("NO_COLOR"));
    return environment;
}

}  // namespace

std::vector<Step> ReadTranscript(const QString& text, bool isMarkdown) {
    std::vector<Step> steps;
    bool isInside = !isMarkdown;
    qsizetype number = 0;
    QStringList comment;
    for (const QString& line : text.split(u'\n')) {
        ++number;
        if (isMarkdown && line.startsWith(QLatin1String("```"))) {
            isInside = line == QLatin1String("```console");
        } else if (!isInside) {
            continue;
        } else if (line.startsWith(QLatin1String("$ "))) {
            steps.push_back({std::exchange(comment, {}), line.mid(2), {}, number});
        } else if (line.startsWith(QLatin1String("# "))) {
            comment.append(line);
        } else if (!steps.empty() && line.startsWith(QLatin1String("> "))) {
            steps.back().command += u'\n' + line.mid(2);
        } else if (!steps.empty() && !line.isEmpty()) {
            steps.back().expected.append(line);
        }
    }
    return steps;
}

TranscriptRunner::TranscriptRunner(const QString& folder, const QString& token)
    : files_(QDir(folder).canonicalPath() + QStringLiteral("/files")),
      settings_(QDir(folder).canonicalPath() + QStringLiteral("/settings")),
      token_(token) {
    QDir().mkpath(files_);
    QDir().mkpath(settings_);
}

QStringList TranscriptRunner::Run(const Step& step) const {
    const bool watches = step.expected.value(0) == kUnchanged;
    const QByteArray before = watches ? FolderDigest() : QByteArray();
    QProcess process;
    process.setWorkingDirectory(files_);
    process.setProcessEnvironment(EnvironmentIn(settings_));
    process.start(QStringLiteral("/bin/sh"),
                  {QStringLiteral("-c"), QString(step.command).replace(token_, files_)});
    process.closeWriteChannel();
    constexpr int kLongest = 60'000;  // a command that hangs
    if (!process.waitForFinished(kLongest))
        return {QStringLiteral("(does not end)")};
    QStringList lines;
    if (watches)
        lines.append(FolderDigest() == before ? kUnchanged : QStringLiteral("= CHANGED"));
    lines += LinesOf(process.readAllStandardOutput(), QString());
    lines += LinesOf(process.readAllStandardError(), QStringLiteral("! "));
    const int code = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    if (code != 0)
        lines.append(QStringLiteral("[%1]").arg(code));
    return lines;
}

bool TranscriptRunner::Agree(const QStringList& expected, const QStringList& printed) {
    return std::equal(expected.begin(), expected.end(), printed.begin(), printed.end(),
                      AgreeInLine);
}

// Names, modes and bytes of all files, in order.
QByteArray TranscriptRunner::FolderDigest() const {
    QStringList paths;
    QDirIterator files(files_, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(files.next());
    paths.sort();
    QCryptographicHash digest(QCryptographicHash::Sha256);
    for (const QString& path : paths) {
        QFile file(path);
        digest.addData(path.toUtf8() + '\n' + QByteArray::number(int(file.permissions())));
        if (file.open(QIODevice::ReadOnly))
            digest.addData(file.readAll());
    }
    return digest.result();
}

QStringList TranscriptRunner::LinesOf(const QByteArray& output, const QString& mark) const {
    QString text = QString::fromUtf8(output);
    const bool hasPath = text.contains(files_);
    text.replace(files_, token_);
    text.replace(QChar(u'\0'), QChar(u'\u2400'));
    for (QChar& one : text) {
        if (one != u'\n' && one.category() == QChar::Other_Control)
            one = u'\u241b';
    }
    QStringList lines;
    for (const QString& line : text.split(u'\n')) {
        if (!line.isEmpty())
            lines.append(mark + (hasPath ? WithoutPadding(line) : line));
    }
    return lines;
}

}  // namespace docbench
