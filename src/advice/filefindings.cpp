#include "advice/filefindings.h"

#include "advice/notloading.h"
#include "declarations/oddfiles.h"
#include "lua/tablereader.h"
#include "settings/lines.h"
#include "settings/tablefile.h"

#include <algorithm>
#include <optional>

namespace quillfen {
namespace {

constexpr std::string_view backslashWords =
    "the hub script sees this text without its backslash, or with another character in its place. Take the "
    "backslash out.";
constexpr std::string_view bareWordWords =
    "a word without quotes is nothing to the hub script. Enter a number, or put the word in quotes.";
constexpr std::string_view endsWords = "the text begins or ends with a blank, a tab, a comma or a quote, "
                                       "which the next load takes away. Take it "
                                       "out.";
constexpr std::string_view bracketWords =
    "the text begins with [ or ends with ], which the next load takes away. Use other brackets.";
constexpr std::string_view equalsWords = "the text holds a =, and the editor shows only what stands before "
                                         "it. Take it out, or the next save does.";
constexpr std::string_view caretWords = "the version holds a ^, and the editor shows only what stands before "
                                        "it. Take it out, or the next save does.";
constexpr std::string_view tooLongWords =
    "the text has more than 5,000 lines, so that the editor shows nothing of it. Take lines out.";
constexpr std::string_view starWords =
    "a second * ends the answer for the editor. Take it out, or the next save does.";
constexpr std::string_view endsInTWords = "the editor doesn't show a line that ends in \"t\", and the next "
                                          "save drops it. Put a full stop behind it.";

constexpr std::string_view unreadableWords =
    "the file can't be read, and the editor shows zeros and empty texts for it. See to who may read it.";
constexpr std::string_view missingWords =
    "the file is missing, and the editor shows zeros and empty texts for it. Restore it and save its form.";

/// Collects the findings of one file.
class FileFindings
{
public:
    FileFindings(std::string_view file, std::string_view bytes) : m_file(file), m_bytes(bytes) {}

    std::vector<Finding> take();

private:
    void add(std::size_t line, std::string_view words)
    {
        m_findings.push_back({std::string(m_file), line, std::string(words)});
    }

    void takeTable();
    void takeLua();
    void takeReading(const lua::Reading& reading, std::string_view what);
    bool isKnown(lua::Fault fault) const;
    void takeTexts();
    void takeTextsOf(std::string_view line, std::size_t number);
    bool isCutAtEquals(std::string_view line) const;
    void takeRows();
    void takeLength();

