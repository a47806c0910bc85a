#include "editors/summaryfields.h"

#include <algorithm>

#include "services/docaccess.h"

namespace docbench {
namespace {

struct Access {
    QString (DocumentInfo::*get)();
    void (DocumentInfo::*set)(const QString&);
};

// By SummaryField.
constexpr Access kAccess[kSummaryFields] = {
    {&DocumentInfo::GetTitle, &DocumentInfo::SetTitle},
    {&DocumentInfo::GetSubject, &DocumentInfo::SetSubject},
    {&DocumentInfo::GetAuthor, &DocumentInfo::SetAuthor},
    {&DocumentInfo::GetKeywords, &DocumentInfo::SetKeywords},
    {&DocumentInfo::GetComments, &DocumentInfo::SetComments}};

constexpr SummaryField kWritingOrder[kSummaryFields] = {
    SummaryField::Author, SummaryField::Comments, SummaryField::Keywords, SummaryField::Subject,
    SummaryField::Title};

}  // namespace

QString ReadSummaryField(DocumentInfo& info, SummaryField field) {
    return (info.*kAccess[int(field)].get)();
}

void WriteSummary(DocumentInfo& info, const SummaryEdits& edits) {
    for (const SummaryField field : kWritingOrder) {
        const std::optional<QString>& typed = edits[size_t(field)];
        (info.*kAccess[int(field)].set)(typed ? *typed : ReadSummaryField(info, field));
    }
}

bool HasEdits(const SummaryEdits& edits) {
    return std::any_of(edits.begin(), edits.end(),
                       [](const auto& edit) { return edit.has_value(); });
}

}  // namespace docbench
