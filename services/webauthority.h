// What stands before the path in a web address: the server, and who one is there.
#pragma once

#include <QString>

namespace docbench {

// "https://host:port", by which servers are compared; empty when the text is no address of http or
// https.
QString ServerOf(const QString& address);

// Whether a password stands in an address. Addresses are listed, remembered and written into
// documents, and a password is not for that.
bool HasPassword(const QString& address);

// An address as it was written, without "user:password@". For whatever text.
QString WithoutUser(const QString& text);

// What to tell somebody who typed a password into an address, without repeating it.
QString PasswordInAddressText();

}  // namespace docbench
