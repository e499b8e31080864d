#pragma once

#include <QList>
#include <QString>
#include <QStringList>

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
inline constexpr const char* portalKey = "Communication~Portal";

/// All nodes below the root, in the order of the tree.
const QList<NavigatorRow>& navigatorRows();

/// The key of the node above; empty for a node right below the root.
QString parentKey(const QString& key);

/// Whether a node has children. A heading opens nothing.
bool isHeading(const QString& key);

/// Every key with a form behind it: rows in their order, then the forms that no node reaches.
QStringList formKeys();

/// The form behind a key; empty if there is none.
QString formName(const QString& key);

/// The key that leads to a form; empty if none does.
QString keyOfForm(const QString& name);

/// "General~Settings" as it is shown: "General ~ Settings".
QString captionOfKey(const QString& key);

} // namespace quillfen
