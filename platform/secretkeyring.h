// The desktop's keyring (Secret Service, KWallet) as the store of passwords.
#pragma once

#include "services/keyring.h"

namespace docbench {

class SecretKeyRing : public KeyRing {
public:
    static bool IsAvailable();

    std::optional<QString> Read(const QString& entry) override;
    bool Write(const QString& entry, const QString& secret) override;
    void Delete(const QString& entry) override;
};

}  // namespace docbench
