#pragma once

#include "declarations/function.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <vector>

namespace quillfen {

/// A node of the navigator. Its key, such as "General~Settings", is the one name by which the tree, the
/// drop-downs, the Window menu and the open-window registry know a form.
struct NavigatorRow
{
    QString key;
    QString caption;
    QString dropDown; ///< the caption in the top toolbar's drop-down
};

/// The node that needs its switch in the settings tree: it is left out unless the owner put it there by hand.
inline constexpr QLatin1String portalKey("Communication~Portal");

/// What the main window knows of the functions' nodes.
class NavigatorTable
{
public:
    explicit NavigatorTable(const std::vector<Node>& nodes);

    /// All nodes below the root, in the order of the tree.
    const QList<NavigatorRow>& rows() const { return m_rows; }

    /// The key of the node above; empty for a node right below the root.
    QString parentKey(const QString& key) const { return m_places.value(key).above; }

    /// Whether a node has children. A heading opens nothing.
    bool isHeading(const QString& key) const { return m_headings.contains(key); }

    /// Every key with a form behind it: rows in their order, then the forms that no node reaches.
    const QStringList& formKeys() const { return m_formKeys; }

    /// A node's caption.
    QString caption(const QString& key) const { return m_places.value(key).caption; }

    /// The form behind a key; empty if there is none.
    QString formName(const QString& key) const { return m_places.value(key).form; }

    /// The key that leads to a form; empty if none does.
    QString keyOfForm(const QString& name) const { return m_keys.value(name); }

private:
    /// What a key leads to.
    struct Place
    {
        QString above; ///< the key of the node above
        QString form;
        QString caption;
    };

    QList<NavigatorRow> m_rows;
    QHash<QString, Place> m_places;
    QSet<QString> m_headings;
    QStringList m_formKeys;
    QHash<QString, QString> m_keys; ///< by the form's name
};

/// Whether a key is of one of the groups whose functions differ: not of an archive's member, and no node's.
bool isFunctionGroup(const QString& key);

/// "General~Settings" as it is shown: "General ~ Settings".
QString captionOfKey(const QString& key);

} // namespace quillfen
