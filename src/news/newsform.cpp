#include "news/newsform.h"

#include "news/news.h"
#include "settings/tablefile.h"
#include "shell/kit/codepagetext.h"
#include "shell/kit/messages.h"
#include "shell/kit/rowlist.h"
#include "shell/kit/toolbarlist.h"

#include <QHeaderView>

namespace quillfen {
namespace {

enum Column
{
    Date,
    Headline,
    Story,
    Symbol,
    Number
};

CellRow rowOf(const NewsArticle& article)
{
    return {{article.date, article.headline, article.story, article.symbol, article.number}};
}

NewsArticle articleOf(const CellRow& row)
{
    return {row.cells[Date], row.cells[Headline], row.cells[Story], row.cells[Symbol], row.cells[Number]};
}

/// The list of articles with DELETE and EDIT.
class NewsPart : public FormPart
{
public:
    explicit NewsPart(const FormContext& context)
        : m_context(context),
          m_list(new RowList("lvwNews", {"Date", "News Headline", "News Story", "Symbol", "News ID"}, false)),
          m_tools(new ToolbarList(m_list, {"tlbListview", "News"}, {AddDeleteButton, AddEditButton}, context))
    {
        for (const Column narrow : {Date, Symbol, Number})
            m_list->header()->resizeSection(narrow, 12 * m_list->fontMetrics().averageCharWidth());
        m_list->header()->setStretchLastSection(false);
        m_list->header()->setSectionResizeMode(Story, QHeaderView::Stretch);
        m_tools->connectButtons(this,
                                {{"DELETE", &NewsPart::removeSelected}, {"EDIT", &NewsPart::showSelected}});
        m_tools->letRowsLightButtons();
    }

    QWidget* widget() override { return m_tools; }

    void load() override
    {
        std::vector<CellRow> rows;
        for (const NewsArticle& article : loadNews(m_context.files))
            rows.push_back(rowOf(article));
        m_list->setRows(std::move(rows));
    }

    void restore() override {} // there are no articles by default

    void save() override
    {
        std::vector<NewsArticle> articles;
        for (const CellRow& row : m_list->rows())
            articles.push_back(articleOf(row));
        saveNews(m_context.files, articles);
    }

private:
    void removeSelected()
    {
        const std::vector<int> selected = m_list->selectedRows();
        if (selected.empty() ||
            !confirm(m_list, "Delete News Article?", "Do you really want to delete this News Article?"))
            return;
        m_list->remove(selected);
        emit changed();
    }

    void showSelected()
    {
        const int selected = m_list->currentRow();
        if (selected < 0)
            return;
        const auto article = articleOf(m_list->rows()[static_cast<std::size_t>(selected)]);
        notify(m_list, fromBytes(article.date) + " - " + fromBytes(article.headline),
               fromBytes(article.story), QMessageBox::NoIcon);
    }

    FormContext m_context;
    RowList* m_list;
    ToolbarList* m_tools;
};

} // namespace

std::unique_ptr<FormPart> makeNewsPart(const FormContext& context)
{
    return std::make_unique<NewsPart>(context);
}

} // namespace quillfen