    std::string_view m_file;
    std::string_view m_bytes;
    std::vector<Finding> m_findings{};
};

std::vector<Finding> FileFindings::take()
{
    if (m_file.ends_with(".tbl"))
        takeTable();
    else if (m_file.ends_with(".lst"))
        takeRows();
    else
        takeLength();
    std::stable_sort(m_findings.begin(), m_findings.end(),
                     [](const Finding& one, const Finding& other) { return one.line < other.line; });
    // One thing at a time: what is told of a line first may well be the reason of the next.
    m_findings.erase(
        std::unique(m_findings.begin(), m_findings.end(),
                    [](const Finding& one, const Finding& other) { return one.line == other.line; }),
        m_findings.end());
    return std::move(m_findings);
}

/// A told path with slashes.
std::string slashed(std::string_view file)
{
    std::string path(file);
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

void FileFindings::takeTable()
{
    // What never loads is read by the hub script in a way of its own.
    if (notLoadingOnceSaved().count(slashed(m_file)) == 0)
        takeLua();
    takeTexts();
}

void FileFindings::takeLua()
{
    const auto in51 = lua::readTables(m_bytes, lua::Version::Lua51);
    takeReading(in51, "the file ");
    if (in51.loads())
        takeReading(lua::readTables(m_bytes, lua::Version::Lua53), "with Lua 5.3 the file ");
    const std::size_t toldLine = m_findings.empty() ? 0 : m_findings.front().line;
    for (const lua::Note& note : in51.notes) {
        if (note.line != toldLine)
            add(note.line, note.oddity == lua::Oddity::Backslash ? backslashWords : bareWordWords);
    }
}

void FileFindings::takeReading(const lua::Reading& reading, std::string_view what)
{
    if (reading.loads() || isKnown(reading.fault))
        return;
    const bool fails = reading.verdict == lua::Verdict::Fails;
    add(reading.line, std::string(what)
                          .append(fails ? "won't load: " : "may not load: ")
                          .append(lua::words(reading.fault)));
}

bool FileFindings::isKnown(lua::Fault fault) const
{
    const auto found = notLoading().find(slashed(m_file));
    return found != notLoading().end() && found->second == fault;
}

void FileFindings::takeTexts()
{
    if (m_bytes.find('"') == std::string_view::npos)
        return; // a grid
    LineCursor cursor(m_bytes);
    for (std::size_t number = 1; const auto line = cursor.next(); ++number) {
        if (line->find('"') != std::string_view::npos)
            takeTextsOf(*line, number);
    }
}

/// The bytes between a text's quotes, if all of the piece is one.
std::optional<std::string_view> textIn(std::string_view piece)
{
    while (piece.starts_with('\t') || piece.starts_with(' '))
        piece.remove_prefix(1);
    while (piece.ends_with(' ') || piece.ends_with('\t'))
        piece.remove_suffix(1);
    if (piece.ends_with(','))
        piece.remove_suffix(1);
    if (piece.size() < 2 || !piece.starts_with('"') || !piece.ends_with('"'))
        return std::nullopt;
    return piece.substr(1, piece.size() - 2);
}

/// A row is `"text",` or a key with a text behind it. The readers take off a row's ends what they take off a
/// key's, and off a value's a little less.
void FileFindings::takeTextsOf(std::string_view line, std::size_t number)
{
    const auto row = textIn(line);
    const auto text = row ? row : textIn(splitOnce(line, '=').right);
    if (!text)
        return;
    if (trimmedTableValue(*text) != *text)
        add(number, endsWords);
    else if (row && trimmedTableKey(*text) != *text)
        add(number, bracketWords);
    else if (!row && isCutAtEquals(line) && text->find('=') != std::string_view::npos)
        add(number, equalsWords);
    else if (m_file == clientVersionsFile && std::count(text->begin(), text->end(), '^') > 1)
        add(number, caretWords);
}

/// Keys in brackets and quotes are rows of lists, whose reader splits a line at each `=`, as it does in the
/// language files.
bool FileFindings::isCutAtEquals(std::string_view line) const
{
    while (line.starts_with('\t') || line.starts_with(' '))
        line.remove_prefix(1);
    return line.starts_with("[\"") || m_file.starts_with("Language\\");
}

void FileFindings::takeRows()
{
    LineCursor cursor(m_bytes);
    for (std::size_t number = 1; const auto line = cursor.next(); ++number) {
        const auto stars = std::count(line->begin(), line->end(), '*');
        if (stars > 1)
            add(number, starWords);
        else if (stars == 1 && line->ends_with('t') && *line != firstTriviaQuestion)
            add(number, endsInTWords);
    }
}

void FileFindings::takeLength()
{
    LineCursor cursor(m_bytes);
    for (std::size_t number = 1; cursor.next(); ++number) {
        if (number > lineLimit)
            return add(number, tooLongWords);
    }
}

} // namespace

std::vector<Finding> fileFindings(std::string_view file, std::string_view bytes)
{
    return FileFindings(file, bytes).take();
}

void addToOtherLines(std::vector<Finding>& findings, const std::vector<Finding>& others)
{
    for (const Finding& other : others) {
        const auto place =
            std::lower_bound(findings.begin(), findings.end(), other.line,
                             [](const Finding& finding, std::size_t line) { return finding.line < line; });
        if (place == findings.end() || place->line != other.line)
            findings.insert(place, other);
    }
}

Finding missingFile(std::string_view file)
{
    return {std::string(file), 0, std::string(missingWords)};
}

Finding unreadableFile(std::string_view file)
{
    return {std::string(file), 0, std::string(unreadableWords)};
}

Finding switchedOff(std::string_view name)
{
    return {switchesPath, 0,
            std::string(name) + " is switched off, so that the hub script does nothing of this. Tick it in "
                                "General ~ Switches."};
}

} // namespace quillfen
