// Whatever the news server answers, and whatever stands in the archive: what is stored comes back.
#include "check.h"
#include "news/news.h"
#include "support/hub.h"

#include <algorithm>
#include <cstdint>

namespace {

constexpr const char* folder = "/hub/scripts/Morvaleth's Scripts/News";

/// The input's parts, cut at zero bytes: archive, settings, counter, and one text for each article asked for.
std::vector<std::string> parts(const std::string& bytes)
{
    std::vector<std::string> all(1);
    for (const char byte : bytes) {
        if (byte == '\0')
            all.emplace_back();
        else
            all.back() += byte;
    }
    all.resize(std::max<std::size_t>(all.size(), 4));
    return all;
}

} // namespace

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's own name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using quillfen::fuzz::require;
    const auto texts = parts(std::string(data, data + size));
    quillfen::test::Hub hub;
    hub.store.folders.insert(folder);
    hub.store.files[std::string(folder) + "/News.tbl"] = texts[0];
    hub.store.files[std::string(folder) + "/NewsSettings.tbl"] = texts[1];
    std::size_t next = 2;
    const auto fetch = [&](const std::string& /*address*/) {
        const bool late = next >= texts.size();
        return quillfen::FetchedText{late ? std::string() : texts[next++], false, late};
    };
    quillfen::fetchNews(hub.files, "http://maker/", fetch);
    quillfen::fetchNews(hub.files, "http://maker/", fetch);
    next = 2;
    const auto version = quillfen::readVersion(fetch({}));
    require(!version || version->find('*') == std::string::npos, "a version ends before its first asterisk");

    // Once it was written and read, an archive stays the same.
    quillfen::saveNews(hub.files, quillfen::loadNews(hub.files));
    const auto stored = quillfen::loadNews(hub.files);
    quillfen::saveNews(hub.files, stored);
    const auto again = quillfen::loadNews(hub.files);
    require(again.size() <= stored.size(), "an archive does not grow by itself");
    return 0;
}
