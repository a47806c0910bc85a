// Runs statements one after the other, whether or not they fail, and keeps the last error.
#pragma once

#include <QString>
#include <exception>
#include <type_traits>
#include <utility>

#include "services/docaccess.h"

namespace docbench {

// The sentence for the user that an error brings.
inline QString DescriptionOf(const std::exception& error) {
    const auto* described = dynamic_cast<const DocumentError*>(&error);
    return described ? described->Description() : QString::fromLocal8Bit(error.what());
}

// For routines that carry on and look at the error at fixed points. It starts clear; a success
// leaves an earlier error standing, and a later error takes its place.
class ErrorState {
public:
    // Runs `statement`; false if it raised an error.
    template <typename Statement>
    bool Run(Statement&& statement) {
        try {
            std::forward<Statement>(statement)();
            return true;
        } catch (const std::exception& error) {
            failed_ = true;
            description_ = DescriptionOf(error);
        }
        return false;
    }

    // Assigns the statement's value; if it fails, `result` keeps what it held.
    template <typename Result, typename Statement>
    bool Assign(Result& result, Statement&& statement) {
        return Run([&] {
            // Evaluated whole first: an assignment from a part of it can't be left half done.
            std::invoke_result_t<Statement> value = std::forward<Statement>(statement)();
            result = std::move(value);
        });
    }

    bool Failed() const { return failed_; }
    const QString& Description() const {
        return description_;
    }  // of the last error; empty if clear
    void Clear() {
        failed_ = false;
        description_.clear();
    }

private:
    bool failed_ = false;
    QString description_;
};

}  // namespace docbench
