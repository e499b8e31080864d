#pragma once

#include "declarations/formdeclaration.h"
#include "shell/kit/editorform.h"

#include <functional>
#include <memory>

namespace quillfen {

/// Makes the parts whose class is told by their kind; those that differ from the kit's stand above it.
struct PartMakers
{
    std::function<std::unique_ptr<FormPart>(SettingsPartKind, const TableFile&, const FormContext&)> settings;
    std::function<std::unique_ptr<FormPart>(ListPartKind, const RowListDeclaration&, const FormContext&)>
        list;
    std::function<std::unique_ptr<FormPart>(const OwnPart&, const FormContext&)> own;
};

/// Makes a declared form with its parts.
std::unique_ptr<EditorForm> makeForm(const FormDeclaration& declaration, const PartMakers& makers,
                                     const FormContext& context);

} // namespace quillfen
