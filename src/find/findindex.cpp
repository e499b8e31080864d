#include "find/findindex.h"

#include "settings/codepage.h"

#include <algorithm>
#include <array>

namespace quillfen {
namespace {

constexpr char fieldEnd = '\n';

/// Longer texts are found by their first characters, as lists show no more of them.
constexpr std::size_t longestField = 1000;

/// The fields of an entry; details follow.
enum Field
{
    Label,
    Value,
    Details
};

constexpr std::size_t ranks = 2 * (std::size_t{Details} + 1);

} // namespace

/// What a search knows of an entry.
struct FindIndex::Match
{
    std::uint32_t own = 0;  ///< which words its own fields hold, a bit each
    std::uint32_t all = 0;  ///< and which those that it stands below hold besides
    std::uint32_t rank = 0; ///< how far behind the worst of its words puts it
};

/// One search: the words of the query in all entries, and the entries that hold all of them.
class FindIndex::Search
{
public:
    Search(const FindIndex& index, const FindQuery& query)
        : m_index(index),
          m_query(query),
          m_every((std::uint32_t{1} << query.words().size()) - 1),
          m_matches(index.size())
    {
    }

    /// Looks for the words at the places that this finds.
    void look(decltype(&exactPlace) place)
    {
        for (std::size_t word = 0; word < m_query.words().size(); ++word)
            look(place, word);
    }

    /// Adds what holds all words to the entries that were found, in their order.
    void gather(std::vector<std::size_t>& found, std::size_t& count, std::size_t most);

private:
    using Ranked = std::array<std::vector<std::size_t>, 1 + ranks>;

    void look(decltype(&exactPlace) place, std::size_t word);
    void note(std::size_t entry, std::size_t at, std::uint32_t word);
    bool isHit(std::size_t entry) const;
    Ranked ranked();

