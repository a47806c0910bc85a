// Passwords of web servers: asked for once, remembered if the user wants it.
#pragma once

namespace docbench {

class CredentialSource;

// Answers for the process: from the desktop's keyring, else by asking the user.
CredentialSource& WebCredentials();

}  // namespace docbench
