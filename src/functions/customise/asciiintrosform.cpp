#include "functions/customise/asciiintrosform.h"

#include "functions/customise/asciiintros.h"
#include "shell/kit/folderfilespart.h"

#include <QHBoxLayout>
#include <QWidget>

#include <algorithm>

namespace quillfen {
namespace {

/// The users, each with a picture of the folder.
class UsersPart : public RowListPart
{
public:
    UsersPart(const RowListPart& files, const FormContext& context)
        : RowListPart(asciiIntroUsers(), context),
          m_files(files)
    {
    }

protected:
    RowDialog dialog() const override
    {
        RowDialog offered = RowListPart::dialog();
        offered.entries.emplace_back();
        for (const CellRow& file : m_files.rows())
            offered.entries.back().push_back(file.cells[0]);
        return offered;
    }

private:
    const RowListPart& m_files;
};

/// The pictures. One that a user has can't go.
class FilesPart : public FolderFilesPart
{
public:
    explicit FilesPart(const FormContext& context)
        : FolderFilesPart(asciiIntroFiles(), std::string(asciiIntroFolder), context)
    {
    }

    void setUsers(const RowListPart& users) { m_users = &users; }

protected:
    std::string refusal(const CellRow& file) const override
    {
        const bool inUse =
            std::any_of(m_users->rows().begin(), m_users->rows().end(),
                        [&file](const CellRow& user) { return user.cells[1] == file.cells[0]; });
        return inUse ? "Cannot delete this Ascii Intro as it is in use" : FolderFilesPart::refusal(file);
    }

private:
    const RowListPart* m_users = nullptr;
};

/// Users and pictures side by side: each list asks the other.
class AsciiIntrosPart : public FormPart
{
public:
    explicit AsciiIntrosPart(const FormContext& context)
        : m_files(new FilesPart(context)),
          m_users(new UsersPart(*m_files, context)),
          m_widget(new QWidget)
    {
        m_files->setUsers(*m_users);
        auto* layout = new QHBoxLayout(m_widget);
        layout->setContentsMargins({});
        for (RowListPart* list : {m_users, static_cast<RowListPart*>(m_files)}) {
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
    FilesPart* m_files;
    RowListPart* m_users;
    QWidget* m_widget;
};

} // namespace

std::unique_ptr<FormPart> makeAsciiIntrosPart(const FormContext& context)
{
    return std::make_unique<AsciiIntrosPart>(context);
}

} // namespace quillfen
