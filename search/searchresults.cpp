#include "search/searchresults.h"

#include <QLocale>

#include "services/filefacts.h"
#include "services/paths.h"
#include "services/texts.h"

namespace docbench {
namespace {

constexpr int kPath = 0;
constexpr double kKilobyte = 1000;
constexpr qint64 kShowEvery = 200;  // milliseconds

bool IsLongForm(const CellList& list) {
    return list.Headers()[kPath].tag == QLatin1String("L");
}

}  // namespace

PathColumn ResultColumn() {
    return {kPath, Tr(Text::DocumentColumn), Tr(Text::FileColumn)};
}

SearchResults::SearchResults(CellList& list) : list_(list) {
    list_.SetHeaders({{},
                      {.text = Tr(Text::Type)},
                      {.text = Tr(Text::Size)},
                      {.text = Tr(Text::CreatedColumn)},
                      {.text = Tr(Text::Attributes)}});
    SetLongForm(list_, ResultColumn(), true);
}

void SearchResults::Clear() {
    list_.Clear();
    paths_.clear();
    waiting_.clear();
    shown_.invalidate();
}

bool SearchResults::Lists(const QString& path) const {
    return IsLongForm(list_) && paths_.contains(path);
}

void SearchResults::Add(const QString& path) {
    paths_.insert(path);
    waiting_.push_back(RowOf(path));
}

void SearchResults::ShowSome() {
    if (!shown_.isValid() || shown_.hasExpired(kShowEvery))
        ShowAll();
}

// A click on the header may have come since a row was made.
void SearchResults::ShowAll() {
    if (waiting_.empty())
        return;
    for (CellRow& row : waiting_)
        row.cells[kPath].text = ShownPath(list_, kPath, row.tag);
    list_.Append(std::move(waiting_));
    waiting_.clear();
    shown_.start();
}

CellRow SearchResults::RowOf(const QString& path) const {
    const FileFacts facts = FactsOf(path);
    const qint64 kilobytes = qRound64(double(facts.size) / kKilobyte);
    const QString created =
        QLocale::c().toString(facts.created, QStringLiteral("MM/dd/yy  hh:mm AP"));
    return {.cells = {{.text = path, .toolTip = path},
                      {.text = facts.type},
                      {.text = Format(Text::Kilobytes, kilobytes)},
                      {.text = created},
                      {.text = FileAttributeText(facts.attributes)}},
            .tag = path};
}

}  // namespace docbench
