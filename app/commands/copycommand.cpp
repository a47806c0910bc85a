#include "app/commands/copycommand.h"

#include <QJsonArray>
#include <algorithm>

#include "app/commands/console.h"
#include "app/commands/copyplanning.h"
#include "app/exitcodes.h"
#include "copy/copychecks.h"
#include "copy/copylist.h"
#include "copy/copynaming.h"
#include "copy/copyrun.h"
#include "copy/copywalk.h"
#include "copy/parentlist.h"
#include "copy/parentsearch.h"
#include "copy/textreplace.h"
#include "panes/rowbatch.h"
#include "rename/renamechecks.h"
#include "services/dialogs.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"

namespace docbench {

namespace {

const QString kToOption = QStringLiteral("to");
const QString kAsOption = QStringLiteral("as");
const QString kPrefixOption = QStringLiteral("prefix");
const QString kSuffixOption = QStringLiteral("suffix");
const QString kFindOption = QStringLiteral("find");
const QString kReplaceOption = QStringLiteral("replace");
const QString kTargetOption = QStringLiteral("target");
const QString kAloneOption = QStringLiteral("alone");
const QString kUsersOption = QStringLiteral("users");
const QString kOverwriteOption = QStringLiteral("overwrite");

// The answers of somebody who was shown the plan: targets are written over if that was asked for,
// and after a failure the others have their turn. Other boxes are told as ever.
class RunDialogs : public Dialogs {
public:
    explicit RunDialogs(bool overwrites) : overwrites_(overwrites), former_(gSeams.dialogs) {
        gSeams.dialogs = this;
    }
    ~RunDialogs() override { gSeams.dialogs = former_; }
    RunDialogs(const RunDialogs&) = delete;
    RunDialogs& operator=(const RunDialogs&) = delete;

    Answer Box(const QString& text, Icon icon, const QString& title, Buttons buttons,
               const QString& detail) override {
        const bool isOverwriting = buttons == Buttons::YesNoCancel;
        if (isOverwriting && overwrites_)
            return Answer::Yes;
        if (buttons != Buttons::YesNo)
            return former_->Box(text, icon, title, buttons, detail);
        former_->Box(text + QStringLiteral(" Yes."), icon, title, buttons, detail);
        return Answer::Yes;
    }
    QString OpenFile(const QString& title, const QString& filter, const QString& start) override {
        return former_->OpenFile(title, filter, start);
    }
    QString BrowseFolder(const QString& title, const QString& start) override {
        return former_->BrowseFolder(title, start);
    }
    std::optional<Password> AskPassword(const QString& server, const QString& realm,
                                        bool refused) override {
        return former_->AskPassword(server, realm, refused);
    }

private:
    const bool overwrites_;
    Dialogs* const former_;
};

// The lists of the pane, and what its fields would say.
struct Lists {
    QString source;
    QString folder;
    Affixes affixes;
    QString target;
    CellList copies;
    CellList parents;
    QStringList targeted;  // sources with a target of their own
    QHash<QString, QString> replacedFiles;

