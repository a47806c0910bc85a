#include "app/commands/lockcommand.h"

#include <QJsonArray>
#include <QSet>

#include "app/commands/console.h"
#include "app/exitcodes.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/texts.h"
#include "services/webdocument.h"
#include "shell/locking.h"
#include "shell/referencetree.h"

namespace docbench {

namespace {

const QString kBelowOption = QStringLiteral("below");

// The documents that are meant: the first, or all below it, each once.
QStringList Meant(const ReferenceTree& tree, bool below) {
    if (!below)
        return {tree.Nodes().At(1).tag};
    QStringList paths;
    QSet<QString> seen;
    for (int node = 2; node <= tree.Nodes().Count(); ++node) {
        const QString path = tree.Nodes().At(node).tag;
        if (!seen.contains(path))
            paths.append(path);
        seen.insert(path);
    }
    return paths;
}

}  // namespace

QString LockCommand::Name() const {
    return does_ == Does::Lock ? QStringLiteral("lock") : QStringLiteral("unlock");
}

QString LockCommand::Summary() const {
    return does_ == Does::Lock ? QStringLiteral("reserves a document under your name")
                               : QStringLiteral("gives a document free that you reserved");
}

QString LockCommand::Help() const {
    return QStringLiteral(
               "The record is in the document, and every user sees it. Only who locked a document "
               "can unlock it.\n\n  docbench %1 --yes gearbox.tfmasm\n")
        .arg(Name());
}

QList<QCommandLineOption> LockCommand::Options() const {
    QList<QCommandLineOption> options{
        {kBelowOption, QStringLiteral("The documents below FILE in its tree, without itself.")}};
    return options + ChangeOptions();
}

int LockCommand::Run(const QCommandLineParser& line, Console& console) const {
    const QString document = DocumentPath(line.positionalArguments().first());
    gWebDocument = IsWebPath(document);
    ReferenceTree tree;
    if (!tree.Load(document)) {
        console.Warn(Format(Text::DocumentNotFound, document));
        return kExitNoDocument;
    }
    const bool wantLocked = does_ == Does::Lock;
    const bool below = line.isSet(kBelowOption);
    const QStringList meant = Meant(tree, below);
    TextTable plan = {{QStringLiteral("Document"), QStringLiteral("Change")}};
    for (const QString& path : meant)
        plan.push_back({path, Name()});
    const Decision decision = DecideAbout(plan, line, console);
    if (decision != Decision::Go)
        return ExitCodeOf(decision, console);

    if (below)
        ApplyLockToChildren(tree, wantLocked, 1);
    else
        ApplyLock(tree, wantLocked, 1);
    TextTable outcome = {{QStringLiteral("Document"), QStringLiteral("State")}};
    bool done = true;
    for (const QString& path : meant) {
        const std::optional<bool> locked = ReadLockState(path);
        done &= locked == wantLocked;
        outcome.push_back({path, !locked   ? QStringLiteral("unknown")
                                 : *locked ? QStringLiteral("locked")
                                           : QStringLiteral("free")});
    }
    console.PrintTable(outcome);
    console.PrintJson({{QStringLiteral("rows"), RowsAsJson(outcome)}});
    return done ? kExitDone : kExitPartly;
}

}  // namespace docbench
