// The error texts of the package layer: whole sentences that name the file, the reason and what to
// do.
#pragma once

#include <QByteArrayView>
#include <QString>

#include "services/docaccess.h"

namespace docmodel {

using docbench::DocumentError;

// "The document PATH is damaged: REASON. Restore it from a backup."
DocumentError DamagedError(const QString& path, const QString& reason);

// "The document PATH can't be DONE: REASON." `done` is a participle, such as "read"; `reason` may
// be several sentences, the last without its stop.
DocumentError FailedError(const QString& path, const QString& done, const QString& reason);

// The same with the system's reason for `error`, a value of errno, and what to do about it.
DocumentError SystemError(const QString& path, const QString& done, int error);

// The same for a folder: "The folder PATH can't be DONE: ..."
DocumentError FolderError(const QString& path, const QString& done, int error);

// A part's name as an error text shows it, whatever bytes it has.
QString ShownName(QByteArrayView name);

}  // namespace docmodel