    CopyPlan Plan() { return {source, target, copies, parents, replacedFiles}; }
};

void RequireSense(const QCommandLineParser& line) {
    if (line.isSet(kPrefixOption) && line.isSet(kSuffixOption))
        throw UsageError(QStringLiteral("Give a prefix or a suffix, not both."));
    if (line.isSet(kFindOption) != line.isSet(kReplaceOption))
        throw UsageError(QStringLiteral("--find and --replace go together."));
    if (line.isSet(kFindOption) && line.value(kFindOption).isEmpty())
        throw UsageError(QStringLiteral("--find needs a text."));
    if (LimitsSearch(line) && !line.isSet(kUsersOption))
        throw UsageError(
            QStringLiteral("--in, --no-subfolders and --kinds go with --users: where the "
                           "users are looked for."));
}

QString WithoutSeparator(QString folder) {
    while (folder.size() > 1 && folder.endsWith(u'/'))
        folder.chop(1);
    return folder;
}

// A bare name is meant for the target folder, and needs no extension.
QString TargetNamed(const QString& word, const QString& source, const QString& folder) {
    const QString name = WithExtension(word, source);
    return name.contains(u'/') ? DocumentPath(name) : TargetIn(folder, name);
}

QString OwnTarget(const QCommandLineParser& line, const Lists& lists) {
    if (line.isSet(kAsOption))
        return TargetNamed(line.value(kAsOption), lists.source, lists.folder);
    return TargetIn(lists.folder, CopyName(lists.affixes, FileNameOf(lists.source)));
}

// False when the document is not listed.
bool SetTarget(const QString& source, const QString& target, CellList& copies) {
    bool isListed = false;
    for (int row = 0; row < copies.Count(); ++row) {
        if (ReadCopyRow(copies.At(row)).source != source)
            continue;
        if (DocTypeOf(source) != DocTypeOf(target))
            throw UsageError(Tr(Text::TargetOfOtherType));
        SetCopyTarget(copies, row, target);
        isListed = true;
    }
    return isListed;
}

// SOURCE=TARGET, where both may hold a "=": the first one with a listed document before it counts.
void SetTarget(const QString& assignment, Lists& lists) {
    for (qsizetype equals = assignment.indexOf(u'='); equals > 0;
         equals = assignment.indexOf(u'=', equals + 1)) {
        const QString source = DocumentPath(assignment.left(equals));
        const QString target = assignment.mid(equals + 1);
        if (target.isEmpty() ||
            !SetTarget(source, TargetNamed(target, source, lists.folder), lists.copies))
            continue;
        if (lists.targeted.contains(source))
            throw UsageError(QStringLiteral("--target may be given once for %1.").arg(source));
        lists.targeted.append(source);
        return;
    }
    throw UsageError(QStringLiteral("\"%1\" does not read like SOURCE=TARGET, with a document that "
                                    "is copied along as SOURCE.")
                         .arg(assignment));
}

// A replacement of text may have reached an extension.
void RequireTypes(const CellList& copies) {
    for (const CellRow& row : copies.Rows()) {
        const CopyRow copy = ReadCopyRow(row);
        if (DocTypeOf(copy.source) != DocTypeOf(copy.target))
            throw UsageError(
                QStringLiteral("%1 would be copied to %2. ").arg(copy.source, copy.target) +
                Tr(Text::TargetOfOtherType));
    }
}

void ListCopies(const QCommandLineParser& line, Lists& lists, Console& console) {
    PrepareCopyList(lists.copies);
    ListReferences({.document = lists.source,
                    .targetFolder = lists.folder,
                    .affixes = lists.affixes,
                    .references = !line.isSet(kAloneOption),
                    .progress = [&](int, const QString& path) { console.ShowProgress(path); }},
                   lists.copies);
    if (line.isSet(kFindOption))
        TextReplace(lists.copies).ReplaceAll(line.value(kFindOption), line.value(kReplaceOption));
    for (const QString& assignment : line.values(kTargetOption))
        SetTarget(assignment, lists);
    RequireTypes(lists.copies);
}

// How many documents the search could not read.
int ListParents(const QCommandLineParser& line, Lists& lists, Console& console) {
    PrepareParentList(lists.parents);
    if (!line.isSet(kUsersOption))
        return 0;
    SearchCounts counts;
    QStringList unsearched;  // a folder and why, one behind the other
    const ParentSearch parents{
        .search = {.document = lists.source,
                   .kinds = KindsToFind(line),
                   .subfolders = WithSubfolders(line),
                   .status = [&](const QString& text) { console.ShowProgress(text); },
                   .yield = [] {},
                   .cancelled = [] { return false; },
                   .progress = [&](const SearchCounts& now) { counts = now; },
                   .unsearched = [&](const QString& folder,
                                     const QString& reason) { unsearched << folder << reason; }},
        .targetFolder = lists.folder,
        .affixes = lists.affixes};
    RowBatch rows = ParentRows(lists.parents);
    SearchParents(parents, FoldersToSearch(line, FolderOf(lists.source)), rows);
    rows.Flush();
    if (!unsearched.isEmpty())
        RaiseUnsearched(unsearched[0], unsearched[1]);
    return counts.unread;
}

auto CountTicked(const CellList& list) {
    return std::count_if(list.Rows().begin(), list.Rows().end(),
                         [](const CellRow& row) { return row.ticked; });
}

// Those that the search has found to be write-protected.
void TellProtected(const CellList& parents, Console& console) {
    for (const CellRow& row : parents.Rows()) {
        const QString problem = row.ticked ? QString() : WritingProblem(ReadParentRow(row).parent);
        if (!problem.isEmpty())
            console.Warn(problem);
    }
}

// Each parent that can't be written is taken out, with a message, until the others are good.
bool Check(Lists& lists) {
    for (;;) {
        const auto before = CountTicked(lists.parents);
        // What is missing is left out: of the four answers, "No to all".
        const CheckOutcome outcome =
            CheckBeforeCopy({.source = lists.source,
                             .target = lists.target,
                             .copies = lists.copies,
                             .parents = lists.parents,
                             .replacedFiles = lists.replacedFiles,
                             .ask = [](const QString&, const QStringList&) { return 2; },
                             .makesFolders = false});
        if (outcome == CheckOutcome::Ok)
            return true;
        if (CountTicked(lists.parents) == before)
            return false;
    }
}

bool Refuses(const QStringList& problems, Console& console) {
    for (const QString& problem : problems)
        console.Warn(problem);
    if (!problems.isEmpty())
        console.Warn(QStringLiteral("Nothing was copied. Choose other names."));
    return !problems.isEmpty();
}

bool MayWriteTargets(const CopyPlan& plan, bool overwrites, Console& console) {
    if (const QString itself = CopiedOntoItself(plan); !itself.isEmpty())
        throw UsageError(QStringLiteral("%1 would be copied onto itself. Give another folder with "
                                        "--to, or another name with --prefix, --suffix or --as.")
                             .arg(itself));
    if (const QStringList shared = SharedTargets(plan); !shared.isEmpty()) {
        for (const QString& problem : shared)
            console.Warn(problem);
        console.Warn(
            QStringLiteral("Nothing was copied. Give each a target of its own, with "
                           "--target."));
        return false;
    }
    if (Refuses(TargetsInUse(plan), console) ||
        (overwrites && Refuses(TargetProblems(plan), console)))
        return false;
    const QStringList existing = overwrites ? QStringList() : ExistingTargets(plan);
    for (const QString& target : existing)
        console.Warn(QStringLiteral("%1 is already there.").arg(target));
    if (!existing.isEmpty())
        console.Warn(
            QStringLiteral("Nothing was copied. Add --overwrite to write over what is "
                           "there, or choose other names."));
    return existing.isEmpty();
}

CopyResult Carry(const CopyPlan& plan, bool overwrites, Console& console) {
    const RunDialogs dialogs(overwrites);
    return RunCopy(plan, {.status = [&](const QString& text) { console.ShowProgress(text); },
                          .step = [](int, int, const QString&) {},
                          .rowDone = [](CopyProgress::List, int) {},
                          .rowInQuestion = [](CopyProgress::List, int) {},
                          .yield = [] { return true; }});
}

}  // namespace

QString CopyCommand::Help() const {
    return QStringLiteral(
        "FILE is copied with all that it refers to, at any depth, and every reference among "
        "the copies leads to a copy. What lies below the folder of FILE keeps its subfolder in the "
        "target folder; what lies elsewhere comes into the target folder itself. With --users the "
        "documents that use FILE are brought along: drawings are copied, others are changed in "
        "place to use the copy.\n\n"
        "  docbench copy --to /work/gearbox2 --yes /work/gearbox/gearbox.tfmasm\n"
        "  docbench copy --suffix _v2 --users --dry-run shaft.tfmprt\n");
}

QList<QCommandLineOption> CopyCommand::Options() const {
    const QString text = QStringLiteral("TEXT");
    QList<QCommandLineOption> options{
        {kToOption, QStringLiteral("Folder of the copies. Default: the folder of FILE."),
         QStringLiteral("FOLDER")},
        {kPrefixOption, QStringLiteral("Goes in front of the name of every copy."), text},
        {kSuffixOption, QStringLiteral("Goes behind the name of every copy."), text},
        {kAsOption, QStringLiteral("Name or path of the copy of FILE itself."),
         QStringLiteral("NAME")},
        {kTargetOption,
         QStringLiteral("Name or path of the copy of SOURCE, a document that is copied along; may "
                        "be given several times."),
         QStringLiteral("SOURCE=TARGET")},
        {kFindOption,
         QStringLiteral("With --replace: replaces TEXT in the paths of the other copies."), text},
        {kReplaceOption, QStringLiteral("What comes in its place."), text},
        {kAloneOption, QStringLiteral("Copies FILE without what it refers to.")},
        {kUsersOption, QStringLiteral("Brings the users of FILE along, from the searched "
                                      "folders.")}};
    options += FolderOptions(QStringLiteral("the folder of FILE"));
    options.append(KindsOption());
    options.append(
        {kOverwriteOption, QStringLiteral("Writes over what is there, unless it is reserved, "
                                          "write-protected or copied itself. Without it, a copy "
                                          "whose name is taken stops everything before it "
                                          "begins.")});
    return options + ChangeOptions();
}

int CopyCommand::Run(const QCommandLineParser& line, Console& console) const {
    RequireSense(line);
    Lists lists;
    lists.source = DocumentPath(line.positionalArguments().first());
    OpenDocument(lists.source);  // proves that it can be read
    lists.folder = WithoutSeparator(line.isSet(kToOption) ? DocumentPath(line.value(kToOption))
                                                          : FolderOf(lists.source));
    lists.affixes = {line.value(kPrefixOption), line.value(kSuffixOption)};
    lists.target = OwnTarget(line, lists);
    ListCopies(line, lists, console);
    const int unread = ListParents(line, lists, console);
    TellProtected(lists.parents, console);
    const CopyPlan plan = lists.Plan();
    const bool overwrites = line.isSet(kOverwriteOption);
    if (!Check(lists) || !MayWriteTargets(plan, overwrites, console))
        return kExitPartly;
    console.WarnOfUnread(unread);
    const bool lacking = unread > 0 || CountTicked(lists.parents) < lists.parents.Count();
    const Decision decision = DecideAbout(CopyPlanAsTable(plan), line, console);
    if (decision != Decision::Go)
        return std::max(ExitCodeOf(decision, console), lacking ? kExitPartly : kExitDone);

    const CopyResult result = Carry(plan, overwrites, console);
    if (result.end != CopyResult::End::Done) {
        console.Warn(result.message.isEmpty() ? QStringLiteral("The copy was given up.")
                                              : result.message);
        return kExitPartly;
    }
    const CopyOutcomeTable outcome = CopyOutcomeAsTable(plan, result);
    console.PrintTable(outcome.table);
    console.PrintJson({{QStringLiteral("document"), plan.target},
                       {QStringLiteral("rows"), RowsAsJson(outcome.table)}});
    return outcome.complete && !lacking ? kExitDone : kExitPartly;
}

}  // namespace docbench
