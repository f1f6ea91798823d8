#include "expr/variables.h"

#include <algorithm>

#include "text/utf8.h"

namespace tavrelo::expr {

VariablePtr VariableList::At(int position) const {
    return position >= 1 && position <= Count() ? m_entries[static_cast<std::size_t>(position - 1)].variable
                                                : nullptr;
}

VariablePtr VariableList::Find(std::string_view name) const {
    // Most names are one letter.
    if (name.size() == 1 && static_cast<unsigned char>(name.front()) < 0x80) {
        for (const Entry& entry : m_entries) {
            if (text::EqualIgnoringCase(entry.key, name)) {
                return entry.variable;
            }
        }
        return nullptr;
    }
    const std::string key = text::ToUpper(name);
    const auto entry = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const Entry& candidate) { return candidate.key == key; });
    return entry != m_entries.end() ? entry->variable : nullptr;
}

void VariableList::GiveAnew(std::span<const double> numbers) const {
    for (std::size_t k = 0; k < std::min(numbers.size(), m_entries.size()); ++k) {
        m_entries[k].variable->Value.SetNumber(numbers[k]);
    }
}

VariablePtr VariableList::Create(std::string_view name) {
    auto variable = std::make_shared<CVariable>();
    variable->Name = name;
    Add(variable);
    return variable;
}

int VariableList::Add(VariablePtr variable) {
    std::string key = text::ToUpper(variable->Name);
    auto place =
        std::lower_bound(m_entries.begin(), m_entries.end(), key,
                         [](const Entry& entry, const std::string& wanted) { return entry.key < wanted; });
    if (place != m_entries.end() && place->key == key) {
        place->variable = std::move(variable);
    } else {
        place = m_entries.insert(place, Entry{std::move(key), std::move(variable)});
    }
    return static_cast<int>(place - m_entries.begin()) + 1;
}

}  // namespace tavrelo::expr
