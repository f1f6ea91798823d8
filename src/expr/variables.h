#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/value.h"

namespace tavrelo::expr {

/// A variable of an expression: what its owner reads and writes between two evaluations.
struct CVariable {
    std::string Name;  // as it was first spelled
    int VarType = 0;   // free for the owner; nothing here reads it
    text::Value Value;
};

using VariablePtr = std::shared_ptr<CVariable>;

/// Variables by name without regard to case, always in ascending order of the name. Positions count from 1.
class VariableList {
  public:
    int Count() const { return static_cast<int>(m_entries.size()); }
    /// Null outside 1 to Count().
    VariablePtr At(int position) const;
    /// `position` must lie within 1 to Count().
    CVariable& Item(int position) const {
        return *m_entries[static_cast<std::size_t>(position - 1)].variable;
    }
    /// Gives the numbers to the variables from the first one on; what is left over on either side stays.
    /// Every value of a formula asks for it, so the common case, variables that hold numbers already, calls
    /// nothing.
    void Give(std::span<const double> numbers) const {
        auto entry = m_entries.begin();
        for (const double number : numbers) {
            if (entry == m_entries.end()) {
                return;
            }
            text::Value& value = (entry++)->variable->Value;
            if (!value.HoldsNumber()) {
                return GiveAnew(numbers);
            }
            value.SetNumber(number);
        }
    }
    /// Null when there is none of that name.
    VariablePtr Find(std::string_view name) const;
    /// A new variable without a value; there must be none of that name.
    VariablePtr Create(std::string_view name);
    /// Puts the variable in its place, instead of the one that has the same name; returns its position.
    int Add(VariablePtr variable);

  private:
    void GiveAnew(std::span<const double> numbers) const;

    struct Entry {
        std::string key;
        VariablePtr variable;
    };
    std::vector<Entry> m_entries;
};

}  // namespace tavrelo::expr
