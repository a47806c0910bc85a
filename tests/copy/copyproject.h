// Documents to be copied, and the lists that a copy works on, without any widget.
#pragma once

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QStringList>
#include <functional>
#include <memory>

#include "cells/celllist.h"
#include "copy/copychecks.h"
#include "copy/copylist.h"
#include "copy/copynaming.h"
#include "copy/copyrun.h"
#include "copy/copywalk.h"
#include "copy/parentlist.h"
#include "copy/parentsearch.h"
#include "services/dialogs.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/texts.h"
#include "tests/support/testlibrary.h"

namespace docbench {

// Takes every box, writes it down and answers as the test says.
class AnsweringDialogs : public Dialogs {
public:
    AnsweringDialogs() : former_(gSeams.dialogs) { gSeams.dialogs = this; }
    ~AnsweringDialogs() override { gSeams.dialogs = former_; }
    Answer Box(const QString& text, Icon, const QString&, Buttons buttons,
               const QString& detail) override {
        boxes.append(text);
        details.append(detail);
        if (answer)
            return answer(text);
        return buttons == Buttons::Ok ? Answer::Ok : Answer::Yes;
    }
    QString OpenFile(const QString&, const QString&, const QString&) override { return file; }
    QString BrowseFolder(const QString&, const QString&) override { return {}; }
    std::optional<Password> AskPassword(const QString&, const QString&, bool) override {
        return std::nullopt;
    }

    QStringList boxes;
    QStringList details;
    std::function<Answer(const QString& text)> answer;  // Yes or Ok without it
    QString file;                                       // that OpenFile gives

private:
    Dialogs* former_;
};

// The lists of a copy, and what the pane does with them. Copies go to the folder "new" as "x_NAME".
struct CopyDesk {
    CopyDesk() {
        LoadResources();
        PrepareCopyList(copies);
        PrepareParentList(parents);
    }
    void List(const QString& document, bool references = true) {
        source = document;
        folder = library.Path("new");
        QDir().mkpath(folder);
        target = TargetIn(folder, CopyName(affixes, FileNameOf(document)));
        walked = ListReferences({.document = document,
                                 .targetFolder = folder,
                                 .affixes = affixes,
                                 .references = references},
                                copies);
    }
    void FindParents() {
        RowBatch rows = ParentRows(parents);
        SearchParents({.search = {.document = source,
                                  .status = [](const QString&) {},
                                  .yield = [] {},
                                  .cancelled = [] { return false; },
                                  .progress = [](const SearchCounts&) {}},
                       .targetFolder = folder,
                       .affixes = affixes},
                      library.Folder(), rows);
        rows.Flush();
    }
    CheckOutcome Check() {
        return CheckBeforeCopy({.source = source,
                                .target = target,
                                .copies = copies,
                                .parents = parents,
                                .replacedFiles = replaced,
                                .ask = [this](const QString& question, const QStringList& buttons) {
                                    questions.append(question);
                                    lastButtons = buttons;
                                    return answers.isEmpty() ? -1 : answers.takeFirst();
                                }});
    }
    CopyPlan Plan() { return {source, target, copies, parents, replaced}; }
    CopyResult Run() {
        return RunCopy(Plan(), {.status = [this](const QString& text) { status.append(text); },
                                .step =
                                    [this](int done, int all, const QString&) {
                                        steps = QString("%1/%2").arg(done).arg(all);
                                    },
                                .rowDone = [](CopyProgress::List, int) {},
                                .rowInQuestion = [](CopyProgress::List, int) {},
                                .yield = [this] { return !yield || yield(); }});
    }

    // The file names that a document refers to, with the folder of the library taken away.
    QString Holds(const QString& path) const {
        const auto file = gSeams.documents->MakeDocumentFile();
        file->Open(path);
        QStringList names;
        for (int i = 0; i < file->GetComponentCount(); ++i)
            names.append(Short(file->GetComponent(i, {}).path));
        for (int i = 0; i < file->GetExternalReferenceCount(); ++i)
            names.append(Short(file->GetExternalReference(i, {}).path));
        return names.join(' ');
    }
    QString Short(const QString& path) const {
        return path.startsWith(library.Folder()) ? path.mid(library.Folder().size() + 1) : path;
    }
    QString Copy(const QString& name) const { return library.Path("new/" + name); }
    const Cell& Target(int row) const { return copies.At(row).cells[kCopyTarget]; }
    QStringList Sources() const {
        QStringList sources;
        for (const CellRow& row : copies.Rows())
            sources.append(Short(ReadCopyRow(row).source));
        return sources;
    }
    int RowOf(const QString& name) const { return int(Sources().indexOf(name)); }
    void Untick(int row) {
        copies.Change(row, [](CellRow& changed) { changed.ticked = false; });
    }
    void SetTarget(int row, const QString& path) {
        copies.Change(row, [&](CellRow& changed) {
            changed.cells[kCopyTarget].text = path;
            changed.cells[kCopyTarget].tag = path;
        });
    }

    TestLibrary library;
    Affixes affixes{.prefix = "x_", .suffix = {}};
    QString source, folder, target;
    CellList copies, parents;
    CopyWalkResult walked;
    QHash<QString, QString> replaced;
    QStringList questions, lastButtons;
    QList<int> answers;  // to the questions with several buttons
    QStringList status;
    QString steps;
    std::function<bool()> yield;
};

inline QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

// The bytes of all files below a folder, by path.
inline QHash<QString, QByteArray> AllBytes(const QString& folder) {
    QHash<QString, QByteArray> bytes;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        bytes.insert(path, BytesOf(path));
    }
    return bytes;
}

}  // namespace docbench
