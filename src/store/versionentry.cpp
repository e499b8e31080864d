#include "store/versionentry.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>

namespace quillfen {
namespace {

constexpr std::string_view firstLine = "quillfen version 1";
constexpr std::string_view lastLine = "end";
constexpr std::array<std::string_view, 3> kindWords = {"save", "rebuild", "backup"};
constexpr char escape = '%';
constexpr int hex = 16;

/// Puts what would end a line into digits.
std::string onOneLine(std::string_view text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string line;
    for (const char each : text) {
        const auto byte = static_cast<unsigned char>(each);
        if (byte >= ' ' && each != escape)
            line += each;
        else
            line.append({escape, digits[byte / hex], digits[byte % hex]});
    }
    return line;
}

std::string fromOneLine(std::string_view line)
{
    std::string text;
    for (std::size_t at = 0; at < line.size(); ++at) {
        unsigned char byte{};
        const char* digits = line.data() + at + 1;
        const bool isEscaped = line[at] == escape && line.size() - at > 2 &&
                               std::from_chars(digits, digits + 2, byte, hex).ptr == digits + 2;
        text += isEscaped ? static_cast<char>(byte) : line[at];
        at += isEscaped ? 2 : 0;
    }
    return text;
}

/// The text up to a separator, which is taken from what is left of it together with that.
std::string_view taken(std::string_view& text, char separator)
{
    const auto end = std::min(text.find(separator), text.size());
    const auto piece = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return piece;
}

/// Takes a line in; false if it makes no sense.
bool takeLine(VersionEntry& entry, std::string_view line)
{
    const auto word = taken(line, ' ');
    if (word == "time") {
        entry.time = fromOneLine(line);
    } else if (word == "cause") {
        entry.cause.words = fromOneLine(line);
    } else if (word == "kind") {
        const auto kind = std::find(kindWords.begin(), kindWords.end(), line);
        if (kind == kindWords.end())
            return false;
        entry.cause.kind = static_cast<Cause::Kind>(kind - kindWords.begin());
    } else if (word == "had") {
        const auto blob = taken(line, ' ');
        if (!blobSize(blob))
            return false;
        entry.files.push_back({fromOneLine(line), std::string(blob)});
    } else if (word == "hadNot") {
        entry.files.push_back({fromOneLine(line), {}});
    } else {
        return false;
    }
    return true;
}

/// The 64 bits of Fowler, Noll and Vo's hash. Names that are equal by chance are told apart by a count.
std::uint64_t hashOf(std::string_view bytes)
{
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const char each : bytes)
        hash = (hash ^ static_cast<unsigned char>(each)) * 0x100000001B3U;
    return hash;
}

/// A number that is all of the text.
template <typename Number>
std::optional<Number> numberIn(std::string_view text, int base = 10)
{
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

} // namespace

std::string composedEntry(const VersionEntry& entry)
{
    std::string text;
    const auto line = [&text](std::string_view word, const std::string& rest) {
        text.append(word).append(" ").append(rest).append("\n");
    };
    text.append(firstLine).append("\n");
    line("time", entry.time);
    line("kind", std::string(kindWords.at(static_cast<std::size_t>(entry.cause.kind))));
    line("cause", onOneLine(entry.cause.words));
    for (const KeptFile& file : entry.files) {
        if (file.wasThere())
            line("had", file.blob + ' ' + onOneLine(file.told));
        else
            line("hadNot", onOneLine(file.told));
    }
    return text.append(lastLine).append("\n");
}

std::optional<VersionEntry> parsedEntry(unsigned number, std::string_view text)
{
    if (taken(text, '\n') != firstLine)
        return std::nullopt;
    VersionEntry entry;
    entry.number = number;
    std::size_t strange = 0;
    while (text.find('\n') != std::string_view::npos) { // what has no line end was cut
        const auto line = taken(text, '\n');
        if (line == lastLine && text.empty()) {
            if (strange > 0)
                entry.fault = std::to_string(strange) + " of its lines can't be read";
            return entry;
        }
        strange += takeLine(entry, line) ? 0U : 1U;
    }
    entry.fault = "its end is missing";
    return entry;
}

std::string blobName(std::string_view bytes, unsigned count)
{
    std::array<char, 17> hash{};
    std::snprintf(hash.data(), hash.size(), "%016llx", static_cast<unsigned long long>(hashOf(bytes)));
    return std::string(hash.data()) + '-' + std::to_string(bytes.size()) + '-' + std::to_string(count);
}

std::optional<std::uintmax_t> blobSize(std::string_view name)
{
    const auto hash = taken(name, '-');
    const auto size = numberIn<std::uintmax_t>(taken(name, '-'));
    return numberIn<std::uint64_t>(hash, hex) && numberIn<unsigned>(name) ? size : std::nullopt;
}

bool isBlobOf(std::string_view bytes, std::string_view name)
{
    const auto count = numberIn<unsigned>(name.substr(name.rfind('-') + 1));
    return count && blobName(bytes, *count) == name;
}

std::string utcText(std::time_t time)
{
    using namespace std::chrono;
    const auto point = floor<seconds>(system_clock::from_time_t(time));
    const auto day = floor<days>(point);
    const year_month_day date(day);
    const hh_mm_ss clock(point - day);
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()));
    return text.data();
}

} // namespace quillfen
