#include "portal/nmdc.h"

#include <algorithm>

namespace quillfen {
namespace {

unsigned char code(char character)
{
    return static_cast<unsigned char>(character);
}

unsigned char nibblesSwapped(unsigned value)
{
    return static_cast<unsigned char>((value << 4U) ^ (value >> 4U));
}

void appendKeyPiece(std::string& key, unsigned char value)
{
    switch (value) {
    case 0:
    case 5:
    case 36:
    case 96:
    case 124:
    case 126: {
        const std::string digits = std::to_string(value);
        key.append("/%DCN").append(3 - digits.size(), '0').append(digits).append("%/");
        break;
    }
    default:
        key += static_cast<char>(value);
    }
}

/// Takes the part before the separator off the front of a text.
std::string_view takeBefore(std::string_view& text, std::string_view separator)
{
    const auto before = TextBefore(text, separator);
    text = TextAfter(text, separator);
    return before;
}

bool isNumber(std::string_view text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

} // namespace

std::string_view TextBefore(std::string_view text, std::string_view separator)
{
    return text.substr(0, text.find(separator));
}

std::string_view TextAfter(std::string_view text, std::string_view separator)
{
    const auto at = text.find(separator);
    return at == std::string_view::npos ? std::string_view() : text.substr(at + separator.size());
}

std::string LockToKey(std::string& lock)
{
    lock.erase(std::min(lock.find(' '), lock.size()));
    if (lock.empty())
        return {};
    const auto beforeLast = lock.size() > 1 ? code(lock[lock.size() - 2]) : 0U;
    std::string key;
    appendKeyPiece(key, nibblesSwapped(code(lock.front()) ^ code(lock.back()) ^ beforeLast ^ 5U));
    for (std::size_t at = 1; at < lock.size(); ++at)
        appendKeyPiece(key, nibblesSwapped(code(lock[at - 1]) ^ static_cast<unsigned>(code(lock[at]))));
    return key;
}

std::optional<std::string> ReceiveBuffer::takeMessage()
{
    const auto end = m_bytes.find(messageEnd, m_searched);
    if (end == std::string::npos) {
        m_searched = m_bytes.size(); // a long message in small pieces is searched once
        return std::nullopt;
    }
    std::string message = m_bytes.substr(m_taken, end - m_taken);
    m_taken = m_searched = end + 1;
    compact();
    return message;
}

/// Moves the rest to the front only when it is the smaller half, so that all moves together cost no more than
/// what was received.
void ReceiveBuffer::compact()
{
    if (m_taken < m_bytes.size() - m_taken)
        return;
    m_bytes.erase(0, m_taken);
    m_taken = m_searched = 0;
}

MyInfo readMyInfo(std::string_view parameters)
{
    std::string_view rest = TextAfter(parameters, " "); // behind "$ALL"
    MyInfo info;
    info.nick = takeBefore(rest, " ");
    info.description = takeBefore(rest, "$");
    info.mode = takeBefore(rest, "$") == "A" ? "ACTIVE" : "PASSIVE";
    const auto speed = takeBefore(rest, "$");
    if (!speed.empty()) {
        info.speed = speed.substr(0, speed.size() - 1);
        info.status = code(speed.back());
    }
    info.email = takeBefore(rest, "$");
    const auto share = takeBefore(rest, "$");
    info.share = isNumber(share) ? share : "0";
    return info;
}

std::string_view ConnectionCategory(std::string_view speed)
{
    struct Category
    {
        std::string_view speed;
        std::string_view category;
    };
    static constexpr Category categories[] = {
        {"28.8Kbps", "Modem"},      {"33.6Kbps", "Modem"}, {"56Kbps", "Modem"}, {"Satellite", "Satellite"},
        {"Microwave", "Satellite"}, {"ISDN", "ISDN"},      {"DSL", "DSL"},      {"Cable", "Cable"},
        {"LAN(T1)", "LAN"},         {"LAN(T3)", "LAN"},    {"LAN", "LAN"},
    };
    const auto* found = std::find_if(std::begin(categories), std::end(categories),
                                     [speed](const Category& candidate) { return candidate.speed == speed; });
    return found == std::end(categories) ? "Unknown" : found->category;
}

} // namespace quillfen
