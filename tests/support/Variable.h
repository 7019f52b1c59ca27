// Variables of the environment in tests.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

#include "support/System.h"

namespace lithmark::tests {

// A variable of the environment that has its old value again in the end.
class Variable {
  public:
    explicit Variable(const char* name) : name_(name) {
        if (const char* value = std::getenv(name)) before_ = value;
    }
    ~Variable() { before_ ? Set(*before_) : Unset(); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    void Set(const std::string& value) const { SetVariable(name_, value); }
    void Unset() const { SetVariable(name_, std::nullopt); }

  private:
    const char* name_;
    std::optional<std::string> before_;
};

}  // namespace lithmark::tests