    const FindIndex& m_index;
    const FindQuery& m_query;
    std::uint32_t m_every;
    std::vector<Match> m_matches;
    std::vector<bool> m_found = std::vector<bool>(m_matches.size());
};

void FindIndex::Search::look(decltype(&exactPlace) place, std::size_t word)
{
    std::size_t entry = 0;
    std::size_t from = 0;
    while (const auto found = place(m_index.m_lowered, m_query.words()[word], from)) {
        while (m_index.endOf(entry) <= found->at)
            ++entry;
        note(entry, found->at, std::uint32_t{1} << word);
        from = m_index.endOf(entry);
    }
}

void FindIndex::Search::note(std::size_t entry, std::size_t at, std::uint32_t word)
{
    Match& match = m_matches[entry];
    if ((match.own & word) != 0)
        return; // it stands there as it was typed
    match.own |= word;
    const std::size_t begin = m_index.m_entries[entry].begin;
    const std::string_view before = std::string_view(m_index.m_lowered).substr(begin, at - begin);
    const auto field = std::min<std::ptrdiff_t>(std::count(before.begin(), before.end(), fieldEnd), Details);
    const bool isInside = !beginsWord(m_index.m_lowered, at);
    match.rank = std::max(match.rank, static_cast<std::uint32_t>(2 * field + (isInside ? 1 : 0)));
}

bool FindIndex::Search::isHit(std::size_t entry) const
{
    const Match& match = m_matches[entry];
    if (match.own == 0 || match.all != m_every || m_found[entry])
        return false;
    const Entry& each = m_index.m_entries[entry];
    return each.kind != FindKind::Cell || m_matches[each.parent].own != 0;
}

FindIndex::Search::Ranked FindIndex::Search::ranked()
{
    Ranked all;
    for (std::size_t entry = 0; entry < m_matches.size(); ++entry) {
        const Entry& each = m_index.m_entries[entry];
        Match& match = m_matches[entry];
        match.all = match.own;
        if (m_index.above(each))
            match.all |= m_matches[each.parent].all;
        if (isHit(entry))
            all[each.kind == FindKind::Function ? 0 : 1 + match.rank].push_back(entry);
    }
    return all;
}

void FindIndex::Search::gather(std::vector<std::size_t>& found, std::size_t& count, std::size_t most)
{
    for (const auto& entries : ranked()) {
        count += entries.size();
        for (const std::size_t entry : entries) {
            m_found[entry] = true;
            if (found.size() < most)
                found.push_back(entry);
        }
    }
}

std::size_t FindIndex::add(std::size_t parent, const FindEntry& entry)
{
    const std::string& name = entry.kind == FindKind::Function ? entry.place.key : entry.place.control;
    if (m_names.empty() || m_names.back() != name)
        m_names.push_back(name);
    m_entries.push_back({entry.kind, entry.place.row, static_cast<std::uint32_t>(parent),
                         static_cast<std::uint32_t>(m_names.size() - 1),
                         static_cast<std::uint32_t>(m_text.size())});
    append(entry.label);
    append(entry.value);
    for (const std::string_view detail : entry.details)
        append(detail);
    m_lowered += codepage::lowered(std::string_view(m_text).substr(m_entries.back().begin));
    return m_entries.size() - 1;
}

void FindIndex::append(std::string_view field)
{
    const std::size_t begin = m_text.size();
    m_text.append(field.substr(0, longestField));
    std::replace_if(
        m_text.begin() + static_cast<std::ptrdiff_t>(begin), m_text.end(),
        [](char each) { return each == '\n' || each == '\r' || each == '\0'; }, ' ');
    m_text += fieldEnd;
}

std::size_t FindIndex::endOf(std::size_t entry) const
{
    return entry + 1 < m_entries.size() ? m_entries[entry + 1].begin : m_text.size();
}

std::vector<std::string_view> FindIndex::fieldsOf(std::size_t entry) const
{
    std::string_view text = m_text;
    text = text.substr(m_entries[entry].begin, endOf(entry) - m_entries[entry].begin);
    std::vector<std::string_view> fields;
    while (!text.empty()) {
        const std::size_t end = text.find(fieldEnd);
        fields.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    return fields;
}

const FindIndex::Entry* FindIndex::above(const Entry& entry) const
{
    return entry.kind == FindKind::Function ? nullptr : &m_entries[entry.parent];
}

FindResult FindIndex::find(const FindQuery& query, std::size_t most) const
{
    FindResult result;
    if (query.words().empty())
        return result;
    Search search(*this, query);
    std::vector<std::size_t> found;
    search.look(exactPlace);
    search.gather(found, result.count, most);
    if (found.size() < most) {
        search.look(nearPlace);
        search.gather(found, result.count, most);
    }
    for (const std::size_t entry : found)
        result.hits.push_back(hitOf(entry, query));
    return result;
}

std::string FindIndex::settingOf(std::size_t entry) const
{
    const Entry& each = m_entries[entry];
    if (each.kind == FindKind::Function)
        return {};
    if (each.kind == FindKind::Cell)
        return settingOf(each.parent).append(": ").append(fieldsOf(each.parent)[Value]);
    const auto own = fieldsOf(entry)[Label];
    return own.empty() && each.kind == FindKind::Row ? settingOf(each.parent) : std::string(own);
}

/// What else there is of the entry and of those that it stands below, where a word stands that the shown
/// texts lack.
std::string FindIndex::detailOf(std::size_t entry, const FindQuery& query,
                                const std::vector<std::string>& shown) const
{
    std::vector<std::string> others;
    for (const Entry* level = &m_entries[entry]; level; level = above(*level)) {
        for (const std::string_view field : fieldsOf(static_cast<std::size_t>(level - m_entries.data())))
            others.emplace_back(field);
    }
    std::vector<std::string> taken;
    for (const std::string& word : query.words()) {
        for (const auto place : {exactPlace, nearPlace}) {
            const auto holds = [&](const std::string& text) {
                return place(codepage::lowered(text), word, 0).has_value();
            };
            if (std::any_of(shown.begin(), shown.end(), holds) ||
                std::any_of(taken.begin(), taken.end(), holds))
                break;
            if (const auto found = std::find_if(others.begin(), others.end(), holds); found != others.end()) {
                taken.push_back(*found);
                break;
            }
        }
    }
    std::string detail;
    for (const std::string& each : taken)
        detail.append(detail.empty() ? "" : ", ").append(each);
    return detail;
}

FindHit FindIndex::hitOf(std::size_t entry, const FindQuery& query) const
{
    const Entry& own = m_entries[entry];
    std::size_t function = entry;
    while (above(m_entries[function]))
        function = m_entries[function].parent;
    FindHit hit{own.kind, {m_names[m_entries[function].name], {}, own.row}, {}, {}, {}, {}};
    if (function != entry)
        hit.place.control = m_names[own.name];
    std::vector<std::string> shown = {std::string(fieldsOf(function)[Label]), settingOf(entry),
                                      std::string(fieldsOf(entry)[Value])};
    shown.push_back(detailOf(entry, query, shown));
    auto marks = query.marksIn(shown);
    std::size_t place = 0;
    for (FindText* text : {&hit.function, &hit.setting, &hit.value, &hit.detail}) {
        *text = {std::move(shown[place]), std::move(marks[place])};
        ++place;
    }
    return hit;
}

} // namespace quillfen
