#pragma once

#include "declarations/formdeclaration.h"
#include "find/findindex.h"
#include "shell/kit/formpart.h"

#include <QHash>
#include <QString>

#include <optional>

namespace quillfen {

class NavigatorTable;

/// What answers the find box: the index of all forms in the tree and of their files, which is built when it
/// is asked for first and whenever files may have changed since.
class Finder
{
public:
    /// All of them must outlive it.
    Finder(const NavigatorTable& table, const QHash<QString, FormDeclaration>& forms,
           const FormContext& context);

    /// The first of what is found for a typed text.
    FindResult find(const QString& typed);

    /// From now on files may hold something else.
    void forget() { m_index.reset(); }

    /// Off where the tree has no node for the Portal.
    void setPortalShown(bool shown) { m_portalShown = shown; }

    /// The captions of a node and of those above it.
    QString captionOf(const QString& key) const;

    static constexpr std::size_t mostHits = 200;

private:
    FindIndex built() const;

    const NavigatorTable& m_table;
    const QHash<QString, FormDeclaration>& m_forms;
    const FormContext& m_context;
    bool m_portalShown = true;
    std::optional<FindIndex> m_index;
};

} // namespace quillfen
