// The filters of file dialogs, from the form that messages are told in to the toolkit's.
#pragma once

#include <QString>
#include <QStringList>

namespace docbench {

// "Parts|*.tfmprt;*.prt|All|*.*" becomes "Parts (*.tfmprt *.prt)", "All (*)", with each
// pattern in capitals too. A label that already shows its patterns in brackets shows them once. A
// label without patterns is left out.
QStringList NameFiltersOf(const QString& filter);

}  // namespace docbench
