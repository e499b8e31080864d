#include "shell/window/navigatortable.h"

#include "shell/kit/codepagetext.h"

#include <algorithm>
#include <iterator>

namespace quillfen {
namespace {

QString keyAbove(const Node& node)
{
    return node.above.empty() ? fromBytes(node.key).section('~', 0, -2) : fromBytes(node.above);
}

} // namespace

NavigatorTable::NavigatorTable(const std::vector<Node>& nodes)
{
    QStringList withoutNode;
    for (const Node& node : nodes) {
        const QString key = fromBytes(node.key);
        const QString form = node.form ? fromBytes(node.form->form.name) : QString();
        m_places.insert(key, {keyAbove(node), form, fromBytes(node.caption)});
        m_headings.insert(keyAbove(node));
        if (node.inTree)
            m_rows.append({key, fromBytes(node.caption),
                           fromBytes(node.dropDown.empty() ? node.caption : node.dropDown)});
        if (!node.form)
            continue;
        (node.inTree ? m_formKeys : withoutNode).append(key);
        m_keys.insert(form, key);
    }
    m_formKeys += withoutNode;
}

bool isFunctionGroup(const QString& key)
{
    static const QStringList groups = {"General", "Communication", "CustomiseUser",
                                       "Games",   "Security",      "UserActions"};
    return groups.contains(key);
}

QString captionOfKey(const QString& key)
{
    return QString(key).replace('~', QStringLiteral(" ~ "));
}

} // namespace quillfen
