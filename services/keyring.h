// The desktop's store of passwords.
#pragma once

#include <QString>
#include <optional>

namespace docbench {

class KeyRing {
public:
    virtual ~KeyRing() = default;
    // None when there is no such entry, or no keyring.
    virtual std::optional<QString> Read(const QString& entry) = 0;
    virtual bool Write(const QString& entry, const QString& secret) = 0;  // false: not kept
    virtual void Delete(const QString& entry) = 0;
};

}  // namespace docbench
