#pragma once

#include "shell/kit/rowlistpart.h"

namespace quillfen {

/// For a list whose rows have a text file each, which bears the first cell's name. With a row its file is
/// deleted, at once; one whose name leads out of the folder stays. `folder` is a told path.
RowListHooks fileHooks(const FormContext& context, const std::string& folder);

/// The texts of a folder: a declared list of their names, each with its file behind it. Texts are written and
/// deleted at once, apart from the form's save. The dialog's title and label are those of the box that asks
/// for a new text's name. Files that can't be listed are named in the form's second panel.
class FolderFilesPart : public RowListPart
{
    Q_OBJECT

public:
    /// `folder` is a told path; `refuse` tells more reasons why a text can't go.
    FolderFilesPart(const RowListDeclaration& declaration, std::string folder, const FormContext& context,
                    const std::function<std::string(const CellRow&)>& refuse = {});

    void load() override;
    std::vector<EditedText> editedTexts() override;

protected:
    void add() override;
    void edit() override;

private:
    std::string askName();
    bool isGoodName(const std::string& name);

    std::string m_folder;
};

} // namespace quillfen
