// The summary fields of a document that the property pane edits.
#pragma once

#include <QString>
#include <array>
#include <optional>

namespace docbench {

class DocumentInfo;

enum class SummaryField { Title, Subject, Author, Keywords, Comments };
inline constexpr int kSummaryFields = 5;

// By SummaryField: the texts that were typed; none for a field that is as it was read.
using SummaryEdits = std::array<std::optional<QString>, kSummaryFields>;

QString ReadSummaryField(DocumentInfo& info, SummaryField field);

// Writes all five fields, those that were not edited as they are in `info`. Nothing is on the disk
// before it is saved.
void WriteSummary(DocumentInfo& info, const SummaryEdits& edits);

bool HasEdits(const SummaryEdits& edits);

}  // namespace docbench
