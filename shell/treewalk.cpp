#include "shell/treewalk.h"

#include "services/dialogs.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/texts.h"
#include "shell/treepictures.h"

namespace docbench {

namespace {

QString Label(const QString& path, const QString& tail, const QString& extra) {
    return BaseNameOf(path) + u' ' + tail + extra;
}

}  // namespace

TreeWalk::TreeWalk(bool& currentLocked, int maximumRows)
    : currentLocked_(currentLocked), maximumRows_(maximumRows) {}

// A recursion over documents, with its levels on the heap: a chain of references may be longer than
// the stack is deep.
bool TreeWalk::WalkDocument(const QString& path) {
    if (Enter(0, path, QString(), QString()) != Entered::Descends)
        return false;
    bool found = false;
    while (!levels_.empty()) {
        if (Advance(levels_.back()))
            continue;
        const Level level = levels_.back();
        levels_.pop_back();
        onTheWay_[size_t(level.facts->identity)] = false;
        found = Leave(level);
    }
    return found;
}

TreeWalk::Entered TreeWalk::Enter(int parent, const QString& path, const QString& labelTail,
                                  const QString& labelExtra) {
    const DocumentFacts& facts = facts_.Of(path);
    onTheWay_.resize(size_t(facts_.IdentityCount()));
    currentLocked_ = facts.locked.value_or(currentLocked_);
    const int index = nodes_.Add(parent, {.text = Label(path, labelTail, labelExtra),
                                          .tag = path,
                                          .image = DocumentPicture(path, currentLocked_)});
    CellNode& node = nodes_.At(index);
    if (onTheWay_[size_t(facts.identity)]) {
        node.image = kPictureCircular;
        node.text = Format(Text::CircularNode, node.text);
        node.foreColor = kColorRed;
        circular_.push_back(index);
        node.description = Format(Text::CircularReference, path);
        gSeams.dialogs->Box(node.description, Dialogs::Icon::Stop, gAppTitle);
        return Entered::Circular;
    }
    if (!facts.exists && facts.error.isEmpty()) {
        node.foreColor = kColorRed;
        node.description = Format(Text::NodeMissing, path);
        return Entered::Missing;
    }
    levels_.push_back({.node = index, .facts = &facts, .isExternal = !labelExtra.isEmpty()});
    onTheWay_[size_t(facts.identity)] = true;
    return Entered::Descends;
}

bool TreeWalk::Advance(Level& level) {
    // Entering a row may move the levels, so nothing of `level` is touched afterwards.
    if (level.nextComponent < level.facts->components.size()) {
        if (IsFull())
            return false;
        const ComponentRow& row = level.facts->components[level.nextComponent++];
        EnterComponent(level, row);
        return true;
    }
    while (level.nextExternal < level.facts->externals.size()) {
        const ExternalRow& row = level.facts->externals[level.nextExternal++];
        if (row.path.isEmpty() || DocTypeOf(row.path) == DocType::Assembly)
            continue;  // external references to assemblies are not shown
        if (IsFull())
            return false;
        EnterExternal(level, row);
        return true;
    }
    return false;
}

void TreeWalk::EnterComponent(const Level& level, const ComponentRow& row) {
    const QString tail = row.count == 1 ? QString() : QStringLiteral(" (%1 x)").arg(row.count);
    Enter(level.node, row.path, tail, QString());
}

void TreeWalk::EnterExternal(const Level& level, const ExternalRow& row) {
    Enter(level.node, row.path, QStringLiteral(" ->"), QStringLiteral(" (%1)").arg(row.kind));
}

bool TreeWalk::Leave(const Level& level) {
    const DocumentFacts& facts = *level.facts;
    CellNode& node = nodes_.At(level.node);
    const bool externalsRead = facts.reached > ReadStage::ExternalReferences;
    if (externalsRead && !facts.externals.empty() && !level.isExternal)
        node.text += QLatin1String(" ->");
    if (facts.referencesLocked)
        node.text += QLatin1String(" *");
    if (facts.reached != ReadStage::Complete) {
        ReportError(node.tag, facts.error);
        return false;
    }
    return true;
}

bool TreeWalk::IsFull() {
    if (nodes_.Count() < maximumRows_)
        return false;
    if (!std::exchange(toldFull_, true))
        ReportError(nodes_.At(1).tag,
                    QStringLiteral("Its tree has more than %1 rows. The rows beyond them are not "
                                   "shown; open a subassembly to see them.")
                        .arg(maximumRows_));
    return true;
}

void TreeWalk::ReportError(const QString& path, const QString& description) {
    hadErrors_ = true;
    gSeams.dialogs->Box(Format(Text::WalkError, path, description), Dialogs::Icon::Exclamation,
                        gAppTitle);
}

}  // namespace docbench
