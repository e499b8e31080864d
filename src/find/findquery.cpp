#include "find/findquery.h"

#include "settings/codepage.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace quillfen {
namespace {

constexpr std::size_t mostWords = 16;
constexpr std::size_t leastMisspelt = 4;

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

/// Which bytes words are made of.
class WordBytes
{
public:
    static const WordBytes& all()
    {
        static const WordBytes bytes;
        return bytes;
    }

    bool has(char byte) const { return m_are[static_cast<unsigned char>(byte)]; }

private:
    WordBytes()
    {
        for (std::size_t byte = 0; byte < m_are.size(); ++byte) {
            const std::string text(1, static_cast<char>(byte));
            m_are[byte] = isDigit(text[0]) || codepage::lowered(text) != codepage::raised(text);
        }
    }

    std::array<bool, 256> m_are{};
};

/// How many bytes at a text's beginning are the word but for one letter; 0 if none are.
std::size_t nearLength(std::string_view text, std::string_view word)
{
    const auto differs = static_cast<std::size_t>(
        std::mismatch(word.begin(), word.end(), text.begin(), text.end()).first - word.begin());
    if (differs == word.size())
        return word.size();
    const std::string_view rest = text.substr(differs);
    const std::string_view sought = word.substr(differs);
    if (!rest.empty() && WordBytes::all().has(rest[0])) {
        if (rest.substr(1).starts_with(sought))
            return word.size() + 1;
        const bool areSwapped = rest.size() > 1 && sought.size() > 1 && rest[0] == sought[1] &&
                                rest[1] == sought[0] && rest.substr(2).starts_with(sought.substr(2));
        if (areSwapped || rest.substr(1).starts_with(sought.substr(1)))
            return word.size();
    }
    return rest.starts_with(sought.substr(1)) ? word.size() - 1 : 0;
}

bool mayBeMisspelt(std::string_view word)
{
    return word.size() >= leastMisspelt && !std::all_of(word.begin(), word.end(), isDigit);
}

using Place = decltype(&exactPlace);

/// Marks every place of a word, and tells whether there is one.
bool mark(Place place, const std::string& lowered, const std::string& word, std::vector<FindMark>& marks)
{
    const auto before = marks.size();
    for (auto found = place(lowered, word, 0); found; found = place(lowered, word, found->at + found->length))
        marks.push_back(*found);
    return marks.size() > before;
}

/// Puts marks into their order, and makes one of those that touch.
void join(std::vector<FindMark>& marks)
{
    std::sort(marks.begin(), marks.end(),
              [](const FindMark& one, const FindMark& other) { return one.at < other.at; });
    std::vector<FindMark> joined;
    for (const FindMark& each : marks) {
        if (joined.empty() || joined.back().at + joined.back().length < each.at) {
            joined.push_back(each);
            continue;
        }
        FindMark& last = joined.back();
        last.length = std::max(last.length, each.at + each.length - last.at);
    }
    marks = std::move(joined);
}

} // namespace

FindQuery::FindQuery(std::string_view typed)
{
    const std::string lowered = codepage::lowered(typed);
    std::size_t end = 0;
    while (m_words.size() < mostWords) {
        const std::size_t begin = lowered.find_first_not_of(' ', end);
        if (begin == std::string::npos)
            return;
        end = std::min(lowered.find(' ', begin), lowered.size());
        m_words.push_back(lowered.substr(begin, end - begin));
    }
}

std::vector<std::vector<FindMark>> FindQuery::marksIn(const std::vector<std::string>& texts) const
{
    std::vector<std::string> lowered;
    std::transform(texts.begin(), texts.end(), std::back_inserter(lowered), codepage::lowered);
    std::vector<std::vector<FindMark>> marks(texts.size());
    const auto markAll = [&](Place place, const std::string& word) {
        bool isThere = false;
        for (std::size_t text = 0; text < texts.size(); ++text)
            isThere = mark(place, lowered[text], word, marks[text]) || isThere;
        return isThere;
    };
    for (const std::string& word : m_words) {
        if (!markAll(exactPlace, word))
            markAll(nearPlace, word);
    }
    std::for_each(marks.begin(), marks.end(), join);
    return marks;
}

bool beginsWord(std::string_view lowered, std::size_t at)
{
    return at == 0 || !WordBytes::all().has(lowered[at - 1]);
}

std::optional<FindMark> exactPlace(std::string_view lowered, std::string_view word, std::size_t from)
{
    const std::size_t at = lowered.find(word, from);
    if (at == std::string_view::npos)
        return std::nullopt;
    return FindMark{at, word.size()};
}

std::optional<FindMark> nearPlace(std::string_view lowered, std::string_view word, std::size_t from)
{
    if (!mayBeMisspelt(word))
        return std::nullopt;
    const WordBytes& bytes = WordBytes::all();
    bool isInside = !beginsWord(lowered, from);
    for (std::size_t at = from; at < lowered.size(); ++at) {
        const bool isWord = bytes.has(lowered[at]);
        const std::size_t length = isWord && !isInside ? nearLength(lowered.substr(at), word) : 0;
        if (length > 0)
            return FindMark{at, length};
        isInside = isWord;
    }
    return std::nullopt;
}

} // namespace quillfen
