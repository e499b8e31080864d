#pragma once

#include <cstddef>
#include <list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quillfen {

/// The operators' nicks in the order in which hubs told them, with duplicates.
class OpNicks
{
public:
    void append(std::string_view nick);

    /// Removes the first of these nicks, if there is one.
    void removeFirst(std::string_view nick);

    bool empty() const { return m_nicks.empty(); }
    bool contains(std::string_view nick) const { return m_places.count(std::string(nick)) > 0; }

    /// All of them, in order.
    std::vector<std::string> all() const { return {m_nicks.begin(), m_nicks.end()}; }

private:
    using Nicks = std::list<std::string>;

    Nicks m_nicks;
    // Where each nick stands, first one first: a hub that tells many operators and many departures costs no
    // more than what it tells.
    std::unordered_map<std::string, std::list<Nicks::iterator>> m_places;
};

} // namespace quillfen
