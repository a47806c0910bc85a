// The error texts of web folders: whole sentences that name the address, the reason and what to do.
#pragma once

#include <QString>

#include "docmodel/webaddress.h"
#include "services/docaccess.h"

namespace docmodel {

using docbench::DocumentError;

// "ADDRESS can't be DONE: REASON." `done` is a participle, such as "downloaded"; `reason` may be
// several sentences, the last without its stop.
DocumentError WebError(const WebAddress& address, const QString& done, const QString& reason);

// The same for a text that may be no address at all.
DocumentError NoAddressError(const QString& text, const QString& done);

// What a status of a server means, in words, with what to do about it. `phrase` is the server's
// own.
QString StatusReason(int status, const QString& phrase);

}  // namespace docmodel
