#include "support/plainscan.h"

#include <vector>

namespace quillfen::test {
namespace {

bool among(char character, const char* characters)
{
    for (; *characters != '\0'; ++characters) {
        if (*characters == character)
            return true;
    }
    return false;
}

std::vector<std::string> linesOf(const std::string& bytes)
{
    std::vector<std::string> lines;
    std::string line;
    bool open = false;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        if (bytes[at] != '\r' && bytes[at] != '\n') {
            line += bytes[at];
            open = true;
            continue;
        }
        lines.push_back(line);
        line.clear();
        open = false;
        if (bytes[at] == '\r' && at + 1 < bytes.size() && bytes[at + 1] == '\n')
            ++at;
    }
    if (open)
        lines.push_back(line);
    return lines;
}

std::string trimKey(std::string text)
{
    while (!text.empty() && among(text[0], "\t\", [")) {
        if (text.substr(0, 3) == "[\"[")
            text = "[" + (text.size() > 3 ? text.substr(3, text.size() - 4) : std::string());
        else
            text = text.substr(1);
    }
    while (!text.empty() && among(text[text.size() - 1], "\t\", ]"))
        text = text.substr(0, text.size() - 1);
    return text;
}

std::string trimValue(std::string text)
{
    while (!text.empty() && among(text[0], "\t\", "))
        text = text.substr(1);
    while (!text.empty() && among(text[text.size() - 1], "\t\", "))
        text = text.substr(0, text.size() - 1);
    return text;
}

} // namespace

std::string plainScan(const std::string& bytes, const std::string& key, const std::string& table)
{
    std::string current;
    int number = 0;
    for (const std::string& line : linesOf(bytes)) {
        if (++number > 5000)
            return {};
        const auto equals = line.find('=');
        std::string left = equals == std::string::npos ? line : line.substr(0, equals);
        while (!left.empty() && left.front() == ' ')
            left.erase(0, 1);
        while (!left.empty() && left.back() == ' ')
            left.pop_back();
        const std::string name = trimKey(left);
        if (line.empty() || name == "}")
            continue;
        const std::string value = equals == std::string::npos ? "" : trimValue(line.substr(equals + 1));
        if (value == "{" && name == table)
            current = name;
        if (name == key && table == current && value != "{")
            return value;
    }
    return {};
}

} // namespace quillfen::test
