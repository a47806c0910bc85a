// Transcripts: text files that hold commands with what they print, for tests and documents alike.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace docbench {

// One command and what it is to print. In a file:
//
//   $ docbench tree top.tfmasm         the command, run by the shell in the transcript's folder
//   > more of it                       on a further line
//   = unchanged                        no file of the folder is changed by it, by a byte
//   top  DIR/top.tfmasm                standard output; DIR stands for the folder
//   ! DIR/lost.tfmprt is not there     standard error
//   [1]                                the exit code, unless it is 0
//
// An expected line that ends in " (glob)" may hold "*". NUL reads as ␀, other control characters as
// ␛. A line "# ..." is a comment. Where an output names the folder, blanks between columns count as
// two, however many: the folder's length is in them.
struct Step {
    QStringList comment;  // the lines "# ..." in front of it
    QString command;
    QStringList expected;
    qsizetype line = 0;  // of the command, from 1
};

// `text` is a transcript, or with `isMarkdown` a document that has it in its blocks of "console".
std::vector<Step> ReadTranscript(const QString& text, bool isMarkdown = false);

// Runs the commands of a transcript one after the other, in a folder and with settings of its own.
class TranscriptRunner {
public:
    // `folder` is an empty folder, `token` what stands for it in the text; the programs are found
    // in the folder of this one.
    TranscriptRunner(const QString& folder, const QString& token);

    // What the command prints, line by line as a transcript has it.
    QStringList Run(const Step& step) const;
    static bool Agree(const QStringList& expected, const QStringList& printed);

private:
    QByteArray FolderDigest() const;
    QStringList LinesOf(const QByteArray& output, const QString& mark) const;

    const QString files_;     // where the commands run
    const QString settings_;  // beside it
    const QString token_;
};

}  // namespace docbench
