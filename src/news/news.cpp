#include "news/news.h"

#include "settings/lines.h"
#include "settings/tablefile.h"
#include "settings/tablewriter.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <system_error>

namespace quillfen {
namespace {

constexpr std::string_view newsFile = R"(Morvaleth's Scripts\News\News.tbl)";
constexpr std::string_view newsSettingsFile = R"(Morvaleth's Scripts\News\NewsSettings.tbl)";
constexpr bool appRelative = true; // the folder lies beside the script's own, as other scripts use it too

using ArticleNumber = std::int64_t;

std::vector<std::string_view> split(std::string_view text, char separator)
{
    std::vector<std::string_view> fields;
    for (;;) {
        const auto end = text.find(separator);
        fields.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return fields;
        text.remove_prefix(end + 1);
    }
}

std::string_view trimSpace(std::string_view text)
{
    constexpr std::string_view space = " \t\r\n";
    text.remove_prefix(std::min(text.find_first_not_of(space), text.size()));
    return text.substr(0, text.find_last_not_of(space) + 1);
}

/// The whole part of the number that a text begins with, 0 if it begins with none. Nothing if the number is
/// so large that the next one can't be told from it.
std::optional<ArticleNumber> leadingArticle(std::string_view text)
{
    constexpr double largest = 9007199254740992.0; // 2 to the 53rd
    if (text.starts_with('+'))
        text.remove_prefix(1);
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (!std::isfinite(number))
        return 0; // a word, such as "info", and no number
    if (read.ec == std::errc::result_out_of_range || std::abs(number) >= largest)
        return std::nullopt;
    return static_cast<ArticleNumber>(number);
}

/// The same of a text that is a number from end to end; nothing if it is none.
std::optional<ArticleNumber> wholeArticle(std::string_view text)
{
    text = trimSpace(text);
    return wholeNumber(text) ? leadingArticle(text) : std::nullopt;
}

struct Counter
{
    ArticleNumber first;
    ArticleNumber last;
};

std::optional<Counter> readCounter(const FetchedText& fetched)
{
    if (fetched.isError)
        return std::nullopt;
    const auto fields = split(fetched.text, '|');
    const auto first = wholeArticle(fields[0]);
    const auto last = fields.size() > 1 ? wholeArticle(fields[1]) : std::nullopt;
    if (!first || !last)
        return std::nullopt;
    return Counter{*first, *last};
}

bool isErrorPage(const FetchedText& fetched)
{
    return fetched.isError || fetched.text.starts_with("<!DOC");
}

/// The fields stand as date, symbol, headline and story. One that is missing is empty.
NewsArticle articleOf(const std::vector<std::string_view>& fields, std::string number)
{
    const auto field = [&fields](std::size_t at) {
        return at < fields.size() ? std::string(fields[at]) : std::string();
    };
    return {field(0), field(2), field(3), field(1), std::move(number)};
}

/// An article as the server gives it must have all its fields; what stands behind the story is dropped.
std::optional<NewsArticle> readArticle(std::string_view text, ArticleNumber number)
{
    const auto fields = split(text, '|');
    if (fields.size() < 4)
        return std::nullopt;
    return articleOf(fields, std::to_string(number));
}

std::string composedNews(const std::vector<NewsArticle>& articles)
{
    TableWriter table("tNews");
    for (const NewsArticle& article : articles)
        table.text(bracketed(article.number),
                   article.date + "|" + article.symbol + "|" + article.headline + "|" + article.story);
    return table.closed();
}

/// A blank stands behind the brace, which the readers trim.
void saveLastNumber(const SettingsFiles& files, const std::string& number)
{
    TableWriter table;
    table.line("tNewsSettings = { ").indent(1).row("iLastID", number);
    files.WriteSettingsFile(newsSettingsFile, table.closed(), appRelative);
}

std::optional<ArticleNumber> loadLastNumber(const SettingsFiles& files)
{
    return leadingArticle(files.ReadTableValue(newsSettingsFile, "iLastID", "tNewsSettings", appRelative));
}

/// The news of one start.
struct NewArticles
{
    std::vector<NewsArticle> articles;
    bool failed = false; ///< an article could not be had, or not with all its fields
};

NewArticles fetchArticles(const std::string& newsBase, const Fetch& fetch, Counter range)
{
    NewArticles news;
    std::size_t taken = 0;
    for (auto number = range.first; number <= range.last && taken < newsSizeLimit; ++number) {
        const auto fetched = fetch(newsBase + std::to_string(number) + ".txt");
        if (isErrorPage(fetched) || fetched.isLate)
            return news;
        auto article = readArticle(fetched.text, number);
        if (!article) {
            news.failed = true;
            return news;
        }
        taken += fetched.text.size();
        news.articles.push_back(std::move(*article));
    }
    return news;
}

void store(const SettingsFiles& files, std::vector<NewsArticle> archive, const std::vector<NewsArticle>& news)
{
    archive.insert(archive.end(), news.begin(), news.end());
    try {
        saveLastNumber(files, news.back().number);
        saveNews(files, archive);
    } catch (const StoreError&) {
        // Nobody asked for the news to be written: a folder that can't be written costs the archive alone.
        return;
    }
}

} // namespace

std::vector<NewsArticle> loadNews(const SettingsFiles& files)
{
    std::vector<ListRow> rows;
    files.ReadTableToList(newsFile, rows, "=", "tNews", Rows::Plain, appRelative);
    std::vector<NewsArticle> articles;
    articles.reserve(rows.size());
    for (ListRow& row : rows)
        articles.push_back(articleOf(split(row.second, '|'), std::move(row.text)));
    return articles;
}

void saveNews(const SettingsFiles& files, const std::vector<NewsArticle>& articles)
{
    files.WriteSettingsFile(newsFile, composedNews(articles), appRelative);
}

std::optional<NewsArticle> fetchNews(const SettingsFiles& files, const std::string& newsBase,
                                     const Fetch& fetch)
{
    if (newsBase.empty())
        return std::nullopt;
    auto archive = loadNews(files);
    const auto known = loadLastNumber(files);
    if (!known)
        return std::nullopt;
    const auto counter = readCounter(fetch(newsBase + "counter.txt"));
    if (!counter)
        return std::nullopt;
    const Counter range{std::max(*known + 1, counter->first), counter->last};
    const NewArticles news = fetchArticles(newsBase, fetch, range);
    if (news.articles.empty()) {
        const bool shows = !news.failed && !archive.empty();
        return shows ? std::optional(archive.back()) : std::nullopt;
    }
    if (!news.failed)
        store(files, std::move(archive), news.articles);
    return news.articles.back();
}

std::string versionAddress(const std::string& updatesBase)
{
    return updatesBase + "quillfen.txt";
}

std::optional<std::string> readVersion(const FetchedText& fetched)
{
    if (fetched.text.empty() || isErrorPage(fetched))
        return std::nullopt;
    return std::string(split(fetched.text, '*').front());
}

bool offersDownload(const SettingsFiles& files, std::string_view programVersion)
{
    return files.ReadTableValue(R"(General\Globals\Version.tbl)", "sVersion") != programVersion;
}

FunctionDeclaration newsFunction()
{
    const OwnPart part = {
        .kind = OwnPartKind::News,
        .explanations = {{"lvwNews",
                          "Each row is an article that was fetched; a deleted one does not come back."}},
        .texts = [](const SettingsFiles& files, const HubProfiles&) {
            std::vector<PlacedText> texts = {{"", "lvwNews", -1, "News Headline", ""}};
            int row = 0;
            for (const NewsArticle& each : loadNews(files)) {
                const std::string text = each.date + " | " + each.headline + " | " + each.story;
                texts.push_back({"", "lvwNews", row++, "News Headline", text});
            }
            return texts;
        }};
    return {.nodes = {{.key = "General~News",
                       .caption = "News Archive",
                       .form = {{{"frmGeneralNews", "General ~ News", {6000, 4500}}, {part}}},
                       .dropDown = "News"}}};
}

} // namespace quillfen
