#include "app/commands/treecommand.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTextStream>

#include "app/commands/console.h"
#include "app/exitcodes.h"
#include "services/docaccess.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/texts.h"
#include "services/webcopies.h"
#include "shell/referencetree.h"
#include "shell/treepictures.h"

namespace docbench {

namespace {

// What the tree tells of a node, read back from its cells.
struct NodeState {
    bool circular;
    bool missing;
    bool locked;
};

NodeState StateOf(const CellNode& node) {
    const bool circular = node.image == kPictureCircular;
    const bool missing = !circular && node.foreColor == kColorRed;
    // The picture of what is not there is that of the document before it.
    return {.circular = circular,
            .missing = missing,
            .locked = !missing && IsLockedPicture(node.image)};
}

// How deep each node stands below its root, by node.
std::vector<int> Depths(const CellNodes& nodes) {
    std::vector<int> depths(size_t(nodes.Count()) + 1, 0);
    for (int i = 1; i <= nodes.Count(); ++i) {
        const int parent = nodes.At(i).parent;
        depths[size_t(i)] = parent == 0 ? 0 : depths[size_t(parent)] + 1;
    }
    return depths;
}

// Two blanks a level; beyond what fits on any screen no more, as a chain may be thousands deep.
QString Indent(int depth) {
    return QString(2 * qMin(depth, 100), u' ');
}

void PrintText(const CellNodes& nodes, QTextStream& out) {
    const std::vector<int> depths = Depths(nodes);
    for (int i = 1; i <= nodes.Count(); ++i) {
        const CellNode& node = nodes.At(i);
        const NodeState state = StateOf(node);
        out << Indent(depths[size_t(i)]) << OneLine(node.text.trimmed());
        if (state.missing)
            out << " [missing]";
        if (state.circular)
            out << " [circular]";
        if (state.locked)
            out << " [locked]";
        out << "  " << OneLine(node.tag) << '\n';
    }
}

void PrintPaths(const CellNodes& nodes, QTextStream& out) {
    for (int i = 1; i <= nodes.Count(); ++i)
        out << nodes.At(i).tag << QChar(u'\0');
}

QString JsonText(const QString& text) {
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

QString JsonBool(bool value) {
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

// Writes the nodes as they come: a tree may be deeper than a recursion over it and larger than a
// document of it in memory should be.
void PrintJson(const CellNodes& nodes, QTextStream& out) {
    const std::vector<int> depths = Depths(nodes);
    out << "{\"version\": 1, \"command\": \"tree\", \"tree\": ";
    int open = 0;  // nodes whose list of children is not closed yet
    for (int i = 1; i <= nodes.Count(); ++i) {
        const CellNode& node = nodes.At(i);
        const int depth = depths[size_t(i)];
        for (; open > depth; --open)
            out << "]}";
        if (node.row > 0)
            out << ',';
        if (i > 1)
            out << '\n' << Indent(depth);
        const NodeState state = StateOf(node);
        out << "{\"label\": " << JsonText(node.text) << ", \"path\": " << JsonText(node.tag)
            << ", \"missing\": " << JsonBool(state.missing)
            << ", \"circular\": " << JsonBool(state.circular)
            << ", \"locked\": " << JsonBool(state.locked) << ", \"children\": [";
        ++open;
    }
    for (; open > 0; --open)
        out << "]}";
    out << "}\n";
}

}  // namespace

QString TreeCommand::Help() const {
    return QStringLiteral(
        "One line a reference, two blanks a level, with the document's path. Missing, circular and "
        "locked documents are marked.\n\n"
        "  docbench tree gearbox.tfmasm\n");
}

int TreeCommand::Run(const QCommandLineParser& line, Console& console) const {
    const QString path = DocumentPath(line.positionalArguments().first());
    ReferenceTree tree;
    if (!tree.Load(path)) {
        console.Warn(Format(Text::DocumentNotFound, path));
        if (IsWebPath(path) && gWebFolder)
            console.Warn(gWebFolder->LastError());
        return kExitNoDocument;
    }
    if (console.IsJson())
        PrintJson(tree.Nodes(), console.Out());
    else if (console.IsNull())
        PrintPaths(tree.Nodes(), console.Out());
    else
        PrintText(tree.Nodes(), console.Out());
    return tree.HadErrors() ? kExitPartly : kExitDone;
}

}  // namespace docbench
