#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillfen {

class SettingsFiles;

/// An article of the news archive, which all of the maker's scripts share.
struct NewsArticle
{
    std::string date;
    std::string headline;
    std::string story;
    std::string symbol;
    std::string number;

    bool operator==(const NewsArticle&) const = default;
};

/// What came of a fetch. Without an answer, or with one that was cut or too long, the text is empty.
struct FetchedText
{
    std::string text{};
    bool isError = false; ///< the server answered with an error status
    bool isLate = false;  ///< nothing more is fetched in this start
};

/// Fetches the text behind an address. Never throws.
using Fetch = std::function<FetchedText(const std::string& address)>;

/// The most article text that one start takes; what is left comes at the next start.
inline constexpr std::size_t newsSizeLimit = std::size_t{16} << 20U;

/// The stored articles, oldest first. A text that holds `=` comes back cut there; what is missing is empty.
std::vector<NewsArticle> loadNews(const SettingsFiles& files);

/// Writes the articles in their order. Throws StoreError.
void saveNews(const SettingsFiles& files, const std::vector<NewsArticle>& articles);

/// Fetches the articles that came after the last one that is known, and stores them. Returns the article to
/// be shown, if there is one. An error ends the fetching without a word, and then nothing is written, so that
/// a later start tries again; an error page ends it too, but what came before is kept. An empty base address
/// fetches nothing.
std::optional<NewsArticle> fetchNews(const SettingsFiles& files, const std::string& newsBase,
                                     const Fetch& fetch);

/// Fetches the version that the maker offers; nothing if it is not to be had, or the base address is empty.
std::optional<std::string> fetchVersion(const std::string& updatesBase, const Fetch& fetch);

/// Whether a click on the current version offers the download: when the program's version differs from that
/// of the settings tree.
bool offersDownload(const SettingsFiles& files, std::string_view programVersion);

} // namespace quillfen
