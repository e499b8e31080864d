#include "functions/customise/asciiintrosform.h"

#include "functions/customise/asciiintros.h"
#include "shell/kit/folderfilespart.h"

#include <QHBoxLayout>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace quillfen {
namespace {

/// Users and pictures side by side: each list asks the other.
class AsciiIntrosPart : public FormPart
{
public:
    explicit AsciiIntrosPart(const FormContext& context)
        : m_files(new FolderFilesPart(asciiIntroFiles(), std::string(asciiIntroFolder), context,
                                      [this](const CellRow& file) { return useOf(file); })),
          m_users(
              new RowListPart(asciiIntroUsers(), context,
                              {.offer = [this](RowDialog dialog) { return withFiles(std::move(dialog)); }})),
          m_widget(new QWidget)
    {
        auto* layout = new QHBoxLayout(m_widget);
        layout->setContentsMargins({});
        for (RowListPart* list : {m_users, m_files}) {
            adopt(*list);
            layout->addWidget(list->widget());
        }
    }

    QWidget* widget() override { return m_widget; }

    void load() override
    {
        m_users->load();
        m_files->load();
    }

    void restore() override { m_users->restore(); } ///< the folder is no setting with a default

    void save() override
    {
        m_users->save();
        m_files->save();
    }

    RoutineTable routines() override
    {
        RoutineTable all = m_users->routines();
        all.insert(m_files->routines());
        return all;
    }

private:
    /// A picture that a user has can't go.
    std::string useOf(const CellRow& file) const
    {
        const bool inUse =
            std::any_of(m_users->rows().begin(), m_users->rows().end(),
                        [&file](const CellRow& user) { return user.cells[1] == file.cells[0]; });
        return inUse ? "Cannot delete this Ascii Intro as it is in use" : std::string();
    }

    /// The users' dialog offers the pictures.
    RowDialog withFiles(RowDialog dialog) const
    {
        dialog.entries.emplace_back();
        for (const CellRow& file : m_files->rows())
            dialog.entries.back().push_back(file.cells[0]);
        return dialog;
    }

    RowListPart* m_files;
    RowListPart* m_users;
    QWidget* m_widget;
};

} // namespace

std::unique_ptr<FormPart> makeAsciiIntrosPart(const FormContext& context)
{
    return std::make_unique<AsciiIntrosPart>(context);
}

} // namespace quillfen
