#include "shell/window/openwindows.h"

#include "shell/window/navigatortable.h"

#include <algorithm>

namespace quillfen {

void COpenWindows::Add(const QString& key)
{
    COpenWindow entry;
    entry.setKey(key);
    entry.setCaption(captionOfKey(key));
    m_entries.append(entry);
}

bool COpenWindows::contains(const QString& key) const
{
    return std::any_of(begin(), end(), [&key](const COpenWindow& entry) { return entry.Key() == key; });
}

void COpenWindows::removeCaption(const QString& caption)
{
    const auto entry = std::find_if(
        begin(), end(), [&](const COpenWindow& each) { return sameCaption(each.Caption(), caption); });
    if (entry != end())
        Remove(entry - begin() + 1);
}

bool sameCaption(const QString& one, const QString& other)
{
    return QString(one).remove(' ') == QString(other).remove(' ');
}

} // namespace quillfen
