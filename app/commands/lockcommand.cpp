#include "app/commands/lockcommand.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QSet>
#include <algorithm>
#include <optional>

#include "app/commands/console.h"
#include "app/exitcodes.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/texts.h"
#include "services/webcopies.h"
#include "services/webdocument.h"
#include "shell/locking.h"
#include "shell/referencetree.h"

namespace docbench {

namespace {

const QString kBelowOption = QStringLiteral("below");

// A document that is meant, with the place where it stands in the tree first.
struct Meant {
    QString path;
    int node;
};

// The first document, or all below it, each once.
std::vector<Meant> DocumentsOf(const ReferenceTree& tree, bool below) {
    const QString first = tree.Nodes().At(1).tag;
    if (!below)
        return {{first, 1}};
    std::vector<Meant> documents;
    QSet<QString> seen{first};
    for (int node = 2; node <= tree.Nodes().Count(); ++node) {
        const QString path = tree.Nodes().At(node).tag;
        if (!seen.contains(path))
            documents.push_back({path, node});
        seen.insert(path);
    }
    return documents;
}

struct Reservation {
    std::optional<bool> locked = std::nullopt;  // none: the record can't be read
    QString user = {};
};

Reservation ReservationOf(const QString& path) {
    Reservation found;
    // Whatever keeps the record from being read, the state is not known then.
    ErrorState().Run([&] {
        const auto info = Documents().MakeDocumentInfo();
        if (!info->Open(LocalCopyOf(path)))
            return;
        found.locked = info->GetLocked();
        if (*found.locked)
            found.user = info->GetLockedBy();
    });
    return found;
}

// Why the document can be neither locked nor unlocked; empty when it can.
QString LockProblem(const QString& path) {
    if (!IsWebPath(path) && !QFileInfo::exists(path))
        return Format(Text::DocumentNotFound, path);
    if (const QString problem = WritingProblem(path); !problem.isEmpty())
        return problem;
    const Reservation found = ReservationOf(path);
    if (!found.locked)
        return Format(Text::DocumentNotReadable, path);
    if (*found.locked && !IsOwnLock(found.user))
        return Format(Text::LockedByOther, path, found.user);
    return {};
}

// The rows of all that was meant, and whether each is as it was wanted.
bool TellStates(const std::vector<Meant>& meant, bool wantLocked, Console& console) {
    TextTable outcome = {
        {QStringLiteral("Document"), QStringLiteral("State"), QStringLiteral("User")}};
    bool done = true;
    for (const Meant& document : meant) {
        const Reservation found = ReservationOf(document.path);
        done &= found.locked == wantLocked && (!wantLocked || IsOwnLock(found.user));
        outcome.push_back({document.path,
                           !found.locked   ? QStringLiteral("unknown")
                           : *found.locked ? QStringLiteral("locked")
                                           : QStringLiteral("free"),
                           found.user});
    }
    console.PrintTable(outcome);
    console.PrintJson({{QStringLiteral("rows"), RowsAsJson(outcome)}});
    return done;
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
               "can unlock it. What is missing, write-protected or reserved by somebody else is "
               "left out, with a message.\n\n  docbench %1 --yes gearbox.tfmasm\n")
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
    const std::vector<Meant> meant = DocumentsOf(tree, line.isSet(kBelowOption));
    std::vector<int> nodes;  // of those that can be locked or unlocked
    TextTable plan = {{QStringLiteral("Document"), QStringLiteral("Change")}};
    for (const Meant& one : meant) {
        if (const QString problem = LockProblem(one.path); !problem.isEmpty()) {
            console.Warn(problem);
            continue;
        }
        nodes.push_back(one.node);
        plan.push_back({one.path, Name()});
    }
    const int exitCode = nodes.size() == meant.size() ? kExitDone : kExitPartly;
    const bool isQuestion = !nodes.empty() || IsDryRun(line);
    const Decision decision = isQuestion ? DecideAbout(plan, line, console) : Decision::Go;
    if (decision != Decision::Go)
        return std::max(ExitCodeOf(decision, console), exitCode);

    for (const int node : nodes)
        ApplyLock(tree, wantLocked, node);
    return TellStates(meant, wantLocked, console) ? exitCode : kExitPartly;
}

}  // namespace docbench
