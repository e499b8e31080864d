#pragma once

#include "shell/kit/rowlistpart.h"

namespace quillfen {

/// A list whose rows have a text file each, which bears the first cell's name. With a row its file is
/// deleted, at once; one whose name leads out of the folder stays.
class RowFilesPart : public RowListPart
{
    Q_OBJECT

public:
    /// `folder` is a told path.
    RowFilesPart(const RowListDeclaration& declaration, std::string folder, const FormContext& context);

protected:
    std::string refusal(const CellRow& row) const override;
    bool mayDelete(const CellRow& row) override;

    const std::string& folder() const { return m_folder; }

    /// The told path of a row's file, as the disk has it.
    std::string pathOf(const CellRow& row) const;

private:
    std::string m_folder;
};

/// The texts of a folder: a declared list of their names, each with its file behind it. Texts are written and
/// deleted at once, apart from the form's save. The dialog's title and label are those of the box that asks
/// for a new text's name. Files that can't be listed are named in the form's second panel.
class FolderFilesPart : public RowFilesPart
{
    Q_OBJECT

public:
    using RowFilesPart::RowFilesPart;

    void load() override;

protected:
    void add() override;
    void edit() override;

private:
    std::string askName();
    bool isGoodName(const std::string& name);
};

} // namespace quillfen
