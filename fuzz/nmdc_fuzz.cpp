// Whatever a hub says, in whatever pieces: the links say the same, and only whole messages.
#include "check.h"
#include "support/portalfakes.h"

#include <cstdint>

namespace quillfen {
namespace {

struct Said
{
    std::string toOne;
    std::string toTwo;
    std::vector<std::string> operators;
    std::string waiting;

    bool operator==(const Said&) const = default;
};

/// Hub 1 says it all in pieces of this size, while link 2 is logged in.
Said heardInPieces(std::string_view bytes, std::size_t piece)
{
    test::PortalFixture portal;
    portal.logIn(Link::Two);
    portal.connect(Link::One);
    portal.form.ignored = {"spam"};
    for (std::size_t at = 0; at < bytes.size(); at += piece)
        portal.hear(Link::One, bytes.substr(at, piece));
    return {portal.one.hub.all(), portal.two.hub.all(), portal.links.colOpNicks().all(),
            std::string(portal.links.waiting(Link::One))};
}

} // namespace
} // namespace quillfen

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's own name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using quillfen::fuzz::require;
    // NOLINTNEXTLINE(bugprone-suspicious-stringview-data-usage)
    const std::string bytes(data, data + size);
    const auto whole = quillfen::heardInPieces(bytes, std::string::npos);
    require(whole == quillfen::heardInPieces(bytes, 1), "byte by byte is as in one go");
    require(whole == quillfen::heardInPieces(bytes, 7), "pieces of seven are as in one go");
    require(whole.toOne.empty() || whole.toOne.ends_with('|'), "only whole messages are sent");
    require(whole.toTwo.empty() || whole.toTwo.ends_with('|'), "only whole messages are relayed");
    require(whole.waiting == bytes.substr(bytes.rfind('|') + 1), "what waits is the last fragment");
    std::string lock = bytes;
    const auto key = quillfen::LockToKey(lock);
    require(key.find('|') == std::string::npos, "a key never holds a bar");
    require(lock.find(' ') == std::string::npos, "a lock ends before its first blank");
    quillfen::readMyInfo(bytes);
    return 0;
}
