#pragma once

#include "declarations/declaration.h"
#include "shell/kit/controls.h"
#include "shell/kit/editorform.h"

#include <functional>
#include <vector>

namespace quillfen {

/// A declared settings file with a bound control for each of its settings: check boxes, then labelled fields,
/// and profile lists beside them.
class TableFilePart : public FormPart
{
    Q_OBJECT

public:
    /// Makes the control of named texts, for which the kit has none.
    using OwnControl = std::function<Control(const setting::NamedTexts&)>;

    TableFilePart(TableFile file, const FormContext& context, const OwnControl& own = {});

    QWidget* widget() override { return m_widget; }
    void load() override;
    void restore() override;
    void save() override;

private:
    void addControl(const Setting& setting, const OwnControl& own);
    QWidget* placed() const;

    const TableFile m_file; ///< its own, which the controls hold on to
    FormContext m_context;
    std::vector<Control> m_controls;
    QWidget* m_widget;
};

} // namespace quillfen
