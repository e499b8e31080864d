#include "shell/window/navigatortable.h"

#include "functions/catalogue.h"
#include "shell/kit/codepagetext.h"

#include <QHash>
#include <QSet>

namespace quillfen {
namespace {

/// What a key leads to.
struct Place
{
    QString above; ///< the key of the node above
    QString form;
};

QString keyAbove(const Node& node)
{
    return node.above.empty() ? fromBytes(node.key).section('~', 0, -2) : fromBytes(node.above);
}

const QHash<QString, Place>& places()
{
    static const QHash<QString, Place> all = [] {
        QHash<QString, Place> byKey;
        for (const Node& node : functionNodes())
            byKey.insert(fromBytes(node.key),
                         {keyAbove(node), node.form ? fromBytes(node.form->form.name) : QString()});
        return byKey;
    }();
    return all;
}

QList<NavigatorRow> allRows()
{
    QList<NavigatorRow> all;
    for (const Node& node : functionNodes()) {
        if (node.inTree)
            all.append({fromBytes(node.key), fromBytes(node.caption),
                        fromBytes(node.dropDown.empty() ? node.caption : node.dropDown)});
    }
    return all;
}

QSet<QString> allParents()
{
    QSet<QString> parents;
    for (const Place& place : places())
        parents.insert(place.above);
    return parents;
}

} // namespace

const QList<NavigatorRow>& navigatorRows()
{
    static const QList<NavigatorRow> all = allRows();
    return all;
}

QString parentKey(const QString& key)
{
    return places().value(key).above;
}

bool isHeading(const QString& key)
{
    static const QSet<QString> parents = allParents();
    return parents.contains(key);
}

QStringList formKeys()
{
    QStringList keys;
    QStringList withoutNode;
    for (const Node& node : functionNodes()) {
        if (node.form)
            (node.inTree ? keys : withoutNode).append(fromBytes(node.key));
    }
    return keys + withoutNode;
}

QString formName(const QString& key)
{
    return places().value(key).form;
}

QString keyOfForm(const QString& name)
{
    const QStringList keys = formKeys();
    const auto found = std::ranges::find(keys, name, formName);
    return found == keys.end() ? QString() : *found;
}

QString captionOfKey(const QString& key)
{
    return QString(key).replace('~', QStringLiteral(" ~ "));
}

} // namespace quillfen
