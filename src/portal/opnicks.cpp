#include "portal/opnicks.h"

namespace quillfen {

void OpNicks::append(std::string_view nick)
{
    m_nicks.emplace_back(nick);
    m_places[m_nicks.back()].push_back(std::prev(m_nicks.end()));
}

void OpNicks::removeFirst(std::string_view nick)
{
    const auto places = m_places.find(std::string(nick));
    if (places == m_places.end())
        return;
    m_nicks.erase(places->second.front());
    places->second.pop_front();
    if (places->second.empty())
        m_places.erase(places);
}

} // namespace quillfen
