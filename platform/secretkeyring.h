// The desktop's keyring (Secret Service, KWallet) as the store of passwords.
#pragma once

#include <chrono>

#include "services/keyring.h"

namespace docbench {

class SecretKeyRing : public KeyRing {
public:
    // The desktop may ask the user to open it; a keyring that needs more than `limit` is none.
    explicit SecretKeyRing(std::chrono::milliseconds limit = std::chrono::seconds(60))
        : limit_(limit) {}

    static bool IsAvailable();

    std::optional<QString> Read(const QString& entry) override;
    bool Write(const QString& entry, const QString& secret) override;
    void Delete(const QString& entry) override;

private:
    const std::chrono::milliseconds limit_;
};

}  // namespace docbench
