#include "shell/window/finder.h"

#include "find/findforms.h"
#include "shell/kit/codepagetext.h"
#include "shell/window/navigatortable.h"

namespace quillfen {

Finder::Finder(const NavigatorTable& table, const QHash<QString, FormDeclaration>& forms,
               const FormContext& context)
    : m_table(table),
      m_forms(forms),
      m_context(context)
{
}

FindResult Finder::find(const QString& typed)
{
    if (!m_index)
        m_index = built();
    return m_index->find(FindQuery(toBytes(typed)), mostHits);
}

QString Finder::captionOf(const QString& key) const
{
    const QString above = m_table.parentKey(key);
    return (above.isEmpty() ? QString() : captionOf(above) + " ~ ") + m_table.caption(key);
}

FindIndex Finder::built() const
{
    std::vector<FindableForm> findable;
    for (const NavigatorRow& row : m_table.rows()) {
        const auto form = m_forms.constFind(m_table.formName(row.key));
        if (form != m_forms.constEnd() && (m_portalShown || row.key != portalKey))
            findable.push_back({toBytes(row.key), toBytes(captionOf(row.key)), &*form});
    }
    return indexOfForms(findable, m_context.files, m_context.profiles);
}

} // namespace quillfen
