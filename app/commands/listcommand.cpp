#include "app/commands/listcommand.h"

#include <QFileInfo>
#include <QJsonArray>

#include "app/commands/console.h"
#include "app/exitcodes.h"
#include "cells/celllist.h"
#include "services/folderlists.h"
#include "services/language.h"
#include "services/texts.h"

namespace docbench {

namespace {

const QString kDeleteOption = QStringLiteral("delete");

// The name that the value of a list has in the settings: a new list is the user's own.
QString ValueNameOf(const CellList& names, const QString& name) {
    for (const CellRow& row : names.Rows()) {
        if (row.cells[0].text == name)
            return name + row.cells[1].text;
    }
    return name + QLatin1String(kFolderListMarker);
}

int Show(const CellList& names, const QString& only, Console& console) {
    TextTable table = {{QStringLiteral("Folder"), QStringLiteral("List")}};
    bool found = only.isEmpty();
    for (const CellRow& row : names.Rows()) {
        const QString name = row.cells[0].text;
        if (!only.isEmpty() && name != only)
            continue;
        found = true;
        for (const QString& folder :
             ReadFolderList(name + row.cells[1].text).split(u';', Qt::SkipEmptyParts))
            table.push_back({folder, name});
    }
    if (!found) {
        console.Warn(QStringLiteral("There is no folder list %1.").arg(only));
        return kExitPartly;
    }
    console.PrintTable(table);
    console.PrintJson({{QStringLiteral("rows"), RowsAsJson(table)}});
    return kExitDone;
}

int Set(const QString& name, const QString& valueName, const QStringList& words, Console& console) {
    QStringList folders;
    for (const QString& word : words)
        folders.append(IsAddress(word) ? word : QFileInfo(word).absoluteFilePath());
    if (folders.join(u' ').contains(u';')) {
        console.Warn(QStringLiteral("A folder of a list can't have a \";\" in its name."));
        return kExitPartly;
    }
    if (!WriteFolderList(valueName, folders.join(u';'))) {
        console.Warn(Tr(Text::OptionNotSaved));
        return kExitPartly;
    }
    TextTable table = {{QStringLiteral("Folder"), QStringLiteral("List")}};
    for (const QString& folder : folders)
        table.push_back({folder, name});
    console.PrintJson({{QStringLiteral("rows"), RowsAsJson(table)}});
    return kExitDone;
}

int Delete(const QString& name, const QString& valueName, Console& console) {
    if (!DeleteFolderList(valueName)) {
        console.Warn(Format(Text::FolderListNotDeleted, name));
        return kExitPartly;
    }
    console.PrintJson({{QStringLiteral("rows"), QJsonArray()}});
    return kExitDone;
}

}  // namespace

QString ListCommand::Help() const {
    return QStringLiteral(
        "Without NAME all lists are shown, with NAME that one. With folders the list is set to "
        "them; an address stays as it is. The searching commands take a list by its name with a "
        "blank before it.\n\n"
        "  docbench list Vendors /work/fasteners /work/bearings\n"
        "  docbench where-used --in ' Vendors' bolt.tfmprt\n");
}

QList<QCommandLineOption> ListCommand::Options() const {
    return {{kDeleteOption, QStringLiteral("Deletes the list NAME.")}};
}

int ListCommand::Run(const QCommandLineParser& line, Console& console) const {
    const QStringList words = line.positionalArguments();
    const QString name = words.value(0);
    CellList names;
    RefreshFolderList(names);
    if (line.isSet(kDeleteOption)) {
        if (words.size() != 1)
            throw UsageError(QStringLiteral("--delete takes one NAME, and nothing behind it."));
        return Delete(name, ValueNameOf(names, name), console);
    }
    if (words.size() < 2)
        return Show(names, name, console);
    if (name.contains(u' ')) {
        console.Warn(Tr(Text::FolderListNameWithBlank));
        return kExitPartly;
    }
    return Set(name, ValueNameOf(names, name), words.mid(1), console);
}

}  // namespace docbench
