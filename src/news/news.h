#pragma once

#include "declarations/function.h"

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
/// a later start tries again; an error page ends it too, but what came before is kept. Nothing is fetched
/// from an empty base address, nor behind a last known number that is too large to count on from.
std::optional<NewsArticle> fetchNews(const SettingsFiles& files, const std::string& newsBase,
                                     const Fetch& fetch);

/// Where the version lies that the maker offers.
std::string versionAddress(const std::string& updatesBase);

/// The version that was fetched from there; nothing if it was not to be had.
std::optional<std::string> readVersion(const FetchedText& fetched);

/// Whether a click on the current version offers the download: when the program's version differs from that
/// of the settings tree.
bool offersDownload(const SettingsFiles& files, std::string_view programVersion);

FunctionDeclaration newsFunction();

} // namespace quillfen
