#include "store/linediff.h"

#include <algorithm>
#include <cstddef>

namespace quillfen {
namespace {

using Lines = std::vector<std::string_view>;
using LineKind = DiffLine::Kind;

Lines splitLines(std::string_view text)
{
    Lines lines;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        auto line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        lines.push_back(line);
    }
    return lines;
}

/// The middle parts of two texts, compared by the greedy way of Myers: for each number of differences the
/// furthest that one comes on each diagonal, until one of them reaches the end.
class Middle
{
public:
    Middle(const std::string_view* from, int fromSize, const std::string_view* to, int toSize)
        : m_from(from),
          m_to(to),
          m_fromSize(fromSize),
          m_toSize(toSize)
    {
    }

    std::vector<DiffLine> difference()
    {
        const int differences = search();
        return differences < 0 ? allDifferent() : path(differences);
    }

private:
    static constexpr int mostDifferences = 2000;

    using Furthest = std::vector<int>; ///< the old line that is reached on diagonals -d, -d + 2 ... d

    static bool comesFromAbove(const Furthest& before, int differences, int diagonal)
    {
        if (diagonal == -differences || diagonal == differences)
            return diagonal == -differences;
        return on(before, differences - 1, diagonal - 1) < on(before, differences - 1, diagonal + 1);
    }

    static int on(const Furthest& reached, int differences, int diagonal)
    {
        return reached[static_cast<std::size_t>((diagonal + differences) / 2)];
    }

    int start(int differences, int diagonal) const
    {
        if (differences == 0)
            return 0;
        const Furthest& before = m_reached[static_cast<std::size_t>(differences - 1)];
        return comesFromAbove(before, differences, diagonal) ? on(before, differences - 1, diagonal + 1)
                                                             : on(before, differences - 1, diagonal - 1) + 1;
    }

    int slide(int line, int diagonal) const
    {
        while (line < m_fromSize && line - diagonal < m_toSize && m_from[line] == m_to[line - diagonal])
            ++line;
        return line;
    }

    /// The number of differences; -1 if there are too many.
    int search()
    {
        for (int differences = 0; differences <= mostDifferences; ++differences) {
            Furthest reached;
            for (int diagonal = -differences; diagonal <= differences; diagonal += 2) {
                reached.push_back(slide(start(differences, diagonal), diagonal));
                if (diagonal == m_fromSize - m_toSize && reached.back() >= m_fromSize)
                    return differences;
            }
            m_reached.push_back(std::move(reached));
        }
        return -1;
    }

    std::vector<DiffLine> path(int differences) const
    {
        std::vector<DiffLine> lines;
        int line = m_fromSize;
        int diagonal = m_fromSize - m_toSize;
        for (;; --differences) {
            const int from = start(differences, diagonal);
            while (line > from)
                lines.push_back({LineKind::Same, m_from[--line]});
            if (differences == 0)
                break;
            if (comesFromAbove(m_reached[static_cast<std::size_t>(differences - 1)], differences, diagonal)) {
                lines.push_back({LineKind::New, m_to[line - diagonal - 1]});
                ++diagonal;
            } else {
                lines.push_back({LineKind::Old, m_from[--line]});
                --diagonal;
            }
        }
        std::reverse(lines.begin(), lines.end());
        return lines;
    }

    std::vector<DiffLine> allDifferent() const
    {
        std::vector<DiffLine> lines;
        lines.reserve(static_cast<std::size_t>(m_fromSize) + static_cast<std::size_t>(m_toSize));
        for (int at = 0; at < m_fromSize; ++at)
            lines.push_back({LineKind::Old, m_from[at]});
        for (int at = 0; at < m_toSize; ++at)
            lines.push_back({LineKind::New, m_to[at]});
        return lines;
    }

    const std::string_view* m_from;
    const std::string_view* m_to;
    int m_fromSize;
    int m_toSize;
    std::vector<Furthest> m_reached;
};

} // namespace

std::vector<DiffLine> lineDifference(std::string_view oldText, std::string_view newText)
{
    const Lines from = splitLines(oldText);
    const Lines to = splitLines(newText);
    const auto shorter = std::min(from.size(), to.size());
    std::size_t front = 0;
    while (front < shorter && from[front] == to[front])
        ++front;
    std::size_t back = 0;
    while (back < shorter - front && from[from.size() - back - 1] == to[to.size() - back - 1])
        ++back;

    std::vector<DiffLine> lines;
    for (std::size_t at = 0; at < front; ++at)
        lines.push_back({LineKind::Same, from[at]});
    const auto middle = Middle(from.data() + front, static_cast<int>(from.size() - front - back),
                               to.data() + front, static_cast<int>(to.size() - front - back))
                            .difference();
    lines.insert(lines.end(), middle.begin(), middle.end());
    for (std::size_t at = from.size() - back; at < from.size(); ++at)
        lines.push_back({LineKind::Same, from[at]});
    return lines;
}

} // namespace quillfen
