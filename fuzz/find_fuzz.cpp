// Whatever stands in the index and whatever is typed: what holds all words is found, before what nearly holds
// them, and is marked within its text.
#include "check.h"
#include "find/findindex.h"
#include "settings/codepage.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace {

using quillfen::FindHit;
using quillfen::FindIndex;
using quillfen::FindKind;
using quillfen::FindQuery;
using quillfen::FindText;
using quillfen::fuzz::require;

/// The texts of an input, which zeros part.
std::vector<std::string> texts(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::string> all(1);
    for (std::size_t at = 0; at < size; ++at) {
        if (data[at] == 0)
            all.emplace_back();
        else
            all.back() += static_cast<char>(data[at]);
    }
    return all;
}

/// A text as the index holds it.
std::string held(std::string text)
{
    text.resize(std::min<std::size_t>(text.size(), 1000));
    std::replace_if(
        text.begin(), text.end(), [](char each) { return each == '\n' || each == '\r'; }, ' ');
    return text;
}

bool holdsAll(const std::string& text, const FindQuery& query)
{
    const std::string lowered = quillfen::codepage::lowered(text);
    return std::all_of(query.words().begin(), query.words().end(),
                       [&](const std::string& word) { return lowered.find(word) != std::string::npos; });
}

void checkMarks(const FindText& text)
{
    std::size_t end = 0;
    for (const auto& mark : text.marks) {
        require(mark.length > 0 && (mark.at > end || end == 0), "marks stand apart and in their order");
        end = mark.at + mark.length;
    }
    require(end <= text.text.size(), "marks stand in their text");
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's own name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto all = texts(data, size);
    const FindQuery query(all.front());
    if (all.front().find_first_of("\r\n") != std::string::npos)
        return 0; // the box takes one line
    FindIndex index;
    std::size_t expected = 0;
    const auto function = index.add(FindIndex::top, {FindKind::Function, {"key"}, "", "", {}});
    for (std::size_t at = 1; at < all.size(); ++at) {
        index.add(function, {FindKind::Control, {{}, "control"}, all[at], "", {}});
        expected += !query.words().empty() && holdsAll(held(all[at]), query) ? 1U : 0U;
    }
    const auto result = index.find(query, all.size());
    require(result.count == result.hits.size(), "all that is found is given where there is room");
    std::size_t exact = 0;
    for (const FindHit& hit : result.hits) {
        const bool isExact = holdsAll(hit.setting.text, query);
        require(!isExact || exact == static_cast<std::size_t>(&hit - result.hits.data()),
                "what holds the words comes before what nearly holds them");
        exact += isExact ? 1U : 0U;
        require(!hit.setting.marks.empty(), "what is found is marked");
        checkMarks(hit.setting);
    }
    require(exact == expected, "what holds all words is found");
    return 0;
}
