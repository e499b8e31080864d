#pragma once

#include "shell/kit/rowlistpart.h"

namespace quillfen {

/// The texts of a folder: a declared list of their names, each with its file behind it. Texts are written and
/// deleted at once, apart from the form's save. The dialog's title and label are those of the box that asks
/// for a new text's name. Files that can't be listed are named in the form's second panel.
class FolderFilesPart : public RowListPart
{
    Q_OBJECT

public:
    /// `folder` is a told path.
    FolderFilesPart(const RowListDeclaration& declaration, std::string folder, const FormContext& context);

    void load() override;

protected:
    void add() override;
    void edit() override;
    std::string refusal(const CellRow& row) const override;
    bool mayDelete(const CellRow& row) override;

private:
    std::string askName();
    bool isGoodName(const std::string& name);
    std::string pathOf(const CellRow& row) const;

    std::string m_folder;
};

} // namespace quillfen
